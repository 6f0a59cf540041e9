#include <objbase.h>

#include <cstdlib>

#include "Classes.h"
#include "ComFaults.h"

namespace
{

thread_local unsigned initializations = 0;

} // namespace

// Keeps:   S_OK for the first call on a thread, S_FALSE for any other, and each of them wants its
//          CoUninitialize.
// Differs: there are no apartments and no message loop; a thread may use the objects of another.
// Refuses: a reserved argument.
HRESULT CoInitialize(LPVOID reserved)
{
    if (const auto fault = Pal::InjectedResult(__func__))
        return *fault;
    if (reserved)
        return E_INVALIDARG;
    return ++initializations == 1 ? S_OK : S_FALSE;
}

// Keeps:   undoes one CoInitialize of this thread.
// Differs: objects that still live stay usable. It cannot fail and is not counted.
void CoUninitialize()
{
    if (initializations > 0)
        --initializations;
}

// Keeps:   CO_E_NOTINITIALIZED on a thread without COM, REGDB_E_CLASSNOTREG for an unknown class,
//          E_NOINTERFACE; a failure gives a null pointer.
// Differs: the classes are the shell link, those of default applications, and those that tests
//          register; every one of them runs in the process, so the context only has to ask for that
//          among others.
// Refuses: aggregation.
HRESULT CoCreateInstance(
    REFCLSID classId, IUnknown* outer, DWORD context, REFIID iid, LPVOID* object)
{
    if (!object)
        return E_POINTER;
    *object = nullptr;
    if (const auto fault = Pal::InjectedResult(__func__))
        return *fault;
    if (initializations == 0)
        return CO_E_NOTINITIALIZED;
    if (outer)
        return CLASS_E_NOAGGREGATION;
    const auto factory = Pal::FindClass(classId);
    if (!factory || !(context & CLSCTX_INPROC_SERVER))
        return REGDB_E_CLASSNOTREG;
    IUnknown* const created = (*factory)();
    const HRESULT result = created->QueryInterface(iid, object);
    created->Release();
    return result;
}

// Keeps:   frees what a method handed out; a null pointer is nothing. It cannot fail.
void CoTaskMemFree(LPVOID memory)
{
    std::free(memory);
}

// Keeps:   the arguments that it refuses.
// Differs: there are no windows, so nothing changes.
// Refuses: no object, and a reserved argument.
HRESULT CoAllowSetForegroundWindow(IUnknown* object, LPVOID reserved)
{
    if (const auto fault = Pal::InjectedResult(__func__))
        return *fault;
    return object && !reserved ? S_OK : E_INVALIDARG;
}
