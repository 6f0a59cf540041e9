#include "registry/SettingsManager.h"

#include "base/ProductProfile.h"
#include "platform/Registry.h"
#include "registry/RegistrySettings.h"

#include <QDebug>

namespace Vorlan
{

namespace
{

constexpr char uninstallKey[] = "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";

// The lists of installed programs below "Software", in the 64-bit and the 32-bit view.
constexpr const char* programLists[] = {"Microsoft/Windows/CurrentVersion/Uninstall",
    "WOW6432Node/Microsoft/Windows/CurrentVersion/Uninstall"};

Util::RegistryHelper EntryReader(const QString& name)
{
    using Util::RegistryHelper;
    return RegistryHelper(
        {uninstallKey + name}, RegistryHelper::AccessFlags(RegistryHelper::everywhere));
}

// The entry below one list of installed programs. The list is read as a group of its root's
// "Software" key: opened by its own path it would be created.
QString FindEntry(const QString& root, const QString& listGroup, const QString& executableFileName)
{
    RegistrySettings list(root + "\\Software");
    const App::QSettingsGroupGuard listGuard(list, listGroup);
    for (const QString& name : list.childGroups())
    {
        const App::QSettingsGroupGuard group(list, name);
        if (list.value("Publisher").toString().contains(ProductProfile::companyName) &&
            list.value("DisplayIcon").toString().contains(executableFileName))
            return name;
    }
    return QString();
}

} // namespace

void SettingsManager::AddUninstaller(const ProgramInfo& info, const QString& installDir,
    const QString& uninstallerFileName, const QString& iconFileName, QSettings::Scope scope)
{
    RegistrySettings entry(RootName(scope) + '\\' + uninstallKey + info.displayName);
    entry.setValue("DisplayName", info.displayName);
    entry.setValue("DisplayVersion", info.displayVersion);
    entry.setValue("EstimatedSize", static_cast<int>(info.sizeBytes / 1024));
    entry.setValue("InstallDate", info.installDate);
    entry.setValue("InstallLocation", installDir);
    entry.setValue("Language", info.language);
    entry.setValue("Publisher", info.publisher);
    entry.setValue("DisplayIcon", '"' + installDir + iconFileName + "\",0");
    entry.setValue(
        QString::fromStdString(uninstallString), '"' + installDir + uninstallerFileName + '"');
}

void SettingsManager::RemoveUninstaller(const QString& name, QSettings::Scope scope)
{
    if (!name.isEmpty()) // else every program's entry
        RegistrySettings(RootName(scope) + '\\' + uninstallKey + name).remove(QString());
}

QString SettingsManager::GetUninstallerPath(const QString& name)
{
    QString path = EntryReader(name).GetValue(QString::fromStdString(uninstallString));
    if (path.startsWith('"'))
        path = path.mid(1, path.size() - 2);
    if (!path.isEmpty())
        qInfo() << "UninstallerPath=" << path;
    return path;
}

bool SettingsManager::IsUninstallerUACNeeded(const QString& name)
{
    return EntryReader(name).GetValueBeside(
               QString::fromStdString(useUAC), QString::fromStdString(uninstallString)) == "true";
}

QString SettingsManager::GetProductNameByExecutableName(const QString& executableFileName)
{
    for (const char* root : {"HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE"})
    {
        for (const char* list : programLists)
        {
            QString name = FindEntry(root, list, executableFileName);
            if (!name.isEmpty())
                return name;
        }
    }
    return QString();
}

} // namespace Vorlan
