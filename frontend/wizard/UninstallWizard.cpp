#include "wizard/UninstallWizard.h"

#include "MachineAccess.h"
#include "UninstallRun.h"
#include "installer/InstallerMediator.h"
#include "widgets/AlertBox.h"
#include "widgets/MultiLayerBackgroundFrame.h"
#include "wizard/ProgressPage.h"
#include "wizard/ResultPage.h"
#include "wizard/Texts.h"
#include "wizard/UninstallStartPage.h"

namespace Vorlan::FrontEnd
{
namespace
{

// The first lines of a text that is too long for a box.
QString Shortened(const QString& text)
{
    constexpr int mostLines = 6;
    QStringList lines = text.split('\n', Qt::SkipEmptyParts);
    if (lines.size() > mostLines)
        lines = lines.mid(0, mostLines) << QStringLiteral("...");
    return lines.join('\n').remove('\t');
}

} // namespace

UninstallWizard::UninstallWizard(const QString& ownFolder, const OwnFolder& own,
    const CommandLine& givenOptions, EventSink eventSink)
    : folder(ownFolder),
      refusal(own.refusal),
      isForAllUsers(own.scope == QSettings::SystemScope),
      options(givenOptions),
      sink(std::move(eventSink)),
      mediator(MakeUninstaller(own.scope, options, false))
{
    SetLanguage(mediator->GetSettings().locale);
    runOutcome = {ExitCode::Cancelled, UninstallText("Cancelled: nothing was deleted.")};
    start = new UninstallStartPage(folder, options.deleteSettings);
    progress = new ProgressPage(
        LayerSets::uninstallProgress, QT_TRANSLATE_NOOP("Wizard", "Uninstalling %1"));
    window.Add(start);
    window.Add(progress);
    GoTo(Step::Start, start);
}

UninstallWizard::~UninstallWizard() = default;

bool UninstallWizard::AskAboutFolder() const
{
    if (refusal.isEmpty())
        return true;
    const QString question = UninstallText("Delete the files beside this program all the same?");
    return AlertBox::question(nullptr, refusal + "\n\n" + question) == QDialogButtonBox::Yes;
}

void UninstallWizard::GoTo(Step next, Page* page)
{
    step = next;
    ShowPage(page);
}

ButtonBar::Labels UninstallWizard::Labels() const
{
    switch (step)
    {
    case Step::Start:
        return {{}, WizardText("Cancel"), UninstallText("&Uninstall"), NeedsRights()};
    case Step::Running:
        return {};
    case Step::Over:
        break;
    }
    return {{}, {}, WizardText("&Finish")};
}

void UninstallWizard::GoForward()
{
    if (step == Step::Start)
        Uninstall();
    else if (step == Step::Over)
        Leave(runOutcome);
}

void UninstallWizard::RequestClose()
{
    if (step == Step::Running)
        AlertBox::info(&window, UninstallText("The uninstallation cannot be stopped now: files and "
                                              "settings are being removed. It ends in a moment."));
    else
        Leave(runOutcome);
}

bool UninstallWizard::NeedsRights() const
{
    return isForAllUsers && !CanChangeMachine();
}

void UninstallWizard::Uninstall()
{
    options.deleteSettings = start->IsDeletingSettings();
    progress->Clear();
    GoTo(Step::Running, progress);
    const EventSink show = [this](const RunEvent& event)
    {
        sink(event);
        progress->Show(event);
    };
    const auto result = NeedsRights() ? UninstallElevated(options, show)
                                      : UninstallWith(*mediator, folder, options, show);
    if (!result)
    {
        GoTo(Step::Start, start);
        AlertBox::error(&window, UninstallRightsMissing(), false);
        return;
    }
    runOutcome = *result;
    if (runOutcome.code == ExitCode::DependentProgramsExist)
    {
        GoTo(Step::Start, start);
        AlertBox::error(&window, Shortened(runOutcome.error), false);
        return;
    }
    ShowResult();
}

void UninstallWizard::ShowResult()
{
    ResultTexts shown;
    shown.isDone = runOutcome.code == ExitCode::Done;
    if (shown.isDone)
    {
        shown.headingText = QT_TRANSLATE_NOOP("Wizard", "%1 was uninstalled");
        shown.text = UninstallText("Thank you for having used it.");
        shown.linkText =
            QT_TRANSLATE_NOOP("Wizard", "<a href=\"survey\">Tell us why you uninstalled it</a>");
    }
    else
    {
        shown.headingText = QT_TRANSLATE_NOOP("Wizard", "%1 could not be uninstalled");
        shown.text =
            runOutcome.error + "\n\n" +
            WizardText("Log file: %1")
                .arg(PathText(runOutcome.logFile.isEmpty() ? options.logFile : runOutcome.logFile));
    }
    resultPage = new ResultPage(LayerSets::uninstallStart, shown);
    resultPage->linkFollowed = [this] { mediator->OpenUrl(InstallerMediator::URL::UninstallPage); };
    window.Add(resultPage);
    GoTo(Step::Over, resultPage);
}

} // namespace Vorlan::FrontEnd
