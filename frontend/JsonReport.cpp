#include "JsonReport.h"

#include <QJsonDocument>

#include <ostream>

namespace Vorlan::FrontEnd
{
namespace
{

void WriteLine(std::ostream& out, const QJsonObject& object)
{
    out << QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString() << std::endl;
}

} // namespace

void WriteJsonEvent(std::ostream& out, const RunEvent& event)
{
    QJsonObject line = event.parameters;
    line.insert("signal", event.signal);
    WriteLine(out, line);
}

void WriteJsonOutcome(std::ostream& out, const Outcome& outcome)
{
    QJsonObject line{{"exitCode", static_cast<int>(outcome.code)}};
    if (!outcome.error.isEmpty())
    {
        line.insert("error", outcome.error);
    }
    WriteLine(out, line);
}

} // namespace Vorlan::FrontEnd
