// The classes that CoCreateInstance knows.
#pragma once

#include <functional>
#include <optional>

#include <objbase.h>

namespace Pal
{

// Makes an object with one reference.
using ClassFactory = std::function<IUnknown*()>;

// The factory that tests registered last for the class, else the layer's own.
std::optional<ClassFactory> FindClass(REFCLSID classId);

} // namespace Pal
