#include "FileHolders.h"
#include "support/LinuxProcesses.h"
#include "support/Machine.h"

#include <QFile>

#include <gtest/gtest.h>

#include <algorithm>

#include <csignal>
#include <fcntl.h>
#include <sys/mman.h>

using namespace Vorlan::FrontEnd;

namespace
{

bool Finds(const QString& path, pid_t id)
{
    const std::vector<FileHolder> holders = FindFileHolders(path);
    return std::any_of(holders.begin(), holders.end(),
        [&](const FileHolder& holder) { return holder.processId == id; });
}

// A copy of this process holds the file in one of two ways, closes it where it is mapped, and says
// so by stopping.
pid_t StartHolder(const QByteArray& file, bool isMapped)
{
    return StartChild(
        [=]
        {
            const int descriptor = open(file.constData(), O_RDONLY);
            const bool isHeld =
                descriptor >= 0 && (!isMapped || mmap(nullptr, 1, PROT_READ, MAP_PRIVATE,
                                                     descriptor, 0) != MAP_FAILED);
            if (isMapped)
                close(descriptor);
            raise(SIGSTOP);
            return isHeld ? 0 : 1;
        });
}

TEST(FileHoldersLinuxTest, OpenAndMappedFilesAreHeldUntilTheyAreDeleted)
{
    const Machine machine;
    for (const bool isMapped : {false, true})
    {
        const QString file = machine.Path("folder/a file.dll");
        WriteFile(file, "content");
        const pid_t child = StartHolder(QFile::encodeName(file), isMapped);
        ASSERT_EQ(waitpid(child, nullptr, WUNTRACED), child);
        EXPECT_TRUE(Finds(file, child));
        EXPECT_TRUE(Finds(machine.Path("folder"), child));
        EXPECT_FALSE(Finds(machine.Path("fold"), child));
        QFile::remove(file);
        EXPECT_FALSE(Finds(machine.Path("folder"), child)) << "the file has gone";
        kill(child, SIGCONT);
        EXPECT_EQ(WaitForChild(child), 0);
    }
}

} // namespace
