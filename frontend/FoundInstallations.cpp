#include "FoundInstallations.h"

#include "RegistryReader.h"

#include "base/ProductProfile.h"
#include "base/TriState.h"
#include "installer/Shortcuts.h"

#include <QDebug>
#include <QDir>
#include <QProcess>
#include <QVersionNumber>

#include <shlobj.h>

namespace Vorlan::FrontEnd
{
namespace
{

QString ProductKey()
{
    return QString("Software\\%1\\%2")
        .arg(ProductProfile::companyName, ProductProfile::applicationKey);
}

QString VersionIn(QSettings::Scope scope)
{
    const QString version = ReadRegistryText(scope, ProductKey(), "VersionByInstaller");
    return QString(version).replace('-', '.');
}

bool HasShortcuts(QSettings::Scope scope)
{
    const bool isOfAll = scope == QSettings::SystemScope;
    const QString menu = GetStandardLocation(
        isOfAll ? StandardLocation::CommonPrograms : StandardLocation::Programs);
    const QString desktop =
        GetStandardLocation(isOfAll ? StandardLocation::CommonDesktop : StandardLocation::Desktop);
    const QString name = ProductProfile::productFullName;
    // Qt would look for the target of the shortcut, which may be missing until the repair.
    const auto isIn = [&name](const QString& folder)
    {
        return !folder.isEmpty() &&
               !QDir(folder).entryList({name + ".lnk"}, QDir::Files | QDir::System).isEmpty();
    };
    return isIn(desktop) || isIn(menu.isEmpty() ? menu : QDir(menu).filePath(name));
}

// Whether a verb of this key starts a program in the folder.
bool HasVerbOf(const QString& folder, QSettings::Scope scope, const QString& shellKey)
{
    const QString start = '"' + QDir::toNativeSeparators(folder) + QDir::separator();
    for (const QString& verb : ReadRegistryKeys(scope, shellKey))
    {
        const QString command =
            ReadRegistryText(scope, shellKey + '\\' + verb + "\\Command", QString());
        if (command.startsWith(start, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

bool HasContextMenu(const QString& folder, QSettings::Scope scope)
{
    const QString types = "Software\\Classes\\SystemFileAssociations";
    for (const QString& type : ReadRegistryKeys(scope, types))
    {
        if (HasVerbOf(folder, scope, types + '\\' + type + "\\Shell"))
            return true;
    }
    return false;
}

std::optional<Installation> FindInstallation(QSettings::Scope scope)
{
    const QString registered = RegisteredFolder(scope);
    const QDir folder(QDir::cleanPath(QDir::fromNativeSeparators(registered)));
    const QString name = ProductProfile::productFullName;
    if (registered.isEmpty() || !folder.exists() ||
        folder.dirName().compare(name, Qt::CaseInsensitive) != 0)
        return {};
    return Installation{scope, folder.path(), VersionIn(scope), HasShortcuts(scope),
        HasContextMenu(folder.path(), scope)};
}

QString WithSeparator(const QString& folder)
{
    return QDir::toNativeSeparators(folder) + QDir::separator();
}

} // namespace

QString RegisteredFolder(QSettings::Scope scope)
{
    return ReadRegistryText(scope, ProductKey(), "Path");
}

QSettings::Scope OtherScope(QSettings::Scope scope)
{
    return scope == QSettings::UserScope ? QSettings::SystemScope : QSettings::UserScope;
}

void StartUninstaller(const QString& folder)
{
    const QString program = QDir(folder).filePath(ProductProfile::uninstallerFileName);
    if (!QProcess::startDetached(program, {"/IGNORE_MUTEX"}))
        qWarning() << "The uninstaller cannot be started:" << program;
}

const Installation* FoundInstallations::Of(QSettings::Scope scope) const
{
    const auto& installation = scope == QSettings::SystemScope ? ofAllUsers : ofUser;
    return installation ? &*installation : nullptr;
}

const Installation* FoundInstallations::Proposed() const
{
    return Of(ofUser ? QSettings::UserScope : QSettings::SystemScope);
}

FoundInstallations FindInstallations()
{
    return {FindInstallation(QSettings::UserScope), FindInstallation(QSettings::SystemScope)};
}

Change ChangeOf(const Installation* installed)
{
    if (installed == nullptr)
        return Change::Install;
    const auto former = QVersionNumber::fromString(installed->version);
    const auto own = QVersionNumber::fromString(ProductProfile::versionText);
    if (former == own)
        return Change::Repair;
    return former < own ? Change::Update : Change::Downgrade;
}

QString DefaultFolder(const InstallationSettings& proposal)
{
    wchar_t programs[MAX_PATH] = {};
    if (proposal.scope == QSettings::UserScope ||
        !SHGetSpecialFolderPathW(nullptr, programs, CSIDL_PROGRAM_FILES, FALSE))
        return proposal.installDir;
    return WithSeparator(
        QDir(QString::fromWCharArray(programs)).filePath(proposal.productFolderName));
}

InstallationSettings ProposeSettings(InstallationSettings proposal, const FoundInstallations& found)
{
    const Installation* installed = found.Of(proposal.scope);
    if (installed == nullptr)
    {
        proposal.installDir = DefaultFolder(proposal);
        return proposal;
    }
    proposal.installDir = WithSeparator(installed->folder);
    proposal.createShortcuts = installed->hasShortcuts;
    proposal.contextMenuConvert = TriState::Of(installed->hasContextMenu);
    proposal.contextMenuOpenWith = proposal.contextMenuConvert;
    proposal.autoLaunch = TriState::Of(proposal.isInStartup);
    return proposal;
}

} // namespace Vorlan::FrontEnd
