#include <objbase.h>

#include "com/Classes.h"
#include "com/ComFaults.h"

namespace
{

thread_local unsigned initializations = 0;

} // namespace

// Keeps:   S_OK for the first call on a thread, S_FALSE for every other; each needs a
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
// Differs: existing objects stay usable. It cannot fail and is not counted.
void CoUninitialize()
{
    if (initializations > 0)
        --initializations;
}

// Keeps:   CO_E_NOTINITIALIZED on a thread without COM, REGDB_E_CLASSNOTREG for an unknown class,
//          E_NOINTERFACE; a failure sets a null pointer.
// Differs: the classes are the shell link, those of default applications, and those that tests
//          register. All of them run in the process, so the context must contain
//          CLSCTX_INPROC_SERVER.
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

// Keeps:   E_INVALIDARG for a null object or a reserved argument.
// Differs: there are no windows, so nothing changes.
HRESULT CoAllowSetForegroundWindow(IUnknown* object, LPVOID reserved)
{
    if (const auto fault = Pal::InjectedResult(__func__))
        return *fault;
    return object && !reserved ? S_OK : E_INVALIDARG;
}
