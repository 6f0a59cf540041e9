#include "transfer/HttpTransfer.h"

#include "base/ProductProfile.h"
#include "network/CurlMulti.h"
#include "transfer/ProxySearch.h"

#include <algorithm>

namespace Vorlan::Networking
{

namespace
{

using Clock = std::chrono::steady_clock;

constexpr long receiveBuffer = 256L * 1024;
constexpr long long largestRedirectBody = 64LL * 1024; // it is read and dropped
constexpr long statusOk = 200;

bool IsRedirect(long status)
{
    return status >= 300 && status < 400;
}

TransferCode CodeOf(CURLcode error)
{
    switch (error)
    {
    case CURLE_OK:
        return TransferCode::Done;
    case CURLE_UNSUPPORTED_PROTOCOL:
    case CURLE_URL_MALFORMAT:
        return TransferCode::AddressRefused;
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_RESOLVE_PROXY:
        return TransferCode::HostNotFound;
    case CURLE_COULDNT_CONNECT:
        return TransferCode::ConnectionFailed;
    case CURLE_OPERATION_TIMEDOUT:
        return TransferCode::TimedOut;
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_CONNECT_ERROR:
    case CURLE_SSL_CERTPROBLEM:
    case CURLE_SSL_CACERT_BADFILE:
    case CURLE_SSL_INVALIDCERTSTATUS:
    case CURLE_SSL_ISSUER_ERROR:
        return TransferCode::NotTrusted;
    case CURLE_PARTIAL_FILE:
    case CURLE_RECV_ERROR:
    case CURLE_GOT_NOTHING:
        return TransferCode::Incomplete;
    case CURLE_HTTP_RETURNED_ERROR:
        return TransferCode::ServerRefused;
    default:
        return TransferCode::Failed;
    }
}

// One request and its answer; redirects are reported, not followed, so that each address on the way
// is checked and asked of the proxy provider like the first.
class Hop
{
public:
    Hop(const HttpRequest& asked, const QUrl& target, const std::string& proxy,
        std::chrono::milliseconds limit)
        : request(asked), multi(CurlMulti::Create())
    {
        auto created = CurlEasy::Create();
        easy = created.get();
        SetTarget(target, proxy);
        SetLimits(limit);
        SetReceiver();
        multi->Add(std::move(created));
    }

    HttpAnswer Run(const std::atomic<bool>& keepRunning)
    {
        start = Clock::now();
        CURLcode error = CURLE_OK;
        QString text;
        try
        {
            RunUntilDone(multi->Handle(), keepRunning);
        }
        catch (const CurlError& failure)
        {
            error = failure.Code();
            text = failure.what();
        }
        if (!keepRunning)
            return {TransferCode::Cancelled, "cancelled"};
        const long status = Status();
        if (IsRedirect(status))
            redirect = RedirectTarget();
        if (status != statusOk &&
            (error == CURLE_OK || error == CURLE_WRITE_ERROR || error == CURLE_HTTP_RETURNED_ERROR))
            return {TransferCode::ServerRefused,
                QString("the server answered with status %1").arg(status)};
        if (refusal != TransferCode::Done)
            return {refusal, refusalText};
        return {CodeOf(error), text};
    }

    // Where the answer sends us; empty when it does not.
    const QUrl& Redirect() const { return redirect; }

private:
    void SetTarget(const QUrl& target, const std::string& proxy)
    {
        const QByteArray address = target.toEncoded(QUrl::RemoveFragment);
        const std::string agent =
            (ProductProfile::productFullName + QString("/") + ProductProfile::versionText)
                .toStdString();
        easy->SetOption(CURLOPT_URL, address.constData());
        easy->SetOption(CURLOPT_PROTOCOLS_STR, "http,https");
        // Empty texts are none: libcurl reads neither from the environment by itself then.
        easy->SetOption(CURLOPT_PROXY, proxy.c_str());
        easy->SetOption(CURLOPT_NOPROXY, "");
        easy->SetOption(CURLOPT_SSLVERSION, static_cast<long>(CURL_SSLVERSION_TLSv1_2));
        easy->SetOption(CURLOPT_USERAGENT, agent.c_str());
        easy->SetOption(CURLOPT_SSL_VERIFYPEER, 1L);
        easy->SetOption(CURLOPT_SSL_VERIFYHOST, 2L);
        if (!request.policy.authorities.empty())
            easy->SetOption(CURLOPT_CAINFO, request.policy.authorities.c_str());
        if (request.form)
        {
            easy->SetOption(CURLOPT_POSTFIELDSIZE, static_cast<long>(request.form->size()));
            easy->SetOption(CURLOPT_COPYPOSTFIELDS, request.form->constData());
        }
    }

    void SetLimits(std::chrono::milliseconds limit)
    {
        const TransferPolicy& policy = request.policy;
        easy->SetOption(CURLOPT_NOSIGNAL, 1L);
        easy->SetOption(CURLOPT_FAILONERROR, 1L);
        easy->SetOption(CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(policy.connectLimit.count()));
        easy->SetOption(CURLOPT_LOW_SPEED_LIMIT, policy.slowestRate);
        easy->SetOption(CURLOPT_LOW_SPEED_TIME, static_cast<long>(policy.slowLimit.count()));
        easy->SetOption(CURLOPT_TIMEOUT_MS, static_cast<long>(limit.count()));
        // A system resolver that is stuck must not hold the end of a timed-out transfer up: its
        // thread is left alone, and ends when it has its answer.
        easy->SetOption(CURLOPT_QUICK_EXIT, 1L);
    }

