#include "JsonReader.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

namespace Vorlan::FrontEnd
{
namespace
{

QString Text(const QJsonObject& line, const char* name)
{
    return line[QLatin1String(name)].toString();
}

Events::TrackCoreStatistics ReadStatistics(const QJsonObject& line)
{
    Events::TrackCoreStatistics event;
    const QJsonObject groups = line["statisticInfo"].toObject();
    for (const QString& groupName : groups.keys())
    {
        const QJsonObject group = groups[groupName].toObject();
        for (const QString& name : group.keys())
        {
            event.statistics[groupName.toStdString()][name.toStdString()] =
                group[name].toString().toStdString();
        }
    }
    return event;
}

using Reader = RunEvent (*)(const QJsonObject&);

const QMap<QString, Reader>& Readers()
{
    using Line = const QJsonObject&;
    static const QMap<QString, Reader> readers{
        {"ApplicationStarted",
            [](Line line) -> RunEvent { return Events::ApplicationStarted{Text(line, "method")}; }},
        {"InstallationStarted", [](Line) -> RunEvent { return Events::InstallationStarted{}; }},
        {"InstallationProgress",
            [](Line line) -> RunEvent
            {
                return Events::InstallationProgress{
                    line["p"].toDouble(), Text(line, "title"), Text(line, "progressText")};
            }},
        {"InstallationFinished", [](Line) -> RunEvent { return Events::InstallationFinished{}; }},
        {"InstallationError",
            [](Line line) -> RunEvent {
                return Events::InstallationError{Text(line, "text"), line["currentPage"].toInt()};
            }},
        {"TrackCoreStatistics", [](Line line) -> RunEvent { return ReadStatistics(line); }},
        {"ProcessStarted",
            [](Line line) -> RunEvent
            { return Events::ProcessStarted{Text(line, "process").toStdString()}; }},
        {"WebConfigLoaderStarted",
            [](Line) -> RunEvent { return Events::WebConfigLoaderStarted{}; }},
        {"WebConfigLoaderFinished",
            [](Line line) -> RunEvent
            { return Events::WebConfigLoaderFinished{line["returnCode"].toInt()}; }},
        {"FilesExtracted",
            [](Line line) -> RunEvent
            { return Events::FilesExtracted{static_cast<float>(line["time"].toDouble())}; }},
        {"CopyFileError",
            [](Line line) -> RunEvent {
                return Events::CopyFileError{Text(line, "fileName"), Text(line, "reason")};
            }},
    };
    return readers;
}

} // namespace

std::optional<RunEvent> ReadJsonEvent(const QByteArray& line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const Reader reader = Readers().value(Text(object, "signal"));
    return reader != nullptr ? std::optional(reader(object)) : std::nullopt;
}

std::optional<Outcome> ReadJsonOutcome(const QByteArray& line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    if (!object.contains("exitCode"))
    {
        return std::nullopt;
    }
    Outcome outcome;
    outcome.code = static_cast<ExitCode>(object["exitCode"].toInt());
    outcome.error = Text(object, "error");
    outcome.explanation.state = Text(object, "state");
    outcome.logFile = Text(object, "logFile");
    for (const auto& file : object["files"].toArray())
    {
        outcome.files << file.toString();
    }
    return outcome;
}

} // namespace Vorlan::FrontEnd
