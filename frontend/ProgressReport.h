#pragma once

#include "RunEvent.h"
#include "RunSteps.h"

#include <iosfwd>

namespace Vorlan::FrontEnd
{

// A bar of fixed width, for example "[#####...............]  25 %". Fractions are clamped to the
// range 0 to 1.
QString RenderBar(double fraction);

// Prints stages, a progress bar and problems with single files as text. On a terminal the bar is
// one line that is overwritten, otherwise a line is printed for every tenth.
class ProgressReport
{
public:
    ProgressReport(std::ostream& stream, bool isTerminal);

    void Show(const RunEvent& event);

private:
    void ShowStage(const QString& stageId);
    void ShowProgress(double fraction);
    void ShowLine(const QString& line);

    std::ostream& out;
    bool terminal;
    RunSteps steps;
    bool barIsOpen = false;
    int shownStep = -1;
};

} // namespace Vorlan::FrontEnd
