#include "wizard/InstallWizard.h"

#include "Await.h"
#include "InstallOptions.h"
#include "InstallRun.h"
#include "MachineAccess.h"
#include "WebUserId.h"
#include "base/ProductProfile.h"
#include "installer/InstallerMediator.h"
#include "widgets/AlertBox.h"
#include "widgets/MultiLayerBackgroundFrame.h"
#include "wizard/CloseWithConsent.h"
#include "wizard/DestinationPage.h"
#include "wizard/InUsePage.h"
#include "wizard/OptionsPage.h"
#include "wizard/ProgressPage.h"
#include "wizard/ResultPage.h"
#include "wizard/Texts.h"
#include "wizard/WelcomePage.h"

#include <QDebug>
#include <QDir>
#include <QFutureWatcher>
#include <QtConcurrent>

namespace Vorlan::FrontEnd
{
namespace
{

// The vendor's page with the licence; the engine replaces the placeholders.
QString LicenceTemplate()
{
    return QStringLiteral("https://links.") + ProductProfile::vendorDomain +
           QStringLiteral("/license/?app=<APP>&module=installer&version=<VERSION>&lang=<LANG>");
}

// The required space is that of the payload and two per cent.
quint64 PayloadBytes(const InstallationSettings& settings)
{
    return settings.requiredSpace * 100 / 102;
}

} // namespace

InstallWizard::InstallWizard(const CommandLine& givenOptions, EventSink eventSink)
    : options(givenOptions),
      sink(std::move(eventSink)),
      scope(options.Scope()),
      mediator(MakeInstaller(scope, false))
{
    SetLanguage(ApplyOptions(mediator->GetSettings(), options).locale);
    MakePages();
    GoTo(Step::Welcome);
}

InstallWizard::~InstallWizard() = default;

void InstallWizard::MakePages()
{
    const InstallationSettings settings = ApplyOptions(mediator->GetSettings(), options);
    welcome = new WelcomePage(settings.locale, settings.isNewerVersion);
    destination = new DestinationPage(settings);
    optionsPage = new OptionsPage(
        settings, {!ProductProfile::autoLaunchExecutable.isEmpty(), !settings.statisticsKeyExists});
    inUse = new InUsePage(LayerSets::installerWithTaglines);
    progress =
        new ProgressPage(LayerSets::installProgress, QT_TRANSLATE_NOOP("Wizard", "Installing %1"));
    for (Page* page :
        std::initializer_list<Page*>{welcome, destination, optionsPage, inUse, progress})
        window.Add(page);
    welcome->languageChosen = [this](const QString& locale) { SetLanguage(locale); };
    welcome->linkFollowed = [this](const QString& target) { FollowLink(target); };
}

Page* InstallWizard::PageOf(Step which) const
{
    switch (which)
    {
    case Step::Welcome:
        return welcome;
    case Step::Destination:
        return destination;
    case Step::Options:
        return optionsPage;
    case Step::InUse:
        return inUse;
    case Step::Running:
        return progress;
    case Step::Done:
    case Step::Failed:
        break;
    }
    return resultPage;
}

void InstallWizard::GoTo(Step next)
{
    step = next;
    ShowPage(PageOf(next));
}

ButtonBar::Labels InstallWizard::Labels() const
{
    switch (step)
    {
    case Step::Welcome:
        return {{}, WizardText("Cancel"), WizardText("&Next")};
    case Step::Destination:
        return {WizardText("&Back"), WizardText("Cancel"), WizardText("&Next")};
    case Step::Options:
        return {WizardText("&Back"), WizardText("Cancel"), WizardText("&Install")};
    case Step::InUse:
        return {
            WizardText("&Try again"), WizardText("Cancel"), WizardText("&Close them and go on")};
    case Step::Running:
        return {};
    case Step::Done:
        return {{}, {}, WizardText("&Finish")};
    case Step::Failed:
        break;
    }
    return {WizardText("&Back"), WizardText("Close"), WizardText("&Try again")};
}

void InstallWizard::GoForward()
{
    switch (step)
    {
    case Step::Welcome:
        return GoTo(Step::Destination);
    case Step::Destination:
        return destination->WhenExamined(
            [this](bool isUsable)
            {
                if (isUsable && step == Step::Destination)
                    GoTo(Step::Options);
            });
    case Step::Options:
    case Step::Failed:
        return Install();
    case Step::InUse:
        CloseWithConsent(window, *inUse, ProcessesOfAnActiveWindow());
        return CheckFilesInUse();
    case Step::Running:
        return;
    case Step::Done:
        return Finish();
    }
}

void InstallWizard::GoBack()
{
    if (step == Step::Destination)
        GoTo(Step::Welcome);
    else if (step == Step::Options)
        GoTo(Step::Destination);
    else if (step == Step::InUse)
        CheckFilesInUse();
    else if (step == Step::Failed)
        GoTo(Step::Options);
}

void InstallWizard::RequestClose()
{
    if (step == Step::Done || step == Step::Failed)
    {
        Leave(runOutcome);
    }
    else if (step == Step::Running)
    {
        const QString text =
            WizardText("The installation cannot be stopped now: files and settings "
                       "are being changed. Close the window when it has ended.");
        AlertBox::info(&window, (text + "\n\n" + progress->Status()).trimmed());
    }
    else if (AlertBox::question(
                 &window, WizardText("Cancel the installation of %1?").arg(ProductTitle())) ==
             QDialogButtonBox::Yes)
    {
        Leave({ExitCode::Cancelled, WizardText("Cancelled: nothing was installed.")});
    }
}

void InstallWizard::FollowLink(const QString& target) const
{
    if (target == "licence")
        mediator->OpenUrl(LicenceTemplate());
    else
        mediator->OpenUrl(InstallerMediator::URL::PrivacyPolicy);
}

// Archive, rights and folder are checked again, because they may have changed since the pages.
void InstallWizard::Install()
{
    if (!FindArchive())
        return;
    if (optionsPage->Scope() == QSettings::SystemScope && !CanChangeMachine())
        return RelaunchWithRights();
    destination->Examine();
    destination->WhenExamined(
        [this, before = step](bool isUsable)
        {
            if (step == before)
                isUsable ? CheckFilesInUse() : GoTo(Step::Destination);
        });
}

bool InstallWizard::FindArchive()
{
    while (!HasArchive())
    {
        const QString text =
            WizardText("The file %1 is missing. Put it back beside the setup program.")
                .arg(PathText(QDir::toNativeSeparators(ArchivePath())));
        if (AlertBox::error(&window, text, true) != QDialogButtonBox::Retry)
            return false;
    }
    return true;
}

void InstallWizard::RelaunchWithRights()
{
    InstallationSettings chosen;
    chosen.userInfo.webUid = options.webUid;
    welcome->Apply(chosen);
    destination->Apply(chosen);
    optionsPage->Apply(chosen);
    if (RelaunchElevated(WordsFor(chosen)))
        Leave({});
    else
        AlertBox::error(&window, MachineRightsMissing(), false);
}

InstallationSettings InstallWizard::ChosenSettings()
{
    if (optionsPage->Scope() != scope)
    {
        scope = optionsPage->Scope();
        mediator = MakeInstaller(scope, false);
    }
    InstallationSettings settings = ApplyOptions(mediator->GetSettings(), options);
    welcome->Apply(settings);
    destination->Apply(settings);
    optionsPage->Apply(settings);
    return settings;
}

// Processes events while the identity service is queried, so that the window stays responsive.
QString InstallWizard::AskForWebUid() const
{
    const auto ask = [this]() -> QString
    {
        try
        {
            return FindWebUid(*mediator, options);
        }
        catch (const std::exception& error)
        {
            qWarning() << "No web user id: " << error.what();
            return {};
        }
    };
    QFutureWatcher<QString> answer;
    QEventLoop waiting;
    QObject::connect(&answer, &QFutureWatcher<QString>::finished, &waiting, &QEventLoop::quit);
    answer.setFuture(QtConcurrent::run(ask));
    waiting.exec();
    return answer.result();
}

void InstallWizard::CheckFilesInUse()
{
    const InstallationSettings settings = ChosenSettings();
    progress->Begin(PayloadBytes(settings));
    GoTo(Step::Running);
    const std::vector<FileHolder> holders =
        Await([rules = RulesFor(settings)] { return FindObstacles(rules); });
    if (holders.empty())
        return RunInstallation(settings);
    inUse->ShowPrograms(holders);
    GoTo(Step::InUse);
}

void InstallWizard::RunInstallation(InstallationSettings settings)
{
    settings.userInfo.webUid = AskForWebUid();
    ShowResult(InstallWith(*mediator, settings,
        [this](const RunEvent& event)
        {
            sink(event);
            progress->Show(event);
        }));
}

void InstallWizard::ShowResult(const Outcome& result)
{
    progress->End();
    runOutcome = result;
    ResultTexts shown;
    shown.isDone = result.code == ExitCode::Done;
    shown.copyErrors = progress->CopyErrors();
    shown.canStart = shown.isDone;
    shown.headingText = shown.isDone ? QT_TRANSLATE_NOOP("Wizard", "%1 is installed")
                                     : QT_TRANSLATE_NOOP("Wizard", "%1 could not be installed");
    if (shown.isDone && shown.copyErrors.isEmpty())
        shown.text = WizardText("Everything is in its place. You can begin right away.");
    if (!shown.isDone)
    {
        shown.text = FailureText(result, options.logFile);
        shown.logFile = options.logFile;
    }
    delete resultPage;
    resultPage = new ResultPage(
        shown.isDone ? LayerSets::installerWithTaglines : LayerSets::installProgress, shown);
    window.Add(resultPage);
    GoTo(shown.isDone ? Step::Done : Step::Failed);
}

void InstallWizard::Finish()
{
    if (resultPage->IsStartWanted())
        mediator->StartMainExecutable();
    Leave(runOutcome);
}

} // namespace Vorlan::FrontEnd
