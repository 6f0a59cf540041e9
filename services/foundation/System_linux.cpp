#include "platform/System.h"

#include "foundation/NearestExisting.h"

#include <Pal.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <dlfcn.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace Vorlan::Core
{

namespace
{

constexpr char defaultWindowsVersion[] = "10.0.19045";

QVariant MachineSetting(const QString& name)
{
    const QString fileName = QString::fromStdString((Pal::MachineRoot() / "machine.ini").string());
    return QSettings(fileName, QSettings::IniFormat).value(name);
}

// From the block device of a path, or the disk of a partition; false for file systems without a
// device.
bool IsOnRotationFreeDevice(const QString& path)
{
    const QFileInfo existing = Platform::NearestExisting(path);
    struct stat status = {};
    if (stat(QFile::encodeName(existing.absoluteFilePath()).constData(), &status) != 0)
        return false;
    const QString device = QFileInfo(
        QString("/sys/dev/block/%1:%2").arg(major(status.st_dev)).arg(minor(status.st_dev)))
                               .canonicalFilePath();
    if (device.isEmpty())
        return false;
    for (const char* queue : {"/queue/rotational", "/../queue/rotational"})
    {
        QFile rotational(device + queue);
        if (rotational.open(QIODevice::ReadOnly))
            return rotational.read(1) == "0";
    }
    return false;
}

bool IsSolidState(const QString& path)
{
    const QVariant setting = MachineSetting("solidState");
    return setting.isValid() ? setting.toBool() : IsOnRotationFreeDevice(path);
}

} // namespace

bool IsGreaterOrEqualThen(const Version& version)
{
    const QString running = MachineSetting("windowsVersion").toString();
    const std::string text = running.isEmpty() ? defaultWindowsVersion : running.toStdString();
    return !(version > Util::VersionFromString(text, "."));
}

bool IsProcessRunning(const std::string& imageName, const std::string& path)
{
    const QString wantedName = QString::fromStdString(imageName);
    const QString wantedPath = QDir::cleanPath(QString::fromStdString(path));
    const QStringList processes = QDir("/proc").entryList({"[0-9]*"}, QDir::Dirs);
    return std::any_of(processes.begin(), processes.end(),
        [&](const QString& process)
        {
            const QString executable = QFile::symLinkTarget("/proc/" + process + "/exe");
            return QFileInfo(executable).fileName().compare(wantedName, Qt::CaseInsensitive) == 0 &&
                   (path.empty() || executable.compare(wantedPath, Qt::CaseInsensitive) == 0);
        });
}

bool IsRunningOnSSD()
{
    return IsSolidState("/");
}

bool IsPathOnSSD(const std::string& path)
{
    return IsSolidState(QString::fromStdString(path));
}

} // namespace Vorlan::Core

namespace Vorlan::Platform
{

std::string MachineId()
{
    QFile file("/etc/machine-id");
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().toStdString() : std::string();
}

bool MaySetUpWhileLoading()
{
    return true;
}

void KeepLibraryLoaded()
{
    Dl_info library = {};
    if (dladdr(reinterpret_cast<const void*>(&KeepLibraryLoaded), &library) != 0)
        dlopen(library.dli_fname, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE);
}

bool IsProcessEnding()
{
    return false; // its threads run to the very end
}

} // namespace Vorlan::Platform
