#pragma once

#include <chrono>
#include <cmath>

namespace Vorlan::Core
{

// Measures from its construction. The destructor adds the elapsed microseconds to the counter.
class TimerSimple
{
public:
    explicit TimerSimple(long long& total) : counter(total) {}
    ~TimerSimple() { counter += Elapsed(); }
    TimerSimple(const TimerSimple&) = delete;
    TimerSimple& operator=(const TimerSimple&) = delete;

    // Microseconds since construction.
    long long Elapsed() const
    {
        const auto passed = std::chrono::steady_clock::now() - start;
        return std::chrono::duration_cast<std::chrono::microseconds>(passed).count();
    }

private:
    long long& counter;
    const std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
};

// Microseconds as seconds with one decimal, computed in single precision, halves away from zero.
inline float ToTenthsOfSeconds(long long microseconds)
{
    return std::round(static_cast<float>(microseconds) * 0.000001F * 10.0F) / 10.0F;
}

} // namespace Vorlan::Core
