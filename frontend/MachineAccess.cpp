#include "MachineAccess.h"

#include "platform/Handle.h"

namespace Vorlan::FrontEnd
{
namespace
{

constexpr wchar_t lockName[] = L"Global\\VorlanQuillaxSetup";

} // namespace

bool CanChangeMachine()
{
    Platform::UniqueKey key;
    return RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"Software", 0, KEY_WRITE, key.Put()) == ERROR_SUCCESS;
}

QString MachineRightsMissing()
{
    return QStringLiteral("The installation for all users needs the rights of an administrator: "
                          "start the program as one.");
}

struct SetupLock::State
{
    Platform::UniqueObject mutex;
    bool isHeld = false;
};

SetupLock::SetupLock() : state(std::make_unique<State>())
{
    state->mutex = Platform::UniqueObject(CreateMutexW(nullptr, FALSE, lockName));
    state->isHeld = state->mutex && GetLastError() != ERROR_ALREADY_EXISTS;
}

SetupLock::~SetupLock() = default;

bool SetupLock::IsHeld() const
{
    return state->isHeld;
}

} // namespace Vorlan::FrontEnd
