#include "JsonReport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <ostream>

namespace Vorlan::FrontEnd
{
namespace
{

// The names in these objects are part of the documented output. "title" is a parameter without a
// name in the mediator.
QJsonObject ToJson(const Events::ApplicationStarted& event)
{
    return {{"signal", "ApplicationStarted"}, {"method", event.method}};
}

QJsonObject ToJson(const Events::InstallationStarted&)
{
    return {{"signal", "InstallationStarted"}};
}

QJsonObject ToJson(const Events::InstallationProgress& event)
{
    return {{"signal", "InstallationProgress"}, {"p", event.fraction}, {"title", event.title},
        {"progressText", event.text}};
}

QJsonObject ToJson(const Events::InstallationFinished&)
{
    return {{"signal", "InstallationFinished"}};
}

QJsonObject ToJson(const Events::InstallationError& event)
{
    return {{"signal", "InstallationError"}, {"text", event.text}, {"currentPage", event.state}};
}

QJsonObject ToJson(const Events::TrackCoreStatistics& event)
{
    QJsonObject groups;
    for (const auto& [groupName, values] : event.statistics)
    {
        QJsonObject group;
        for (const auto& [name, value] : values)
        {
            group.insert(QString::fromStdString(name), QString::fromStdString(value));
        }
        groups.insert(QString::fromStdString(groupName), group);
    }
    return {{"signal", "TrackCoreStatistics"}, {"statisticInfo", groups}};
}

QJsonObject ToJson(const Events::ProcessStarted& event)
{
    return {{"signal", "ProcessStarted"}, {"process", QString::fromStdString(event.stage)}};
}

QJsonObject ToJson(const Events::WebConfigLoaderStarted&)
{
    return {{"signal", "WebConfigLoaderStarted"}};
}

QJsonObject ToJson(const Events::WebConfigLoaderFinished& event)
{
    return {{"signal", "WebConfigLoaderFinished"}, {"returnCode", event.returnCode}};
}

QJsonObject ToJson(const Events::FilesExtracted& event)
{
    return {{"signal", "FilesExtracted"}, {"time", qRound(event.seconds * 10) / 10.0}};
}

QJsonObject ToJson(const Events::CopyFileError& event)
{
    return {{"signal", "CopyFileError"}, {"fileName", event.fileName}, {"reason", event.reason}};
}

void WriteLine(std::ostream& out, const QJsonObject& object)
{
    out << QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString() << std::endl;
}

} // namespace

void WriteJsonEvent(std::ostream& out, const RunEvent& event)
{
    WriteLine(out, std::visit([](const auto& signal) { return ToJson(signal); }, event));
}

void WriteJsonOutcome(std::ostream& out, const Outcome& outcome)
{
    QJsonObject line{{"exitCode", static_cast<int>(outcome.code)}};
    if (!outcome.error.isEmpty())
    {
        line.insert("error", outcome.error);
    }
    if (!outcome.explanation.state.isEmpty())
    {
        line.insert("state", outcome.explanation.state);
    }
    if (!outcome.logFile.isEmpty())
    {
        line.insert("logFile", outcome.logFile);
    }
    if (!outcome.files.isEmpty())
    {
        line.insert("files", QJsonArray::fromStringList(outcome.files));
    }
    WriteLine(out, line);
}

} // namespace Vorlan::FrontEnd
