#pragma once

#include "CommandLine.h"
#include "OwnFolder.h"
#include "RunEvent.h"
#include "wizard/Wizard.h"

namespace Vorlan
{
class InstallerMediator;
}

namespace Vorlan::FrontEnd
{

class ProgressPage;
class ResultPage;
class UninstallStartPage;

// An uninstallation from the program's own folder, with windows.
class UninstallWizard : public Wizard
{
public:
    // `own` is the result of ExamineOwnFolder. `sink` receives all events of the run.
    UninstallWizard(
        const QString& folder, const OwnFolder& own, const CommandLine& options, EventSink sink);
    ~UninstallWizard() override;

    // Asks for confirmation if the folder may not be the product's; false to cancel.
    bool AskAboutFolder() const;

private:
    enum class Step
    {
        Start,
        Running,
        Over
    };

    void GoForward() override;
    void RequestClose() override;
    ButtonBar::Labels Labels() const override;

    void GoTo(Step step, Page* page);
    bool NeedsRights() const;
    void Uninstall();
    void ShowResult();

    QString folder;
    QString refusal;
    bool isForAllUsers;
    CommandLine options;
    EventSink sink;
    std::unique_ptr<InstallerMediator> mediator;
    Step step = Step::Start;
    Outcome runOutcome; // before the end of a run: cancelled
    UninstallStartPage* start = nullptr;
    ProgressPage* progress = nullptr;
    ResultPage* resultPage = nullptr;
};

} // namespace Vorlan::FrontEnd
