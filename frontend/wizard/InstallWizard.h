#pragma once

#include "CommandLine.h"
#include "RunEvent.h"
#include "base/InstallationSettings.h"
#include "wizard/Wizard.h"

namespace Vorlan
{
class InstallerMediator;
}

namespace Vorlan::FrontEnd
{

class DestinationPage;
class OptionsPage;
class ProgressPage;
class ResultPage;
class WelcomePage;

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
        Welcome,
        Destination,
        Options,
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
    void FollowLink(const QString& target) const;

    void Install();
    bool FindArchive();
    InstallationSettings ChosenSettings();
    QString AskForWebUid() const;
    bool NeedsRights() const;
    void RunInstallation();
    void ShowResult(const Outcome& result);
    void Finish();

    CommandLine options;
    EventSink sink;
    QSettings::Scope scope; // of the mediator
    std::unique_ptr<InstallerMediator> mediator;
    Step step = Step::Welcome;
    Outcome runOutcome;
    WelcomePage* welcome = nullptr;
    DestinationPage* destination = nullptr;
    OptionsPage* optionsPage = nullptr;
    ProgressPage* progress = nullptr;
    ResultPage* resultPage = nullptr;
};

} // namespace Vorlan::FrontEnd
