#pragma once

#include <memory>
#include <string>

namespace Vorlan::Tracking
{

class ISessionTracker
{
public:
    virtual ~ISessionTracker() = default;

    // What tells this run of the program from others; ASCII. Any thread.
    virtual std::string GetSessionText() const = 0;
};

// The tracker of this process: its text is a random UUID, made at the first call, which says
// nothing about the person or the machine and is kept nowhere.
std::shared_ptr<ISessionTracker> getSessionTrackerInstance();

} // namespace Vorlan::Tracking
