#include "wizard/InstallWizard.h"

#include "InstallOptions.h"
#include "InstallRun.h"
#include "MachineAccess.h"
#include "WebUserId.h"
#include "base/ProductProfile.h"
#include "installer/InstallerMediator.h"
#include "widgets/AlertBox.h"
#include "widgets/MultiLayerBackgroundFrame.h"
#include "wizard/DestinationPage.h"
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
    progress =
        new ProgressPage(LayerSets::installProgress, QT_TRANSLATE_NOOP("Wizard", "Installing %1"));
    for (Page* page : std::initializer_list<Page*>{welcome, destination, optionsPage, progress})
        window.Add(page);
    welcome->languageChosen = [this](const QString& locale) { SetLanguage(locale); };
    optionsPage->scopeChanged = [this] { window.SetLabels(Labels()); };
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
        return {WizardText("&Back"), WizardText("Cancel"), WizardText("&Install"), NeedsRights()};
    case Step::Running:
        return {};
    case Step::Done:
        return {{}, {}, WizardText("&Finish")};
    case Step::Failed:
        break;
    }
    return {{}, WizardText("Close"), WizardText("&Try again")};
}

// The extractor that has unpacked the setup shows its own window until then.
void InstallWizard::OnShown()
{
    mediator->NotifyExtractorOnReady();
}

void InstallWizard::GoForward()
{
    switch (step)
    {
    case Step::Welcome:
    case Step::Failed:
        return GoTo(Step::Destination);
    case Step::Destination:
        return GoTo(Step::Options);
    case Step::Options:
        return Install();
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
}

void InstallWizard::RequestClose()
{
    if (step == Step::Done || step == Step::Failed)
    {
        Leave(runOutcome);
    }
    else if (step == Step::Running)
    {
        AlertBox::info(&window, WizardText("The installation cannot be stopped now: files and "
                                           "settings are being changed. It ends in a moment."));
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
    destination->Check();
    if (!destination->IsComplete())
        return GoTo(Step::Destination);
    RunInstallation();
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

bool InstallWizard::NeedsRights() const
{
    return optionsPage->Scope() == QSettings::SystemScope && !CanChangeMachine();
}

void InstallWizard::RunInstallation()
{
    InstallationSettings settings = ChosenSettings();
    const QString problem = SaveChoices(settings, options);
    if (!problem.isEmpty())
    {
        AlertBox::error(&window, problem, false);
        return;
    }
    progress->Clear();
    GoTo(Step::Running);
    settings.userInfo.webUid = AskForWebUid();
    const EventSink show = [this](const RunEvent& event)
    {
        sink(event);
        progress->Show(event);
    };
    const auto result = NeedsRights() ? InstallElevated(*mediator, settings, options, show)
                                      : InstallWith(*mediator, settings, show);
    if (result)
        return ShowResult(*result);
    GoTo(Step::Options);
    AlertBox::error(&window, MachineRightsMissing(), false);
}

void InstallWizard::ShowResult(const Outcome& result)
{
    runOutcome = result;
    ResultTexts shown;
    shown.isDone = result.code == ExitCode::Done;
    shown.copyErrors = progress->CopyErrors();
    shown.canStart = shown.isDone;
    shown.headingText = shown.isDone ? QT_TRANSLATE_NOOP("Wizard", "%1 is installed")
                                     : QT_TRANSLATE_NOOP("Wizard", "%1 could not be installed");
    if (!shown.isDone)
        shown.text =
            result.error + "\n\n" +
            WizardText("Log file: %1")
                .arg(PathText(result.logFile.isEmpty() ? options.logFile : result.logFile));
    else if (shown.copyErrors.isEmpty())
        shown.text = WizardText("Everything is in its place. You can begin right away.");
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
