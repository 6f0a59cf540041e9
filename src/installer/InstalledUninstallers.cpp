#include "installer/InstallerMediator.h"

namespace Vorlan
{

void InstallerMediator::RemovePreviousVersion() {}

void InstallerMediator::RemoveAdditionalModules() {}

} // namespace Vorlan
