#pragma once

#include <QString>

#include <chrono>
#include <cstdint>
#include <string>

namespace Vorlan::App
{
class ITopManager;
}

namespace Vorlan::App::WebConfig
{

// How a request for the product's remote configuration ended. Numbers never change.
enum class ExitCode : std::int8_t
{
    Received = 0,      // and kept, see ReceivedConfigPath
    Failed = 1,        // anything that has no code of its own
    Offline = 2,       // the service was not found or not reached
    TimedOut = 3,      // it did not answer within the limit
    NotTrusted = 4,    // its certificate is not to be trusted
    ServerRefused = 5, // it answered with another status than 200; redirects are not followed
    Malformed = 6,     // its answer is no JSON object, or larger than 1 MiB
    NotStored = 7,     // its answer could not be written to the disk
    SwitchedOff = 8    // by the environment
};

// What the request is made from.
struct Context
{
    ITopManager* application = nullptr; // not used by the request itself
    std::string session;                // the session tracker's text
    std::string parameter;              // the front end's own, UTF-8
    bool isPreview = false;             // ask for the configuration that is not yet published
    std::chrono::milliseconds limit{0}; // for everything; 0: five seconds
};

// Asks the configuration service with one HTTPS GET to https://config.vorlan.example/v1/installer.
// The environment variable VORLAN_CONFIG_URL replaces what stands before "installer"; with "off" in
// it no request is sent. The query holds app, version, session, and where they are given parameter
// and preview=1. Blocks until the end, at most five seconds. Throws std::runtime_error only when
// libcurl gives no handle.
ExitCode RequestWebConfig(const Context& context);

// Where the configuration received last lies, for the host and the product to read: the file
// "web-config.json" in the product's log folder, replaced as a whole by each request that succeeds.
QString ReceivedConfigPath();

} // namespace Vorlan::App::WebConfig
