#include "installer/Shortcuts.h"

#include "base/Com.h"
#include "platform/Links.h"
#include "platform/Path.h"
#include "platform/System.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>

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

// A shell link of the system, COM being initialised where it is not yet.
Platform::ComPointer<IShellLinkW> CreateShellLink(Platform::ComApartment& apartment)
{
    Platform::ComPointer<IShellLinkW> link;
    const auto create = [&link]
    {
        return CoCreateInstance(
            CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW, link.Put());
    };
    if (create() == CO_E_NOTINITIALIZED && apartment.Initialise())
        create();
    return link;
}

std::wstring WithBackslashes(QString text)
{
    return Platform::WideFromText(text.replace('/', '\\'));
}

bool Save(IShellLinkW& link, const QString& fileName)
{
    Platform::ComPointer<IPersistFile> file;
    return SUCCEEDED(link.QueryInterface(IID_IPersistFile, file.Put())) &&
           SUCCEEDED(file->Save(Platform::WideFromText(fileName).c_str(), TRUE));
}

} // namespace

QString GetStandardLocation(StandardLocation location)
{
    return Platform::ShellFolder(ShellFolderId(location));
}

bool CreateShortCut(const QString& link, const QString& target, const QStringList& arguments)
{
    qDebug() << "Creating shortcut '" << link << "' -> '" << target << "'";
    Platform::ComApartment apartment; // outlives every reference below
    const Platform::ComPointer<IShellLinkW> shellLink = CreateShellLink(apartment);
    if (!shellLink)
        return false;

    const std::wstring path = WithBackslashes(target);
    const std::wstring folder = WithBackslashes(QFileInfo(target).absolutePath());
    if (FAILED(shellLink->SetPath(path.c_str())) ||
        FAILED(shellLink->SetWorkingDirectory(folder.c_str())))
        return false;
    if (!arguments.isEmpty() && FAILED(shellLink->SetArguments(
                                    WithBackslashes('"' + arguments.join("\" \"") + '"').c_str())))
        return false;

    if (Save(*shellLink.Get(), link + ".lnk"))
        return true;
    qInfo() << "Creating shortcut '" << link << "' failed with code=" << GetLastError();
    return false;
}

bool CreateUrlLink(const QString& file, const std::string& url)
{
    Platform::RemoveFileLink(file);
    QFile urlFile(file);
    if (!urlFile.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    urlFile.write("[InternetShortcut]\r\nURL=" + QByteArray::fromStdString(url));
    return true;
}

} // namespace Vorlan
