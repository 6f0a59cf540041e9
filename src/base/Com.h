#pragma once

#include <objbase.h>

#include <utility>

namespace Vorlan::Platform
{

// COM on this thread, from the first Initialise to the object's end; balanced also where it was
// initialised before.
class ComApartment
{
public:
    ComApartment() = default;
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;
    ~ComApartment()
    {
        if (isInitialised)
            CoUninitialize();
    }

    bool Initialise()
    {
        isInitialised = isInitialised || SUCCEEDED(CoInitialize(nullptr));
        return isInitialised;
    }

private:
    bool isInitialised = false;
};

// Owns one reference to a COM object.
template <typename Interface>
class ComPointer
{
public:
    ComPointer() = default;
    ComPointer(ComPointer&& other) noexcept : object(std::exchange(other.object, nullptr)) {}
    ComPointer& operator=(ComPointer&& other) noexcept
    {
        std::swap(object, other.object);
        return *this;
    }
    ~ComPointer() { Reset(); }

    explicit operator bool() const { return object != nullptr; }
    Interface* operator->() const { return object; }
    Interface* Get() const { return object; }

    // For calls that hand out a reference; what was owned is released first.
    void** Put()
    {
        Reset();
        return reinterpret_cast<void**>(&object);
    }

    void Reset()
    {
        if (Interface* released = std::exchange(object, nullptr))
            released->Release();
    }

private:
    Interface* object = nullptr;
};

} // namespace Vorlan::Platform
