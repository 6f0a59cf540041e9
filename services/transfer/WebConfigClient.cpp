#include "platform/WebConfig.h"

#include "base/ProductProfile.h"
#include "platform/System.h"
#include "transfer/HttpTransfer.h"
#include "transfer/VendorService.h"

#include <QDebug>
#include <QDir>
#include <QJsonDocument>
#include <QSaveFile>
#include <QUrlQuery>

namespace Vorlan::App::WebConfig
{

using Networking::TransferCode;

namespace
{

constexpr std::chrono::milliseconds overallLimit{5000};
constexpr long long largestConfig = 1 << 20; // bytes

QUrl RequestUrl(const Context& context)
{
    QUrl url = Networking::VendorServiceUrl("config", "VORLAN_CONFIG_URL", "installer");
    const auto encoded = [](const std::string& text)
    { return QString(QUrl::toPercentEncoding(QString::fromStdString(text))); };
    QUrlQuery query{{"app", ProductProfile::applicationId},
        {"version", ProductProfile::versionText}, {"session", encoded(context.session)}};
    if (!context.parameter.empty())
        query.addQueryItem("parameter", encoded(context.parameter));
    if (context.isPreview)
        query.addQueryItem("preview", "1");
    if (!url.isEmpty())
        url.setQuery(query);
    return url;
}

ExitCode CodeOf(TransferCode code)
{
    switch (code)
    {
    case TransferCode::Done:
        return ExitCode::Received;
    case TransferCode::HostNotFound:
    case TransferCode::ConnectionFailed:
    case TransferCode::Offline:
        return ExitCode::Offline;
    case TransferCode::TimedOut:
        return ExitCode::TimedOut;
    case TransferCode::NotTrusted:
        return ExitCode::NotTrusted;
    case TransferCode::ServerRefused:
    case TransferCode::RedirectRefused:
        return ExitCode::ServerRefused;
    case TransferCode::TooLarge:
        return ExitCode::Malformed;
    default:
        return ExitCode::Failed;
    }
}

bool Store(const QByteArray& config)
{
    QSaveFile file(ReceivedConfigPath());
    return QDir().mkpath(Platform::LogFolder()) && file.open(QIODevice::WriteOnly) &&
           file.write(config) == config.size() && file.commit();
}

} // namespace

QString ReceivedConfigPath()
{
    return Platform::LogFolder() + QDir::separator() + "web-config.json";
}

ExitCode RequestWebConfig(const Context& context)
{
    Networking::HttpRequest request;
    request.url = RequestUrl(context);
    if (request.url.isEmpty())
        return ExitCode::SwitchedOff;
    request.policy = Networking::VendorServicePolicy(
        context.limit.count() == 0 ? overallLimit : context.limit, largestConfig);

    const auto [answer, body] = Networking::FetchText(std::move(request));
    if (answer.code != TransferCode::Done)
    {
        const ExitCode code = CodeOf(answer.code);
        if (code == ExitCode::Failed) // every other code names the cause
            qWarning() << "Web config failed: " << answer.text;
        return code;
    }
    if (!QJsonDocument::fromJson(body).isObject())
        return ExitCode::Malformed;
    return Store(body) ? ExitCode::Received : ExitCode::NotStored;
}

} // namespace Vorlan::App::WebConfig
