#include "platform/CoreChecker.h"

#include "platform/System.h"
#include "support/CodecProbe.h"

#include <QDeadlineTimer>

#include <gtest/gtest.h>

#include <limits>
#include <thread>

using namespace Vorlan;
using Core::Utils::CheckType;
using Core::Utils::CoreCheckerLauncher;

namespace
{

using Names = std::vector<std::string>;
using BrokenCodecs = std::map<std::string, Names>;

class CoreCheckerTest : public testing::Test
{
protected:
    void Check(const Names& codecs, const Names& impls, long long seconds = 0,
        CheckType type = CheckType::PluginsAndCodecs)
    {
        launcher.SetVerifiableCodecs(codecs);
        launcher.SetVerifiableCodecImpls(impls);
        launcher.SetCheckCoreTimeout(std::chrono::seconds(seconds));
        launcher.StartCheck(type);
    }

    void UseFiles(const QByteArray& codecs, const QByteArray& plugins)
    {
        WriteFile(codecsFile, codecs);
        WriteFile(pluginsFile, plugins);
        launcher.SetBrokenCodecsPath(codecsFile.toStdString());
        launcher.SetBrokenPluginsPath(pluginsFile.toStdString());
    }

    int Count(const std::string& what) const
    {
        return std::stoi(launcher.GetStatisticInfo().at("check").at(what));
    }

    Machine machine;
    const QString codecsFile = machine.Path("broken codecs.txt");
    const QString pluginsFile = machine.Path("broken plug-ins.txt");
    const CodecProbe probe{machine.Path("a folder/corechecker.exe")};
    CoreCheckerLauncher launcher{probe.Path()};
};

} // namespace

TEST_F(CoreCheckerTest, EachBehaviourOfAProbeHasItsResult)
{
    Check({"X"},
        {"usable", "unusable", "absent", "exit", "crash", "rubbish", "twice", "silent", "flood",
            "hang", "fork"},
        12);
    const std::map<std::string, std::string> results{{"usable", "usable"},
        {"unusable", "unusable: no memory"}, {"absent", "not present"}, {"exit", "exit code 3"},
        {"crash", "crashed"}, {"rubbish", "no valid answer"}, {"twice", "no valid answer"},
        {"silent", "no valid answer"}, {"flood", "too much output"}, {"hang", "timed out"},
        {"fork", "timed out"}};
    EXPECT_EQ(launcher.GetStatisticInfo().at("codec.X"), results);
    const Names broken{
        "unusable", "exit", "crash", "rubbish", "twice", "silent", "flood", "hang", "fork"};
    EXPECT_EQ(launcher.GetBrokenCodecs(), BrokenCodecs({{"X", broken}}));
    EXPECT_EQ(launcher.GetBrokenPlugins(), broken);
    EXPECT_EQ(launcher.GetErrorInfo(), "");
    EXPECT_EQ(Count("pairs"), 11);
    EXPECT_EQ(Count("broken"), 9);
    EXPECT_EQ(Count("not present"), 1);

    // What "fork" started ends as well, though the system may take a moment.
    const QDeadlineTimer limit(30000);
    const auto isAnyRunning = [&]
    { return Core::IsProcessRunning("corechecker.exe", probe.Path().toStdString()); };
    while (isAnyRunning() && !limit.hasExpired())
        std::this_thread::yield();
    EXPECT_TRUE(probe.WasStarted("X", "fork"));
    EXPECT_FALSE(isAnyRunning());
}

