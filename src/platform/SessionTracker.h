#pragma once

#include <memory>
#include <string>

namespace Vorlan::Tracking
{

class ISessionTracker
{
public:
    virtual ~ISessionTracker() = default;

    // Identifies this run of the program; ASCII. Any thread.
    virtual std::string GetSessionText() const = 0;
};

// The tracker of this process: its text is a random UUID, made at the first call. It identifies
// neither the user nor the machine and is not stored.
std::shared_ptr<ISessionTracker> getSessionTrackerInstance();

} // namespace Vorlan::Tracking
