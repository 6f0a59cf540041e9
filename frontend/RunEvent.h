#pragma once

#include <QString>

#include <functional>
#include <map>
#include <string>
#include <variant>

namespace Vorlan::FrontEnd
{

// The mediator's signals as values: one type for each signal, with its parameters in their order.
namespace Events
{

struct ApplicationStarted
{
    QString method;
};

struct InstallationStarted
{
};

struct InstallationProgress
{
    double fraction; // from 0 to 1
    QString title;   // of the stage; may be empty
    QString text;    // of the step; may be empty
};

struct InstallationFinished
{
};

struct InstallationError
{
    QString text;
    int state; // the InstallationState in which the run failed
};

struct TrackCoreStatistics
{
    std::map<std::string, std::map<std::string, std::string>> statistics;
};

struct ProcessStarted
{
    std::string stage;
};

struct WebConfigLoaderStarted
{
};

struct WebConfigLoaderFinished
{
    int returnCode;
};

struct FilesExtracted
{
    float seconds;
};

struct CopyFileError
{
    QString fileName;
    QString reason;
};

} // namespace Events

using RunEvent = std::variant<Events::ApplicationStarted, Events::InstallationStarted,
    Events::InstallationProgress, Events::InstallationFinished, Events::InstallationError,
    Events::TrackCoreStatistics, Events::ProcessStarted, Events::WebConfigLoaderStarted,
    Events::WebConfigLoaderFinished, Events::FilesExtracted, Events::CopyFileError>;

using EventSink = std::function<void(const RunEvent&)>;

} // namespace Vorlan::FrontEnd
