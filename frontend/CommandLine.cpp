#include "CommandLine.h"

#include "base/ProductProfile.h"

#include <QFileInfo>

#include <array>

namespace Vorlan::FrontEnd
{
namespace
{

// One option; exactly one of `flag` and `value` is set.
struct Option
{
    const char* name;
    bool CommandLine::*flag;
    QString CommandLine::*value;
    const char* valueName;
    const char* help; // null for another name of the option before it
};

constexpr Option Flag(const char* name, bool CommandLine::*flag, const char* help = nullptr)
{
    return {name, flag, nullptr, "", help};
}

constexpr Option Value(const char* name, QString CommandLine::*value, const char* valueName,
    const char* help = nullptr)
{
    return {name, nullptr, value, valueName, help};
}

constexpr std::array allOptions{
    Flag("S", &CommandLine::silent, "run without any window (also /VERYSILENT, /quiet)"),
    Flag("VERYSILENT", &CommandLine::silent),
    Flag("quiet", &CommandLine::silent),
    Flag("UNINSTALL", &CommandLine::uninstall, "uninstall instead of install"),
    Value("D", &CommandLine::folder, "<folder>", "install into this folder (also /DIR=)"),
    Value("DIR", &CommandLine::folder, "<folder>"),
    Value("LANG", &CommandLine::language, "<code>", "language of the program, for example de_DE"),
    Flag("ALLUSERS", &CommandLine::allUsers, "install for all users"),
    Flag("CURRENTUSER", &CommandLine::currentUser, "install for this user only (default)"),
    Value(
        "LOG", &CommandLine::logFile, "<file>", "write the log here, not to the temporary folder"),
    Flag("AUTOLAUNCH", &CommandLine::autoLaunch, "start the program at logon"),
    Flag("CONTEXTMENU", &CommandLine::contextMenu, "add entries to the Explorer context menu"),
    Flag("NOSHORTCUTS", &CommandLine::noShortcuts, "create no shortcuts"),
    Value("WEBUID", &CommandLine::webUid, "<id>", "web user id to store"),
    Flag("REMOVEALL", &CommandLine::removeAll, "uninstall: remove additional modules and all data"),
    Flag("DELETESETTINGS", &CommandLine::deleteSettings, "uninstall: delete the user's settings"),
    Flag("CLOSEAPPS", &CommandLine::closeApps, "silent: close programs that use the files"),
    Flag("IGNORE_MUTEX", &CommandLine::ignoreMutex, "run even beside another setup"),
    Flag("PROGRESS", &CommandLine::progress, "silent: show stages and a progress bar"),
    Flag("JSON", &CommandLine::json, "silent: print one line of JSON per event"),
    Flag("?", &CommandLine::help, "show this text (also --help)"),
    Flag("help", &CommandLine::help),
};

constexpr const char* exitCodesHelp = R"(Exit codes:
  0     done
  32    programs use the files (found before anything is changed)
  87    bad command line
  112   not enough disk space (found before anything is changed)
  1051  not uninstalled: other programs depend on this one
  1602  cancelled
  1603  failed; the log file says why
  1618  another setup is running
)";

const Option* FindOption(const QString& name)
{
    for (const Option& option : allOptions)
    {
        if (name.compare(QLatin1String(option.name), Qt::CaseInsensitive) == 0)
        {
            return &option;
        }
    }
    return nullptr;
}

// Length of the prefix of an option; 0 if the word is no option.
int PrefixLength(const QString& word)
{
    if (word.startsWith(QLatin1String("--")))
    {
        return 2;
    }
    return word.startsWith('/') || word.startsWith('-') ? 1 : 0;
}

QString ApplyValue(const Option& option, const QString& word, int equals, CommandLine& options)
{
    const QString value = equals < 0 ? QString() : word.mid(equals + 1);
    if (value.isEmpty())
    {
        return QString("The option %1 needs a value: write /%2=%3.")
            .arg(word, option.name, option.valueName);
    }
    options.*option.value = value;
    return {};
}

QString ApplyFlag(const Option& option, const QString& word, int equals, CommandLine& options)
{
    if (equals >= 0)
    {
        return QString("The option %1 takes no value: write /%2.").arg(word, option.name);
    }
    options.*option.flag = true;
    return {};
}

// Applies one word to the options; returns an error text, or an empty text.
QString ApplyWord(const QString& word, CommandLine& options)
{
    const int prefix = PrefixLength(word);
    if (prefix == 0)
    {
        return QString("Unexpected word \"%1\": options begin with / (see /?).").arg(word);
    }
    const int equals = word.indexOf('=');
    const Option* option = FindOption(word.mid(prefix, equals < 0 ? -1 : equals - prefix));
    const bool singleDash = prefix == 1 && word.startsWith('-');
    if (option == nullptr || singleDash)
    {
        return QString("Unknown option %1: /? lists all options.").arg(word);
    }
    return option->flag != nullptr ? ApplyFlag(*option, word, equals, options)
                                   : ApplyValue(*option, word, equals, options);
}

// The error text for contradicting or invalid options, or an empty text.
QString FindConflict(const CommandLine& options)
{
    if (options.allUsers && options.currentUser)
    {
        return "The options /ALLUSERS and /CURRENTUSER exclude each other: give one of them.";
    }
    const QStringList languages = ProductProfile::SupportedLocales();
    if (!options.language.isEmpty() && !languages.contains(options.language))
    {
        return QString("The option /LANG=%1 names no supported language: choose one of %2.")
            .arg(options.language, languages.join(", "));
    }
    return {};
}

// Whether the words, joined with blanks, are the program's path.
bool SpellsPath(const QStringList& words, const QString& programPath)
{
    const QString joined = words.join(' ');
    const auto matches = [](const QString& path, const QString& other)
    { return path.compare(other, Qt::CaseInsensitive) == 0; };
    const QString typed = QDir::fromNativeSeparators(joined).simplified();
    return matches(typed, QDir::fromNativeSeparators(programPath).simplified()) ||
           matches(QFileInfo(joined).canonicalFilePath(), programPath);
}

} // namespace

