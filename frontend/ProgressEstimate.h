#pragma once

#include <QtGlobal>

#include <deque>
#include <optional>

namespace Vorlan::FrontEnd
{

// Speed and time left of one step, from its progress. It has no clock: the caller gives the time.
class ProgressEstimate
{
public:
    // The progress at a time in seconds, which grows: the fraction of the step from 0 to 1, and the
    // bytes done.
    void Add(double seconds, double fraction, qint64 bytes);

    // Bytes per second over the last ten seconds; none in the first second.
    std::optional<double> Speed() const;

    // Seconds; none in the first three seconds, until the speed is steady, and while nothing
    // advances. Changes at most once a second, and then by a third at most.
    std::optional<double> TimeLeft() const { return shown; }

private:
    struct Sample
    {
        double seconds;
        double fraction;
        qint64 bytes;
    };

    double Rate(const Sample& from, const Sample& to) const;
    bool IsSteady() const;
    void Update();

    std::deque<Sample> samples; // of the last ten seconds
    double start = 0;
    double shownAt = 0;
    std::optional<double> shown;
};

} // namespace Vorlan::FrontEnd
