#pragma once

#include <utility>

#include <unistd.h>

namespace Pal
{

// Owns a file descriptor; negative means none.
class Descriptor
{
public:
    explicit Descriptor(int value = -1) : m_value(value) {}
    Descriptor(Descriptor&& other) noexcept : m_value(std::exchange(other.m_value, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(m_value, other.m_value);
        return *this;
    }
    ~Descriptor()
    {
        if (IsOpen())
            close(m_value);
    }

    int Get() const { return m_value; }
    bool IsOpen() const { return m_value >= 0; }

private:
    int m_value;
};

} // namespace Pal
