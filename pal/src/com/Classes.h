// The classes of CoCreateInstance.
#pragma once

#include <objbase.h>

#include <functional>
#include <optional>

namespace Pal
{

// Returns an object with one reference.
using ClassFactory = std::function<IUnknown*()>;

// The factory that a test registered last for the class, else the layer's own.
std::optional<ClassFactory> FindClass(REFCLSID classId);

} // namespace Pal
