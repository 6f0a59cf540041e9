#include "platform/DownloadManager.h"

#include "support/Environment.h"
#include "support/Machine.h"
#include "support/TestServers.h"

#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QRegularExpression>
#include <QThread>

#include <gtest/gtest.h>

using namespace Vorlan;
using namespace std::chrono_literals;
using Networking::TransferCode;
using Networking::TransferPolicy;
using TestServers::Address;

namespace
{

const QString http = "http";

// Limits that no test has to wait for.
TransferPolicy Impatient()
{
    TransferPolicy policy;
    policy.connectLimit = 1s;
    policy.slowLimit = 1s;
    policy.largestBody = 3'000'000;
    policy.startLimit = 6s;
    policy.averageRate = 100'000'000;
    return policy;
}

struct Download
{
    TransferCode code{};
    QString path;
    QVector<double> progress;
    bool isOnOwnThread = true;
};

// Downloads and waits for the end.
Download Fetch(
    const QUrl& url, const TransferPolicy& policy = Impatient(), bool isConnected = true,
    const std::function<void(Util::DownloadManager&)>& atProgress = [](auto&) {})
{
    Util::DownloadManager manager(
        App::createInternetConnectionChecker(1h, [=] { return isConnected; }), nullptr, nullptr,
        policy);
    Download download;
    QEventLoop loop;
    const QThread* const thread = QThread::currentThread();
    QObject::connect(
        &manager, &Util::DownloadManager::Progress, &manager,
        [&](double value, const QUrl& source)
        {
            EXPECT_EQ(source, url);
            download.isOnOwnThread &= QThread::currentThread() == thread;
            download.progress += value;
            atProgress(manager);
        },
        Qt::DirectConnection);
    QObject::connect(
        &manager, &Util::DownloadManager::DownloadComplete, &manager,
        [&](int code, const QUrl& source, const QString& path)
        {
            EXPECT_EQ(source, url);
            download.isOnOwnThread &= QThread::currentThread() == thread;
            download.code = static_cast<TransferCode>(code);
            download.path = path;
            loop.quit();
        },
        Qt::DirectConnection);
    manager.Download(url);
    loop.exec();
    return download;
}

// Makes a folder the system's temporary folder for as long as it lives.
struct TemporaryFolder
{
    explicit TemporaryFolder(const QString& folder)
        : unixName("TMPDIR", folder), name("TMP", folder), otherName("TEMP", folder)
    {
    }
    Environment unixName;
    Environment name;
    Environment otherName;
};

class DownloadManagerTest : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(QDir().mkpath(folder)); }

    Machine machine;
    const QString folder = machine.Path("temporary");
    const TemporaryFolder temporary{folder};
};

struct Failure
{
    const char* name;
    QString server;
    QString path;
    TransferCode code;
};

void PrintTo(const Failure& failure, std::ostream* stream)
{
    *stream << failure.name;
}

class FailedDownloadTest : public DownloadManagerTest, public testing::WithParamInterface<Failure>
{
};

} // namespace

TEST_F(DownloadManagerTest, WholeFileIsThereUnderTheNameOfItsAddress)
{
    const Download download = Fetch(Address(http, "/file/data 1.bin?size=2000000"));
    ASSERT_EQ(download.code, TransferCode::Done);
    EXPECT_EQ(QFileInfo(download.path).fileName(), "data 1.bin");
    EXPECT_EQ(ListTree(folder).size(), 2) << ListTree(folder).join(' ').toStdString();
    const QByteArray content = ReadFile(download.path);
    ASSERT_EQ(content.size(), 2'000'000);
    for (int i = 0; i < content.size(); i += 997)
        ASSERT_EQ(static_cast<uchar>(content[i]), i % 256);

    EXPECT_TRUE(download.isOnOwnThread);
    ASSERT_GT(download.progress.size(), 1);
    EXPECT_LE(download.progress.size(), 100);
    EXPECT_TRUE(std::is_sorted(download.progress.begin(), download.progress.end()));
    EXPECT_GT(download.progress.first(), 0.0);
    EXPECT_EQ(download.progress.last(), 1.0);
    EXPECT_EQ(download.progress.count(1.0), 1);
}

TEST_F(DownloadManagerTest, BodiesOfEveryHonestKindArrive)
{
    const QList<std::pair<QString, int>> sizes = {
        {"/file?size=0", 0},
        {"/undeclared", 1000}, // ends with its connection: nothing tells it from a shorter one
        {"/longer", 1000},     // what goes beyond the declared length belongs to no answer
        {"/redirect?count=5", 5},
    };
    for (const auto& [path, size] : sizes)
    {
        const Download download = Fetch(Address(http, path));
        EXPECT_EQ(download.code, TransferCode::Done) << path.toStdString();
        EXPECT_EQ(ReadFile(download.path).size(), size) << path.toStdString();
        EXPECT_EQ(download.progress, QVector<double>({1.0})) << path.toStdString();
    }
    EXPECT_EQ(ReadFile(Fetch(Address("ipv6", "/text?text=six")).path), "six");
    EXPECT_EQ(ReadFile(Fetch(Address(http, "/text?text=a b+\u00E9")).path), "a b \u00E9");
}

TEST_F(DownloadManagerTest, NameThatNoFileMayBearIsReplaced)
{
    for (const char* name : {"/text/..%5Cevil", "/text/nul", "/text/"})
    {
        const Download download = Fetch(Address(http, name));
        EXPECT_EQ(QFileInfo(download.path).fileName(), "download") << name;
    }
}

