#include "platform/Proxy.h"

#include "platform/Path.h"

#include <QRegularExpression>
#include <QStringList>
#include <QUrl>

#include <windows.h>

#include <winhttp.h>

#include <optional>

namespace Vorlan::Networking
{

namespace
{

// A text that WinHTTP hands out: taken over and freed.
QString TakeText(LPWSTR text)
{
    const QString taken = text ? Platform::TextFromWide(text) : QString();
    GlobalFree(text);
    return taken;
}

// Proxies and the hosts that are reached without one, as Windows writes them:
// "http=a:3128;https=b:3128" or "a:3128", and "*.intern;<local>".
struct ProxyLists
{
    QString proxies;
    QString bypass;
};

struct UserConfiguration
{
    bool detects;
    QString scriptUrl;
    ProxyLists lists;
};

UserConfiguration ReadUserConfiguration()
{
    WINHTTP_CURRENT_USER_IE_PROXY_CONFIG config = {};
    if (!WinHttpGetIEProxyConfigForCurrentUser(&config))
        return {};
    return {config.fAutoDetect != FALSE, TakeText(config.lpszAutoConfigUrl),
        {TakeText(config.lpszProxy), TakeText(config.lpszProxyBypass)}};
}

// The proxies that the configuration script, given or found in the network, returns for the URL;
// empty lists for a direct connection, nothing where no script answers.
std::optional<ProxyLists> AskScript(const UserConfiguration& user, const QUrl& url)
{
    const HINTERNET session =
        WinHttpOpen(nullptr, WINHTTP_ACCESS_TYPE_NO_PROXY, nullptr, nullptr, 0);
    const std::wstring script = Platform::WideFromText(user.scriptUrl);
    const std::wstring target = Platform::WideFromText(url.toString(QUrl::FullyEncoded));
    WINHTTP_AUTOPROXY_OPTIONS options = {};
    options.fAutoLogonIfChallenged = FALSE; // the user's credentials are for nobody here
    if (script.empty())
    {
        options.dwFlags = WINHTTP_AUTOPROXY_AUTO_DETECT;
        options.dwAutoDetectFlags = WINHTTP_AUTO_DETECT_TYPE_DHCP | WINHTTP_AUTO_DETECT_TYPE_DNS_A;
    }
    else
    {
        options.dwFlags = WINHTTP_AUTOPROXY_CONFIG_URL;
        options.lpszAutoConfigUrl = script.c_str();
    }
    WINHTTP_PROXY_INFO info = {};
    const bool hasAnswered =
        WinHttpGetProxyForUrl(session, target.c_str(), &options, &info) != FALSE;
    WinHttpCloseHandle(session);
    const ProxyLists lists{TakeText(info.lpszProxy), TakeText(info.lpszProxyBypass)};
    return hasAnswered ? std::optional(lists) : std::nullopt;
}

QStringList Entries(const QString& list)
{
    static const QRegularExpression separators("[;\\s]+");
    return list.split(separators, Qt::SkipEmptyParts);
}

bool IsReachedDirectly(const QString& host, const QString& bypass)
{
    const QStringList entries = Entries(bypass);
    return std::any_of(entries.begin(), entries.end(),
        [&](const QString& entry)
        {
            if (entry == "<local>")
                return !host.contains('.');
            const QString pattern = QRegularExpression::wildcardToRegularExpression(entry);
            return QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption)
                .match(host)
                .hasMatch();
        });
}

// The first entry for the scheme, or for all schemes.
QString ProxyForScheme(const QString& proxies, const QString& scheme)
{
    for (const QString& entry : Entries(proxies))
    {
        const int equals = entry.indexOf('=');
        if (equals < 0 || entry.left(equals).compare(scheme, Qt::CaseInsensitive) == 0)
            return entry.mid(equals + 1);
    }
    return QString();
}

} // namespace

IProxyProvider::Proxy NativeProxyProvider::getProxy(const std::string& url)
{
    const QUrl target(QString::fromStdString(url));
    const UserConfiguration user = ReadUserConfiguration();
    const bool hasScript = user.detects || !user.scriptUrl.isEmpty();
    const ProxyLists lists =
        (hasScript ? AskScript(user, target) : std::nullopt).value_or(user.lists);
    if (IsReachedDirectly(target.host(), lists.bypass))
        return {};
    const QString address = ProxyForScheme(lists.proxies, target.scheme());
    return {address.isEmpty() || address.contains("://") ? address.toStdString()
                                                         : "http://" + address.toStdString()};
}

} // namespace Vorlan::Networking
