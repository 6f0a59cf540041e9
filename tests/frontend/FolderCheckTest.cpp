#include "wizard/FolderCheck.h"
#include "support/Machine.h"
#include "wizard/FolderChooser.h"

#include <QLabel>
#include <QLineEdit>
#include <QMutex>
#include <QSemaphore>
#include <QTest>

#include <gtest/gtest.h>

#include <map>

using namespace Vorlan::FrontEnd;

namespace
{

constexpr int timeLimitMs = 60000;

// A disk that answers when the test lets it: each folder has its own semaphore.
struct SlowDisk
{
    QSemaphore& Gate(const QString& folder)
    {
        const QMutexLocker lock(&mutex);
        asked << folder;
        return gates[folder];
    }
    void Answer(const QString& folder)
    {
        const QMutexLocker lock(&mutex);
        gates[folder].release();
    }

    QMutex mutex;
    std::map<QString, QSemaphore> gates;
    QStringList asked;
};

class FolderCheckTest : public testing::Test
{
protected:
    void WaitForResult() const
    {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !check.IsRunning(); }, timeLimitMs));
    }

    std::shared_ptr<SlowDisk> disk = std::make_shared<SlowDisk>();
    FolderCheck check{[disk = disk](const QString& folder)
        {
            disk->Gate(folder).acquire();
            return FolderState{"objection to " + folder, 1};
        }};
};

TEST_F(FolderCheckTest, OnlyTheLatestFolderCountsInWhateverOrderTheDiskAnswers)
{
    QStringList known;
    check.finished = [&] { known << "finished"; };
    check.Begin("slow");
    check.WhenKnown([&](const FolderState&) { known << "dropped"; });
    check.Begin("last");
    check.WhenKnown([&](const FolderState& state) { known << state.objection; });
    EXPECT_TRUE(check.IsRunning()) << "nobody waits for the disk";
    disk->Answer("last");
    WaitForResult();
    disk->Answer("slow");
    check.Begin("later");
    disk->Answer("later");
    WaitForResult();
    EXPECT_EQ(known, QStringList({"finished", "objection to last", "finished"}));
    EXPECT_EQ(check.State().objection, "objection to later");
}

TEST_F(FolderCheckTest, AHangingDiskHoldsAtMostFourThreadsAndTheLatestFolderIsNext)
{
    for (const char* folder : {"1", "2", "3", "4", "5", "6"})
        check.Begin(folder);
    disk->Answer("3");
    disk->Answer("6");
    WaitForResult();
    EXPECT_EQ(check.State().objection, "objection to 6");
    {
        const QMutexLocker lock(&disk->mutex);
        EXPECT_FALSE(disk->asked.contains("5"));
    }
    for (const char* folder : {"1", "2", "4"})
        disk->Answer(folder);
}

TEST_F(FolderCheckTest, TypingDoesNotWaitForADiskThatHangs)
{
    Vorlan::InstallationSettings settings;
    settings.installDir = "start";
    FolderChooser chooser(settings, nullptr,
        [disk = disk](const QString& folder)
        {
            disk->Gate(folder).acquire();
            return FolderState{folder.contains("ab") ? "not there" : "", {}};
        });
    chooser.Retranslate("en_US");
    auto* folder = chooser.findChild<QLineEdit*>("folder");
    const auto* error = chooser.findChild<QLabel*>("error");
    folder->clear();
    QTest::keyClicks(folder, "ab"); // nothing has answered yet
    EXPECT_EQ(folder->text(), "ab");
    EXPECT_TRUE(chooser.IsValid()) << "the button can be pressed";
    std::optional<bool> isUsable;
    chooser.WhenExamined([&](bool usable) { isUsable = usable; });
    EXPECT_FALSE(isUsable) << "the press waits without holding up the window";
    disk->Answer(chooser.Folder());
    EXPECT_TRUE(QTest::qWaitFor([&] { return isUsable.has_value(); }, timeLimitMs));
    EXPECT_FALSE(*isUsable || chooser.IsValid() || error->isHidden());
    EXPECT_EQ(error->text(), "not there");
    EXPECT_EQ(chooser.findChild<QLabel*>("space")->text(), "Space needed: 0 bytes.");
}

TEST(ExamineFolderTest, AMissingDriveAndUnknownSpaceAreSaidAsTheyAre)
{
    const Machine machine;
    EXPECT_EQ(ExamineFolder("q:\\Media\\Vorlan Quillax", 1).objection,
        "There is no drive Q: on this computer.");
    const FolderState usable = ExamineFolder(machine.Path("new/folder"), 1);
    EXPECT_EQ(usable.objection, "");
    EXPECT_GT(usable.freeBytes.value_or(-1), 0);
    EXPECT_EQ(ExamineFolder(machine.Path("new"), quint64{1} << 60).objection,
        "There is not enough disk space");
    EXPECT_FALSE(ExamineFolder("relative", 1).freeBytes);
    WriteFile(machine.Path("a file"), "in the way"); // rights do not help there
    for (const QString& folder : {QString("relative"), machine.Path("a file/folder")})
        EXPECT_EQ(ExamineFolder(folder, 1, Rights::OfAdministrator).objection,
            "Can't access the specified destination folder");
}

} // namespace
