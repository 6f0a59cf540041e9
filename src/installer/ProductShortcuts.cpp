#include "installer/InstallerMediator.h"

#include "base/ProductProfile.h"
#include "installer/Shortcuts.h"
#include "platform/Links.h"
#include "registry/RegistrationProfile.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <windows.h>

namespace Vorlan
{

namespace
{

// With a separator at its end, or empty where the machine has no such folder.
QString ForScope(QSettings::Scope scope, StandardLocation ofUser, StandardLocation ofAllUsers)
{
    const QString folder =
        GetStandardLocation(scope == QSettings::SystemScope ? ofAllUsers : ofUser);
    return folder.isEmpty() ? QString() : folder + QDir::separator();
}

QString StartMenuRoot(QSettings::Scope scope)
{
    return ForScope(scope, StandardLocation::Programs, StandardLocation::CommonPrograms);
}

QString DesktopRoot(QSettings::Scope scope)
{
    return ForScope(scope, StandardLocation::Desktop, StandardLocation::CommonDesktop);
}

// Creates a link below a folder of the shell. Where that folder is missing, and its path empty, the
// link would land in the root of a drive.
void CreateLinkBelow(
    const QString& folder, const QString& name, const QString& target, const QStringList& arguments)
{
    if (folder.isEmpty())
        qInfo() << "No folder for the shortcut '" << name << "'";
    else
        CreateShortCut(folder + name, target, arguments);
}

QStringList FilesBelow(const QString& folder)
{
    QStringList files;
    QDirIterator file(
        folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (file.hasNext())
        files += file.next();
    return files;
}

void RemoveMenuFolder(const QString& folder)
{
    qInfo() << "Removing " << folder;
    for (const QString& link : FilesBelow(folder))
        qDebug() << "existing link=" << link;
    if (!Platform::RemoveFolder(folder))
        qInfo() << "Failed to remove " << folder << ", error=" << GetLastError();
    for (const QString& link : FilesBelow(folder))
        qInfo() << "Error! remaining link=" << link;
}

void RemoveDesktopLink(const QString& link)
{
    qInfo() << "Removing " << link << "(" << QFile::exists(link) << ")";
    if (!QFile::remove(link))
        qInfo() << "Failed to remove desktop shortcut.";
}

} // namespace

QString InstallerMediator::CreateMenuBasePath(QString root) const
{
    if (root.isEmpty())
        return root;
    root += settings.productFolderName + QDir::separator();
    QDir().mkpath(root);
    return root;
}

QString InstallerMediator::CreateMenuAppPath(QString base) const
{
    if (base.isEmpty())
        return base;
    if (profile->appPaths.size() > 1)
        base += tr("Programs") + QDir::separator();
    if (!profile->appPaths.isEmpty())
        QDir().mkpath(base);
    return base;
}

QString InstallerMediator::CreateShortcutName(const QString& name) const
{
    return QCoreApplication::translate("Installer", name.toUtf8());
}

QStringList InstallerMediator::AppendExtraParams(const QString& parameters) const
{
    return parameters.isEmpty() ? QStringList() : QStringList(parameters);
}

QString InstallerMediator::CreateUrlFilename() const
{
    return settings.installDir + settings.productFolderName + ".url";
}

void InstallerMediator::CreateShortcuts() const
{
    const QString& name = settings.productFolderName;
    const QString& folder = settings.installDir;
    const QString menuBase = CreateMenuBasePath(StartMenuRoot(settings.scope));
    const QString menuPrograms = CreateMenuAppPath(menuBase);

    for (const ExecutableInfo& info : profile->appPaths)
    {
        if (info.fileName != profile->mainExecutable)
            CreateLinkBelow(menuPrograms, CreateShortcutName(info.description),
                folder + info.fileName, AppendExtraParams(info.arguments));
    }
    CreateLinkBelow(menuBase, name, folder + profile->mainExecutable, {});
    CreateLinkBelow(DesktopRoot(settings.scope), name, folder + profile->mainExecutable, {});
    CreateLinkBelow(menuBase, tr("Uninstall %1", "Delete app from start menu").arg(name),
        folder + ProductProfile::uninstallerFileName, {});
    CreateUrlLink(CreateUrlFilename(), GetUrl(URL::StartPage).toStdString());
    if (!productIniSettings->value("HIDE_HOMEPAGE_SHORTCUT", false).toBool())
        CreateLinkBelow(
            menuBase, tr("Site %1", "Site link in menu").arg(name), CreateUrlFilename(), {});
}

void InstallerMediator::RemoveShortcuts()
{
    // The path of a shell folder that the machine does not have is empty; a path below it would be
    // relative to the current folder.
    const QString root = StartMenuRoot(settings.scope);
    const QString menuBase = CreateMenuBasePath(root);
    // A name such as "" or ".." would take away the whole Start menu, or more.
    if (!root.isEmpty() && QDir::cleanPath(menuBase).startsWith(QDir::fromNativeSeparators(root)))
        RemoveMenuFolder(menuBase);
    const QString desktop = DesktopRoot(settings.scope);
    if (!desktop.isEmpty())
        RemoveDesktopLink(desktop + settings.previousFolderName + ".lnk");
}

} // namespace Vorlan
