#pragma once

#include "CommandLine.h"
#include "FoundInstallations.h"
#include "InstallRun.h"
#include "RunEvent.h"
#include "base/InstallationSettings.h"
#include "wizard/Wizard.h"

namespace Vorlan
{
class InstallerMediator;
}

namespace Vorlan::FrontEnd
{

class InUsePage;
class OptionsPage;
class ProgressPage;
class ResultPage;
class StartPage;

// An installation with windows. The options of the command line preset the pages.
class InstallWizard : public Wizard
{
public:
    // Throws std::runtime_error if the archive cannot be read; if it is missing, the engine has
    // reported it. `sink` receives all events of the run.
    InstallWizard(const CommandLine& options, EventSink sink);
    ~InstallWizard() override;

private:
    enum class Step
    {
        Start,
        Options,
        InUse,
        Running,
        Done,
        Failed
    };

    void GoForward() override;
    void GoBack() override;
    void RequestClose() override;
    ButtonBar::Labels Labels() const override;
    void OnShown() override;

    void MakePages();
    void GoTo(Step step);
    Page* PageOf(Step step) const;
    QString InstallLabel() const;
    void FollowLink(const QString& target);
    void AnnounceRights();
    void ProposeFor(QSettings::Scope chosen);

    void Install();
    bool IsReplacementWanted();
    bool FindArchive();
    void StartRemoval();
    bool NeedsRights() const;
    InstallationSettings Proposal() const;
    InstallationSettings ChosenSettings() const;
    void CheckFilesInUse();
    QString AskForWebUid() const;
    void RunInstallation(InstallationSettings settings);
    QStringList NotesOn(const InstallResult& result) const;
    void ShowResult(const InstallResult& result);
    void Finish();

    CommandLine options;
    EventSink sink;
    FoundInstallations found;
    QSettings::Scope scope; // of the mediator
    std::unique_ptr<InstallerMediator> mediator;
    Step step = Step::Start;
    Step origin = Step::Start; // of the run, for refused rights
    Outcome runOutcome;
    StartPage* start = nullptr;
    OptionsPage* optionsPage = nullptr;
    InUsePage* inUse = nullptr;
    ProgressPage* progress = nullptr;
    ResultPage* resultPage = nullptr;
};

} // namespace Vorlan::FrontEnd
