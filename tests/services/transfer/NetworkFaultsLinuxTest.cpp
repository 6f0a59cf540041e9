// What libcurl and the system are made to fail with: their functions are replaced in this program.
#include "network/CurlMulti.h"
#include "platform/DownloadManager.h"
#include "platform/WebUidManager.h"
#include "support/Environment.h"
#include "support/Machine.h"
#include "support/MediatorAccess.h"
#include "support/SignalLog.h"
#include "support/TestServers.h"
#include "transfer/HttpTransfer.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <dlfcn.h>
#include <netdb.h>
#include <sys/statvfs.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <future>

using namespace Vorlan;
using namespace Vorlan::Networking;
using namespace std::chrono_literals;
using TestServers::Address;

namespace
{

std::string failing; // the function that fails, everywhere
long initialisedWith = -1;
int initialisations = 0;
std::shared_future<void> resolverMayAnswer;

template <typename Function>
Function* Real(Function*, const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

class Failing
{
public:
    explicit Failing(const char* function) { failing = function; }
    ~Failing() { failing.clear(); }
    Failing(const Failing&) = delete;
    Failing& operator=(const Failing&) = delete;
};

} // namespace

#pragma GCC visibility push(default) // seen by the libraries, too
extern "C"
{

    CURLcode curl_global_init(long flags)
    {
        ++initialisations;
        initialisedWith = flags;
        return Real(&curl_global_init, "curl_global_init")(flags);
    }

    CURL* curl_easy_init()
    {
        return failing == "curl_easy_init" ? nullptr : Real(&curl_easy_init, "curl_easy_init")();
    }

    CURLM* curl_multi_init()
    {
        return failing == "curl_multi_init" ? nullptr : Real(&curl_multi_init, "curl_multi_init")();
    }

    CURLMcode curl_multi_perform(CURLM* multi, int* running)
    {
        return failing == "curl_multi_perform"
                   ? CURLM_INTERNAL_ERROR
                   : Real(&curl_multi_perform, "curl_multi_perform")(multi, running);
    }

    CURLMcode curl_multi_poll(
        CURLM* multi, curl_waitfd* extra, unsigned count, int timeout, int* ready)
    {
        if (failing != "curl_multi_poll") // libcurl calls it too
            return Real(&curl_multi_poll, "curl_multi_poll")(multi, extra, count, timeout, ready);
        EXPECT_EQ(timeout, 100);
        return CURLM_OUT_OF_MEMORY;
    }

    int getaddrinfo(const char* node, const char* service, const addrinfo* hints, addrinfo** found)
    {
        if (node && std::string(node) == "stuck.example")
        {
            resolverMayAnswer.wait();
            return EAI_FAIL;
        }
        return Real(&getaddrinfo, "getaddrinfo")(node, service, hints, found);
    }

    ssize_t write(int file, const void* data, size_t size)
    {
        const QString path = failing == "write"
                                 ? QFile::symLinkTarget("/proc/self/fd/" + QString::number(file))
                                 : QString();
        if (!path.endsWith(".part"))
            return syscall(SYS_write, file, data, size);
        errno = ENOSPC;
        return -1;
    }

    int statvfs64(const char* path, struct statvfs64* volume)
    {
        const int result = Real(&statvfs64, "statvfs64")(path, volume);
        if (failing == "write")
            volume->f_bavail = 0;
        return result;
    }

} // extern "C"
#pragma GCC visibility pop

namespace
{

class NetworkFaults : public testing::Test
{
protected:
    static std::string ErrorOf(const std::function<void()>& operation)
    {
        try
        {
            operation();
        }
        catch (const std::runtime_error& error)
        {
            return error.what();
        }
        return "no error";
    }

