#include "RemovalGuard.h"

#include <QDir>

namespace Vorlan::FrontEnd
{

// The same folders as in resources/Batch/uninstallDelayedDir.sh.
SystemFolders FindSystemFolders()
{
    SystemFolders folders;
    folders.closed = QStringList{"/bin", "/boot", "/dev", "/etc", "/lib", "/lib32", "/lib64",
        "/proc", "/run", "/sbin", "/sys", "/usr"};
    folders.shared = QStringList{"/home", "/media", "/mnt", "/opt", "/srv", "/tmp", "/var/tmp",
        QDir::tempPath(), qEnvironmentVariable("VORLAN_FORMER_TEMP")};
    folders.homes = QStringList(QDir::homePath());
    for (const char* name : {".config", ".local/share", "Desktop", "Documents", "Downloads",
             "Music", "Pictures", "Videos"})
        folders.personal += QDir::homePath() + '/' + name;
    return folders;
}

} // namespace Vorlan::FrontEnd
