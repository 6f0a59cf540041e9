#pragma once

#include "RunEvent.h"

#include <QObject>

namespace Vorlan
{
class InstallerMediator;
}

namespace Vorlan::FrontEnd
{

// Hands every signal of the mediator to `sink`, on the thread of `receiver` and as long as it
// lives.
void ConnectEvents(const InstallerMediator& mediator, QObject& receiver, const EventSink& sink);

} // namespace Vorlan::FrontEnd
