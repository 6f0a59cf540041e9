#pragma once

#include <QJsonObject>
#include <QString>

#include <functional>

namespace Vorlan::FrontEnd
{

// One signal of the mediator: its name and its parameters by their names. The stage title of
// InstallationProgress, which has no name there, is called "title".
struct RunEvent
{
    QString signal;
    QJsonObject parameters;
};

using EventSink = std::function<void(const RunEvent&)>;

} // namespace Vorlan::FrontEnd
