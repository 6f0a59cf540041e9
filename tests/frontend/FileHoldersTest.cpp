#include "FileHolders.h"

#include "CloseHolders.h"
#include "HolderProcess.h"
#include "support/ChildProgram.h"
#include "support/Machine.h"

#include <QCoreApplication>
#include <QDir>
#include <QSysInfo>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Vorlan::FrontEnd;

namespace
{

QStringList Names(const std::vector<FileHolder>& holders)
{
    QStringList names;
    for (const FileHolder& holder : holders)
        names << holder.name;
    names.sort();
    return names;
}

// Programs that run in a folder of the machine.
class FileHoldersTest : public testing::Test
{
protected:
    std::vector<FileHolder> Holders() const { return FindFileHolders(machine.Path("product")); }

    Machine machine;
    ChildProgram quill{machine.Path("product/quill.exe"), "wait"};
    ChildProgram tool{machine.Path("product/tools/tool.exe"), "stay"};
    ChildProgram other{machine.Path("product 2/other.exe"), "wait"};
};

TEST_F(FileHoldersTest, ProgramsOfAFolderAreFoundAndNoOthers)
{
    EXPECT_EQ(Names(Holders()), QStringList());
    for (ChildProgram* program : {&quill, &tool, &other})
        program->Start();
    const std::vector<FileHolder> holders = Holders();
    EXPECT_EQ(Names(holders), QStringList({"quill.exe", "tool.exe"}));
    EXPECT_EQ(
        Names(FindFileHolders(machine.Path("product/tools/tool.exe"))), QStringList("tool.exe"));
    for (const FileHolder& holder : holders)
    {
        EXPECT_TRUE(QFileInfo(holder.image)
                        .canonicalFilePath()
                        .startsWith(QFileInfo(machine.Path("product")).canonicalFilePath()));
        EXPECT_FALSE(holder.hasWindow);
        EXPECT_TRUE(MayBeClosed(holder, SystemProcesses()));
    }
}

TEST_F(FileHoldersTest, ThisProgramAndThoseThatStartedItAreNoHolders)
{
    EXPECT_EQ(OwnProcessIds().count(QCoreApplication::applicationPid()), 1u);
    const std::vector<FileHolder> holders =
        FindFileHolders(QCoreApplication::applicationFilePath());
    EXPECT_TRUE(std::none_of(holders.begin(), holders.end(),
        [](const FileHolder& holder)
        { return holder.processId == QCoreApplication::applicationPid(); }));
}

TEST_F(FileHoldersTest, AProgramThatStaysIsEndedOnlyWhenThatIsAskedFor)
{
    for (ChildProgram* program : {&quill, &tool})
        program->Start();
    ProcessAccess access = SystemProcesses();
    auto time = access.now();
    access.now = [&] { return time; };
    bool isLinux = QSysInfo::kernelType() != "winnt";
    access.pause = [&] // ten seconds pass as soon as only one is left
    {
        if (!isLinux || !quill.IsRunning() || quill.HasEnded())
            time += std::chrono::seconds(10);
    };
    const std::vector<FileHolder> left = AskToClose(Holders(), access);
    // Without a window a program cannot be asked on Windows.
    EXPECT_EQ(
        Names(left), isLinux ? QStringList("tool.exe") : QStringList({"quill.exe", "tool.exe"}));
    EXPECT_TRUE(tool.IsRunning());
    EXPECT_TRUE(EndHolders(left, SystemProcesses()).empty());
    EXPECT_TRUE(quill.HasEnded() && tool.HasEnded());
    EXPECT_EQ(Names(Holders()), QStringList());
}

// What must not be closed is neither asked nor ended, and not waited for.
TEST(CloseHoldersTest, CriticalOwnAndReusedProcessesAreNotTouched)
{
    struct Row
    {
        const char* what;
        FileHolder holder;
        bool isClosed;
    };
    const std::vector<Row> rows{
        {"an ordinary program", {10, 77, "/a", "a", true, false}, true},
        {"without a window", {11, 77, "/b", "b", false, false}, true},
        {"a part of the system", {12, 77, "/c", "c", true, true}, false},
        {"this program or one that started it", {13, 77, "/d", "d", true, false}, false},
        {"another one with the same id", {14, 76, "/e", "e", true, false}, false},
        {"one whose start is not known", {15, 0, "/f", "f", true, false}, false},
    };
    for (const Row& row : rows)
    {
        QStringList calls;
        int pauses = 0;
        const auto start = std::chrono::steady_clock::now();
        const ProcessAccess access{[] { return std::set<qint64>{13}; },
            [](qint64 id) { return id == 15 ? 0u : 77u; },
            [&](const FileHolder&) { return calls << "ask", true; },
            [&](const FileHolder&) { return calls << "end", true; },
            [&] { return start + std::chrono::seconds(pauses); }, [&] { ++pauses; }};
        AskToClose({row.holder}, access);
        EXPECT_EQ(pauses, row.isClosed ? 10 : 0) << row.what;
        EndHolders({row.holder}, access);
        EXPECT_EQ(calls, row.isClosed ? QStringList({"ask", "end"}) : QStringList()) << row.what;
    }
}

} // namespace
