#pragma once

#include "CommandLine.h"
#include "OwnFolder.h"
#include "RunEvent.h"
#include "UninstallRun.h"
#include "wizard/UninstallStartPage.h"
#include "wizard/Wizard.h"

namespace Vorlan
{
class InstallerMediator;
}

namespace Vorlan::FrontEnd
{

class InUsePage;
class ProgressPage;
class ResultPage;

// An uninstallation from the program's own folder, with windows.
class UninstallWizard : public Wizard
{
public:
    // `own` is the result of ExamineOwnFolder. `sink` receives all events of the run.
    UninstallWizard(
        const QString& folder, const OwnFolder& own, const CommandLine& options, EventSink sink);
    ~UninstallWizard() override;

private:
    enum class Step
    {
        OtherFolder,
        Start,
        InUse,
        Running,
        Over
    };

    void GoForward() override;
    void GoBack() override;
    void RequestClose() override;
    ButtonBar::Labels Labels() const override;

    void GoTo(Step step, Page* page);
    UninstallPlan Plan() const;
    int CopiedFiles() const;
    void CheckFilesInUse();
    bool NeedsRights() const;
    void Uninstall();
    void DeleteCopy();
    // `copyHeading`: of the page after the removal of a copy; null for that of the installation.
    void ShowResult(const UninstallResult& result, const char* copyHeading = nullptr);

    QString folder;
    OwnFolder own;
    CommandLine options;
    EventSink sink;
    std::unique_ptr<InstallerMediator> mediator;
    PlacedFiles placed;
    Step step = Step::Start;
    Outcome runOutcome; // before the end of a run: cancelled
    Page* otherFolder = nullptr;
    UninstallStartPage* start = nullptr;
    InUsePage* inUse = nullptr;
    ProgressPage* progress = nullptr;
    ResultPage* resultPage = nullptr;
};

} // namespace Vorlan::FrontEnd
