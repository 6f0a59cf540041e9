#include "JsonReader.h"
#include "JsonReport.h"
#include "ProgressReport.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Vorlan::FrontEnd
{
namespace
{

const RunEvent extracting = Events::ProcessStarted{"EXTRACT_FILES"};

RunEvent Progress(double fraction)
{
    return Events::InstallationProgress{fraction, {}, {}};
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

TEST(ProgressReportTest, OnATerminalTheBarIsOverwritten)
{
    const std::string half = RenderBar(0.5).toStdString();
    const std::string full = RenderBar(1.0).toStdString();
    EXPECT_EQ(Shown(true, {extracting, Progress(0.5), Progress(0.501), Progress(1.0),
                              Events::FilesExtracted{1.25F}}),
        "Placing the files...\n\r" + half + "\r" + full + "\nFiles placed in 1.3 s\n");
}

TEST(ProgressReportTest, InAFileEveryTenthIsALine)
{
    const std::string half = RenderBar(0.5).toStdString();
    const std::string most = RenderBar(0.61).toStdString();
    EXPECT_EQ(
        Shown(false, {Progress(0.5), Progress(0.55), Progress(0.61)}), half + "\n" + most + "\n");
}

TEST(ProgressReportTest, AStageMayBeginAtALowerPosition)
{
    const std::string bar = RenderBar(0.0).toStdString();
    EXPECT_EQ(Shown(false, {Progress(0.0), extracting, Progress(1.0), Progress(0.0)}),
        bar + "\nPlacing the files...\n" + RenderBar(1.0).toStdString() + "\n" + bar + "\n");
}

TEST(ProgressReportTest, TheRemovalOfAPreviousVersionIsAStageOnlyWhereThereIsOne)
{
    const Events::ProcessStarted removing{"REMOVE_PREVIOUS_VERSION"};
    EXPECT_EQ(Shown(false, {removing, extracting}), "Placing the files...\n");
    EXPECT_EQ(Shown(false, {removing, Progress(0.0), extracting}),
        "Removing the previous version...\n" + RenderBar(0.0).toStdString() +
            "\nPlacing the files...\n");
}

TEST(ProgressReportTest, ProblemsAndUnknownStagesArePrinted)
{
    EXPECT_EQ(
        Shown(false, {Events::CopyFileError{"a.dll", "no room"},
                         Events::ProcessStarted{"NEW_STAGE"}, Events::WebConfigLoaderStarted{}}),
        "Problem: a.dll: no room\nNEW_STAGE...\n");
}

TEST(JsonReportTest, EachEventIsALineWithTheDocumentedNames)
{
    const std::vector<std::pair<RunEvent, std::string>> table{
        {Events::ApplicationStarted{"Manual"},
            R"({"method":"Manual","signal":"ApplicationStarted"})"},
        {Events::InstallationStarted{}, R"({"signal":"InstallationStarted"})"},
        {Events::InstallationProgress{0.25, "Stage", "step"},
            R"({"p":0.25,"progressText":"step","signal":"InstallationProgress","title":"Stage"})"},
        {Events::InstallationFinished{}, R"({"signal":"InstallationFinished"})"},
        {Events::InstallationError{"no \"room\"", 2},
            R"({"currentPage":2,"signal":"InstallationError","text":"no \"room\""})"},
        {Events::TrackCoreStatistics{{{"check", {{"pairs", "45"}}}}},
            R"({"signal":"TrackCoreStatistics","statisticInfo":{"check":{"pairs":"45"}}})"},
        {Events::ProcessStarted{"EXTRACT_FILES"},
            R"({"process":"EXTRACT_FILES","signal":"ProcessStarted"})"},
        {Events::WebConfigLoaderStarted{}, R"({"signal":"WebConfigLoaderStarted"})"},
        {Events::WebConfigLoaderFinished{8},
            R"({"returnCode":8,"signal":"WebConfigLoaderFinished"})"},
        {Events::FilesExtracted{1.2F}, R"({"signal":"FilesExtracted","time":1.2})"},
        {Events::CopyFileError{"a.dll", "in use"},
            R"({"fileName":"a.dll","reason":"in use","signal":"CopyFileError"})"},
    };
    for (const auto& [event, line] : table)
    {
        std::ostringstream out;
        WriteJsonEvent(out, event);
        EXPECT_EQ(out.str(), line + "\n");
        const auto read = ReadJsonEvent(QByteArray::fromStdString(line));
        ASSERT_TRUE(read.has_value()) << line;
        std::ostringstream again;
        WriteJsonEvent(again, *read);
        EXPECT_EQ(again.str(), out.str());
    }
    EXPECT_EQ(table.size(), std::variant_size_v<RunEvent>);
}

TEST(JsonReportTest, AnOutcomeIsReadAsItWasWritten)
{
    std::ostringstream out;
    WriteJsonOutcome(
        out, {ExitCode::Failed, "no \"room\"", {{}, "unchanged", {}}, "C:\\a.log", {"my.avi"}});
    EXPECT_EQ(out.str(),
        R"({"error":"no \"room\"","exitCode":1603,"files":["my.avi"],"logFile":"C:\\a.log",)"
        R"("state":"unchanged"})"
        "\n");
    const auto read = ReadJsonOutcome(QByteArray::fromStdString(out.str()));
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(read->code, ExitCode::Failed);
    EXPECT_EQ(read->error, "no \"room\"");
    EXPECT_EQ(read->explanation.state, "unchanged");
    EXPECT_EQ(read->logFile, "C:\\a.log");
    EXPECT_EQ(read->files, QStringList("my.avi"));
    for (const char* line : {"", "{}", "no JSON", R"({"signal":"Other"})"})
    {
        EXPECT_FALSE(ReadJsonEvent(line).has_value()) << line;
        EXPECT_FALSE(ReadJsonOutcome(line).has_value()) << line;
    }
}

} // namespace
} // namespace Vorlan::FrontEnd
