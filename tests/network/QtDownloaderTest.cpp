#include "network/QtDownloader.h"

#include "network/StubDownloader.h"
#include "support/Machine.h"
#include "support/MediatorAccess.h"
#include "support/SignalLog.h"
#include "support/TestServers.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Vorlan;
using TestServers::Address;

namespace
{

class QtDownloaderTest : public testing::Test
{
protected:
    // Downloads for German; the last 0.3 of the bar unless told otherwise.
    QVector<double> Progress(const Installer::AdditionalDataTable& table)
    {
        Installer::QtDownloader downloader;
        QVector<double> values;
        QObject::connect(&downloader, &Installer::AbstractDownloader::Progress, &downloader,
            [&](double value) { values += value; });
        downloader.DownloadFiles(table, "de_DE", 0.7, 0.3);
        return values;
    }

    static QString Text(const QString& text) { return Address("http", "/text/a.txt?text=" + text); }

    Machine machine;
    const QString folder = machine.Path("data");
};

QStringList Shown(const QVector<double>& values)
{
    QStringList texts;
    for (const double value : values)
        texts += QString::number(value);
    return texts;
}

} // namespace

TEST_F(QtDownloaderTest, EntriesForAllComeFirstAndShareTheRange)
{
    EXPECT_EQ(Shown(Progress({{"de_DE", {{Text("own"), folder + "-own"}}},
                  {"all", {{Text("all"), folder + "-all"}}}, {"fr_FR", {{Text("x"), folder}}}})),
        QStringList({"0.85", "1"}));
    EXPECT_EQ(ReadFile(folder + "-all"), "all");
    EXPECT_EQ(ReadFile(folder + "-own"), "own");
}

TEST_F(QtDownloaderTest, WithoutEntriesNothingHappens)
{
    EXPECT_EQ(Progress({}), QVector<double>());
    EXPECT_EQ(Progress({{"fr_FR", {{Text("x"), folder}}}}), QVector<double>());
    Installer::StubDownloader stub;
    stub.DownloadFiles({{"all", {{Text("x"), folder}}}}, "de_DE", 0, 1);
    EXPECT_FALSE(QFile::exists(folder));
    EXPECT_EQ(machine.Log(), QStringList());
}

TEST_F(QtDownloaderTest, FailedFileKeepsTheProgressAndTheNextIsTaken)
{
    const QString missing = Address("http", "/nothing");
    EXPECT_EQ(Shown(Progress({{"all", {{missing, folder + "-1"}, {Text("two"), folder + "-2"}}}})),
        QStringList("0.85"));
    EXPECT_EQ(machine.Log(), QStringList({"Download of " + missing +
                                              " failed with 8: the server answered with status 404",
                                 "Failed to download:  \"" + missing + '"'}));
    EXPECT_FALSE(QFile::exists(folder + "-1"));
    EXPECT_EQ(ReadFile(folder + "-2"), "two");
}

TEST_F(QtDownloaderTest, FolderTakesTheFileUnderItsOwnNameAndNothingIsOverwritten)
{
    ASSERT_TRUE(QDir().mkpath(folder));
    WriteFile(folder + "-taken", "older");
    const QString nowhere = folder + "-missing/file";
    EXPECT_EQ(Shown(Progress({{"all", {{Text("in"), folder}, {Text("new"), folder + "-taken"},
                                          {Text("x"), nowhere}}}})),
        QStringList({"0.8", "0.9", "1"}));
    EXPECT_EQ(ReadFile(folder + "/a.txt"), "in");
    EXPECT_EQ(ReadFile(folder + "-taken"), "older");

    const QStringList log = machine.Log();
    ASSERT_EQ(log.size(), 2);
    for (int i = 0; i < 2; ++i)
    {
        const QString kept = log[i].section('"', 1, 1).replace("\\\\", "\\");
        EXPECT_EQ(log[i], "Failed to move file from:  " + Quoted(kept) +
                              "  to:  " + Quoted(i == 0 ? folder + "-taken" : nowhere));
        EXPECT_EQ(ReadFile(kept), i == 0 ? "new" : "x");
        QDir(QFileInfo(kept).path()).removeRecursively();
    }
}

TEST_F(QtDownloaderTest, BothClassesHaveTheirNames)
{
    Installer::QtDownloader downloader;
    EXPECT_STREQ(downloader.metaObject()->className(), "Vorlan::Installer::QtDownloader");
    EXPECT_TRUE(downloader.inherits("Vorlan::Installer::AbstractDownloader"));
}

TEST_F(QtDownloaderTest, StageFillsTheEndOfTheBarOfAnInstallation)
{
    const QString name = "setup.exe";
    InstallerMediator mediator({name, false, true, QSettings::UserScope, false});
    MediatorAccess access{mediator};
    access.OpenArchive(Payload("small.7z"));
    access.SkipWaits();
    access.Settings().installDir = machine.Path("app") + QDir::separator();
    access.Settings().locale = "de_DE";
    access.Settings().downloadAdditionalData = 2;
    const QString installed = access.Settings().installDir;
    access.Profile().additionalData = {
        {"all", {{Text("first"), installed + "first"}, {Text("second"), installed}}},
        {"de_DE", {{Text("third"), installed + "third"}}},
        {"fr_FR", {{Text("other"), installed + "other"}}},
    };
    SignalLog signalLog(mediator);
    mediator.StartInstallation();
    signalLog.WaitForEnd();
    access.Join();

    EXPECT_EQ(signalLog.Progress().mid(signalLog.Progress().size() - 4),
        QStringList({"0.7 |  | Checking hardware acceleration...",
            "0.8 | Downloading additional data... | ", "0.9 | Downloading additional data... | ",
            "1 | Downloading additional data... | "}));
    EXPECT_EQ(signalLog.Calls().mid(signalLog.Calls().size() - 2),
        QStringList({"ProcessStarted(DOWNLOAD_ADDITIONAL_DATA)", "InstallationFinished"}));
    EXPECT_EQ(ReadFile(installed + "first"), "first");
    EXPECT_EQ(ReadFile(installed + "a.txt"), "second");
    EXPECT_EQ(ReadFile(installed + "third"), "third");
    EXPECT_FALSE(QFile::exists(installed + "other"));
}
