#pragma once

#include "installer/InstallerMediator.h"
#include "network/ScopeNotifier.h"
#include "network/TopManager.h"
#include "platform/SessionTracker.h"
#include "platform/WebConfig.h"

#include <QDebug>

namespace Vorlan
{

// Requests the product's remote configuration and announces it: exactly one WebConfigLoaderStarted
// and one WebConfigLoaderFinished of the mediator, the latter with the exit code of
// App::WebConfig::RequestWebConfig, or 1 when that throws; the exception is passed on to the
// caller.
static inline void RequestWebConfig(
    const InstallationSettings& settings, InstallerMediator& mediator)
{
    int result = static_cast<int>(App::WebConfig::ExitCode::Failed);
    const ScopeNotifier notifier(
        [&mediator]
        {
            qInfo() << "Request web config...";
            emit mediator.WebConfigLoaderStarted();
        },
        [&mediator, &result]
        {
            qInfo() << "Web config requested with " << result;
            emit mediator.WebConfigLoaderFinished(result);
        });

    const auto tracker = Tracking::getSessionTrackerInstance();
    const App::WebConfig::Context context{&GetTopManager(),
        tracker ? tracker->GetSessionText() : std::string(),
        settings.webConfigParameter.toStdString(), false};
    result = static_cast<int>(App::WebConfig::RequestWebConfig(context));
}

} // namespace Vorlan
