#include "RunSteps.h"

namespace Vorlan::FrontEnd
{
namespace
{

const QString removal = QStringLiteral("REMOVE_PREVIOUS_VERSION");

} // namespace

// Within the stage of the removal, the engine reports progress only if it removes something.
bool RunSteps::Show(const RunEvent& event)
{
    if (const auto* started = std::get_if<Events::ProcessStarted>(&event))
    {
        const QString id = QString::fromStdString(started->stage);
        isRemovalPossible = id == removal;
        return !isRemovalPossible && Begin(id);
    }
    if (!isRemovalPossible || !std::holds_alternative<Events::InstallationProgress>(event))
        return false;
    isRemovalPossible = false;
    ++count;
    return Begin(removal);
}

bool RunSteps::Begin(const QString& id)
{
    stage = id;
    ++number;
    count = qMax(count, number);
    return true;
}

} // namespace Vorlan::FrontEnd
