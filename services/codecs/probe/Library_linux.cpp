#include "Library.h"

#include <dlfcn.h>

namespace Probe
{

void HideErrorBoxes() {}

Library::Library(const char* fileName) : handle(dlopen(fileName, RTLD_NOW)) {}

Library::~Library()
{
    if (handle)
        dlclose(handle);
}

void* Library::FindAddress(const char* name) const
{
    return handle ? dlsym(handle, name) : nullptr;
}

} // namespace Probe
