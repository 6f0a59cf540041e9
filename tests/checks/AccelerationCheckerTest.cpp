#include "checks/AccelerationChecker.h"

#include "checks/StubAccelerationChecker.h"
#include "support/CodecProbe.h"

#include <gtest/gtest.h>

#include <memory>

using Vorlan::Installer::AccelerationChecker;
using Vorlan::Installer::StubAccelerationChecker;

namespace
{

class AccelerationCheckerTest : public testing::Test
{
protected:
    Machine machine;
    const CodecProbe probe{machine.Path("corechecker.exe")};
    std::unique_ptr<AccelerationChecker> checker =
        std::make_unique<AccelerationChecker>(probe.Path());
};

} // namespace

TEST_F(AccelerationCheckerTest, ListsAreSplitAtCommasAndTrimmed)
{
    checker->SetVerifiableCodecs(" first,,\tsecond , ");
    checker->SetVerifiableCodecImpls("usable,exit");
    checker->StartCheck();
    checker->WaitForCheck();
    EXPECT_EQ(checker->GetBrokenCodecsText(), "first=exit;second=exit");
    EXPECT_EQ(checker->GetBrokenPlugins(), std::vector<std::string>({"exit"}));
    EXPECT_EQ(checker->GetErrorInfo(), "");
    EXPECT_EQ(checker->GetStatisticInfo().size(), 3U);
}

TEST_F(AccelerationCheckerTest, EmptyListsMeanTheDefaults)
{
    EXPECT_EQ(checker->DefaultCodecImplsText(),
        "QSV, MEDIA_FOUNDATION, VIDEO_TOOLBOX_HW, VIDEO_TOOLBOX_SW, AUDIO_TOOLBOX, NVENC, NVDEC, "
        "AMF, DIRECTX");
    EXPECT_EQ(checker->DefaultCodecsText(), "AAC, AC3, H264, H265, WMV3");
    checker->SetVerifiableCodecs("");
    checker->SetVerifiableCodecImpls("absent");
    checker->StartCheck();
    checker->WaitForCheck();
    for (const char* codec : {"AAC", "AC3", "H264", "H265", "WMV3"})
        EXPECT_TRUE(probe.WasStarted(codec, "absent")) << codec;
    EXPECT_EQ(checker->GetBrokenCodecsText(), "");
}

TEST_F(AccelerationCheckerTest, FilesCountOnlyWhereTheyExist)
{
    const QString missing = machine.Path("missing.txt");
    const QString file = machine.Path("\u30D5\u30A1\u30A4\u30EB.txt");
    WriteFile(file, "");
    checker->SetVerifiableCodecs("A");
    checker->SetVerifiableCodecImpls("exit");
    checker->SetBrokenCodecsPath(missing);
    checker->SetBrokenPluginsPath(file);
    checker->StartCheck();
    checker->WaitForCheck();
    EXPECT_FALSE(QFile::exists(missing));
    EXPECT_EQ(ReadFile(file), "# Vorlan broken plug-ins 1\nexit\n");

    checker->SetBrokenPluginsPath(missing); // takes the file back
    checker->SetVerifiableCodecImpls("silent");
    checker->StartCheck();
    checker->WaitForCheck();
    EXPECT_EQ(ReadFile(file), "# Vorlan broken plug-ins 1\nexit\n");
    EXPECT_EQ(checker->GetErrorInfo(), "");
}

TEST_F(AccelerationCheckerTest, OneCheckAtATimeAndNoneOutlivesTheObject)
{
    checker->SetVerifiableCodecs("A");
    checker->SetVerifiableCodecImpls("exit");
    checker->WaitForCheck(); // there is none
    checker->StartCheck();
    checker->StartCheck();
    EXPECT_EQ(checker->GetBrokenCodecsText(), "");
    checker->WaitForCheck();
    checker->WaitForCheck();
    EXPECT_EQ(checker->GetBrokenCodecsText(), "A=exit");

    checker->SetVerifiableCodecs("B");
    checker->SetVerifiableCodecImpls("hang,usable");
    checker->SetCheckCoreTimeout(8);
    checker->StartCheck();
    checker.reset();
    EXPECT_TRUE(probe.WasStarted("B", "hang"));
}

TEST(StubAccelerationChecker, ChecksNothing)
{
    StubAccelerationChecker checker;
    checker.SetVerifiableCodecs("A");
    checker.StartCheck();
    checker.WaitForCheck();
    EXPECT_TRUE(checker.GetBrokenPlugins().empty());
    EXPECT_EQ(checker.GetBrokenCodecsText() + checker.GetErrorInfo(), "");
    EXPECT_TRUE(checker.GetStatisticInfo().empty());
    EXPECT_EQ(checker.DefaultCodecsText() + checker.DefaultCodecImplsText(), "");
}
