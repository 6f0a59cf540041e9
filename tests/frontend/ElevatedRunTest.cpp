#include "ElevatedRun.h"
#include "support/Environment.h"
#include "support/InstalledProduct.h"

#include <algorithm>

using namespace Vorlan::FrontEnd;

namespace
{

class ElevatedRunTest : public InstalledProduct
{
protected:
    ElevatedRunTest() { options.allUsers = true; }

    std::optional<Outcome> Run()
    {
        return RunElevated(setup.SetupFolder() + "/installergui.exe", options,
            [this](const RunEvent& event) { events.push_back(event); });
    }

    template <class Event>
    int Count() const
    {
        return static_cast<int>(std::count_if(events.begin(), events.end(),
            [](const RunEvent& event) { return std::holds_alternative<Event>(event); }));
    }

    static QStringList FoldersOfAllUsers()
    {
        return RegistryTree("HKEY_LOCAL_MACHINE", "Software\\Vorlan\\Quillax24").filter(" Path = ");
    }

    void SetRights(const QByteArray& rights) const
    {
        WriteFile(setup.MachineFolder() + "/machine.ini", "rights=" + rights + '\n');
    }

    Environment temporaryFolder{"TMPDIR", setup.TemporaryFolder()};
    CommandLine options;
    std::vector<RunEvent> events;
};

TEST_F(ElevatedRunTest, InstallsWithEveryChoiceAndPassesTheEventsOn)
{
    setup.AddArchive("small.7z");
    options.folder = setup.WorkFolder() + "/a folder/Vorlan Quillax";
    options.logFile = setup.WorkFolder() + "/the run.log";
    options.isLogChosen = true;
    options.shortcuts = false;
    options.statistics = false;
    options.language = "nl_NL";
    const auto outcome = Run();
    ASSERT_TRUE(outcome.has_value());
    EXPECT_EQ(outcome->code, ExitCode::Done) << outcome->error.toStdString();
    EXPECT_EQ(Count<Events::InstallationStarted>(), 1);
    EXPECT_GT(Count<Events::InstallationProgress>(), 1);
    EXPECT_EQ(Count<Events::InstallationFinished>(), 1);
    EXPECT_TRUE(QFile::exists(options.folder + "/uninst.exe"));
    EXPECT_EQ(FoldersOfAllUsers().size(), 1);
    const QStringList records = RegistryTree("HKEY_LOCAL_MACHINE", "Software\\Vorlan\\Quillax24");
    EXPECT_TRUE(records.contains(": sendStatistics = REG_SZ false"));
    EXPECT_TRUE(records.contains(": locale = REG_SZ nl_NL"));
    EXPECT_EQ(ListTree(setup.MachineFolder()).filter(".lnk"), QStringList());
    EXPECT_TRUE(ReadFile(options.logFile).contains("Extracting files..."));
}

TEST_F(ElevatedRunTest, AFailureComesBackWithItsTextAndTheLogThatOnlyAdministratorsWrite)
{
    const auto outcome = Run();
    ASSERT_TRUE(outcome.has_value());
    EXPECT_EQ(outcome->code, ExitCode::Failed);
    EXPECT_TRUE(outcome->error.contains("InstallerData.7z is missing"));
    EXPECT_TRUE(ReadFile(outcome->logFile).contains("InstallerData.7z is missing"));
    EXPECT_TRUE(outcome->logFile.contains("VorlanQuillaxSetup-"));
    EXPECT_FALSE(outcome->error.contains("log file:"));
}

TEST_F(ElevatedRunTest, AProgramThatReportsNothingHasFailed)
{
    setup.AddProgram("test-program.exe");
    const auto outcome =
        RunElevated(setup.SetupFolder() + "/test-program.exe", options, [](const RunEvent&) {});
    ASSERT_TRUE(outcome.has_value());
    EXPECT_EQ(outcome->code, ExitCode::Failed);
    EXPECT_TRUE(outcome->error.contains("without a result")) << outcome->error.toStdString();
}

// The program as a user starts it who has no rights, and confirms them or not.
TEST_F(ElevatedRunTest, APassiveRunAsksForTheRightsAndReturnsWhatTheElevatedOneDid)
{
    if (QSysInfo::kernelType() == "winnt")
        GTEST_SKIP() << "a program cannot take its own rights away here";
    setup.AddArchiveContent(Product(FRONTEND_FOLDER, "new"));
    setup.SetVariable("QT_QPA_PLATFORM", "offscreen");
    const QStringList words{"/PASSIVE", "/ALLUSERS", "/D=product", "/JSON"};
    SetRights("refused");
    auto result = setup.Start(words);
    EXPECT_EQ(result.exitCode, SetupRun::ShownExitCode(1603));
    EXPECT_TRUE(result.errors.contains("needs the rights of an administrator"));
    EXPECT_EQ(FoldersOfAllUsers(), QStringList());

    SetRights("request");
    result = setup.Start(words);
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    EXPECT_TRUE(result.output.contains("{\"signal\":\"InstallationFinished\"}\n"));
    EXPECT_TRUE(result.output.endsWith("{\"exitCode\":0}\n"));
    const QString folder = setup.WorkFolder() + "/product/Vorlan Quillax";
    EXPECT_TRUE(QFile::exists(folder + "/quill.exe")) << "relative to the caller's folder";
    EXPECT_EQ(FoldersOfAllUsers().size(), 1);

    SetRights("refused");
    result = setup.StartFrom(folder, "uninst.exe", {"/PASSIVE"});
    EXPECT_EQ(result.exitCode, SetupRun::ShownExitCode(1603));
    EXPECT_TRUE(result.errors.contains("start the uninstaller as one"));
    EXPECT_TRUE(QFile::exists(folder + "/quill.exe"));
    SetRights("request");
    result = setup.StartFrom(folder, "uninst.exe", {"/PASSIVE"});
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    EXPECT_FALSE(QFile::exists(folder + "/quill.exe"));
    EXPECT_EQ(FoldersOfAllUsers(), QStringList());
}

TEST_F(ElevatedRunTest, APassiveRunInstallsWithoutAQuestion)
{
    setup.AddArchive("small.7z");
    setup.SetVariable("QT_QPA_PLATFORM", "offscreen");
    auto result = setup.Start({"/PASSIVE", "/D=product"});
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    EXPECT_TRUE(QFile::exists(setup.WorkFolder() + "/product/Vorlan Quillax/quill.exe"));
    QFile::remove(setup.SetupFolder() + "/InstallerData.7z");
    result = setup.Start({"/PASSIVE"});
    EXPECT_EQ(result.exitCode, SetupRun::ShownExitCode(1603));
    EXPECT_TRUE(result.errors.contains("InstallerData.7z is missing"));
    EXPECT_EQ(setup.Start({"/PASSIVE", "/S"}).exitCode, 87);
}

} // namespace
