#include "ProgressReport.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Vorlan::FrontEnd
{
namespace
{

const RunEvent extracting{"ProcessStarted", {{"process", "EXTRACT_FILES"}}};

RunEvent Progress(double fraction)
{
    return {"InstallationProgress", {{"p", fraction}}};
}

std::string Shown(bool terminal, const std::vector<RunEvent>& events)
{
    std::ostringstream out;
    ProgressReport report(out, terminal);
    for (const RunEvent& event : events)
    {
        report.Show(event);
    }
    return out.str();
}

TEST(ProgressReportTest, TheBarFillsFromLeftToRight)
{
    EXPECT_EQ(RenderBar(0.0), "[........................................]   0 %");
    EXPECT_EQ(RenderBar(0.25), "[##########..............................]  25 %");
    EXPECT_EQ(RenderBar(1.0), "[########################################] 100 %");
    EXPECT_EQ(RenderBar(-1.0), RenderBar(0.0));
    EXPECT_EQ(RenderBar(7.0), RenderBar(1.0));
}

TEST(ProgressReportTest, ATerminalSeesOneBarDrawnAnew)
{
    const std::string half = RenderBar(0.5).toStdString();
    const std::string full = RenderBar(1.0).toStdString();
    EXPECT_EQ(Shown(true, {extracting, Progress(0.5), Progress(0.501), Progress(1.0),
                              {"FilesExtracted", {{"time", 1.25}}}}),
        "Placing the files...\n\r" + half + "\r" + full + "\nFiles placed in 1.3 s\n");
}

TEST(ProgressReportTest, ElsewhereEveryTenthIsALine)
{
    const std::string half = RenderBar(0.5).toStdString();
    const std::string most = RenderBar(0.61).toStdString();
    EXPECT_EQ(
        Shown(false, {Progress(0.5), Progress(0.55), Progress(0.61)}), half + "\n" + most + "\n");
}

TEST(ProgressReportTest, AnotherStageMayBeginBelowTheLastOne)
{
    const std::string bar = RenderBar(0.0).toStdString();
    EXPECT_EQ(Shown(false, {Progress(0.0), extracting, Progress(1.0), Progress(0.0)}),
        bar + "\nPlacing the files...\n" + RenderBar(1.0).toStdString() + "\n" + bar + "\n");
}

TEST(ProgressReportTest, ProblemsAndUnknownStagesAreTold)
{
    EXPECT_EQ(Shown(false, {{"CopyFileError", {{"fileName", "a.dll"}, {"reason", "no room"}}},
                               {"ProcessStarted", {{"process", "NEW_STAGE"}}},
                               {"WebConfigLoaderStarted", {}}}),
        "Problem: a.dll: no room\nNEW_STAGE...\n");
}

} // namespace
} // namespace Vorlan::FrontEnd
