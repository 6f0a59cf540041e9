#include "installer/Shortcuts.h"

#include "installer/InstallerMediator.h"
#include "platform/System.h"

#include <shlobj.h>

namespace Vorlan
{

namespace
{

int ShellFolderId(StandardLocation location)
{
    switch (location)
    {
    case StandardLocation::Programs:
        return CSIDL_PROGRAMS;
    case StandardLocation::CommonPrograms:
        return CSIDL_COMMON_PROGRAMS;
    case StandardLocation::AppData:
        return CSIDL_APPDATA;
    case StandardLocation::LocalAppData:
        return CSIDL_LOCAL_APPDATA;
    case StandardLocation::System:
        return CSIDL_SYSTEM;
    case StandardLocation::CommonAppData:
        return CSIDL_COMMON_APPDATA;
    case StandardLocation::CommonDesktop:
        return CSIDL_COMMON_DESKTOPDIRECTORY;
    case StandardLocation::Desktop:
        break;
    }
    return CSIDL_DESKTOP;
}

} // namespace

QString GetStandardLocation(StandardLocation location)
{
    return Platform::ShellFolder(ShellFolderId(location));
}

bool CreateShortCut(const QString&, const QString&, const QStringList&)
{
    return false;
}

bool CreateUrlLink(const QString&, const std::string&)
{
    return false;
}

void InstallerMediator::CreateShortcuts() const {}

void InstallerMediator::RemoveShortcuts() {}

} // namespace Vorlan
