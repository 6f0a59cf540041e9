#include "wizard/InstallWizard.h"

#include "Await.h"
#include "InstallOptions.h"
#include "MachineAccess.h"
#include "WebUserId.h"
#include "base/ProductProfile.h"
#include "installer/InstallerMediator.h"
#include "widgets/AlertBox.h"
#include "widgets/MultiLayerBackgroundFrame.h"
#include "wizard/CloseWithConsent.h"
#include "wizard/FolderChooser.h"
#include "wizard/InUsePage.h"
#include "wizard/OptionsPage.h"
#include "wizard/ProgressPage.h"
#include "wizard/ResultPage.h"
#include "wizard/StartPage.h"
#include "wizard/Texts.h"

#include <QDebug>
#include <QDir>

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
      found(FindInstallations()),
      scope(ChooseScope(found, options)),
      mediator(MakeInstaller(scope, false))
{
    SetLanguage(Proposal().locale);
    MakePages();
    GoTo(Step::Start);
}

InstallWizard::~InstallWizard() = default;

// What is proposed for the scope of the mediator.
InstallationSettings InstallWizard::Proposal() const
{
    return ApplyOptions(ProposeSettings(mediator->GetSettings(), found), options);
}

void InstallWizard::MakePages()
{
    const InstallationSettings settings = Proposal();
    start = new StartPage(settings.locale, found);
    optionsPage = new OptionsPage(
        settings, {!ProductProfile::autoLaunchExecutable.isEmpty(), !settings.statisticsKeyExists});
    inUse = new InUsePage(LayerSets::installerWithTaglines);
    progress =
        new ProgressPage(LayerSets::installProgress, QT_TRANSLATE_NOOP("Wizard", "Installing %1"));
    for (Page* page : std::initializer_list<Page*>{start, optionsPage, inUse, progress})
        window.Add(page);
    start->languageChosen = [this](const QString& locale) { SetLanguage(locale); };
    start->linkFollowed = [this](const QString& target) { FollowLink(target); };
    optionsPage->scopeChosen = [this](QSettings::Scope chosen) { ProposeFor(chosen); };
    AnnounceRights();
}

// An elevated process will write to a folder that this one may not write to.
void InstallWizard::AnnounceRights()
{
    optionsPage->Folder().SetRights(
        NeedsRights() ? Rights::OfAdministrator : Rights::OfThisProcess);
}

