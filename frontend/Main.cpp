#include "CommandLine.h"
#include "ElevatedRun.h"
#include "JsonReport.h"
#include "LogFile.h"
#include "MachineAccess.h"
#include "Outcome.h"
#include "PassiveRun.h"
#include "ProgressReport.h"
#include "ProtectedTempFolder.h"
#include "ResponseFile.h"
#include "SilentRun.h"
#include "Terminal.h"
#include "WindowedRun.h"
#include "wizard/Appearance.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QSysInfo>
#include <QUuid>

#include <iostream>
#include <memory>
#include <stdexcept>

using namespace Vorlan::FrontEnd;

namespace
{

struct Invocation
{
    QString programPath;
    QStringList words;
};

const Outcome anotherSetup{ExitCode::AnotherSetupRunning,
    "Another setup is running: wait for its end, or give /IGNORE_MUTEX."};

// Uses a temporary application object, which decodes both; the class of the final one depends on
// the options.
Invocation ReadInvocation(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    return {QCoreApplication::applicationFilePath(), QCoreApplication::arguments()};
}

EventSink MakeSink(const CommandLine& options)
{
    if (!options.elevated.isEmpty())
    {
        const auto report = std::make_shared<ElevatedReport>(QDir::tempPath());
        return [report](const RunEvent& event) { report->Write(event); };
    }
    if (options.json)
    {
        return [](const RunEvent& event) { WriteJsonEvent(std::cout, event); };
    }
    if (options.progress)
    {
        const auto report = std::make_shared<ProgressReport>(std::cout, IsOutputTerminal());
        return [report](const RunEvent& event) { report->Show(event); };
    }
    return [](const RunEvent&) {};
}

Outcome RunSilently(Role role, const CommandLine& options, int argc, char** argv)
{
    if (QSysInfo::kernelType() != "winnt")
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    return role == Role::Uninstaller ? UninstallSilently(options, MakeSink(options))
                                     : InstallSilently(options, MakeSink(options));
}

Outcome RunPassively(Role role, const CommandLine& options, int argc, char** argv)
{
    EnableHighDpi();
    QApplication application(argc, argv);
    ApplyStyle(application);
    return role == Role::Uninstaller ? UninstallPassively(options, MakeSink(options))
                                     : InstallPassively(options, MakeSink(options));
}

Outcome RunWithWindow(
    Role role, const CommandLine& options, bool isOnlySetup, int argc, char** argv)
{
    EnableHighDpi();
    QApplication application(argc, argv);
    ApplyStyle(application);
    if (!isOnlySetup)
    {
        ShowAnotherSetupRuns(options);
        return anotherSetup;
    }
    return role == Role::Uninstaller ? UninstallWithWindow(options, MakeSink(options))
                                     : InstallWithWindow(options, MakeSink(options));
}

Outcome RunRole(Role role, const CommandLine& options, int argc, char** argv)
{
    const SetupLock lock;
    // The process that waits for an elevated one holds the lock.
    const bool isOnlySetup = lock.IsHeld() || options.ignoreMutex || !options.elevated.isEmpty();
    if (!options.silent && !options.passive)
    {
        return RunWithWindow(role, options, isOnlySetup, argc, argv);
    }
    if (!isOnlySetup)
    {
        return anotherSetup;
    }
    return options.silent ? RunSilently(role, options, argc, argv)
                          : RunPassively(role, options, argc, argv);
}

// Administrators run nothing from a folder that other programs of the user may change.
std::unique_ptr<ProtectedTempFolder> ProtectTemporaryFiles(const CommandLine& options)
{
    if (!options.elevated.isEmpty())
    {
        return std::make_unique<ProtectedTempFolder>(options.elevated);
    }
    const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    return CanChangeMachine() ? std::make_unique<ProtectedTempFolder>(id) : nullptr;
}

// Writes a log during the run; a failure names its path. Throws std::runtime_error if it cannot be
// opened.
Outcome RunLogged(Role role, CommandLine options, int argc, char** argv)
{
    const auto protection = ProtectTemporaryFiles(options);
    const QString action = role == Role::Uninstaller ? "uninstall" : "install";
    if (options.logFile.isEmpty())
    {
        options.logFile = LogFile::DefaultPath(action, QDateTime::currentDateTime());
    }
    const LogFile log(options.logFile);
    Outcome outcome = RunRole(role, options, argc, argv);
    if (outcome.code != ExitCode::Done)
    {
        qCritical("%s", qUtf8Printable(outcome.error));
        outcome.logFile = outcome.logFile.isEmpty() ? log.Path() : outcome.logFile;
    }
    if (!options.elevated.isEmpty())
    {
        ElevatedReport(QDir::tempPath()).Write(outcome);
    }
    return outcome;
}

int Finish(Outcome outcome, const CommandLine& options)
{
    if (!outcome.logFile.isEmpty())
    {
        outcome.error += " (log file: " + outcome.logFile + ")";
    }
    if (options.json)
    {
        WriteJsonOutcome(std::cout, outcome);
    }
    if (outcome.code != ExitCode::Done)
    {
        std::cerr << outcome.error.toStdString() << std::endl;
    }
    return static_cast<int>(outcome.code);
}

// Prints a text that was asked for; without a console it is shown in a box.
int ShowText(const QString& text, const CommandLine& options, bool isConnected)
{
    std::cout << text.toStdString() << std::flush;
    if (!isConnected && !options.silent && !options.passive)
    {
        ShowBox(text);
    }
    return static_cast<int>(ExitCode::Done);
}

// The words of the command line, and what the response file has beyond them.
ParsedCommandLine ReadOptions(const Invocation& invocation)
{
    ParsedCommandLine parsed =
        ParseCommandLine(DropProgramPath(invocation.words, invocation.programPath));
    const QString file = WithAbsolutePaths(parsed.options, QDir::current()).loadFile;
    return parsed.error.isEmpty() && !file.isEmpty() ? ResponseFile(file).Complete(parsed.options)
                                                     : parsed;
}

// Ends the program without a run; without a console the text is shown in a box.
int Refuse(const Outcome& outcome, const CommandLine& options, bool isConnected)
{
    if (!isConnected && !options.silent && !options.passive)
    {
        ShowBox(outcome.error);
    }
    return Finish(outcome, options);
}

} // namespace

int main(int argc, char** argv)
{
    const bool isConnected = ConnectToConsole();
    const Invocation invocation = ReadInvocation(argc, argv);
    const ParsedCommandLine parsed = ReadOptions(invocation);
    if (!parsed.error.isEmpty())
    {
        return Refuse({ExitCode::BadCommandLine, parsed.error}, parsed.options, isConnected);
    }
    if (parsed.options.help || parsed.options.version)
    {
        return ShowText(
            parsed.options.help ? HelpText() : VersionText(), parsed.options, isConnected);
    }
    const CommandLine options = WithAbsolutePaths(parsed.options, QDir::current());
    const Role role = RoleOf(invocation.programPath, options);
    QDir::setCurrent(QFileInfo(invocation.programPath).absolutePath());
    try
    {
        return Finish(RunLogged(role, options, argc, argv), options);
    }
    catch (const std::exception& error)
    {
        return Refuse({ExitCode::Failed, error.what()}, options, isConnected);
    }
}
