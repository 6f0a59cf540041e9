#pragma once

#include <cstdint>
#include <string>

namespace Vorlan::App::WebConfig
{

// How a request for the product's remote configuration ended. Numbers never change.
enum class ExitCode : std::int8_t
{
    Received = 0,
    Failed = 1,
    Offline = 2
};

// What the configuration service is told.
struct Context
{
    std::string parameter; // the front end's own, UTF-8
};

// Asks the configuration service; blocks until it answered or cannot be reached.
ExitCode RequestWebConfig(Context context);

} // namespace Vorlan::App::WebConfig
