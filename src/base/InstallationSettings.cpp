#include "base/InstallationSettings.h"

#include "platform/Path.h"

#include <QDir>
#include <QObject>

namespace Vorlan
{

QString InstallationSettings::GetFilteredDirectory(QString dir) const
{
    const QChar separator = QDir::separator();
    dir.remove('"');
    dir = QDir::toNativeSeparators(QDir::fromNativeSeparators(dir));
    if (!dir.endsWith(separator))
        dir += separator;
    if (!dir.endsWith(separator + productFolderName + separator))
        dir += productFolderName + separator;
    return dir;
}

QString InstallationSettings::GetFullPathToMainAppExe() const
{
    return installDir + mainExeName;
}

bool InstallationSettings::IsValidPath(const QString& path, long long requiredBytes, QString& error)
{
    if (Util::IsThisPathValid(path) != PathValidationState::Valid)
    {
        error = QObject::tr("Can't access the specified destination folder").trimmed();
        return false;
    }
    const ioPath volume(Platform::DriveRoot(path).toStdString());
    if (requiredBytes > Util::GetAvailableDiskSpace(volume))
    {
        error = QObject::tr("There is not enough disk space");
        return false;
    }
    return true;
}

} // namespace Vorlan
