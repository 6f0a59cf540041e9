#include "transfer/HttpTransfer.h"

#include "base/ProductProfile.h"
#include "network/CurlMulti.h"
#include "network/TransferSetup.h"

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
    Hop(const HttpRequest& asked, const QUrl& target, std::chrono::milliseconds limit)
        : request(asked), multi(CurlMulti::Create())
    {
        auto created = CurlEasy::Create();
        easy = created.get();
        SetTarget(target);
        SetLimits(limit);
        SetReceiver();
        multi->Add(std::move(created));
    }

    HttpAnswer Run(const std::atomic<bool>& keepRunning)
    {
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
            return {refusal,
                refusal == TransferCode::TooLarge ? "more bytes than allowed" : "not written"};
        return {CodeOf(error), text};
    }

    // Where the answer sends us; empty when it does not.
    const QUrl& Redirect() const { return redirect; }

private:
    void SetTarget(const QUrl& target)
    {
        const QByteArray address = target.toEncoded(QUrl::RemoveFragment);
        const std::string proxy = ProxyProvider().getProxy(address.toStdString()).address;
        const std::string agent =
            (ProductProfile::productFullName + QString("/") + ProductProfile::versionText)
                .toStdString();
        easy->SetOption(CURLOPT_URL, address.constData());
        easy->SetOption(CURLOPT_PROTOCOLS_STR, "http,https");
        // An empty one is none: libcurl does not look into the environment by itself then.
        easy->SetOption(CURLOPT_PROXY, proxy.c_str());
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
        return static_cast<Hop*>(hop)->Take(data, size) ? size : CURL_WRITEFUNC_ERROR;
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
            refusal = TransferCode::TooLarge;
        else if (!request.receive(data, size))
            refusal = TransferCode::NotWritable;
        if (refusal == TransferCode::Done && request.progress)
            request.progress(received, declared);
        return refusal == TransferCode::Done;
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
    TransferCode refusal = TransferCode::Done; // ours, in the middle of the body
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
    const Clock::time_point start = Clock::now();
    QUrl url = request.url;
    for (int followed = 0;; ++followed)
    {
        Hop hop(request, url, TimeLeft(request.policy, start));
        HttpAnswer answer = hop.Run(keepRunning);
        if (hop.Redirect().isEmpty() || answer.code != TransferCode::ServerRefused)
            return answer;
        if (followed == request.policy.redirects)
            return {TransferCode::RedirectRefused,
                QString("more than %1 redirects").arg(request.policy.redirects)};
        url = hop.Redirect();
        if (!IsAddressAllowed(url))
            return {TransferCode::RedirectRefused, "redirected to " + url.toDisplayString()};
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
