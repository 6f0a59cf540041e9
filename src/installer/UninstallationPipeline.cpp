#include "installer/InstallerMediator.h"

#include "platform/System.h"

#include <QFile>

namespace Vorlan
{

void InstallerMediator::StartUninstall() {}

QString InstallerMediator::GetLocationLogs() const
{
    return Platform::LogFolder();
}

void InstallerMediator::CreateInstallerMessageScript() const
{
    const QString name = GetProductName();
    const QString message = tr("A Setup or Uninstall window is currently running and needs to be "
                               "closed before starting %1.")
                                .arg(name);
    const QString script =
        "MsgBox \"" + message + "\", vbCritical+vbOKOnly+vbSystemModal, \"" + name + '"';

    QFile file(settings.installDir + "InstallerMessage.vbs");
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return;
    for (const QChar unit : script)
    {
        file.putChar(static_cast<char>(unit.cell()));
        file.putChar(static_cast<char>(unit.row()));
    }
}

} // namespace Vorlan
