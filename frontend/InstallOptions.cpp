#include "InstallOptions.h"

#include "ResponseFile.h"
#include "base/TriState.h"

namespace Vorlan::FrontEnd
{

namespace
{

// No value if nobody was asked.
std::optional<bool> AnswerOf(int setting)
{
    return setting == TriState::notAsked ? std::nullopt
                                         : std::optional(setting == TriState::chosen);
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

CommandLine OptionsFor(const InstallationSettings& settings, CommandLine options)
{
    options.folder = QDir::cleanPath(settings.installDir);
    options.language = settings.locale;
    options.allUsers = settings.scope == QSettings::SystemScope;
    options.currentUser = !options.allUsers;
    options.shortcuts = settings.createShortcuts;
    options.contextMenu = AnswerOf(settings.contextMenuConvert);
    options.autoLaunch = AnswerOf(settings.autoLaunch);
    options.statistics = AnswerOf(settings.sendStatistics);
    options.webUid = settings.userInfo.webUid;
    return options;
}

QString SaveChoices(const InstallationSettings& settings, const CommandLine& options)
{
    return options.saveFile.isEmpty()
               ? QString()
               : ResponseFile(options.saveFile).Save(OptionsFor(settings, options));
}

} // namespace Vorlan::FrontEnd