QStringList DropProgramPath(const QStringList& words, const QString& programPath)
{
    for (int count = words.size(); count > 1; --count)
    {
        if (SpellsPath(words.mid(0, count), programPath))
        {
            return words.mid(count);
        }
    }
    return words.mid(1);
}

ParsedCommandLine ParseCommandLine(const QStringList& arguments)
{
    ParsedCommandLine parsed;
    for (const QString& word : arguments)
    {
        const QString error = ApplyWord(word, parsed.options);
        parsed.error = parsed.error.isEmpty() ? error : parsed.error;
    }
    if (parsed.error.isEmpty())
    {
        parsed.error = FindConflict(parsed.options);
    }
    return parsed;
}

CommandLine WithAbsolutePaths(CommandLine options, const QDir& startFolder)
{
    for (QString* path : {&options.folder, &options.logFile})
    {
        if (!path->isEmpty())
        {
            *path = QDir::cleanPath(startFolder.absoluteFilePath(*path));
        }
    }
    return options;
}

Role RoleOf(const QString& programPath, const CommandLine& options)
{
    const bool hasUninstallerName =
        QFileInfo(programPath)
            .fileName()
            .compare(ProductProfile::uninstallerFileName, Qt::CaseInsensitive) == 0;
    return hasUninstallerName || options.uninstall ? Role::Uninstaller : Role::Installer;
}

QString HelpText()
{
    QString text = QString("%1 %2, setup\n\nOptions (names ignore case; --name works too):\n")
                       .arg(ProductProfile::productFullName, ProductProfile::versionText);
    for (const Option& option : allOptions)
    {
        if (option.help != nullptr)
        {
            const QString equals = option.value != nullptr ? "=" : "";
            const QString usage = '/' + QString(option.name) + equals + option.valueName;
            text += "  " + usage.leftJustified(18) + option.help + '\n';
        }
    }
    text += "Languages: " + ProductProfile::SupportedLocales().join(", ") + "\n\n";
    return text + exitCodesHelp;
}

} // namespace Vorlan::FrontEnd
