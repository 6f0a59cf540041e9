#include "installer/ProcessTermination.h"

#include "installer/InstallerMediator.h"

namespace Vorlan
{

void KillAllProcessesInFolder(const QString&) {}

void InstallerMediator::TerminateApps() {}

} // namespace Vorlan
