#include "ProgressReport.h"

#include "StageTexts.h"

#include <ostream>

namespace Vorlan::FrontEnd
{
namespace
{

constexpr int barWidth = 40;

double Bounded(double fraction)
{
    return qBound(0.0, fraction, 1.0);
}

} // namespace

QString RenderBar(double fraction)
{
    const int filled = qRound(Bounded(fraction) * barWidth);
    return QString("[%1%2] %3 %")
        .arg(QString(filled, '#'), QString(barWidth - filled, '.'))
        .arg(qRound(Bounded(fraction) * 100), 3);
}

ProgressReport::ProgressReport(std::ostream& stream, bool isTerminal)
    : out(stream), terminal(isTerminal)
{
}

void ProgressReport::Show(const RunEvent& event)
{
    if (steps.Show(event))
    {
        ShowStage(steps.Stage());
    }
    if (const auto* progress = std::get_if<Events::InstallationProgress>(&event))
    {
        ShowProgress(progress->fraction);
    }
    else if (const auto* extracted = std::get_if<Events::FilesExtracted>(&event))
    {
        ShowLine(QString("Files placed in %1 s").arg(extracted->seconds, 0, 'f', 1));
    }
    else if (const auto* problem = std::get_if<Events::CopyFileError>(&event))
    {
        ShowLine("Problem: " + problem->fileName + ": " + problem->reason);
    }
    else if (std::holds_alternative<Events::InstallationFinished>(event))
    {
        ShowLine("Done");
    }
}

void ProgressReport::ShowStage(const QString& stageId)
{
    const char* const text = StageText(stageId);
    ShowLine(text ? text : stageId + "...");
}

void ProgressReport::ShowProgress(double fraction)
{
    const int parts = terminal ? 100 : 10;
    const int step = static_cast<int>(Bounded(fraction) * parts);
    if (step == shownStep)
    {
        return;
    }
    shownStep = step;
    if (terminal)
    {
        out << '\r' << RenderBar(fraction).toStdString() << std::flush;
        barIsOpen = true;
    }
    else
    {
        ShowLine(RenderBar(fraction));
    }
}

void ProgressReport::ShowLine(const QString& line)
{
    if (barIsOpen)
    {
        out << '\n';
        barIsOpen = false;
    }
    out << line.toStdString() << std::endl;
}

} // namespace Vorlan::FrontEnd
