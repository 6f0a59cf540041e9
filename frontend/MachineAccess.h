#pragma once

#include <QString>
#include <QStringList>

#include <memory>

namespace Vorlan::FrontEnd
{

// Whether this process may write the records of all users.
bool CanChangeMachine();

// The error texts for a user without that right.
QString MachineRightsMissing();
QString UninstallRightsMissing();

// Lock that allows one setup at a time on a machine: held by the first process that constructs it,
// until the object is destroyed or the process ends.
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
