#include "network/WebConfigRequest.h"

#include "installer/InstallerMediator.h"
#include "network/ScopeNotifier.h"
#include "platform/WebConfig.h"

#include <QDebug>

namespace Vorlan
{

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

    App::WebConfig::Context context{settings.webConfigParameter.toStdString()};
    result = static_cast<int>(App::WebConfig::RequestWebConfig(std::move(context)));
}

} // namespace Vorlan
