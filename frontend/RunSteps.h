#pragma once

#include "RunEvent.h"

#include <QString>

namespace Vorlan::FrontEnd
{

// The steps of an installation that a person sees, from the events of the run. The engine begins
// the removal of a previous version in every run; it is a step only where there is one. An
// uninstallation has no steps.
class RunSteps
{
public:
    // True if a step has begun.
    bool Show(const RunEvent& event);

    // The id of the current step's stage; empty before the first.
    const QString& Stage() const { return stage; }
    // From 1 on, of Count(); 0 before the first.
    int Number() const { return number; }
    int Count() const { return count; }

private:
    bool Begin(const QString& id);

    bool isRemovalPossible = false;
    QString stage;
    int number = 0;
    int count = 3; // files, registration, check of the hardware
};

} // namespace Vorlan::FrontEnd
