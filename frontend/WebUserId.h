#pragma once

#include "CommandLine.h"

namespace Vorlan
{
class InstallerMediator;
}

namespace Vorlan::FrontEnd
{

// The web user id for InstallationSettings::userInfo. That of the command line has priority; if
// there is none, it is requested from the identity service. Empty if there is no id. An invalid id
// on the command line is logged.
QString FindWebUid(const InstallerMediator& mediator, const CommandLine& options);

} // namespace Vorlan::FrontEnd