Page* InstallWizard::PageOf(Step which) const
{
    switch (which)
    {
    case Step::Start:
        return start;
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
    if (step == Step::Start)
        start->ShowPlan(ChosenSettings());
    ShowPage(PageOf(next));
}

QString InstallWizard::InstallLabel() const
{
    switch (ChangeOf(found.Of(optionsPage->Scope())))
    {
    case Change::Install:
        return WizardText("&Install");
    case Change::Update:
        return WizardText("U&pdate");
    case Change::Repair:
        return WizardText("R&epair");
    case Change::Downgrade:
        break;
    }
    return WizardText("Re&place");
}

ButtonBar::Labels InstallWizard::Labels() const
{
    switch (step)
    {
    case Step::Start:
        return {WizardText("&Options"), WizardText("Cancel"), InstallLabel(), NeedsRights()};
    case Step::Options:
        return {WizardText("&Back"), WizardText("Cancel"), InstallLabel(), NeedsRights()};
    case Step::InUse:
        return {WizardText("&Try again"), WizardText("Cancel"), WizardText("&Close them and go on"),
            NeedsRights()};
    case Step::Running:
        return {};
    case Step::Done:
        return {{}, {}, WizardText("&Finish")};
    case Step::Failed:
        break;
    }
    return {WizardText("&Options"), WizardText("Close"), WizardText("&Try again")};
}

// The extractor that has unpacked the setup shows its own window until then.
void InstallWizard::OnShown()
{
    mediator->NotifyExtractorOnReady();
}

void InstallWizard::GoForward()
{
    if (step == Step::Done)
    {
        Finish();
    }
    else if (step == Step::InUse)
    {
        CloseWithConsent(window, *inUse, SystemProcesses());
        CheckFilesInUse();
    }
    else if (step != Step::Running)
    {
        Install();
    }
}

void InstallWizard::GoBack()
{
    if (step == Step::Options)
        GoTo(Step::Start);
    else if (step == Step::InUse)
        CheckFilesInUse();
    else
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

void InstallWizard::FollowLink(const QString& target)
{
    if (target == "licence")
        mediator->OpenUrl(LicenceTemplate());
    else if (target == "privacy")
        mediator->OpenUrl(InstallerMediator::URL::PrivacyPolicy);
    else
        StartRemoval();
}

void InstallWizard::ProposeFor(QSettings::Scope chosen)
{
    InstallationSettings settings = mediator->GetSettings();
    settings.scope = chosen;
    optionsPage->Propose(ApplyOptions(ProposeSettings(settings, found), options));
    AnnounceRights();
    window.SetLabels(Labels());
}

// Archive, rights and folder are checked again, because they may have changed since the pages.
void InstallWizard::Install()
{
    if (!IsReplacementWanted() || !FindArchive())
        return;
    origin = step == Step::Start ? Step::Start : Step::Options;
    optionsPage->Folder().Examine();
    optionsPage->Folder().WhenExamined(
        [this, before = step](bool isUsable)
        {
            if (step == before)
                isUsable ? CheckFilesInUse() : GoTo(Step::Options);
        });
}

bool InstallWizard::IsReplacementWanted()
{
    const Installation* installed = found.Of(optionsPage->Scope());
    if (options.downgrade || ChangeOf(installed) != Change::Downgrade)
        return true;
    const QString question = WizardText("Replace the newer version %1 with version %2?")
                                 .arg(installed->version, QString(ProductProfile::versionText));
    return AlertBox::question(&window, question) == QDialogButtonBox::Yes;
}

// The uninstaller starts while this setup still runs, which ends at once.
void InstallWizard::StartRemoval()
{
    const QSettings::Scope chosen = optionsPage->Scope();
    const Installation* other = found.Of(OtherScope(chosen));
    const Installation* removed = other != nullptr ? other : found.Of(chosen);
    StartUninstaller(removed->folder);
    Leave({ExitCode::Cancelled, WizardText("Cancelled: nothing was installed.")});
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

bool InstallWizard::NeedsRights() const
{
    return optionsPage->Scope() == QSettings::SystemScope && !CanChangeMachine();
}

InstallationSettings InstallWizard::ChosenSettings() const
{
    InstallationSettings settings = Proposal();
    start->Apply(settings);
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
    return Await(ask);
}

void InstallWizard::CheckFilesInUse()
{
    if (optionsPage->Scope() != scope)
    {
        scope = optionsPage->Scope();
        mediator = MakeInstaller(scope, false);
    }
    const InstallationSettings settings = ChosenSettings();
    const QString problem = SaveChoices(settings, options);
    if (!problem.isEmpty())
    {
        AlertBox::error(&window, problem, false);
        return;
    }
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
    const EventSink show = [this](const RunEvent& event)
    {
        sink(event);
        progress->Show(event);
    };
    const auto result = NeedsRights() ? InstallElevated(*mediator, settings, options, show)
                                      : InstallWith(*mediator, settings, show);
    if (result)
        return ShowResult(*result);
    GoTo(origin);
    AlertBox::error(&window, MachineRightsMissing(), false);
}

// What did not work although the run may have ended well: a line each.
QStringList InstallWizard::NotesOn(const InstallResult& result) const
{
    QStringList notes = progress->CopyErrors();
    for (const QString& path : result.movedFiles)
        notes += WizardText("Your file was moved, because the program has one of that name: %1")
                     .arg(QDir::toNativeSeparators(path));
    return notes;
}

void InstallWizard::ShowResult(const InstallResult& result)
{
    progress->End();
    runOutcome = result.outcome;
    found = FindInstallations(); // for another attempt
    ResultTexts shown;
    shown.isDone = runOutcome.code == ExitCode::Done;
    shown.listText = WizardText("Please note:");
    shown.list = NotesOn(result);
    shown.canStart = shown.isDone;
    shown.headingText = shown.isDone ? QT_TRANSLATE_NOOP("Wizard", "%1 is installed")
                                     : QT_TRANSLATE_NOOP("Wizard", "%1 could not be installed");
    if (shown.isDone && shown.list.isEmpty())
        shown.text = WizardText("Everything is in its place. You can begin right away.");
    if (!shown.isDone)
    {
        shown.logFile = runOutcome.logFile.isEmpty() ? options.logFile : runOutcome.logFile;
        shown.text = FailureText(runOutcome, shown.logFile);
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