TEST_P(FailedDownloadTest, IsToldByItsCodeAndLeavesNothing)
{
    const Download download = Fetch(Address(GetParam().server, GetParam().path));
    EXPECT_EQ(download.code, GetParam().code);
    EXPECT_EQ(download.path, "");
    EXPECT_EQ(download.progress.count(1.0), 0);
    EXPECT_EQ(ListTree(folder), QStringList());
    EXPECT_EQ(machine.Log().filter("Download of ").size(), 1);
}

INSTANTIATE_TEST_SUITE_P(Servers, FailedDownloadTest,
    testing::Values(Failure{"missing", "http", "/nothing", TransferCode::ServerRefused},
        Failure{"broken", "http", "/status?code=500&text=oh", TransferCode::ServerRefused},
        Failure{"nocontent", "http", "/status?code=204", TransferCode::ServerRefused},
        Failure{"partial", "http", "/status?code=206&text=ab", TransferCode::ServerRefused},
        Failure{"stalled", "http", "/stall", TransferCode::TimedOut},
        Failure{"slowheader", "http", "/slow-header", TransferCode::TimedOut},
        Failure{"drip", "http", "/drip", TransferCode::TimedOut},
        Failure{"half", "http", "/half", TransferCode::Incomplete},
        Failure{"cutchunk", "http", "/chunk-cut", TransferCode::Incomplete},
        Failure{"endless", "http", "/endless", TransferCode::TooLarge},
        Failure{"large", "http", "/file?size=3000001", TransferCode::TooLarge},
        Failure{"tofile", "http", "/redirect?to=file:///etc/passwd", TransferCode::RedirectRefused},
        Failure{"touser", "http", "/redirect?to=http://a:b@c/", TransferCode::RedirectRefused},
        Failure{"six", "http", "/redirect?count=6", TransferCode::RedirectRefused},
        Failure{"loop", "http", "/loop", TransferCode::RedirectRefused},
        Failure{"silent", "silent", "/", TransferCode::TimedOut},
        Failure{"closed", "closed", "/", TransferCode::ConnectionFailed}),
    [](const auto& failure) { return failure.param.name; });

TEST_F(DownloadManagerTest, OtherAddressesAreRefusedBeforeAnyTransfer)
{
    const QString good = Address(http, "/text");
    for (const QString& address :
        {QString(), QString("no scheme"), QString("//host/x"), QString("http:///x"),
            QString("file:///etc/passwd"), QString("ftp://host/x"), QString("javascript:alert(1)"),
            QString("http://host:99999/"), QString(good).replace("://", "://user:secret@")})
    {
        EXPECT_EQ(Fetch(address).code, TransferCode::AddressRefused) << address.toStdString();
    }
    EXPECT_EQ(machine.Log().filter("secret"), QStringList());
}

TEST_F(DownloadManagerTest, CheckerNamesTheCauseAndForbidsNothing)
{
    EXPECT_EQ(Fetch(Address("closed"), Impatient(), false).code, TransferCode::Offline);
    EXPECT_EQ(
        Fetch(Address(http, "/nothing"), Impatient(), false).code, TransferCode::ServerRefused);
    EXPECT_EQ(Fetch(Address(http, "/text"), Impatient(), false).code, TransferCode::Done);
}

TEST_F(DownloadManagerTest, CancelledDownloadSaysSo)
{
    TransferPolicy patient;
    const Download download = Fetch(Address(http, "/stall"), patient, true,
        [](Util::DownloadManager& manager) { manager.Cancel(); });
    EXPECT_EQ(download.code, TransferCode::Cancelled);
    EXPECT_EQ(ListTree(folder), QStringList());
}

TEST_F(DownloadManagerTest, EndsQuietlyInTheMiddleOfADownload)
{
    Util::DownloadManager manager(nullptr, nullptr);
    manager.Download(Address(http, "/stall"));
    QEventLoop loop;
    QVector<int> codes;
    QObject::connect(&manager, &Util::DownloadManager::DownloadComplete, &manager,
        [&](int code) { codes += code, loop.quit(); });
    manager.Download(Address(http, "/text"));
    loop.exec();
    EXPECT_EQ(codes, QVector<int>({0}));
    manager.Download(Address(http, "/stall")); // and is destroyed meanwhile
}

TEST_F(DownloadManagerTest, FileThatNobodyIsToldOfGoes)
{
    {
        Util::DownloadManager manager(nullptr, nullptr);
        manager.Download(Address(http, "/text/whole.txt"));
        while (ListTree(folder).filter(QRegularExpression("whole\\.txt$")).isEmpty())
            std::this_thread::yield();
    }
    EXPECT_EQ(ListTree(folder), QStringList());
}

TEST_F(DownloadManagerTest, FolderThatTakesNoFileIsToldOf)
{
    WriteFile(machine.Path("file"), "in the way");
    const TemporaryFolder unusable(machine.Path("file"));
    EXPECT_EQ(Fetch(Address(http, "/text")).code, TransferCode::NotWritable);
}

TEST(InternetConnectionChecker, AsksAgainWhenTheAnswerIsNoLongerFresh)
{
    int asked = 0;
    const auto probe = [&] { return ++asked == 1; };
    const auto lasting = App::createInternetConnectionChecker(1h, probe);
    EXPECT_TRUE(lasting->IsConnected());
    EXPECT_TRUE(lasting->IsConnected());
    const auto fleeting = App::createInternetConnectionChecker(0h, probe);
    EXPECT_FALSE(fleeting->IsConnected());
    EXPECT_FALSE(fleeting->IsConnected());
    EXPECT_EQ(asked, 3);
}
