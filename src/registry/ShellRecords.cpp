#include "registry/SettingsManager.h"

#include "platform/Path.h"
#include "platform/Registry.h"
#include "registry/RegistrySettings.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFileInfo>

namespace Vorlan
{

namespace
{

constexpr char currentVersionKey[] = "%1\\Software\\Microsoft\\Windows\\CurrentVersion\\";
constexpr char appPathKey[] = "%1\\Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\%2";
constexpr char classesKey[] = "%1\\Software\\Classes\\";
constexpr char fileAssociationsKey[] = "%1\\Software\\Classes\\SystemFileAssociations\\";

QString Quoted(const QString& text)
{
    return '"' + text + '"';
}

QString AutoplayKey(const QString& root, const QString& subKey)
{
    return QString(currentVersionKey).arg(root) + "Explorer\\AutoplayHandlers\\" + subKey;
}

QString ProgIdName(const QString& prefix, const QString& name, const QString& extension = {})
{
    return prefix + '.' + name + extension;
}

QString ProtocolKey(const QString& root, const QString& scheme)
{
    return QString(QString(classesKey).arg(root) + scheme).remove(' ');
}

QString WithBackslashes(QString path)
{
    return path.replace('/', '\\');
}

// Whether the key holds neither values nor sub-keys, or does not exist.
bool IsEmpty(RegistrySettings& settings, const QString& key)
{
    const App::QSettingsGroupGuard group(settings, key);
    return settings.childKeys().isEmpty() && settings.childGroups().isEmpty();
}

// Whether a ProgID belongs to the association: it is named after it and opens with its program in
// every root that has it. One that is registered nowhere is what RemoveProgId leaves of it.
bool IsProgIdOf(
    const ExtensionAssociation& association, const QString& extension, const QString& progId)
{
    if (!progId.endsWith('.' + association.name + extension))
        return false;
    for (const char* root : {"HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE"})
    {
        RegistrySettings classes(QString(classesKey).arg(root));
        const QString command = classes.value(progId + "/shell/open/command/Default").toString();
        const QString program = WithBackslashes(command).section('"', 1, 1).section('\\', -1);
        if (program != association.executable && !IsEmpty(classes, progId))
            return false;
    }
    return true;
}

// Whether the verb starts this program. A verb with nothing in it is what a removal that was cut
// off has left: the command, which proves the owner, is removed last.
bool IsVerbOf(const QString& executablePath, RegistrySettings& settings, const QString& verb)
{
    const QString marker = Quoted(WithBackslashes(executablePath));
    return WithBackslashes(settings.value(verb + "/Command/Default").toString())
               .startsWith(marker) ||
           IsEmpty(settings, verb);
}

} // namespace

QString SettingsManager::RootName(QSettings::Scope scope)
{
    return scope == QSettings::SystemScope ? QStringLiteral("HKEY_LOCAL_MACHINE")
                                           : QStringLiteral("HKEY_CURRENT_USER");
}

void SettingsManager::AddAppPath(const QString& keyName, const QString& installDir,
    const ExecutableInfo& info, QSettings::Scope scope)
{
    const QString path = installDir + info.fileName;
    RegistrySettings settings(QString(appPathKey).arg(RootName(scope), keyName));
    settings.beginGroup(info.fileName);
    settings.setValue(
        "Default", info.arguments.isEmpty() ? path : Quoted(path + ' ' + info.arguments));
    settings.endGroup();
}

void SettingsManager::RemoveAppPath(const QString& keyName, QSettings::Scope scope)
{
    if (!keyName.isEmpty()) // else every program's path
        RegistrySettings(QString(appPathKey).arg(RootName(scope), keyName)).remove(QString());
}

void SettingsManager::WriteProgId(const QString& progId, const QString& executablePath,
    const QStringList& arguments, const QString& icon, QSettings::Scope scope)
{
    QString command = Quoted(executablePath);
    for (const QString& argument : arguments)
        command += ' ' + Quoted(argument);

    RegistrySettings settings(QString(classesKey).arg(RootName(scope)));
    settings.setValue(
        progId + "/DefaultIcon/Default", icon.isEmpty() ? executablePath : icon + ",0");
    settings.setValue(progId + "/shell/Default", QString(""));
    settings.setValue(progId + "/shell/open/command/Default", command);
}

void SettingsManager::RemoveProgIdKey(const QString& progId, QSettings::Scope scope)
{
    RegistrySettings(QString(classesKey).arg(RootName(scope))).remove(progId);
}

QString SettingsManager::GetExtensionIconPath(
    const QString& executablePath, const QString& extension)
{
    if (extension.isEmpty())
        return executablePath;
    const ioPath folder(QFileInfo(executablePath).path().toStdString());
    const ioPath icon = folder / "resources" / "extIcons" / extension.toStdString() + ".ico";
    return QString::fromStdString(icon.utf8string());
}

void SettingsManager::AddProgId(
    const QString& prefix, const QString& executablePath, const AutoPlayAssociation& association)
{
    WriteProgId(ProgIdName(prefix, association.name), executablePath, association.arguments,
        QString(), QSettings::UserScope);
}

void SettingsManager::AddProgId(
    const QString& prefix, const QString& executablePath, const ExtensionAssociation& association)
{
    for (const QString& extension : association.extensions)
    {
        const QString icon =
            QDir::toNativeSeparators(GetExtensionIconPath(executablePath, extension));
        WriteProgId(ProgIdName(prefix, association.name, extension), executablePath,
            association.arguments, icon, QSettings::UserScope);
    }
}

void SettingsManager::RemoveProgId(const QString& prefix, const AutoPlayAssociation& association)
{
    RemoveProgIdKey(ProgIdName(prefix, association.name), QSettings::UserScope);
}

void SettingsManager::RemoveProgId(const QString& prefix, const ExtensionAssociation& association)
{
    for (const QString& extension : association.extensions)
        RemoveProgIdKey(ProgIdName(prefix, association.name, extension), QSettings::UserScope);
}

void SettingsManager::AddAssociations(
    const QString& prefix, const ExtensionAssociation& association, QSettings::Scope scope)
{
    RegistrySettings settings(QString(classesKey).arg(RootName(scope)));
    for (const QString& extension : association.extensions)
    {
        const QString progId = ProgIdName(prefix, association.name, extension);
        if (association.makeDefault)
            settings.setValue(extension + "/Default", progId);
        else
            settings.setValue(extension + "/OpenWithProgids/" + progId, QString(""));
    }
}

void SettingsManager::RemoveAssociations(
    const ExtensionAssociation& association, QSettings::Scope scope)
{
    RegistrySettings settings(QString(classesKey).arg(RootName(scope)));
    for (const QString& extension : association.extensions)
    {
        const QString defaultName = extension + "/Default";
        if (IsProgIdOf(association, extension, settings.value(defaultName).toString()))
            settings.remove(defaultName);

        settings.beginGroup(extension + "/OpenWithProgids");
        for (const QString& progId : settings.childKeys())
        {
            if (IsProgIdOf(association, extension, progId))
                settings.remove(progId);
        }
        settings.endGroup();
    }
}

void SettingsManager::AddAutoplayHandlers(const QString& prefix, const QString& installDir,
    const QString& provider, const AutoPlayAssociation& association, QSettings::Scope scope)
{
    const QString handler = ProgIdName(prefix, association.name);
    RegistrySettings settings(AutoplayKey(RootName(scope), "Handlers\\" + handler));
    settings.setValue(
        "Action", QCoreApplication::translate("Installer", association.action.toUtf8()));
    settings.setValue("DefaultIcon", Quoted(installDir + association.executable) + ",0");
    settings.setValue("InvokeProgId", handler);
    settings.setValue("InvokeVerb", association.name);
    settings.setValue("Provider", provider);

    RegistrySettings events(AutoplayKey(RootName(scope), "EventHandlers"));
    for (const QString& event : association.events)
        events.setValue(event + '/' + handler, QString(""));
}

void SettingsManager::RemoveAutoplayHandlers(
    const QString& prefix, const AutoPlayAssociation& association, QSettings::Scope scope)
{
    const QString handler = ProgIdName(prefix, association.name);
    RegistrySettings(AutoplayKey(RootName(scope), "Handlers\\" + handler)).remove(QString());

    RegistrySettings events(AutoplayKey(RootName(scope), "EventHandlers"));
    for (const QString& event : association.events)
        events.remove(event + '/' + handler);
}

void SettingsManager::AddCustomProtocol(const QString& scheme, const QString& handlerProgram,
    const QString& installDir, QSettings::Scope scope)
{
    const QString program = installDir + handlerProgram + ".exe";
    RegistrySettings settings(ProtocolKey(RootName(scope), scheme));
    settings.setValue("URL Protocol", QString(""));
    settings.setValue("DefaultIcon/Default", program + ",0");
    settings.setValue("shell/open/command/Default", Quoted(program) + " \"%1\"");
}

void SettingsManager::RemoveCustomProtocol(const QString& scheme, QSettings::Scope scope)
{
    if (!scheme.trimmed().isEmpty()) // else every class
        RegistrySettings(ProtocolKey(RootName(scope), scheme)).remove(QString());
}

void SettingsManager::AddToContextMenu(const QString& label, const QString& executablePath,
    const QStringList& extensions, QSettings::Scope scope)
{
    RegistrySettings settings(QString(fileAssociationsKey).arg(RootName(scope)));
    if (label.isEmpty() || extensions.isEmpty())
        return;
    qInfo() << "Writing " << settings.fileName();
    for (const QString& extension : extensions)
    {
        const QString verb = QString("%1/Shell/%2/").arg(extension, label);
        qInfo() << "Create key " << verb;
        settings.setValue(verb + "Icon", executablePath);
        settings.setValue(verb + "Command/Default", Quoted(executablePath) + " \"%1\"");
    }
}

void SettingsManager::RemoveContextMenu(const QString& label, const QString& executablePath,
    const QStringList& extensions, QSettings::Scope scope)
{
    RegistrySettings settings(QString(fileAssociationsKey).arg(RootName(scope)));
    if (label.isEmpty() || extensions.isEmpty())
        return;
    qInfo() << "Removing " << settings.fileName();
    for (const QString& extension : extensions)
    {
        const QString verb = QString("%1/Shell/%2").arg(extension, label);
        if (!IsVerbOf(executablePath, settings, verb))
            continue;
        settings.remove(verb + "/Icon");
        settings.remove(verb);
        qInfo() << "Remove key " << verb;
    }
}

void SettingsManager::AddToAutoRun(const QString& name, const QString& executablePath,
    const QString& arguments, QSettings::Scope scope)
{
    RegistrySettings settings(QString(currentVersionKey).arg(RootName(scope)) + "Run");
    settings.setValue(name, QString(Quoted(executablePath) + ' ' + arguments).trimmed());
    qInfo() << "autorun=" << name << executablePath << arguments;
}

void SettingsManager::RemoveFromAutoRun(
    const QString& name, const QString& executablePath, QSettings::Scope scope)
{
    RegistrySettings settings(QString(currentVersionKey).arg(RootName(scope)) + "Run");
    if (settings.value(name).toString().contains(executablePath))
        settings.remove(name);
}

} // namespace Vorlan
