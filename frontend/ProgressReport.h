#pragma once

#include "RunEvent.h"

#include <iosfwd>

namespace Vorlan::FrontEnd
{

// A bar of fixed width, for example "[#####...............]  25 %". Fractions outside 0 to 1 are
// drawn as the nearer end.
QString RenderBar(double fraction);

// Tells a person what a run does: stages, a progress bar, problems with single files. On a terminal
// the bar is one line that is drawn anew, elsewhere every full tenth is a line.
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
    bool barIsOpen = false;
    int shownStep = -1;
};

} // namespace Vorlan::FrontEnd