TEST_F(CoreCheckerTest, KnownBrokenIsNotStartedAgainAndWhatIsFoundIsAdded)
{
    UseFiles("", "");
    Check({"A", "B"}, {"usable", "exit"});
    const QByteArray foundCodecs = "# Vorlan broken codecs 1\nA=exit\nB=exit\n";
    EXPECT_EQ(ReadFile(codecsFile), foundCodecs);
    EXPECT_EQ(ReadFile(pluginsFile), "# Vorlan broken plug-ins 1\nexit\n");

    UseFiles("# Vorlan broken codecs 1\r\nA=usable,exit\n\xff\xfe=x\nno entry\nC=other\n",
        "# Vorlan broken plug-ins 1\nunusable\n*\n");
    QFile::remove(probe.Path() + ".A.usable");
    Check({"A"}, {"usable", "unusable", "silent"});
    EXPECT_FALSE(probe.WasStarted("A", "usable"));
    EXPECT_FALSE(probe.WasStarted("A", "unusable"));
    EXPECT_EQ(launcher.GetBrokenCodecs(), BrokenCodecs({{"A", {"usable", "silent"}}}));
    EXPECT_EQ(launcher.GetBrokenPlugins(), Names({"usable", "unusable", "silent"}));
    EXPECT_EQ(launcher.GetStatisticInfo().at("codec.A").at("usable"), "known broken");
    EXPECT_EQ(ReadFile(codecsFile), "# Vorlan broken codecs 1\nA=exit,silent,usable\nC=other\n");
    EXPECT_EQ(ReadFile(pluginsFile), "# Vorlan broken plug-ins 1\nsilent\nunusable\nusable\n");
}

TEST_F(CoreCheckerTest, FileOfAnotherKindIsNeitherReadNorWritten)
{
    UseFiles("A=usable\nB=usable", QByteArray("# Vorlan broken plug-ins 1\n").repeated(4000000));
    const qint64 size = QFileInfo(pluginsFile).size();
    ASSERT_GT(size, 100000000);
    Check({"A"}, {"usable", "exit"});
    EXPECT_EQ(launcher.GetBrokenCodecs(), BrokenCodecs({{"A", {"exit"}}}));
    EXPECT_EQ(ReadFile(codecsFile), "A=usable\nB=usable");
    EXPECT_EQ(QFileInfo(pluginsFile).size(), size);
    const std::string refusal = ": this is no list of what is broken; it is left as it is";
    EXPECT_EQ(launcher.GetErrorInfo(),
        codecsFile.toStdString() + refusal + "; " + pluginsFile.toStdString() + refusal);

    launcher.SetBrokenCodecsPath(machine.Path("a folder").toStdString());
    launcher.SetBrokenPluginsPath({});
    Check({"A"}, {"exit"});
    EXPECT_EQ(launcher.GetBrokenPlugins(), Names({"exit"}));
    EXPECT_NE(launcher.GetErrorInfo(), "");
}

TEST_F(CoreCheckerTest, WhatIsNotReachedInTimeIsNotBroken)
{
    const unsigned workers = std::max(1U, std::thread::hardware_concurrency());
    Names codecs;
    for (unsigned i = 0; i < 5 * workers; ++i)
        codecs.push_back("C" + std::to_string(i));
    Check(codecs, {"hang"}, 1);
    EXPECT_GE(Count("not tried"), static_cast<int>(workers)); // four quarters for each worker
    EXPECT_EQ(Count("not tried") + Count("broken"), static_cast<int>(codecs.size()));
    EXPECT_EQ(launcher.GetBrokenPlugins(), Names());
    EXPECT_EQ(launcher.GetBrokenCodecs().size(), static_cast<std::size_t>(Count("broken")));
}

