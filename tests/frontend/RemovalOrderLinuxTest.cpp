#include "support/ChildProgram.h"
#include "support/Environment.h"
#include "support/InstalledProduct.h"

namespace
{

// The program with which the deletion script waits, in front of the system's.
struct WaitingProgram
{
    QTemporaryDir bin;
    ChildProgram program{bin.filePath("sleep"), "until woken"};
    Environment path{"PATH", bin.path() + ':' + qEnvironmentVariable("PATH")};
};

class RemovalOrderLinuxTest : protected WaitingProgram, public InstalledProduct
{
protected:
    QStringList Scripts() const
    {
        return ListTree(setup.TemporaryFolder()).filter(QRegularExpression("\\.bat$"));
    }
};

TEST_F(RemovalOrderLinuxTest, AnInstallationBeforeTheScriptWakesKeepsItsFiles)
{
    InstallCurrent();
    WriteFile(product + "/my/film.avi", "is moved out of the folder");
    ASSERT_EQ(Uninstall({"/REMOVEALL"}).exitCode, 0);
    program.WaitForRun();
    InstallCurrent();
    WriteFile(bin.filePath("woken"), "");
    EXPECT_EQ(LeftBesideProduct(), QStringList("Vorlan Quillax"));
    const QDeadlineTimer deadline(timeLimitMs);
    while (!Scripts().isEmpty() && !deadline.hasExpired())
        std::this_thread::yield();
    EXPECT_EQ(Scripts(), QStringList());
    EXPECT_EQ(Files(), installedFiles);
}

} // namespace
