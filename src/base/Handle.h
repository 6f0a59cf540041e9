#pragma once

#include <windows.h>

#include <utility>

namespace Vorlan::Platform
{

// Owns a system handle, closed by the destructor. Closing preserves the last error.
template <typename Traits>
class UniqueHandle
{
public:
    using Type = typename Traits::Type;

    explicit UniqueHandle(Type owned = Type{}) : handle(owned) {}
    UniqueHandle(UniqueHandle&& other) noexcept : handle(std::exchange(other.handle, Type{})) {}
    UniqueHandle& operator=(UniqueHandle&& other) noexcept
    {
        Reset(std::exchange(other.handle, Type{}));
        return *this;
    }
    ~UniqueHandle() { Reset(); }

    explicit operator bool() const { return Traits::IsValid(handle); }
    Type Get() const { return handle; }

    // For calls that hand out a handle; whatever was owned is closed first.
    Type* Put()
    {
        Reset();
        return &handle;
    }

    void Reset(Type owned = Type{})
    {
        const DWORD lastError = GetLastError();
        if (Traits::IsValid(handle))
            Traits::Close(handle);
        handle = owned;
        SetLastError(lastError);
    }

private:
    Type handle;
};

struct RegistryKeyTraits
{
    using Type = HKEY;
    static bool IsValid(HKEY key) { return key != nullptr; }
    static void Close(HKEY key) { RegCloseKey(key); }
};

using UniqueKey = UniqueHandle<RegistryKeyTraits>;

struct ObjectTraits
{
    using Type = HANDLE;
    static bool IsValid(HANDLE handle) { return handle != nullptr; }
    static void Close(HANDLE handle) { CloseHandle(handle); }
};

using UniqueObject = UniqueHandle<ObjectTraits>;
using UniqueProcess = UniqueObject;

} // namespace Vorlan::Platform
