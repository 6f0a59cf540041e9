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
constexpr char uninstallKey32[] =
    "Software\\WOW6432Node\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";

// A value of an entry, from whichever root and view has it.
QString EntryValue(const QString& name, const std::string& valueName)
{
    using Util::RegistryHelper;
    const RegistryHelper helper(
        {uninstallKey + name}, RegistryHelper::AccessFlags(RegistryHelper::everywhere));
    return helper.GetValue(QString::fromStdString(valueName));
}

// The entry below one list of installed programs.
QString FindEntry(const QString& listKey, const QString& executableFileName)
{
    RegistrySettings list(listKey);
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
    QString path = EntryValue(name, uninstallString);
    if (path.startsWith('"'))
        path = path.mid(1, path.size() - 2);
    if (!path.isEmpty())
        qInfo() << "UninstallerPath=" << path;
    return path;
}

bool SettingsManager::IsUninstallerUACNeeded(const QString& name)
{
    return EntryValue(name, useUAC) == "true";
}

QString SettingsManager::GetProductNameByExecutableName(const QString& executableFileName)
{
    for (const char* list : {"HKEY_CURRENT_USER\\%1", "HKEY_LOCAL_MACHINE\\%1"})
    {
        for (const char* key : {uninstallKey, uninstallKey32})
        {
            QString name = FindEntry(QString(list).arg(key), executableFileName);
            if (!name.isEmpty())
                return name;
        }
    }
    return QString();
}

} // namespace Vorlan
