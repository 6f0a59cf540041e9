#include "MachineAccess.h"

#include "base/Handle.h"
#include "base/ProductProfile.h"

#include <QCoreApplication>
#include <QDir>

#include <shellapi.h>

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

bool RelaunchElevated(const QStringList& arguments)
{
    QStringList quoted = {
        "/IGNORE_MUTEX"}; // this process still holds the lock when the other one starts
    for (const QString& argument : arguments)
    {
        quoted += '"' + argument + '"';
    }
    const std::wstring program =
        QDir::toNativeSeparators(QCoreApplication::applicationFilePath()).toStdWString();
    const std::wstring parameters = quoted.join(' ').toStdWString();
    SHELLEXECUTEINFOW info = {};
    info.cbSize = sizeof info;
    info.fMask = SEE_MASK_NOCLOSEPROCESS;
    info.lpVerb = L"runas";
    info.lpFile = program.c_str();
    info.lpParameters = parameters.c_str();
    info.nShow = SW_SHOW;
    const BOOL isStarted = ShellExecuteExW(&info);
    const Platform::UniqueProcess process(info.hProcess);
    return isStarted;
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
