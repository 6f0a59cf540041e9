#include "Library.h"

#include <windows.h>

namespace Probe
{

void HideErrorBoxes()
{
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
}

Library::Library(const char* fileName)
    : handle(LoadLibraryExA(fileName, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32))
{
}

Library::~Library()
{
    if (handle)
        FreeLibrary(static_cast<HMODULE>(handle));
}

void* Library::FindAddress(const char* name) const
{
    if (!handle)
        return nullptr;
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(handle), name));
}

} // namespace Probe
