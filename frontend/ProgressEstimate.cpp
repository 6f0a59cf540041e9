#include "ProgressEstimate.h"

#include <algorithm>

namespace Vorlan::FrontEnd
{
namespace
{

constexpr double window = 10;     // seconds that count
constexpr double sampleGap = 0.1; // seconds between two samples at least
constexpr double silence = 3;     // seconds without an estimate at the start
constexpr double updateGap = 1;   // seconds between two changes
constexpr double largestChange = 1.0 / 3;
constexpr double steadyRatio = 1.5; // between the speeds of both halves of the window

} // namespace

void ProgressEstimate::Add(double seconds, double fraction, qint64 bytes)
{
    if (samples.empty())
        start = seconds;
    else if (seconds - samples.back().seconds < sampleGap)
        return;
    samples.push_back({seconds, fraction, bytes});
    while (samples.size() > 2 && seconds - samples[1].seconds >= window)
        samples.pop_front();
    if (!shown || seconds - shownAt >= updateGap)
        Update();
}

std::optional<double> ProgressEstimate::Speed() const
{
    if (samples.empty() || samples.back().seconds - samples.front().seconds < updateGap)
        return {};
    return static_cast<double>(samples.back().bytes - samples.front().bytes) /
           (samples.back().seconds - samples.front().seconds);
}

// Fraction per second.
double ProgressEstimate::Rate(const Sample& from, const Sample& to) const
{
    return to.seconds > from.seconds ? (to.fraction - from.fraction) / (to.seconds - from.seconds)
                                     : 0;
}

bool ProgressEstimate::IsSteady() const
{
    const double middle = (samples.front().seconds + samples.back().seconds) / 2;
    const auto half = std::find_if(samples.begin(), samples.end(),
        [&](const Sample& sample) { return sample.seconds >= middle; });
    const double before = Rate(samples.front(), *half);
    const double after = Rate(*half, samples.back());
    return std::min(before, after) * steadyRatio >= std::max(before, after);
}

void ProgressEstimate::Update()
{
    const Sample& last = samples.back();
    const double rate = Rate(samples.front(), last);
    const bool isKnown = rate > 0 && last.seconds - start >= silence && (shown || IsSteady());
    const double left = isKnown ? (1 - last.fraction) / rate : 0;
    if (!isKnown)
        shown.reset();
    else if (!shown)
        shown = left;
    else
        shown = std::clamp(left, *shown * (1 - largestChange), *shown * (1 + largestChange));
    shownAt = last.seconds;
}

} // namespace Vorlan::FrontEnd
