#include "support/ChildProgram.h"
#include "support/Machine.h"
#include "support/SetupRun.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace
{

const int badCommandLine = SetupRun::ShownExitCode(87);
const int failed = SetupRun::ShownExitCode(1603);

// Expects an empty standard output, and one line with `part` on standard error.
void ExpectOneLineWith(const SetupRun::Result& result, const QString& part)
{
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors.count('\n'), 1) << result.errors.toStdString();
    EXPECT_TRUE(result.errors.contains(part)) << result.errors.toStdString();
}

// The path of the log in the error line.
QString LogNamedIn(const QString& errors)
{
    const auto match = QRegularExpression("\\(log file: (.*)\\)").match(errors);
    EXPECT_TRUE(match.hasMatch()) << errors.toStdString();
    return match.captured(1);
}

// Expects the content of "small.7z" in this folder, except the two files that are placed elsewhere.
void ExpectSmallPayloadIn(const QString& folder)
{
    QMap<QString, QByteArray> expected = ReadTree(Payload("small-content"));
    expected.remove("installergui.exe");
    expected.remove("fonts.conf");
    const QMap<QString, QByteArray> installed = ReadTree(folder);
    for (auto file = expected.constBegin(); file != expected.constEnd(); ++file)
    {
        EXPECT_TRUE(installed.value(file.key()) == file.value()) << file.key().toStdString();
        EXPECT_TRUE(installed.contains(file.key())) << file.key().toStdString();
    }
}

QList<QJsonObject> JsonLines(const QString& output)
{
    QList<QJsonObject> objects;
    for (const QString& line : output.split('\n', Qt::SkipEmptyParts))
    {
        const QJsonDocument document = QJsonDocument::fromJson(line.toUtf8());
        EXPECT_TRUE(document.isObject()) << line.toStdString();
        objects << document.object();
    }
    return objects;
}

// Names of the signals and stages, without InstallationProgress.
QString SignalsIn(const QList<QJsonObject>& objects)
{
    QStringList names;
    for (const QJsonObject& object : objects)
    {
        if (object["signal"] != "InstallationProgress")
        {
            names << object["signal"].toString() + object["process"].toString();
        }
    }
    return names.join(' ');
}

class SilentRunTest : public testing::Test
{
protected:
    SetupRun setup;
};

TEST_F(SilentRunTest, AWrongCommandLineIsOneLineThatNamesTheWord)
{
    for (const char* word : {"/FOO", "/D=", "stray", "/LANG=xx_XX"})
    {
        const auto result = setup.Start({"/S", word});
        EXPECT_EQ(result.exitCode, badCommandLine);
        ExpectOneLineWith(result, word);
    }
    EXPECT_TRUE(QDir(setup.TemporaryFolder()).isEmpty());
}

