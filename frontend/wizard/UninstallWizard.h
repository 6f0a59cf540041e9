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

// The uninstallation from the program's own folder, which a person is led through.
class UninstallWizard : public Wizard
{
public:
    // `own` is what is known of `folder`. `sink` hears every signal of the run.
    UninstallWizard(
        const QString& folder, const OwnFolder& own, const CommandLine& options, EventSink sink);
    ~UninstallWizard() override;

    // Whether to go on; asks about a folder that may not be the product's.
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
    void Uninstall();
    void ShowResult();

    QString folder;
    QString refusal;
    CommandLine options;
    EventSink sink;
    std::unique_ptr<InstallerMediator> mediator;
    Step step = Step::Start;
    Outcome runOutcome; // until a run is over: cancelled
    UninstallStartPage* start = nullptr;
    ProgressPage* progress = nullptr;
    ResultPage* resultPage = nullptr;
};

} // namespace Vorlan::FrontEnd
