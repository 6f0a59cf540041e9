#include "DefaultAppWinInstaller/DefaultAppWinInstaller.h"

namespace Vorlan
{

void SetDefaultApplication(AppType, const QStringList&, const QString&, const QString&) {}

} // namespace Vorlan
