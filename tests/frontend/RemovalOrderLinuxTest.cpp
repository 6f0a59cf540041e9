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

class RemovalOrderLinuxTest : private WaitingProgram, public InstalledProduct
{
protected:
    void RemoveAll()
    {
        ASSERT_EQ(Uninstall({"/REMOVEALL"}).exitCode, 0);
        program.WaitForRun();
    }

    void LetScriptEnd()
    {
        WriteFile(bin.filePath("woken"), "");
        const QDeadlineTimer deadline(timeLimitMs);
        while (!Scripts().isEmpty() && !deadline.hasExpired())
            std::this_thread::yield();
        EXPECT_EQ(Scripts(), QStringList());
    }

    QStringList Scripts() const
    {
        return ListTree(setup.TemporaryFolder()).filter(QRegularExpression("\\.bat$"));
    }
};

TEST_F(RemovalOrderLinuxTest, AnInstallationBeforeTheScriptWakesKeepsItsFiles)
{
    InstallCurrent();
    RemoveAll();
    InstallCurrent();
    LetScriptEnd();
    EXPECT_EQ(Files(), installedFiles);
}

TEST_F(RemovalOrderLinuxTest, AnInstallationThatIsRefusedCancelsNoRemoval)
{
    InstallCurrent();
    RemoveAll();
    EXPECT_EQ(setup.Start({"/S", "/ANYTHING"}).exitCode, SetupRun::ShownExitCode(87));
    LetScriptEnd();
    EXPECT_FALSE(QDir(product).exists());
    InstallCurrent();
    EXPECT_EQ(Files(), installedFiles);
}

TEST_F(RemovalOrderLinuxTest, TheScriptOfAnEarlierRemovalDoesNotRemoveALaterInstallation)
{
    InstallCurrent();
    RemoveAll();
    InstallCurrent();
    ASSERT_EQ(Uninstall({}).exitCode, 0);
    InstallCurrent();
    LetScriptEnd();
    EXPECT_EQ(Files(), installedFiles);
}

} // namespace
