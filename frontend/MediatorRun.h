#pragma once

#include "Outcome.h"
#include "RunEvent.h"

#include <QString>

#include <memory>

class QTranslator;

namespace Vorlan
{
class InstallerMediator;
}

namespace Vorlan::FrontEnd
{

// Shows the program's texts in this language from now on, as long as the translator lives. Where
// there is no translation they stay English.
std::unique_ptr<QTranslator> InstallTranslation(const QString& locale);

// Starts the mediator's run with one of its slots and handles events until its last signal.
Outcome RunToTheEnd(
    InstallerMediator& mediator, void (InstallerMediator::*start)(), const EventSink& sink);

} // namespace Vorlan::FrontEnd
