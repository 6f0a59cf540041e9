#include "CommandLine.h"

#include "base/ProductProfile.h"

#include <QFileInfo>

#include <array>
#include <variant>

namespace Vorlan::FrontEnd
{
namespace
{

using Switch = bool CommandLine::*;
using Text = QString CommandLine::*;
using Choice = std::optional<bool> CommandLine::*;

// A word that answers a choice.
struct Answer
{
    Choice choice;
    bool isYes;
};

struct Option
{
    const char* name;
    std::variant<Switch, Text, Choice, Answer> target;
    const char* valueName; // empty for an option without a value
    const char* help;      // null for another name of the option before it
};

constexpr Option Flag(const char* name, Switch target, const char* help = nullptr)
{
    return {name, target, "", help};
}

constexpr Option Value(
    const char* name, Text target, const char* valueName, const char* help = nullptr)
{
    return {name, target, valueName, help};
}

constexpr Option YesNo(const char* name, Choice target, const char* help)
{
    return {name, target, "yes|no", help};
}

constexpr Option Answers(const char* name, Choice target, bool isYes)
{
    return {name, Answer{target, isYes}, "", nullptr};
}

constexpr std::array allOptions{
    Flag("S", &CommandLine::silent, "run without any window"),
    Flag("VERYSILENT", &CommandLine::silent),
    Flag("quiet", &CommandLine::silent),
    Flag("PASSIVE", &CommandLine::passive,
        "run with a window that shows the progress, and ask nothing"),
    Flag("UNINSTALL", &CommandLine::uninstall, "uninstall instead of install"),
    Value("D", &CommandLine::folder, "<folder>", "install into this folder"),
    Value("DIR", &CommandLine::folder, "<folder>"),
    Value("LANG", &CommandLine::language, "<code>", "language of the program, for example de_DE"),
    Flag("ALLUSERS", &CommandLine::allUsers, "install for all users"),
    Flag("CURRENTUSER", &CommandLine::currentUser, "install for this user only (default)"),
    Value(
        "LOG", &CommandLine::logFile, "<file>", "write the log here, not to the temporary folder"),
    YesNo("SHORTCUTS", &CommandLine::shortcuts, "create shortcuts"),
    Answers("NOSHORTCUTS", &CommandLine::shortcuts, false),
    YesNo("CONTEXTMENU", &CommandLine::contextMenu, "add entries to the Explorer context menu"),
    Answers("CONTEXTMENU", &CommandLine::contextMenu, true),
    YesNo("AUTOLAUNCH", &CommandLine::autoLaunch, "start the program at logon"),
    Answers("AUTOLAUNCH", &CommandLine::autoLaunch, true),
    YesNo("STATISTICS", &CommandLine::statistics, "send anonymous usage statistics"),
    Value("LOADINF", &CommandLine::loadFile, "<file>", "read choices from this response file"),
    Value("SAVEINF", &CommandLine::saveFile, "<file>", "write the choices to this response file"),
    Value("WEBUID", &CommandLine::webUid, "<id>", "web user id to store"),
    Flag("DOWNGRADE", &CommandLine::downgrade, "replace a newer version without a question"),
    Flag("REMOVEALL", &CommandLine::removeAll, "uninstall: remove additional modules and all data"),
    Flag("DELETESETTINGS", &CommandLine::deleteSettings, "uninstall: delete the user's settings"),
    Flag("CLOSEAPPS", &CommandLine::closeApps, "silent: close programs that use the files"),
    Flag("IGNORE_MUTEX", &CommandLine::ignoreMutex, "run even beside another setup"),
    Value("ELEVATED", &CommandLine::elevated, "<id>",
        "from the program itself when it restarts itself with administrator rights"),
    Flag("PROGRESS", &CommandLine::progress, "silent: show stages and a progress bar"),
    Flag("JSON", &CommandLine::json, "silent: print one line of JSON per event"),
    Flag("?", &CommandLine::help, "show this text"),
    Flag("help", &CommandLine::help),
    Flag("VERSION", &CommandLine::version, "show product and version"),
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
  1638  a newer version is installed; see /DOWNGRADE
)";

bool TakesValue(const Option& option)
{
    return *option.valueName != '\0';
}

// Some names have a form with a value and one without; the other form is found where the asked one
// does not exist.
const Option* FindOption(const QString& name, bool hasValue)
{
    const Option* found = nullptr;
    for (const Option& option : allOptions)
    {
        const bool isNamed = name.compare(QLatin1String(option.name), Qt::CaseInsensitive) == 0;
        if (isNamed && (found == nullptr || TakesValue(option) == hasValue))
        {
            found = &option;
        }
    }
    return found;
}

// The option as it is written: "/D=<folder>".
QString Usage(const Option& option)
{
    const QString name = '/' + QString(option.name);
    return TakesValue(option) ? name + '=' + option.valueName : name;
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

bool IsWord(const QString& value, const char* word)
{
    return value.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
}

// Stores what an option means; false if it does not take this value.
class OptionStore
{
public:
    OptionStore(CommandLine& target, QString givenValue)
        : options(target), value(std::move(givenValue))
    {
    }

    bool operator()(Switch flag) const
    {
        options.*flag = true;
        return true;
    }
    bool operator()(const Answer& answer) const
    {
        options.*answer.choice = answer.isYes;
        return true;
    }
    bool operator()(Text text) const
    {
        options.*text = value;
        return !value.isEmpty();
    }
    bool operator()(Choice choice) const
    {
        options.*choice = IsWord(value, "yes");
        return IsWord(value, "yes") || IsWord(value, "no");
    }

private:
    CommandLine& options;
    QString value;
};

// The word for what is stored; empty if it is not given.
class WordMaker
{
public:
    WordMaker(const CommandLine& source, const Option& described)
        : options(source), option(described)
    {
    }

    QString operator()(Switch flag) const { return options.*flag ? Word({}) : QString(); }
    QString operator()(const Answer&) const { return {}; } // see Choice
    QString operator()(Text text) const
    {
        return (options.*text).isEmpty() ? QString() : Word('=' + options.*text);
    }
    QString operator()(Choice choice) const
    {
        if (!(options.*choice))
        {
            return {};
        }
        return Word(*(options.*choice) ? "=yes" : "=no");
    }

private:
    QString Word(const QString& value) const { return '/' + QString(option.name) + value; }

    const CommandLine& options;
    const Option& option;
};

// Applies one word to the options; returns an error text, or an empty text.
QString ApplyWord(const QString& word, CommandLine& options)
{
    const int prefix = PrefixLength(word);
    if (prefix == 0)
    {
        return QString("Unexpected word \"%1\": options begin with / (see /?).").arg(word);
    }
    const int equals = word.indexOf('=');
    const bool hasValue = equals >= 0;
    const Option* option = FindOption(word.mid(prefix, hasValue ? equals - prefix : -1), hasValue);
    const bool singleDash = prefix == 1 && word.startsWith('-');
    if (option == nullptr || singleDash)
    {
        return QString("Unknown option %1: /? lists all options.").arg(word);
    }
    if (hasValue && !TakesValue(*option))
    {
        return QString("The option %1 takes no value: write %2.").arg(word, Usage(*option));
    }
    const OptionStore store(options, hasValue ? word.mid(equals + 1) : QString());
    if (std::visit(store, option->target))
    {
        return {};
    }
    const QString text = hasValue && !word.endsWith('=')
                             ? QString("The option %1 has a wrong value: write %2.")
                             : QString("The option %1 needs a value: write %2.");
    return text.arg(word, Usage(*option));
}

// The error text for contradicting or invalid options, or an empty text.
QString FindConflict(const CommandLine& options)
{
    if (options.allUsers && options.currentUser)
    {
        return "The options /ALLUSERS and /CURRENTUSER exclude each other: give one of them.";
    }
    if (options.silent && options.passive)
    {
        return "The options /S and /PASSIVE exclude each other: give one of them.";
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

QStringList WordsFor(const CommandLine& options)
{
    QStringList words;
    for (const Option& option : allOptions)
    {
        const bool isFirstName = option.help != nullptr;
        const QString word =
            isFirstName ? std::visit(WordMaker(options, option), option.target) : QString();
        if (!word.isEmpty())
        {
            words << word;
        }
    }
    return words;
}

CommandLine WithAbsolutePaths(CommandLine options, const QDir& startFolder)
{
    for (QString* path : {&options.folder, &options.logFile, &options.loadFile, &options.saveFile})
    {
        if (!path->isEmpty())
        {
            *path = QDir::cleanPath(startFolder.absoluteFilePath(*path));
        }
    }
    options.isLogChosen = !options.logFile.isEmpty();
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

QString VersionText()
{
    return QString("%1 %2\n").arg(ProductProfile::productFullName, ProductProfile::versionText);
}

QString HelpText()
{
    QString text = QString("%1 %2, setup\n\nOptions (names ignore case; --name works too):\n")
                       .arg(ProductProfile::productFullName, ProductProfile::versionText);
    for (auto option = allOptions.begin(); option != allOptions.end();)
    {
        const QString usage = "  " + Usage(*option).leftJustified(22) + ' ' + option->help;
        QStringList others;
        for (++option; option != allOptions.end() && option->help == nullptr; ++option)
        {
            others << Usage(*option);
        }
        text += usage + (others.isEmpty() ? "" : " (also " + others.join(", ") + ')') + '\n';
    }
    text += "Languages: " + ProductProfile::SupportedLocales().join(", ") + "\n\n";
    return text + exitCodesHelp;
}

} // namespace Vorlan::FrontEnd
