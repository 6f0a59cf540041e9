#pragma once

#include <utility>

#include <unistd.h>

namespace Pal
{

// Owns a file descriptor; negative means none.
class Descriptor
{
public:
    explicit Descriptor(int owned = -1) : value(owned) {}
    Descriptor(Descriptor&& other) noexcept : value(std::exchange(other.value, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(value, other.value);
        return *this;
    }
    ~Descriptor()
    {
        if (IsOpen())
            close(value);
    }

    int Get() const { return value; }
    bool IsOpen() const { return value >= 0; }

private:
    int value;
};

} // namespace Pal