    Machine machine;
    const std::atomic<bool> keepRunning{true};
};

// The most memory that this process has had, in KiB.
long PeakMemory()
{
    const QStringList lines = QString(ReadFile("/proc/self/status")).split('\n');
    return lines.filter("VmHWM").value(0).section(QRegularExpression("\\s+"), 1, 1).toLong();
}

} // namespace

TEST_F(NetworkFaults, LibcurlIsInitialisedOnceBeforeAnythingRuns)
{
    EXPECT_EQ(initialisations, 1);
    EXPECT_EQ(initialisedWith, 3);
    CurlMulti::Create()->Add(CurlEasy::Create());
    EXPECT_EQ(initialisations, 1);
}

TEST_F(NetworkFaults, EveryFailureHasItsText)
{
    const auto multi = CurlMulti::Create();
    auto easy = CurlEasy::Create();
    const std::string url = Address("http", "/stall").toStdString();
    easy->SetOption(CURLOPT_URL, url.c_str());
    easy->SetOption(CURLOPT_PROXY, "");
    multi->Add(std::move(easy));
    const auto run = [&] { RunUntilDone(multi->Handle(), keepRunning); };
    const std::pair<const char*, std::pair<std::function<void()>, const char*>> failures[] = {
        {"curl_easy_init", {[] { CurlEasy::Create(); }, "Failed creating CURL easy object"}},
        {"curl_multi_init", {[] { CurlMulti::Create(); }, "Failed creating CURL multi object"}},
        {"curl_multi_perform", {run, "cURL multi perform failed: Internal error"}},
        {"curl_multi_poll", {run, "cURL multi poll failed: Out of memory"}},
    };
    for (const auto& [function, failure] : failures)
    {
        const Failing fault(function);
        EXPECT_EQ(ErrorOf(failure.first), failure.second);
    }
}

TEST_F(NetworkFaults, TransfersThatCannotBeSetUpEndTheirStepAndNotTheRun)
{
    const QString name = "setup.exe";
    InstallerMediator mediator({name, false, true, QSettings::UserScope, false});
    MediatorAccess access{mediator};
    access.OpenArchive(Payload("small.7z"));
    access.Settings().installDir = machine.Path("Vorlan Quillax/");
    SignalLog signalLog(mediator);
    const Environment asked("VORLAN_CONFIG_URL", Address("http", "/echo"));
    const Environment alsoAsked("VORLAN_WEBUID_URL", Address("http", "/identity"));
    for (const char* function : {"curl_easy_init", "curl_multi_init", "curl_multi_perform"})
    {
        const Failing fault(function);
        EXPECT_EQ(App::WebUidManager({}).requestWebUid({{"app", "quillax"}}), "") << function;
        mediator.StartInstallation();
        signalLog.WaitForEnd();
        EXPECT_EQ(signalLog.Calls().last(), "InstallationFinished") << function;
    }
    EXPECT_EQ(signalLog.Count("WebConfigLoaderFinished(1)"), 3);
    EXPECT_EQ(machine.Log().filter("Web config failed: ").size(), 3);
}

TEST_F(NetworkFaults, BodyThatCannotBeTakenIsAFailure)
{
    HttpRequest request;
    request.url = Address("http", "/text?text=body");
    request.receive = [](const char*, std::size_t) -> bool { throw std::bad_alloc(); };
    EXPECT_EQ(Fetch(request, keepRunning).code, TransferCode::Failed);
}

TEST_F(NetworkFaults, FullDiskEndsTheDownloadAndLeavesNothing)
{
    const QString folder = machine.Path("temporary");
    ASSERT_TRUE(QDir().mkpath(folder));
    const Environment temporary("TMPDIR", folder);
    Util::DownloadManager manager(nullptr, nullptr);
    QEventLoop loop;
    int result = 0;
    QObject::connect(&manager, &Util::DownloadManager::DownloadComplete, &manager,
        [&](int code) { result = code, loop.quit(); });
    const Failing fault("write");
    manager.Download(Address("http", "/file/a.bin?size=100000"));
    loop.exec();
    EXPECT_EQ(result, static_cast<int>(TransferCode::DiskFull));
    EXPECT_EQ(ListTree(folder), QStringList());
    EXPECT_EQ(machine.Log().filter("a.bin.part: the disk is full").size(), 1);
}

TEST_F(NetworkFaults, StuckResolverDoesNotOutlastTheLimit)
{
    std::promise<void> answer;
    resolverMayAnswer = answer.get_future().share();
    HttpRequest request;
    request.url = QUrl("http://stuck.example/");
    request.policy.overallLimit = 200ms;
    EXPECT_EQ(FetchText(request).answer.code, TransferCode::TimedOut); // or never comes back
    answer.set_value();
}

TEST_F(NetworkFaults, LargeBodyTakesNoMemory)
{
    constexpr long long size = 1 << 30;
    HttpRequest request;
    request.url = Address("http", "/file?size=" + QString::number(size));
    long long received = 0;
    request.receive = [&](const char*, std::size_t piece)
    {
        received += static_cast<long long>(piece);
        return true;
    };
    const long before = PeakMemory();
    ASSERT_GT(before, 0);
    EXPECT_EQ(Fetch(request, keepRunning).code, TransferCode::Done);
    EXPECT_EQ(received, size);
    EXPECT_LT(PeakMemory() - before, 16 * 1024);
}

TEST_F(NetworkFaults, ProxyOfTheEnvironmentIsAskedForEachAddressOnTheWay)
{
    const Environment proxy("http_proxy", Address("proxy"));
    const Environment direct("no_proxy", "127.0.0.1");
    const auto bodyOf = [](const QString& address)
    {
        HttpRequest request;
        request.url = address;
        return FetchText(request).body;
    };
    EXPECT_EQ(bodyOf("http://far.example/x"), "through the proxy: http://far.example/x");
    EXPECT_EQ(bodyOf(Address("http", "/text?text=direct")), "direct");
    EXPECT_EQ(bodyOf(Address("http", "/redirect?to=http://far.example/y")),
        "through the proxy: http://far.example/y");
    // The second form is one that only libcurl knows; it must not look at the list again.
    for (const char* list : {"", "127.0.0.0/8"})
    {
        const Environment others("no_proxy", list);
        EXPECT_EQ(bodyOf("http://127.0.0.1:1/z"), "through the proxy: http://127.0.0.1:1/z");
    }
}