    void SetReceiver()
    {
        easy->SetOption(CURLOPT_BUFFERSIZE, receiveBuffer);
        easy->SetOption(CURLOPT_WRITEDATA, static_cast<void*>(this));
        easy->SetOption(CURLOPT_WRITEFUNCTION, &Hop::OnData);
    }

    static std::size_t OnData(char* data, std::size_t, std::size_t size, void* hop) noexcept
    {
        auto& self = *static_cast<Hop*>(hop);
        try
        {
            return self.Take(data, size) ? size : CURL_WRITEFUNC_ERROR;
        }
        catch (const std::exception&) // of the receiver, for want of memory
        {
            self.Refuse(TransferCode::Failed, "the body could not be taken");
            return CURL_WRITEFUNC_ERROR;
        }
    }

    // libcurl's own limit of the size does not stop a body of unknown length: the bytes are
    // counted.
    bool Take(const char* data, std::size_t size)
    {
        received += static_cast<long long>(size);
        if (Status() != statusOk)
            return IsRedirect(Status()) && received <= largestRedirectBody;
        const long long declared = easy->ContentLength();
        if (std::max(received, declared) > request.policy.largestBody)
            Refuse(TransferCode::TooLarge, "more bytes than allowed");
        else if (IsLate(std::max(received, declared)))
            Refuse(TransferCode::TimedOut, "slower than allowed");
        else if (!request.receive(data, size))
            Refuse(TransferCode::NotWritable, "not written");
        if (refusal == TransferCode::Done && request.progress)
            request.progress(received, declared);
        return refusal == TransferCode::Done;
    }

    void Refuse(TransferCode code, const char* text)
    {
        refusal = code;
        refusalText = text;
    }

    // A server that sends a little just in time, again and again, would hold a transfer for ever.
    bool IsLate(long long size) const
    {
        const auto allowed =
            request.policy.startLimit + std::chrono::seconds(size / request.policy.averageRate);
        return Clock::now() - start > allowed;
    }

    long Status() const
    {
        long status = 0;
        curl_easy_getinfo(easy->Handle(), CURLINFO_RESPONSE_CODE, &status);
        return status;
    }

    QUrl RedirectTarget() const
    {
        const char* target = nullptr;
        curl_easy_getinfo(easy->Handle(), CURLINFO_REDIRECT_URL, &target);
        return QUrl(QString::fromUtf8(target));
    }

    const HttpRequest& request;
    std::unique_ptr<CurlMulti> multi;
    CurlEasy* easy = nullptr; // owned by `multi`
    long long received = 0;
    Clock::time_point start;
    TransferCode refusal = TransferCode::Done; // ours, in the middle of the body
    const char* refusalText = "";
    QUrl redirect;
};

// What is left for the next request of the overall limit; never 0, which means no limit.
std::chrono::milliseconds TimeLeft(const TransferPolicy& policy, Clock::time_point start)
{
    if (policy.overallLimit.count() == 0)
        return policy.overallLimit;
    const auto passed = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start);
    return std::max(policy.overallLimit - passed, std::chrono::milliseconds(1));
}

// What a redirect is refused for, or nothing.
QString RefusalOf(const QUrl& from, const QUrl& to)
{
    if (!IsAddressAllowed(to))
        return "redirected to " + to.toDisplayString();
    if (from.scheme() == "https" && to.scheme() == "http")
        return QStringLiteral("redirected from https to http");
    return {};
}

HttpAnswer FollowRedirects(const HttpRequest& request, const std::atomic<bool>& keepRunning)
{
    const Clock::time_point start = Clock::now();
    QUrl url = request.url;
    for (int followed = 0;; ++followed)
    {
        const ProxySearch proxy = FindProxy(url.toEncoded(QUrl::RemoveFragment).toStdString(),
            request.policy.connectLimit, keepRunning);
        if (!keepRunning)
            return {TransferCode::Cancelled, "cancelled"};
        if (!proxy.hasEnded)
            return {TransferCode::TimedOut, "the search for a proxy did not end"};
        Hop hop(request, url, proxy.address, TimeLeft(request.policy, start));
        HttpAnswer answer = hop.Run(keepRunning);
        if (hop.Redirect().isEmpty() || answer.code != TransferCode::ServerRefused)
            return answer;
        if (followed == request.policy.redirects)
            return {TransferCode::RedirectRefused,
                QString("more than %1 redirects").arg(request.policy.redirects)};
        const QString refusal = RefusalOf(url, hop.Redirect());
        if (!refusal.isEmpty())
            return {TransferCode::RedirectRefused, refusal};
        url = hop.Redirect();
    }
}

} // namespace

bool IsAddressAllowed(const QUrl& url)
{
    return url.isValid() && (url.scheme() == "http" || url.scheme() == "https") &&
           !url.host().isEmpty() && url.userInfo().isEmpty();
}

HttpAnswer Fetch(const HttpRequest& request, const std::atomic<bool>& keepRunning)
{
    if (!IsAddressAllowed(request.url))
        return {TransferCode::AddressRefused, "only http and https addresses without credentials"};
    try
    {
        return FollowRedirects(request, keepRunning);
    }
    catch (const std::exception& error)
    {
        return {TransferCode::Failed, error.what()};
    }
}

TextAnswer FetchText(HttpRequest request)
{
    TextAnswer text;
    request.receive = [&text](const char* data, std::size_t size)
    {
        text.body.append(data, static_cast<int>(size));
        return true;
    };
    const std::atomic<bool> keepRunning{true};
    text.answer = Fetch(request, keepRunning);
    return text;
}

} // namespace Vorlan::Networking
