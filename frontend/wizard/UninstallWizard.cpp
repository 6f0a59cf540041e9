#include "wizard/UninstallWizard.h"

#include "Await.h"
#include "FoundInstallations.h"
#include "MachineAccess.h"
#include "Obstacles.h"
#include "installer/InstallerMediator.h"
#include "widgets/AlertBox.h"
#include "widgets/MultiLayerBackgroundFrame.h"
#include "wizard/CloseWithConsent.h"
#include "wizard/InUsePage.h"
#include "wizard/OtherFolderPage.h"
#include "wizard/ProgressPage.h"
#include "wizard/ResultPage.h"
#include "wizard/Texts.h"

#include <QDir>

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

UninstallWizard::UninstallWizard(const QString& ownFolder, const OwnFolder& examined,
    const CommandLine& givenOptions, EventSink eventSink)
    : folder(ownFolder),
      own(examined),
      options(givenOptions),
      sink(std::move(eventSink)),
      mediator(MakeUninstaller(own.scope, options, false)),
      placed(FilesToRemove(*mediator, folder))
{
    SetLanguage(mediator->GetSettings().locale);
    runOutcome = {ExitCode::Cancelled, UninstallText("Cancelled: nothing was deleted.")};
    start = new UninstallStartPage(Plan());
    inUse = new InUsePage(LayerSets::uninstallStart);
    progress = new ProgressPage(
        LayerSets::uninstallProgress, QT_TRANSLATE_NOOP("Wizard", "Uninstalling %1"));
    window.Add(start);
    window.Add(inUse);
    window.Add(progress);
    if (own.refusal.isEmpty())
    {
        GoTo(Step::Start, start);
        return;
    }
    otherFolder = new OtherFolderPage(folder, own.refusal, CopiedFiles());
    window.Add(otherFolder);
    GoTo(Step::OtherFolder, otherFolder);
}

UninstallWizard::~UninstallWizard() = default;

UninstallPlan UninstallWizard::Plan() const
{
    return {folder, own.scope, options.deleteSettings, options.removeAll,
        SortContent(folder, placed).foreign};
}

// Files of a copy of the program: only those of a list.
int UninstallWizard::CopiedFiles() const
{
    return PlacedFiles::IsIn(folder) ? SortContent(folder, placed).own.size() : 0;
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
    case Step::OtherFolder:
        return {own.installed.isEmpty() ? QString() : UninstallText("&Uninstall the installed one"),
            WizardText("Close"),
            CopiedFiles() == 0 ? QString() : UninstallText("&Delete %1 files").arg(CopiedFiles())};
    case Step::Start:
        return {{}, WizardText("Cancel"), UninstallText("&Uninstall"), NeedsRights()};
    case Step::InUse:
        return {WizardText("&Try again"), WizardText("Cancel"), WizardText("&Close them and go on"),
            NeedsRights()};
    case Step::Running:
        return {};
    case Step::Over:
        break;
    }
    if (runOutcome.code == ExitCode::Done)
        return {{}, {}, WizardText("&Finish")};
    return {{}, WizardText("Close"), WizardText("&Try again")};
}

void UninstallWizard::GoForward()
{
    switch (step)
    {
    case Step::OtherFolder:
        return DeleteCopy();
    case Step::InUse:
        CloseWithConsent(window, *inUse, SystemProcesses());
        return CheckFilesInUse();
    case Step::Start:
        return CheckFilesInUse();
    case Step::Running:
        return;
    case Step::Over:
        return runOutcome.code == ExitCode::Done ? Leave(runOutcome) : CheckFilesInUse();
    }
}

void UninstallWizard::GoBack()
{
    if (step == Step::InUse)
        return CheckFilesInUse();
    StartUninstaller(own.installed);
    Leave(runOutcome);
}

void UninstallWizard::RequestClose()
{
    if (step != Step::Running)
        return Leave(runOutcome);
    const QString text =
        UninstallText("The uninstallation cannot be stopped now: files and settings "
                      "are being removed. Close the window when it has ended.");
    AlertBox::info(&window, (text + "\n\n" + progress->Status()).trimmed());
}

void UninstallWizard::CheckFilesInUse()
{
    progress->Begin(0);
    GoTo(Step::Running, progress);
    const std::vector<FileHolder> holders =
        Await([rules = UninstallationRules(folder)] { return FindObstacles(rules); });
    if (holders.empty())
        return Uninstall();
    inUse->ShowPrograms(holders);
    GoTo(Step::InUse, inUse);
}

bool UninstallWizard::NeedsRights() const
{
    return own.scope == QSettings::SystemScope && !CanChangeMachine();
}

void UninstallWizard::Uninstall()
{
    options.deleteSettings = start->IsDeletingSettings();
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
    runOutcome = result->outcome;
    if (runOutcome.code == ExitCode::DependentProgramsExist)
    {
        GoTo(Step::Start, start);
        AlertBox::error(&window, Shortened(runOutcome.error), false);
        return;
    }
    ShowResult(*result);
}

void UninstallWizard::DeleteCopy()
{
    progress->Begin(0);
    GoTo(Step::Running, progress);
    const UninstallResult result = RemoveCopy(folder, placed);
    runOutcome = result.outcome;
    ShowResult(result, QT_TRANSLATE_NOOP("Wizard", "The copy of %1 was deleted"));
}

void UninstallWizard::ShowResult(const UninstallResult& result, const char* copyHeading)
{
    progress->End();
    ResultTexts shown;
    shown.isDone = runOutcome.code == ExitCode::Done;
    if (shown.isDone && copyHeading != nullptr)
        shown.headingText = copyHeading;
    else if (shown.isDone)
    {
        shown.headingText = QT_TRANSLATE_NOOP("Wizard", "%1 was uninstalled");
        shown.text = UninstallText("Thank you for having used it.");
        shown.linkText =
            QT_TRANSLATE_NOOP("Wizard", "<a href=\"survey\">Tell us why you uninstalled it</a>");
    }
    else
    {
        shown.headingText = QT_TRANSLATE_NOOP("Wizard", "%1 could not be uninstalled");
        shown.logFile = runOutcome.logFile.isEmpty() ? options.logFile : runOutcome.logFile;
        shown.text = FailureText(runOutcome, shown.logFile);
    }
    shown.listText = UninstallText("Left in %1:").arg(PathText(QDir::toNativeSeparators(folder)));
    shown.list = result.staying;
    delete resultPage;
    resultPage = new ResultPage(LayerSets::uninstallStart, shown);
    resultPage->linkFollowed = [this] { mediator->OpenUrl(InstallerMediator::URL::UninstallPage); };
    window.Add(resultPage);
    GoTo(Step::Over, resultPage);
}

} // namespace Vorlan::FrontEnd
