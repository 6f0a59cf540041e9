// One silent run of the engine in a process of its own, for tests that let it fail or cut it off:
//   setup-child install     installs the archive that lies beside it
//   setup-child uninstall   removes the product from the folder that it lies in
// $VORLAN_TEST_FAULT says what fails: "call <k>" for the k-th call of the platform layer, or a
// fault of the disk (DiskFaults_linux.h). At last it prints one line such as "InstallationFinished;
// state 2; 0 open; fault".
#include "installer/InstallerMediator.h"
#include "support/DiskFaults_linux.h"
#include "support/MediatorAccess.h"

#include <Pal.h>
#include <windows.h>

#include <QCoreApplication>

#include <climits>
#include <cstdio>
#include <exception>

using namespace Vorlan;

namespace
{

unsigned FailingCall()
{
    unsigned call = UINT_MAX;
    std::sscanf(qgetenv("VORLAN_TEST_FAULT").constData(), "call %u", &call);
    return call;
}

// The signals that end a run, and the state that it leaves.
QString Run(bool isUninstallation)
{
    const QString name = "setup.exe";
    InstallerMediator mediator({name, !isUninstallation, true, QSettings::UserScope, true});
    MediatorAccess access{mediator};
    access.SkipWaits();
    InstallationSettings settings = mediator.GetSettings();
    settings.autoLaunch = 2;
    settings.contextMenuConvert = 2;
    settings.removeAllOnUninstall = isUninstallation;
    mediator.SetSettings(settings);

    QStringList ends;
    const auto direct = Qt::DirectConnection;
    QObject::connect(
        &mediator, &InstallerMediator::InstallationFinished, &mediator,
        [&ends] { ends += "InstallationFinished"; }, direct);
    QObject::connect(
        &mediator, &InstallerMediator::InstallationError, &mediator,
        [&ends] { ends += "InstallationError"; }, direct);
    if (isUninstallation)
        mediator.StartUninstall();
    else
        mediator.StartInstallation();
    access.Join();
    return ends.join(", ") +
           QString("; state %1").arg(static_cast<int>(mediator.GetInstallationState()));
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const bool isUninstallation = application.arguments().value(1) == "uninstall";
    QString end;
    bool isFault = false;
    {
        const Pal::ScopedFault fault(
            "*", ERROR_ACCESS_DENIED, FailingCall(), Pal::ScopedFault::Expect::MayStayUnused);
        try
        {
            end = Run(isUninstallation);
        }
        catch (const std::exception& error)
        {
            end = QString("cannot start: ") + error.what();
        }
        isFault = fault.Fired() || DiskFaults::IsFull();
    }
    std::printf("%s; %zu open; %s\n", qPrintable(end), Pal::OpenHandles().size(),
        isFault ? "fault" : "no fault");
    return 0;
}
