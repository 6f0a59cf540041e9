#include "platform/WebConfig.h"

namespace Vorlan::App::WebConfig
{

// No service is known yet, so every machine is as good as offline.
ExitCode RequestWebConfig(Context)
{
    return ExitCode::Offline;
}

} // namespace Vorlan::App::WebConfig
