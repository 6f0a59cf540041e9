#include "MediatorEvents.h"

#include "installer/InstallerMediator.h"

namespace Vorlan::FrontEnd
{
namespace
{

// Queued connections copy the parameters; Qt looks the types up by their names as written in the
// signal.
void RegisterParameterTypes()
{
    qRegisterMetaType<std::string>("std::string");
    qRegisterMetaType<decltype(Events::TrackCoreStatistics::statistics)>(
        "std::map<std::string,std::map<std::string,std::string> >");
}

class Connector
{
public:
    Connector(const InstallerMediator& source, QObject& eventReceiver, const EventSink& eventSink)
        : mediator(source), receiver(eventReceiver), sink(eventSink)
    {
    }

    template <class Event, class... Parameters>
    void Connect(void (InstallerMediator::*signal)(Parameters...)) const
    {
        QObject::connect(
            &mediator, signal, &receiver,
            [sink = sink](const std::decay_t<Parameters>&... parameters)
            { sink(Event{parameters...}); },
            Qt::QueuedConnection);
    }

private:
    const InstallerMediator& mediator;
    QObject& receiver;
    const EventSink& sink;
};

} // namespace

void ConnectEvents(const InstallerMediator& mediator, QObject& receiver, const EventSink& sink)
{
    RegisterParameterTypes();
    using Mediator = InstallerMediator;
    const Connector connector(mediator, receiver, sink);
    connector.Connect<Events::ApplicationStarted>(&Mediator::ApplicationStarted);
    connector.Connect<Events::InstallationStarted>(&Mediator::InstallationStarted);
    connector.Connect<Events::InstallationProgress>(&Mediator::InstallationProgress);
    connector.Connect<Events::InstallationFinished>(&Mediator::InstallationFinished);
    connector.Connect<Events::InstallationError>(&Mediator::InstallationError);
    connector.Connect<Events::TrackCoreStatistics>(&Mediator::TrackCoreStatistics);
    connector.Connect<Events::ProcessStarted>(&Mediator::ProcessStarted);
    connector.Connect<Events::WebConfigLoaderStarted>(&Mediator::WebConfigLoaderStarted);
    connector.Connect<Events::WebConfigLoaderFinished>(&Mediator::WebConfigLoaderFinished);
    connector.Connect<Events::FilesExtracted>(&Mediator::FilesExtracted);
    connector.Connect<Events::CopyFileError>(&Mediator::CopyFileError);
}

} // namespace Vorlan::FrontEnd
