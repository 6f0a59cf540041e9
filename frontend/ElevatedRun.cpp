#include "ElevatedRun.h"

#include "ArgumentQuoting.h"
#include "JsonReader.h"
#include "JsonReport.h"
#include "ProtectedTempFolder.h"
#include "base/Handle.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QTimer>
#include <QUuid>

#include <shellapi.h>

#include <filesystem>

namespace Vorlan::FrontEnd
{
namespace
{

constexpr int pollingMs = 50;

QString ReportPath(const QString& protectedFolder)
{
    return QDir(protectedFolder).filePath("run.jsonl");
}

// Everything that is chosen; the waiting process prints and shows.
CommandLine OptionsOfElevated(CommandLine options, const QString& id)
{
    options.silent = true;
    options.passive = false;
    options.progress = false;
    options.json = false;
    options.loadFile.clear();
    options.elevated = id;
    if (!options.isLogChosen)
    {
        options.logFile.clear();
    }
    return options;
}

// Without a handle if the user has refused.
Platform::UniqueProcess StartElevated(const QString& program, const QStringList& arguments)
{
    const std::wstring file = QDir::toNativeSeparators(program).toStdWString();
    const std::wstring parameters = QuoteArguments(arguments).toStdWString();
    SHELLEXECUTEINFOW info = {};
    info.cbSize = sizeof info;
    info.fMask = SEE_MASK_NOCLOSEPROCESS;
    info.lpVerb = L"runas";
    info.lpFile = file.c_str();
    info.lpParameters = parameters.c_str();
    info.nShow = SW_SHOW;
    if (!ShellExecuteExW(&info))
    {
        qWarning() << "Not started with administrator rights, error" << GetLastError();
    }
    return Platform::UniqueProcess(info.hProcess);
}

// Passes on the complete lines of a report that another process appends to.
class ReportFollower
{
public:
    ReportFollower(const QString& path, const EventSink& eventSink) : file(path), sink(eventSink) {}

    void ReadNewLines()
    {
        if (!file.isOpen() && !file.open(QIODevice::ReadOnly))
        {
            return; // not created yet
        }
        unread += file.readAll();
        for (int end = unread.indexOf('\n'); end >= 0; end = unread.indexOf('\n'))
        {
            Pass(unread.left(end));
            unread.remove(0, end + 1);
        }
    }

    const std::optional<Outcome>& Result() const { return result; }

private:
    void Pass(const QByteArray& line)
    {
        if (const auto event = ReadJsonEvent(line))
        {
            sink(*event);
        }
        else if (const auto outcome = ReadJsonOutcome(line))
        {
            result = outcome;
        }
    }

    QFile file;
    const EventSink& sink;
    QByteArray unread;
    std::optional<Outcome> result;
};

void FollowToTheEnd(HANDLE process, ReportFollower& report)
{
    QEventLoop loop;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &loop,
        [&]
        {
            const bool hasEnded = WaitForSingleObject(process, 0) != WAIT_TIMEOUT;
            report.ReadNewLines();
            if (hasEnded)
            {
                timer.stop();
                loop.quit();
            }
        });
    timer.start(pollingMs);
    loop.exec();
}

} // namespace

std::optional<Outcome> RunElevated(
    const QString& program, const CommandLine& options, const EventSink& sink)
{
    const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    const Platform::UniqueProcess process =
        StartElevated(program, WordsFor(OptionsOfElevated(options, id)));
    if (!process)
    {
        return std::nullopt;
    }
    ReportFollower report(ReportPath(ProtectedTempFolder::PathFor(id)), sink);
    FollowToTheEnd(process.Get(), report);
    if (report.Result())
    {
        return report.Result();
    }
    return Outcome{ExitCode::Failed,
        QCoreApplication::translate("Wizard",
            "The part with administrator rights has ended without a result. Start the program as "
            "an administrator.")};
}

ElevatedReport::ElevatedReport(const QString& protectedFolder)
    : file(std::filesystem::path(ReportPath(protectedFolder).toStdU16String()), std::ios::app)
{
}

void ElevatedReport::Write(const RunEvent& event)
{
    WriteJsonEvent(file, event);
}

void ElevatedReport::Write(const Outcome& outcome)
{
    WriteJsonOutcome(file, outcome);
}

} // namespace Vorlan::FrontEnd
