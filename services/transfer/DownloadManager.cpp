#include "platform/DownloadManager.h"

#include "transfer/DownloadFile.h"
#include "transfer/HttpTransfer.h"

#include <QDebug>

#include <utility>

namespace Vorlan::Util
{

using Networking::TransferCode;

namespace
{

constexpr int progressSteps = 100;

// A server that cannot be found or reached, from a machine that is connected to nothing.
bool IsExplainedByConnection(TransferCode code)
{
    return code == TransferCode::HostNotFound || code == TransferCode::ConnectionFailed;
}

} // namespace

DownloadManager::DownloadManager(std::shared_ptr<App::IInternetConnectionChecker> connectionChecker,
    const std::shared_ptr<App::ICustomizationManager>&, QObject* parent,
    Networking::TransferPolicy transferPolicy)
    : QObject(parent), checker(std::move(connectionChecker)), policy(std::move(transferPolicy))
{
}

DownloadManager::~DownloadManager()
{
    Stop();
}

void DownloadManager::Stop()
{
    Cancel();
    if (worker.joinable())
        worker.join();
}

void DownloadManager::Cancel()
{
    keepRunning = false;
}

void DownloadManager::Download(const QUrl& url)
{
    Stop();
    keepRunning = true;
    worker = std::thread(&DownloadManager::Run, this, url, ++current);
}

void DownloadManager::Run(const QUrl& url, int number)
{
    Outcome outcome;
    try
    {
        outcome = Fetch(url, number);
        if (checker && IsExplainedByConnection(outcome.code) && !checker->IsConnected())
            outcome = {TransferCode::Offline, "this machine has no network connection"};
    }
    catch (const std::exception& error)
    {
        outcome = {TransferCode::Failed, error.what()};
    }
    const int code = static_cast<int>(outcome.code);
    if (outcome.code == TransferCode::Done)
        PostProgress(1.0, url, number);
    else
        qWarning().noquote().nospace() << "Download of " << url.toDisplayString() << " failed with "
                                       << code << ": " << outcome.text;
    const auto file = outcome.file;
    Post(number, [=] { emit DownloadComplete(code, url, file ? file->HandOver() : QString()); });
}

DownloadManager::Outcome DownloadManager::Fetch(const QUrl& url, int number)
{
    if (!Networking::IsAddressAllowed(url))
        return {TransferCode::AddressRefused, "not an http or https address, or with credentials"};
    const auto file = std::make_shared<Networking::DownloadFile>(url.fileName(QUrl::FullyDecoded));
    if (!file->IsGood())
        return {file->Code(), file->ErrorText()};

    Networking::HttpRequest request{url, policy,
        [&file](const char* data, std::size_t size) { return file->Write(data, size); }};
    request.progress = [&, told = 0LL](long long received, long long declared) mutable
    {
        const long long step = declared > 0 ? received * progressSteps / declared : 0;
        if (step > told && step < progressSteps)
            PostProgress(static_cast<double>(told = step) / progressSteps, url, number);
    };
    const Networking::HttpAnswer answer = Networking::Fetch(request, keepRunning);
    if (answer.code == TransferCode::Done && file->Finish())
        return {TransferCode::Done, {}, file};
    if (!file->IsGood())
        return {file->Code(), file->ErrorText()};
    return {answer.code, answer.text};
}

void DownloadManager::PostProgress(double value, const QUrl& url, int number)
{
    Post(number, [=] { emit Progress(value, url); });
}

// On the object's own thread, unless another download has begun there meanwhile.
void DownloadManager::Post(int number, std::function<void()> announce)
{
    QMetaObject::invokeMethod(
        this,
        [this, number, announce = std::move(announce)]
        {
            if (number == current)
                announce();
        },
        Qt::QueuedConnection);
}

} // namespace Vorlan::Util