TEST_F(CoreCheckerTest, NamesLimitsAndKindsOfACheck)
{
    for (const long long limit :
        {std::numeric_limits<long long>::min(), -1LL, 0LL, std::numeric_limits<long long>::max()})
    {
        Check({"A", "A", ""}, {"a b", "exit", "usable\n"}, limit, CheckType::Codecs);
        EXPECT_EQ(launcher.GetBrokenCodecs(), BrokenCodecs({{"A", {"exit"}}})) << limit;
    }
    EXPECT_EQ(launcher.GetBrokenPlugins(), Names());
    EXPECT_EQ(launcher.GetErrorInfo(),
        "\"a b\" cannot be a codec's or implementation's name; \"usable\n\" cannot be a codec's or "
        "implementation's name; \"\" cannot be a codec's or implementation's name");
    Check({"A"}, {"exit", "absent"}, 0, CheckType::Plugins);
    EXPECT_EQ(launcher.GetBrokenPlugins(), Names({"exit"}));
    EXPECT_EQ(launcher.GetBrokenCodecs(), BrokenCodecs());

    const BrokenCodecs options{{"A", {"x", "y"}}, {"B", {}}, {"C", {"z"}}};
    EXPECT_EQ(Proc::ModuleOptionsToString(options, true), "A=x,y;C=z");
    EXPECT_EQ(Proc::ModuleOptionsToString(options, false), "A=x,y;B=;C=z");
    EXPECT_EQ(Proc::ModuleOptionsToString({}, true), "");
}

TEST_F(CoreCheckerTest, WithoutAProbeThatStartsThereIsOneErrorAndNoResult)
{
    const QString text = machine.Path("text.exe");
    WriteFile(text, "usable\n");
    const std::map<QString, QString> errors{
        {machine.Path("missing.exe"), "There is no probe program %1: nothing was checked"},
        {machine.Path("a folder"), "There is no probe program %1: nothing was checked"},
        {text, "The probe program %1 cannot be started: "}};
    for (const auto& [program, error] : errors)
    {
        launcher = CoreCheckerLauncher(program);
        Check({"A", "B"}, {"usable"});
        const QString info = QString::fromStdString(launcher.GetErrorInfo());
        EXPECT_TRUE(info.startsWith(error.arg(program))) << info.toStdString();
        EXPECT_EQ(info.count(program), 1);
        EXPECT_TRUE(launcher.GetStatisticInfo().empty());
        EXPECT_TRUE(launcher.GetBrokenCodecs().empty());
        EXPECT_TRUE(launcher.GetBrokenPlugins().empty());
    }
}

TEST_F(CoreCheckerTest, WithoutAProbeTheListsAreTheResult)
{
    launcher = CoreCheckerLauncher(machine.Path("missing.exe"));
    UseFiles("# Vorlan broken codecs 1\nA=x\n", "# Vorlan broken plug-ins 1\ny\n");
    Check({"A", "B"}, {"x", "y"});
    EXPECT_EQ(launcher.GetBrokenCodecs(), BrokenCodecs({{"A", {"x"}}}));
    EXPECT_EQ(launcher.GetBrokenPlugins(), Names({"y"}));
    EXPECT_EQ(ReadFile(codecsFile), "# Vorlan broken codecs 1\nA=x\n");
}

TEST_F(CoreCheckerTest, ShippedProbeAnswersForEveryPair)
{
    launcher = CoreCheckerLauncher(FRONTEND_FOLDER "/probe/corechecker.exe");
    Check({"AAC", "H264", "unknown"},
        {"QSV", "MEDIA_FOUNDATION", "VIDEO_TOOLBOX_HW", "NVENC", "NVDEC", "AMF", "DIRECTX", "X"},
        120);
    EXPECT_EQ(launcher.GetErrorInfo(), "");
    for (const char* codec : {"codec.AAC", "codec.H264", "codec.unknown"})
    {
        const std::map<std::string, std::string>& results = launcher.GetStatisticInfo().at(codec);
        EXPECT_EQ(results.at("VIDEO_TOOLBOX_HW"), "not present: belongs to another system");
        EXPECT_EQ(results.at("X"), "not present: unknown implementation");
        for (const auto& [impl, result] : results)
        {
            const QString text = QString::fromStdString(result);
            EXPECT_TRUE(text == "usable" || text.startsWith("unusable: ") ||
                        text.startsWith("not present: "))
                << impl << ' ' << result;
        }
    }
    EXPECT_EQ(launcher.GetStatisticInfo().at("codec.AAC").at("NVENC"),
        "not present: NVENC does not know this codec");
}
