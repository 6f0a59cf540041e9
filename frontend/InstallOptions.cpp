#include "InstallOptions.h"

#include "base/TriState.h"

namespace Vorlan::FrontEnd
{

InstallationSettings ApplyOptions(InstallationSettings settings, const CommandLine& options)
{
    const auto asked = [](bool isChosen)
    { return isChosen ? TriState::chosen : TriState::notAsked; };
    settings.autoLaunch = asked(options.autoLaunch);
    settings.contextMenuConvert = asked(options.contextMenu);
    settings.contextMenuOpenWith = asked(options.contextMenu);
    settings.createShortcuts = !options.noShortcuts;
    if (!options.folder.isEmpty())
    {
        settings.installDir = settings.GetFilteredDirectory(options.folder);
    }
    if (!options.language.isEmpty())
    {
        settings.locale = options.language;
    }
    return settings;
}

QStringList WordsFor(const InstallationSettings& settings)
{
    QStringList words{"/D=" + QDir::toNativeSeparators(QDir::cleanPath(settings.installDir)),
        "/LANG=" + settings.locale,
        settings.scope == QSettings::SystemScope ? "/ALLUSERS" : "/CURRENTUSER"};
    if (!settings.createShortcuts)
    {
        words << "/NOSHORTCUTS";
    }
    if (settings.contextMenuConvert == TriState::chosen)
    {
        words << "/CONTEXTMENU";
    }
    if (settings.autoLaunch == TriState::chosen)
    {
        words << "/AUTOLAUNCH";
    }
    if (!settings.userInfo.webUid.isEmpty())
    {
        words << "/WEBUID=" + settings.userInfo.webUid;
    }
    return words;
}

} // namespace Vorlan::FrontEnd
