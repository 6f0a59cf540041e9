#pragma once

#include "RunEvent.h"

#include <QObject>

namespace Vorlan
{
class InstallerMediator;
}

namespace Vorlan::FrontEnd
{

// Passes every signal of the mediator to `sink`, on the thread of `receiver` until `receiver` is
// destroyed.
void ConnectEvents(const InstallerMediator& mediator, QObject& receiver, const EventSink& sink);

} // namespace Vorlan::FrontEnd
