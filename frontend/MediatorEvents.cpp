#include "MediatorEvents.h"

#include "installer/InstallerMediator.h"

namespace Vorlan::FrontEnd
{
namespace
{

using Statistics = std::map<std::string, std::map<std::string, std::string>>;

// Queued signals carry copies of their parameters, and Qt finds the types by their written names.
void RegisterParameterTypes()
{
    qRegisterMetaType<std::string>("std::string");
    qRegisterMetaType<Statistics>("std::map<std::string,std::map<std::string,std::string> >");
}

QJsonObject ToJson(const Statistics& statistics)
{
    QJsonObject groups;
    for (const auto& [groupName, values] : statistics)
    {
        QJsonObject group;
        for (const auto& [name, value] : values)
        {
            group.insert(QString::fromStdString(name), QString::fromStdString(value));
        }
        groups.insert(QString::fromStdString(groupName), group);
    }
    return groups;
}

} // namespace

void ConnectEvents(const InstallerMediator& mediator, QObject& receiver, const EventSink& sink)
{
    RegisterParameterTypes();
    const auto connect = [&mediator, &receiver](auto signal, auto&& handler)
    { QObject::connect(&mediator, signal, &receiver, handler, Qt::QueuedConnection); };

    using Mediator = InstallerMediator;
    connect(&Mediator::ApplicationStarted,
        [sink](const QString& method) {
            sink({"ApplicationStarted", {{"method", method}}});
        });
    connect(&Mediator::InstallationStarted, [sink] { sink({"InstallationStarted", {}}); });
    connect(&Mediator::InstallationProgress,
        [sink](double p, const QString& title, const QString& progressText) {
            sink({"InstallationProgress",
                {{"p", p}, {"title", title}, {"progressText", progressText}}});
        });
    connect(&Mediator::InstallationFinished, [sink] { sink({"InstallationFinished", {}}); });
    connect(&Mediator::InstallationError,
        [sink](const QString& text, int currentPage) {
            sink({"InstallationError", {{"text", text}, {"currentPage", currentPage}}});
        });
    connect(&Mediator::TrackCoreStatistics,
        [sink](const Statistics& statisticInfo) {
            sink({"TrackCoreStatistics", {{"statisticInfo", ToJson(statisticInfo)}}});
        });
    connect(&Mediator::ProcessStarted,
        [sink](const std::string& process) {
            sink({"ProcessStarted", {{"process", QString::fromStdString(process)}}});
        });
    connect(&Mediator::WebConfigLoaderStarted, [sink] { sink({"WebConfigLoaderStarted", {}}); });
    connect(&Mediator::WebConfigLoaderFinished,
        [sink](int returnCode) {
            sink({"WebConfigLoaderFinished", {{"returnCode", returnCode}}});
        });
    connect(&Mediator::FilesExtracted,
        [sink](float time) {
            sink({"FilesExtracted", {{"time", qRound(time * 10) / 10.0}}});
        });
    connect(&Mediator::CopyFileError,
        [sink](const QString& fileName, const QString& reason) {
            sink({"CopyFileError", {{"fileName", fileName}, {"reason", reason}}});
        });
}

} // namespace Vorlan::FrontEnd
