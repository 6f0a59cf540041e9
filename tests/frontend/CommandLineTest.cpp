#include "CommandLine.h"

#include "support/Printing.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Vorlan::FrontEnd
{
namespace
{

CommandLine Parsed(const QStringList& arguments)
{
    const ParsedCommandLine parsed = ParseCommandLine(arguments);
    EXPECT_EQ(parsed.error, "");
    return parsed.options;
}

QString ErrorOf(const QStringList& arguments)
{
    return ParseCommandLine(arguments).error;
}

struct FlagRow
{
    const char* word;
    bool CommandLine::*flag;
};

void PrintTo(const FlagRow& row, std::ostream* out)
{
    *out << row.word;
}

class CommandLineFlagTest : public testing::TestWithParam<FlagRow>
{
};

TEST_P(CommandLineFlagTest, SetsItsOptionAndNoOther)
{
    const FlagRow row = GetParam();
    CommandLine options = Parsed({row.word});
    EXPECT_TRUE(options.*row.flag);
    for (bool CommandLine::*flag : {&CommandLine::silent, &CommandLine::uninstall,
             &CommandLine::removeAll, &CommandLine::deleteSettings, &CommandLine::help})
    {
        EXPECT_EQ(options.*flag, flag == row.flag);
    }
}

INSTANTIATE_TEST_SUITE_P(Words, CommandLineFlagTest,
    testing::Values(FlagRow{"/S", &CommandLine::silent}, FlagRow{"/s", &CommandLine::silent},
        FlagRow{"--S", &CommandLine::silent}, FlagRow{"/VerySilent", &CommandLine::silent},
        FlagRow{"--quiet", &CommandLine::silent}, FlagRow{"/UNINSTALL", &CommandLine::uninstall},
        FlagRow{"/ALLUSERS", &CommandLine::allUsers},
        FlagRow{"/CURRENTUSER", &CommandLine::currentUser},
        FlagRow{"/REMOVEALL", &CommandLine::removeAll},
        FlagRow{"/DELETESETTINGS", &CommandLine::deleteSettings},
        FlagRow{"/IGNORE_MUTEX", &CommandLine::ignoreMutex},
        FlagRow{"/PROGRESS", &CommandLine::progress}, FlagRow{"/JSON", &CommandLine::json},
        FlagRow{"/?", &CommandLine::help}, FlagRow{"--help", &CommandLine::help},
        FlagRow{"/VERSION", &CommandLine::version}));

TEST(CommandLineTest, ValuesFollowTheFirstEqualsSign)
{
    const CommandLine options =
        Parsed({"/D=/opt/My Apps=1", "--lang=de_DE", "/LOG=run.log", "/WEBUID=abc-123"});
    EXPECT_EQ(options.folder, "/opt/My Apps=1");
    EXPECT_EQ(options.language, "de_DE");
    EXPECT_EQ(options.logFile, "run.log");
    EXPECT_EQ(options.webUid, "abc-123");
    EXPECT_EQ(Parsed({"/D=a", "/DIR=b"}).folder, "b");
    EXPECT_EQ(Parsed({"/ALLUSERS"}).Scope(), QSettings::SystemScope);
}

TEST(CommandLineTest, WrongWordsAreRefusedByName)
{
    EXPECT_EQ(ErrorOf({"/S", "/FOO"}), "Unknown option /FOO: /? lists all options.");
    EXPECT_EQ(ErrorOf({"-S"}), "Unknown option -S: /? lists all options.");
    EXPECT_EQ(ErrorOf({"/opt/apps"}), "Unknown option /opt/apps: /? lists all options.");
    EXPECT_EQ(ErrorOf({"--"}), "Unknown option --: /? lists all options.");
    EXPECT_EQ(ErrorOf({"stray"}), "Unexpected word \"stray\": options begin with / (see /?).");
    EXPECT_EQ(ErrorOf({"/D"}), "The option /D needs a value: write /D=<folder>.");
    EXPECT_EQ(ErrorOf({"--log="}), "The option --log= needs a value: write /LOG=<file>.");
    EXPECT_EQ(ErrorOf({"/S=1"}), "The option /S=1 takes no value: write /S.");
    EXPECT_EQ(ErrorOf({"/FOO", "stray"}), ErrorOf({"/FOO"}));
    EXPECT_TRUE(ParseCommandLine({"/FOO", "/S"}).options.silent) << "else a box would wait";
}

TEST(CommandLineTest, AChoiceIsYesOrNoOrNotGiven)
{
    struct Row
    {
        const char* word;
        std::optional<bool> CommandLine::*choice;
        bool expected;
    };
    for (const Row& row : {Row{"/SHORTCUTS=yes", &CommandLine::shortcuts, true},
             Row{"/shortcuts=NO", &CommandLine::shortcuts, false},
             Row{"/NOSHORTCUTS", &CommandLine::shortcuts, false},
             Row{"/CONTEXTMENU", &CommandLine::contextMenu, true},
             Row{"/CONTEXTMENU=no", &CommandLine::contextMenu, false},
             Row{"/AUTOLAUNCH", &CommandLine::autoLaunch, true},
             Row{"--autolaunch=no", &CommandLine::autoLaunch, false},
             Row{"/STATISTICS=yes", &CommandLine::statistics, true}})
    {
        EXPECT_FALSE((Parsed({}).*row.choice).has_value()) << row.word;
        EXPECT_EQ(Parsed({row.word}).*row.choice, row.expected) << row.word;
    }
    EXPECT_EQ(Parsed({"/CONTEXTMENU", "/CONTEXTMENU=no"}).contextMenu, false) << "the last one";
    EXPECT_EQ(ErrorOf({"/STATISTICS"}),
        "The option /STATISTICS needs a value: write /STATISTICS=yes|no.");
    EXPECT_EQ(ErrorOf({"/CONTEXTMENU=2"}),
        "The option /CONTEXTMENU=2 has a wrong value: write /CONTEXTMENU=yes|no.");
    EXPECT_EQ(ErrorOf({"/NOSHORTCUTS=no"}),
        "The option /NOSHORTCUTS=no takes no value: write /NOSHORTCUTS.");
}

TEST(CommandLineTest, ContradictionsAreRefused)
{
    EXPECT_EQ(ErrorOf({"/CURRENTUSER", "/ALLUSERS"}),
        "The options /ALLUSERS and /CURRENTUSER exclude each other: give one of them.");
    EXPECT_TRUE(
        ErrorOf({"/LANG=sv_SE"}).startsWith("The option /LANG=sv_SE names no supported language"));
}

TEST(CommandLineTest, LeadingWordsThatAreTheProgramPathAreDropped)
{
    const QString path = "/x/Vorlan Quillax/uninst.exe";
    const QStringList rest{"/S", "/IGNORE_MUTEX"};
    EXPECT_EQ(DropProgramPath(QStringList{path} + rest, path), rest);
    EXPECT_EQ(DropProgramPath(QStringList{"/x/Vorlan", "Quillax/uninst.exe"} + rest, path), rest);
    EXPECT_EQ(DropProgramPath(QStringList{"uninst.exe"} + rest, path), rest);
    EXPECT_EQ(
        DropProgramPath({"/x/a", "b/uninst.exe", "/S"}, "/x/a  b/uninst.exe"), QStringList{"/S"});
    EXPECT_EQ(DropProgramPath({"/X/vorlan", "quillax/UNINST.EXE", "/S"}, path), QStringList{"/S"});
    EXPECT_EQ(DropProgramPath({path}, path), QStringList());
    EXPECT_EQ(DropProgramPath({}, path), QStringList());
}

TEST(CommandLineTest, AProgramPathThatIsNotCanonicalIsDroppedToo)
{
    const QTemporaryDir folder;
    const QString real = QDir(folder.path()).canonicalPath() + "/real dir";
    ASSERT_TRUE(QDir().mkpath(real));
    QFile program(real + "/uninst.exe");
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    const QString detour = real + "/../real";
    EXPECT_EQ(
        DropProgramPath({detour, "dir/uninst.exe", "/S"}, program.fileName()), QStringList{"/S"});
}

TEST(CommandLineTest, RelativePathsAreResolvedAgainstTheStartFolder)
{
    const QString root = QDir::rootPath();
    const QDir start(root + "start");
    const CommandLine options =
        WithAbsolutePaths(Parsed({"/D=sub/../apps", "/LOG=run.log"}), start);
    EXPECT_EQ(options.folder, root + "start/apps");
    EXPECT_EQ(options.logFile, root + "start/run.log");
    const CommandLine absolute = WithAbsolutePaths(Parsed({"/D=" + root + "opt/apps"}), start);
    EXPECT_EQ(absolute.folder, root + "opt/apps");
    EXPECT_TRUE(absolute.logFile.isEmpty());
}

TEST(CommandLineTest, TheFileNameOrTheOptionSelectsTheUninstaller)
{
    EXPECT_EQ(RoleOf("/x/installergui.exe", {}), Role::Installer);
    EXPECT_EQ(RoleOf("/uninst.exe/installergui.exe", {}), Role::Installer);
    EXPECT_EQ(RoleOf("/x/UnInst.exe", {}), Role::Uninstaller);
    EXPECT_EQ(RoleOf("/x/installergui.exe", Parsed({"/UNINSTALL"})), Role::Uninstaller);
}

} // namespace
} // namespace Vorlan::FrontEnd