TEST_F(SilentRunTest, HelpGoesToStandardOutput)
{
    const auto result = setup.Start({"/?"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_TRUE(result.output.contains("/VERYSILENT"));
}

TEST_F(SilentRunTest, AMissingArchiveIsOneLineAndTheLogIsNamed)
{
    const auto result = setup.Start({"/S"});
    EXPECT_EQ(result.exitCode, failed);
    ExpectOneLineWith(result, "InstallerData.7z is missing");
    EXPECT_TRUE(ReadFile(LogNamedIn(result.errors)).contains("InstallerData.7z is missing"));
    EXPECT_TRUE(LogNamedIn(result.errors).contains("VorlanQuillaxSetup-"))
        << "the log of an administrator";
}

TEST_F(SilentRunTest, AnArchiveThatIsNoneIsOneLine)
{
    setup.AddArchiveContent("this is no archive");
    const auto result = setup.Start({"/S"});
    EXPECT_EQ(result.exitCode, failed);
    ExpectOneLineWith(result, "The setup cannot start: ");
    EXPECT_EQ(setup.DefaultProductFolder(), QString());
}

TEST_F(SilentRunTest, ARunThatFailsIsOneLineInTheChosenLanguage)
{
    QByteArray damaged = ReadFile(Payload("small.7z"));
    damaged.replace(5000, 100, QByteArray(100, 'x'));
    setup.AddArchiveContent(damaged);
    setup.AddProgram("resources/locales/fr_FR/InstallerGUI_fr_FR.qm");
    const auto result = setup.Start({"/S", "/LANG=fr_FR"});
    EXPECT_EQ(result.exitCode, failed);
    ExpectOneLineWith(result, QString::fromUtf8("est endommagé ou incomplet."));
    EXPECT_TRUE(ReadFile(LogNamedIn(result.errors)).contains("warning  Error "));
}

TEST_F(SilentRunTest, ASetupInItsOwnDestinationEndsTheProductThereAndNotItself)
{
    setup.AddArchive("small.7z");
    const QString folder = setup.WorkFolder() + "/Vorlan Quillax";
    QDir().mkpath(folder);
    for (const QString& file : QDir(setup.SetupFolder()).entryList(QDir::Files))
        ASSERT_TRUE(QFile::copy(setup.SetupFolder() + '/' + file, folder + '/' + file));
    ChildProgram product(folder + "/quill.exe", "wait");
    product.Start();
    const auto result = setup.StartFrom(folder, "installergui.exe", {"/S", "/D=" + folder});
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    EXPECT_TRUE(product.HasEnded());
    EXPECT_TRUE(QFile::exists(folder + "/uninst.exe"));
}

// The engine ends programs in the folder itself, see the test before; it leaves those of
// sub-folders.
TEST_F(SilentRunTest, ProgramsThatUseTheFilesAreNamedOrClosedWhenThatIsAskedFor)
{
    setup.AddArchive("small.7z");
    const QString folder = setup.WorkFolder() + "/Vorlan Quillax";
    ChildProgram tool(folder + "/tools/tool.exe", "wait");
    tool.Start();
    const auto refused = setup.Start({"/S", "/D=" + folder});
    EXPECT_EQ(refused.exitCode, 32);
    ExpectOneLineWith(refused, QString("tool.exe (%1)").arg(tool.Id()));
    EXPECT_FALSE(QFile::exists(folder + "/uninst.exe"));
    EXPECT_TRUE(tool.IsRunning());
    const auto closed = setup.Start({"/S", "/D=" + folder, "/CLOSEAPPS"});
    EXPECT_EQ(closed.exitCode, 0) << closed.errors.toStdString();
    EXPECT_TRUE(tool.HasEnded());
}

TEST_F(SilentRunTest, ADestinationThatIsAFileIsRefusedByName)
{
    setup.AddArchive("small.7z");
    QFile file(setup.WorkFolder() + "/target");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const auto result = setup.Start({"/S", "/D=target"});
    EXPECT_EQ(result.exitCode, failed);
    ExpectOneLineWith(result, "Can't access the specified destination folder");
    EXPECT_TRUE(result.errors.contains(QDir::toNativeSeparators(file.fileName())));
}

TEST_F(SilentRunTest, TooLittleSpaceIsDetectedBeforeTheRun)
{
    setup.AddArchive("huge.7z");
    const auto result = setup.Start({"/S"});
    EXPECT_EQ(result.exitCode, SetupRun::ShownExitCode(112));
    ExpectOneLineWith(result, "There is not enough disk space");
    EXPECT_EQ(setup.DefaultProductFolder(), QString());
}

TEST_F(SilentRunTest, ForAllUsersWithoutTheRightsNothingIsStarted)
{
    if (QSysInfo::kernelType() == "winnt")
        GTEST_SKIP() << "a program cannot take its own rights away here";
    setup.AddArchive("small.7z");
    WriteFile(setup.MachineFolder() + "/machine.ini", "rights=request\n");
    const auto result = setup.Start({"/S", "/ALLUSERS"});
    EXPECT_EQ(result.exitCode, failed);
    ExpectOneLineWith(result, "needs the rights of an administrator");
    EXPECT_EQ(setup.DefaultProductFolder(), QString());
}

TEST_F(SilentRunTest, ALogThatCannotBeWrittenIsOneLine)
{
    const auto result = setup.Start({"/S", "/LOG=missing/run.log"});
    EXPECT_EQ(result.exitCode, failed);
    ExpectOneLineWith(result, "choose another with /LOG=<file>");
}

TEST_F(SilentRunTest, InstallsTheWholePayloadAndPrintsNothing)
{
    setup.AddArchive("small.7z");
    const auto result = setup.Start({"/S"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "");
    const QString product = setup.DefaultProductFolder();
    ASSERT_FALSE(product.isEmpty());
    ExpectSmallPayloadIn(product);
    EXPECT_FALSE(QDir(product + "/nothing").exists()) << "empty folders are not made";
    EXPECT_EQ(
        ReadFile(product + "/uninst.exe"), ReadFile(setup.SetupFolder() + "/installergui.exe"));
}

TEST_F(SilentRunTest, RelativePathsAreResolvedAgainstTheCallersFolder)
{
    setup.AddArchive("small.7z");
    const auto result = setup.Start({"/S", "/D=some where", "/LOG=run.log"});
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    ExpectSmallPayloadIn(setup.WorkFolder() + "/some where/Vorlan Quillax");
    EXPECT_TRUE(ReadFile(setup.WorkFolder() + "/run.log").contains("Extracting files..."));
    EXPECT_EQ(ListTree(setup.TemporaryFolder()).filter(".log"), QStringList());
}

TEST_F(SilentRunTest, PathsLongerThanWindowsBuffersAreSupported)
{
    setup.AddArchive("small.7z");
    const QString folder = (QString(90, QChar(0x43F)) + '/').repeated(4);
    const auto result = setup.Start({"/S", "/D=" + folder});
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    ExpectSmallPayloadIn(setup.WorkFolder() + '/' + folder + "Vorlan Quillax");
}

TEST_F(SilentRunTest, ProgressShowsTheStagesInOrder)
{
    setup.AddArchive("many-blocks.7z");
    const auto result = setup.Start({"/S", "/PROGRESS", "/LANG=de_DE"});
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    const QStringList lines = result.output.split('\n');
    EXPECT_EQ(lines.filter(QRegularExpression("\\.\\.\\.$")).join(' '),
        "Placing the files... Registering the program... Checking hardware acceleration...");
    EXPECT_TRUE(result.output.contains("] 100 %\n"));
    EXPECT_TRUE(result.output.endsWith("Done\n"));
}

TEST_F(SilentRunTest, JsonHasEverySignalOnALine)
{
    setup.AddArchive("small.7z");
    const auto result = setup.Start({"/S", "/JSON"});
    const QList<QJsonObject> objects = JsonLines(result.output);
    ASSERT_FALSE(objects.isEmpty()) << result.errors.toStdString();
    EXPECT_EQ(objects.last(), (QJsonObject{{"exitCode", 0}}));
    EXPECT_EQ(SignalsIn(objects.mid(0, objects.size() - 1)),
        "InstallationStarted WebConfigLoaderStarted WebConfigLoaderFinished "
        "ProcessStartedREMOVE_PREVIOUS_VERSION ProcessStartedEXTRACT_FILES FilesExtracted "
        "ProcessStartedUPDATE_REGISTRY ProcessStartedCHECK_ACCELERATIONS TrackCoreStatistics "
        "InstallationFinished");
}

TEST_F(SilentRunTest, JsonReportsAFailureToo)
{
    const auto result = setup.Start({"/S", "/JSON"});
    EXPECT_EQ(result.exitCode, failed);
    const QList<QJsonObject> objects = JsonLines(result.output);
    ASSERT_EQ(objects.size(), 1);
    EXPECT_EQ(objects[0]["exitCode"], 1603);
    EXPECT_EQ(objects[0]["error"].toString() + '\n', result.errors);
}

TEST_F(SilentRunTest, TheExtractorLearnsThatTheRunIsReady)
{
    setup.AddArchive("small.7z");
    const QString marker = setup.SetupFolder() + "/installer_extractor_tmp_marker.txt";
    WriteFile(marker, "");
    EXPECT_EQ(setup.Start({"/S"}).exitCode, 0);
    EXPECT_FALSE(QFile::exists(marker));
}

TEST_F(SilentRunTest, ResponseFilesAreWrittenAndRead)
{
    setup.AddArchive("small.7z");
    auto result =
        setup.Start({"/S", "/D=first", "/SHORTCUTS=no", "/LANG=it_IT", "/SAVEINF=answers.inf"});
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    QByteArray answers = ReadFile(setup.WorkFolder() + "/answers.inf");
    EXPECT_TRUE(answers.contains("Lang=it_IT\nShortcuts=no\n")) << answers.toStdString();
    EXPECT_TRUE(answers.contains("Scope=CurrentUser\n"));
    WriteFile(setup.WorkFolder() + "/answers.inf", answers.replace("first", "second"));
    result = setup.Start({"/S", "/LOADINF=answers.inf"});
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    ExpectSmallPayloadIn(setup.WorkFolder() + "/second/Vorlan Quillax");
    WriteFile(setup.WorkFolder() + "/answers.inf", "[Setup]\nFoo=1\n");
    result = setup.Start({"/S", "/LOADINF=answers.inf"});
    EXPECT_EQ(result.exitCode, badCommandLine);
    ExpectOneLineWith(result, "answers.inf, line 2: unknown key");
    result = setup.Start({"/S", "/SAVEINF=missing/answers.inf"});
    EXPECT_EQ(result.exitCode, failed);
    ExpectOneLineWith(result, "choose another with /SAVEINF=<file>");
}

TEST_F(SilentRunTest, TheEmbeddingExampleInstalls)
{
    setup.AddArchive("small.7z");
    setup.AddProgram("embedding-example.exe");
    const auto result = setup.Start("embedding-example.exe", {"-platform", "offscreen"});
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    ExpectSmallPayloadIn(setup.DefaultProductFolder());
}

} // namespace
