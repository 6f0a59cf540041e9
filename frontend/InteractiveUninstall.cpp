#include "InteractiveUninstall.h"

#include "MachineAccess.h"
#include "OwnFolder.h"
#include "UninstallRun.h"

#include "installer/ProductProfile.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QMessageBox>
#include <QProgressDialog>

namespace Vorlan::FrontEnd
{
namespace
{

constexpr int barLength = 1000;

QString Text(const char* text)
{
    return QCoreApplication::translate("Uninstaller", text);
}

QString Title()
{
    return ProductProfile::productFullName;
}

bool AskAboutFolder(const QString& refusal)
{
    return QMessageBox::warning(nullptr, Title(),
               refusal + "\n\n" + Text("Delete the files beside this program all the same?"),
               QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

// Whether to begin; the options then say whether the settings go as well.
bool AskToBegin(CommandLine& options)
{
    QMessageBox box(QMessageBox::Question, Title(), Text("Uninstall %1?").arg(Title()),
        QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::No);
    auto* deleteSettings = new QCheckBox(Text("&Delete my settings"), &box);
    deleteSettings->setChecked(options.deleteSettings);
    box.setCheckBox(deleteSettings);
    const bool isWanted = box.exec() == QMessageBox::Yes;
    options.deleteSettings = deleteSettings->isChecked();
    return isWanted;
}

// The engine cannot be stopped in the middle, so the window can be neither cancelled nor closed.
class ProgressWindow : public QProgressDialog
{
public:
    ProgressWindow() : QProgressDialog(Text("Uninstalling..."), QString(), 0, barLength)
    {
        setWindowTitle(Title());
        setMinimumDuration(0);
        setAutoReset(false);
        setAutoClose(false);
        setValue(0);
    }

    void reject() override {}

protected:
    void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

Outcome RunWithProgress(const QString& folder, QSettings::Scope scope, const CommandLine& options,
    const EventSink& sink)
{
    ProgressWindow window;
    window.show();
    return UninstallFrom(folder, scope, options, false,
        [&](const RunEvent& event)
        {
            sink(event);
            if (event.signal == "InstallationProgress")
            {
                window.setValue(static_cast<int>(event.parameters["p"].toDouble() * barLength));
            }
        });
}

} // namespace

Outcome UninstallInteractively(const CommandLine& givenOptions, const EventSink& sink)
{
    CommandLine options = givenOptions;
    const QString folder = QCoreApplication::applicationDirPath();
    const OwnFolder own = ExamineOwnFolder(folder, options.Scope());
    if (own.scope == QSettings::SystemScope && !CanChangeMachine())
    {
        return RelaunchElevated() ? Outcome{} : Outcome{ExitCode::Failed, MachineRightsMissing()};
    }
    if ((!own.refusal.isEmpty() && !AskAboutFolder(own.refusal)) || !AskToBegin(options))
    {
        return {ExitCode::Cancelled, Text("Cancelled: nothing was deleted.")};
    }
    const Outcome outcome = RunWithProgress(folder, own.scope, options, sink);
    if (outcome.code == ExitCode::Done)
    {
        QMessageBox::information(nullptr, Title(), Text("%1 was uninstalled.").arg(Title()));
    }
    else
    {
        QMessageBox::critical(nullptr, Title(), outcome.error);
    }
    return outcome;
}

} // namespace Vorlan::FrontEnd
