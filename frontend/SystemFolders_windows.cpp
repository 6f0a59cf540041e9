#include "RemovalGuard.h"

namespace Vorlan::FrontEnd
{

// The same variables as in resources/Batch/uninstallDelayedDir.bat.
SystemFolders FindSystemFolders()
{
    SystemFolders folders;
    folders.closed = QStringList(qEnvironmentVariable("SystemRoot"));
    for (const char* name :
        {"ProgramFiles", "ProgramFiles(x86)", "ProgramW6432", "CommonProgramFiles",
            "CommonProgramFiles(x86)", "CommonProgramW6432", "TEMP", "TMP", "VORLAN_FORMER_TEMP"})
        folders.shared += qEnvironmentVariable(name);
    const QString programData = qEnvironmentVariable("ProgramData");
    if (!programData.isEmpty())
        folders.shared += programData + "\\Microsoft";
    const QString home = qEnvironmentVariable("USERPROFILE");
    folders.homes = QStringList{home, qEnvironmentVariable("PUBLIC")};
    for (const char* name : {"APPDATA", "LOCALAPPDATA", "OneDrive"})
        folders.personal += qEnvironmentVariable(name);
    for (const char* name : {"Desktop", "Documents", "Downloads", "Music", "Pictures", "Videos"})
        folders.personal += home + '\\' + name;
    return folders;
}

} // namespace Vorlan::FrontEnd
