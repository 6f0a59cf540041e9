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

// Translates the program's texts to this language until the translator is destroyed. Without a
// translation they are English.
std::unique_ptr<QTranslator> InstallTranslation(const QString& locale);

// Starts a run with this slot of the mediator and processes events until its last signal.
Outcome RunToTheEnd(
    InstallerMediator& mediator, void (InstallerMediator::*start)(), const EventSink& sink);

} // namespace Vorlan::FrontEnd
