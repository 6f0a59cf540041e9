#pragma once

#include <QString>
#include <QStringList>

#include <memory>

namespace Vorlan::FrontEnd
{

// Whether this process may change what belongs to all users of the machine.
bool CanChangeMachine();

// What to tell a person who may not.
QString MachineRightsMissing();

// Starts this program again with these arguments and the rights of an administrator, for which the
// system asks the person; false when they refused.
bool RelaunchElevated(const QStringList& arguments);

// One setup at a time on a machine: held by the first process that asks, until the object goes or
// the process ends.
class SetupLock
{
public:
    SetupLock();
    ~SetupLock();
    SetupLock(const SetupLock&) = delete;
    SetupLock& operator=(const SetupLock&) = delete;

    bool IsHeld() const;

private:
    struct State;
    std::unique_ptr<State> state;
};

} // namespace Vorlan::FrontEnd
