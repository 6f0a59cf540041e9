#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace Vorlan
{

namespace Platform
{

// Whether a network other than the machine itself is connected: an interface that is up and has an
// address that is valid beyond its own cable. Sends nothing.
bool HasNetworkConnection();

} // namespace Platform

namespace App
{

// Tells, once something could not be reached, whether the machine itself is the cause. It never
// decides whether something is tried. Any thread.
class IInternetConnectionChecker
{
public:
    virtual ~IInternetConnectionChecker() = default;
    virtual bool IsConnected() = 0;
};

// Answers from the probe, and with the same answer for as long as it is fresh.
std::shared_ptr<IInternetConnectionChecker> createInternetConnectionChecker(
    std::chrono::microseconds freshness,
    std::function<bool()> probe = Platform::HasNetworkConnection);

} // namespace App

} // namespace Vorlan
