#pragma once

#include <QDir>
#include <QSettings>
#include <QString>
#include <QStringList>

#include <optional>

namespace Vorlan::FrontEnd
{

enum class Role
{
    Installer,
    Uninstaller
};

// The options of the command line. A choice without a value, an empty text, and a scope that is not
// given leave what is proposed: what the installed version has, else the default.
struct CommandLine
{
    bool silent = false;
    bool passive = false;
    bool uninstall = false;
    bool allUsers = false;
    bool currentUser = false;
    bool downgrade = false;
    bool removeAll = false;
    bool deleteSettings = false;
    bool closeApps = false;
    bool ignoreMutex = false;
    bool progress = false;
    bool json = false;
    bool help = false;
    bool version = false;
    bool isLogChosen = false; // else logFile is the default of this process
    std::optional<bool> shortcuts;
    std::optional<bool> contextMenu;
    std::optional<bool> autoLaunch;
    std::optional<bool> statistics;
    QString folder;
    QString language;
    QString logFile;
    QString webUid;
    QString loadFile; // response file to read
    QString saveFile; // response file to write
    QString elevated; // the identity of this process's protected folder, from RunElevated

    bool HasScope() const { return allUsers || currentUser; }
    QSettings::Scope Scope() const
    {
        return allUsers ? QSettings::SystemScope : QSettings::UserScope;
    }
};

struct ParsedCommandLine
{
    CommandLine options;
    QString error; // one line that names the first wrong word; empty without an error
};

// The arguments in `words`, the whole command line of the process: without the leading words that
// together are the program's own path, else without the first one. A path with blanks in an
// unquoted command line arrives as several words.
QStringList DropProgramPath(const QStringList& words, const QString& programPath);

// Names of options ignore case and begin with "/" or "--"; a value follows after "=". The last
// value of a repeated option is used. Paths are not changed.
ParsedCommandLine ParseCommandLine(const QStringList& arguments);

// The words from which ParseCommandLine makes these options.
QStringList WordsFor(const CommandLine& options);

// The options with relative paths resolved against `startFolder`.
CommandLine WithAbsolutePaths(CommandLine options, const QDir& startFolder);

// The program is the uninstaller if it has the uninstaller's file name, or with /UNINSTALL.
Role RoleOf(const QString& programPath, const CommandLine& options);

// The text of /?: all options and exit codes.
QString HelpText();

// The text of /VERSION: a line with product and version.
QString VersionText();

} // namespace Vorlan::FrontEnd
