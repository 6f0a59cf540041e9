#pragma once

namespace Vorlan
{

class InstallerMediator;
struct InstallationSettings;

// Requests the product's remote configuration and announces it: exactly one WebConfigLoaderStarted
// and one WebConfigLoaderFinished of the mediator, the latter with the exit code of
// App::WebConfig::RequestWebConfig, or 1 when that throws; the exception is passed on to the
// caller.
void RequestWebConfig(const InstallationSettings& settings, InstallerMediator& mediator);

} // namespace Vorlan
