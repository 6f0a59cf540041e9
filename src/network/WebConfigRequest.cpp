#include "network/WebConfigRequest.h"

#include "installer/InstallerMediator.h"
#include "network/ScopeNotifier.h"
#include "network/TopManager.h"
#include "platform/SessionTracker.h"
#include "platform/WebConfig.h"

#include <QDebug>

namespace Vorlan
{

namespace
{

std::string SessionText()
{
    const auto tracker = Tracking::getSessionTrackerInstance();
    return tracker ? tracker->GetSessionText() : std::string();
}

} // namespace

void RequestWebConfig(const InstallationSettings& settings, InstallerMediator& mediator)
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

    App::WebConfig::Context context{
        &GetTopManager(), SessionText(), settings.webConfigParameter.toStdString(), false};
    result = static_cast<int>(App::WebConfig::RequestWebConfig(std::move(context)));
}

} // namespace Vorlan
