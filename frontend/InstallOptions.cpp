#include "InstallOptions.h"

#include "base/TriState.h"

namespace Vorlan::FrontEnd
{

namespace
{

// "/NAME=yes" or "/NAME=no"; empty if nobody was asked.
QString Word(const char* name, int answer)
{
    const QString word = '/' + QString(name) + '=';
    if (answer == TriState::notAsked)
    {
        return {};
    }
    return word + (answer == TriState::chosen ? "yes" : "no");
}

} // namespace

QSettings::Scope ChooseScope(const FoundInstallations& found, const CommandLine& options)
{
    const Installation* proposed = found.Proposed();
    return options.HasScope() || proposed == nullptr ? options.Scope() : proposed->scope;
}

InstallationSettings ApplyOptions(InstallationSettings settings, const CommandLine& options)
{
    const auto answer = [](const std::optional<bool>& choice, int& setting)
    { setting = choice ? TriState::Of(*choice) : setting; };
    answer(options.autoLaunch, settings.autoLaunch);
    answer(options.contextMenu, settings.contextMenuConvert);
    answer(options.contextMenu, settings.contextMenuOpenWith);
    answer(options.statistics, settings.sendStatistics);
    settings.createShortcuts = options.shortcuts.value_or(settings.createShortcuts);
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
    words << Word("SHORTCUTS", settings.createShortcuts ? TriState::chosen : TriState::declined)
          << Word("CONTEXTMENU", settings.contextMenuConvert)
          << Word("AUTOLAUNCH", settings.autoLaunch) << Word("STATISTICS", settings.sendStatistics);
    words.removeAll({}); // what was not asked
    if (!settings.userInfo.webUid.isEmpty())
    {
        words << "/WEBUID=" + settings.userInfo.webUid;
    }
    return words;
}

} // namespace Vorlan::FrontEnd
