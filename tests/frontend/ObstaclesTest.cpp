#include "Obstacles.h"
#include "support/Machine.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Vorlan::FrontEnd;

namespace
{

// A program at this path below the machine's folder, which must exist for the path to be compared.
FileHolder Program(const QString& image, bool isCritical = false)
{
    WriteFile(image, "program");
    return {7, 1, image, QFileInfo(image).fileName(), true, isCritical};
}

TEST(ObstaclesTest, OnlyWhatTheEngineDoesNotEndStopsAnUnattendedRun)
{
    const Machine machine;
    const QString folder = machine.Path("product");
    const ObstacleRules install = InstallationRules(folder, machine.Path("former"));
    const ObstacleRules uninstall = UninstallationRules(folder);
    struct Row
    {
        const ObstacleRules& rules;
        const char* image;
        ExitCode code;
    };
    const std::vector<Row> rows{{install, "product/quill.exe", ExitCode::Done},
        {install, "product/tools/tool.exe", ExitCode::FilesInUse},
        {install, "former/quill.exe", ExitCode::FilesInUse},
        {install, "elsewhere/player.exe", ExitCode::FilesInUse},
        {uninstall, "product/RouterApplication.exe", ExitCode::Done},
        {uninstall, "product/quill.exe", ExitCode::FilesInUse}};
    for (const Row& row : rows)
    {
        const Outcome outcome = RemoveObstacles(row.rules, false, SystemProcesses(),
            [&](const QString&)
            { return std::vector<FileHolder>{Program(machine.Path(row.image))}; });
        EXPECT_EQ(outcome.code, row.code) << row.image;
        EXPECT_EQ(outcome.error.contains("/CLOSEAPPS"), row.code == ExitCode::FilesInUse);
    }
}

TEST(ObstaclesTest, PartsOfTheSystemHaveTenSecondsAndAreNeverClosed)
{
    const Machine machine;
    const FileHolder index = Program(machine.Path("index.exe"), true);
    for (const int releasedAfter : {3, 30})
    {
        QStringList calls;
        int seconds = 0;
        ProcessAccess access = SystemProcesses();
        const auto start = access.now();
        access.now = [&] { return start + std::chrono::seconds(seconds); };
        access.pause = [&] { ++seconds; };
        access.ask = [&](const FileHolder&) { return calls << "ask", true; };
        access.end = [&](const FileHolder&) { return calls << "end", true; };
        const Outcome outcome =
            RemoveObstacles(InstallationRules(machine.Path("product"), {}), true, access,
                [&](const QString&) {
                    return seconds < releasedAfter ? std::vector<FileHolder>{index}
                                                   : std::vector<FileHolder>();
                });
        EXPECT_EQ(outcome.code, releasedAfter == 3 ? ExitCode::Done : ExitCode::FilesInUse);
        EXPECT_EQ(seconds, std::min(releasedAfter, 10));
        EXPECT_EQ(calls, QStringList());
    }
}

} // namespace
