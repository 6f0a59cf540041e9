#pragma once

#include "platform/InternetConnection.h"
#include "platform/Transfer.h"

#include <QObject>
#include <QString>
#include <QUrl>

#include <atomic>
#include <memory>
#include <thread>

namespace Vorlan
{

namespace Networking
{
class DownloadFile;
}

namespace App
{

// The platform's settings of a customised product; this engine has none to give.
class ICustomizationManager
{
public:
    virtual ~ICustomizationManager() = default;
};

} // namespace App

namespace Util
{

// Downloads files over http and https, one after another, on a thread of its own. A file lies in a
// new folder below the system's temporary folder, under the last part of its address ("download"
// where Windows could not hold a file of that name). It gets its name when it is whole; until then
// it has ".part" behind it, and a failed download leaves nothing. The receiver of
// DownloadComplete owns the file.
//
// An object belongs to the thread that made it, which needs an event loop: all signals arrive
// there.
class DownloadManager : public QObject
{
    Q_OBJECT

public:
    // The checker, which may be empty, names the cause after a failure; it never forbids a
    // transfer.
    DownloadManager(std::shared_ptr<App::IInternetConnectionChecker> connectionChecker,
        const std::shared_ptr<App::ICustomizationManager>& customization, QObject* parent = nullptr,
        Networking::TransferPolicy transferPolicy = {});

    // Ends a download in progress without a further signal.
    ~DownloadManager() override;

    // Starts a download; DownloadComplete reports its end, never before this returns. A download
    // that is still in progress is cancelled first, without a further signal.
    void Download(const QUrl& url);

    // Lets a download in progress end as Cancelled.
    void Cancel();

signals:
    // From 0.0 to 1.0, in steps of a hundredth and only where the server declared the length. A
    // successful download ends with 1.0.
    void Progress(double value, const QUrl& url);

    // `code` is a Networking::TransferCode: 0 where `path` is the whole file, and else the cause,
    // with an empty path.
    void DownloadComplete(int code, const QUrl& url, const QString& path);

private:
    struct Outcome
    {
        Networking::TransferCode code;
        QString text; // why it failed
        std::shared_ptr<Networking::DownloadFile> file{};
    };

    void Stop();
    void Run(const QUrl& url, int number);
    Outcome Fetch(const QUrl& url, int number);
    void PostProgress(double value, const QUrl& url, int number);
    void Post(int number, std::function<void()> announce);

    const std::shared_ptr<App::IInternetConnectionChecker> checker;
    const Networking::TransferPolicy policy;
    std::atomic<bool> keepRunning{false};
    int current = 0; // number of the latest download
    std::thread worker;
};

} // namespace Util

} // namespace Vorlan
