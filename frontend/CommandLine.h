#pragma once

#include <QDir>
#include <QSettings>
#include <QString>
#include <QStringList>

namespace Vorlan::FrontEnd
{

enum class Role
{
    Installer,
    Uninstaller
};

// What the command line asks for.
struct CommandLine
{
    bool silent = false;
    bool uninstall = false;
    bool allUsers = false;
    bool currentUser = false;
    bool autoLaunch = false;
    bool contextMenu = false;
    bool noShortcuts = false;
    bool removeAll = false;
    bool deleteSettings = false;
    bool ignoreMutex = false;
    bool progress = false;
    bool json = false;
    bool help = false;
    QString folder;
    QString language;
    QString logFile;
    QString webUid;

    QSettings::Scope Scope() const
    {
        return allUsers ? QSettings::SystemScope : QSettings::UserScope;
    }
};

struct ParsedCommandLine
{
    CommandLine options;
    QString error; // one line that names the first word at fault; empty when there is none
};

// The arguments in `words`, the whole command line of the process: without the leading words that
// together spell the program's own path, else without the first one. A program that was started
// with an unquoted command line gets a path with blanks as several words.
QStringList DropProgramPath(const QStringList& words, const QString& programPath);

// Names of options ignore case and begin with "/" or "--"; a value follows after "=". A repeated
// option counts with its last value. Paths are left as they are given.
ParsedCommandLine ParseCommandLine(const QStringList& arguments);

// The options with relative paths taken from `startFolder`.
CommandLine WithAbsolutePaths(CommandLine options, const QDir& startFolder);

// The program is the uninstaller when it bears the uninstaller's file name, or when it is told so.
Role RoleOf(const QString& programPath, const CommandLine& options);

// All options and exit codes, for a person.
QString HelpText();

} // namespace Vorlan::FrontEnd
