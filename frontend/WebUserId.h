#pragma once

#include "CommandLine.h"

namespace Vorlan
{
class InstallerMediator;
}

namespace Vorlan::FrontEnd
{

// The web user id to install with, for InstallationSettings::userInfo: that of the command line
// before every other; the identity service is asked where there is none. Empty when there is none
// at all. An id on the command line that is no id is told in the log.
QString FindWebUid(const InstallerMediator& mediator, const CommandLine& options);

} // namespace Vorlan::FrontEnd
