#pragma once

#include <windows.h>

#include <unknwn.h>

namespace Probe
{

// Owns one reference to a COM object.
template <typename Interface>
class ComPointer
{
public:
    ComPointer() = default;
    explicit ComPointer(Interface* owned) : object(owned) {}
    ComPointer(const ComPointer&) = delete;
    ComPointer& operator=(const ComPointer&) = delete;
    ~ComPointer()
    {
        if (object)
            object->Release();
    }

    Interface* Get() const { return object; }
    Interface* operator->() const { return object; }
    Interface** Put() { return &object; }

private:
    Interface* object = nullptr;
};

} // namespace Probe
