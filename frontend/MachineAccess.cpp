#include "MachineAccess.h"

#include "base/Handle.h"
#include "base/ProductProfile.h"

#include <QCoreApplication>

namespace Vorlan::FrontEnd
{
namespace
{

// "Global\\VorlanQuillaxSetup" for the product "Vorlan Quillax".
std::wstring LockName()
{
    return ("Global\\" + QString(ProductProfile::productFullName).remove(' ') + "Setup")
        .toStdWString();
}

} // namespace

bool CanChangeMachine()
{
    Platform::UniqueKey key;
    return RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"Software", 0, KEY_WRITE, key.Put()) == ERROR_SUCCESS;
}

QString MachineRightsMissing()
{
    return QCoreApplication::translate("Wizard",
        "The installation for all users needs the rights of an administrator: start the program as "
        "one.");
}

QString UninstallRightsMissing()
{
    return QCoreApplication::translate("Uninstaller",
        "The program is installed for all users. Uninstalling it needs the rights of an "
        "administrator: start the uninstaller as one.");
}

struct SetupLock::State
{
    Platform::UniqueObject mutex;
    bool isHeld = false;
};

SetupLock::SetupLock() : state(std::make_unique<State>())
{
    state->mutex = Platform::UniqueObject(CreateMutexW(nullptr, FALSE, LockName().c_str()));
    state->isHeld = state->mutex && GetLastError() != ERROR_ALREADY_EXISTS;
}

SetupLock::~SetupLock() = default;

bool SetupLock::IsHeld() const
{
    return state->isHeld;
}

} // namespace Vorlan::FrontEnd
