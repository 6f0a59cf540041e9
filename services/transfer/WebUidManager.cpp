#include "platform/WebUidManager.h"

#include "base/ProductProfile.h"
#include "platform/Registry.h"
#include "transfer/HttpTransfer.h"
#include "transfer/VendorService.h"

#include <QDebug>
#include <QRegularExpression>

#include <utility>
#include <vector>

namespace Vorlan::App
{

namespace
{

constexpr long long largestAnswer = 1024; // bytes

using Form = std::vector<std::pair<std::string, std::string>>;

QByteArray Encode(const Form& form)
{
    QByteArray text;
    for (const auto& [name, value] : form)
    {
        text += text.isEmpty() ? "" : "&";
        text += QUrl::toPercentEncoding(QString::fromStdString(name)) + '=' +
                QUrl::toPercentEncoding(QString::fromStdString(value));
    }
    return text;
}

Networking::TextAnswer Post(const QString& path, const Form& form, std::chrono::milliseconds limit)
{
    Networking::HttpRequest request;
    request.url = Networking::VendorServiceUrl("identity", "VORLAN_WEBUID_URL", path);
    if (request.url.isEmpty())
        return {{Networking::TransferCode::AddressRefused, "switched off"}, {}};
    request.policy = Networking::VendorServicePolicy(limit, largestAnswer);
    request.form = Encode(form);
    Networking::TextAnswer answer = Networking::FetchText(std::move(request));
    if (answer.answer.code != Networking::TransferCode::Done)
        qInfo() << "No web user id service: " << answer.answer.text;
    return answer;
}

std::string StoredId(const std::string& key, const std::string& company, int places)
{
    const QString path =
        "Software\\" + QString::fromStdString(company) + '\\' + QString::fromStdString(key);
    const Util::RegistryHelper registry({path}, Util::RegistryHelper::AccessFlags(places));
    return registry.GetValue("WEBUID").toStdString();
}

} // namespace

WebUidManager::WebUidManager(const Parameters& given) : parameters(given) {}

std::string WebUidManager::getUserWebUid() const
{
    const std::string id =
        StoredId("User", ProductProfile::companyName.data(), Util::RegistryHelper::CurrentUser64);
    return isValidWebUid(id) ? id : std::string();
}

bool WebUidManager::isValidWebUid(const std::string& id) const
{
    static const QRegularExpression syntax("\\A[A-Za-z0-9-]{8,64}\\z");
    return syntax.match(QString::fromStdString(id)).hasMatch();
}

std::string WebUidManager::getWebUidFromRegistryKey(
    const std::string& key, const std::string& company) const
{
    return StoredId(key, company, Util::RegistryHelper::everywhere);
}

std::string WebUidManager::requestWebUid(const std::map<std::string, std::string>& request) const
{
    const auto [answer, body] =
        Post("request", Form(request.begin(), request.end()), parameters.limit);
    const std::string id = body.trimmed().toStdString();
    return answer.code == Networking::TransferCode::Done && isValidWebUid(id) ? id : std::string();
}

bool WebUidManager::concatenateWebUids(
    const std::string& id, const std::set<std::string>& others) const
{
    Form form{{"id", id}};
    for (const std::string& other : others)
    {
        if (isValidWebUid(other))
            form.emplace_back("other", other);
    }
    const bool isAnyLeft = form.size() > 1;
    if (!isAnyLeft || !isValidWebUid(id))
        return isValidWebUid(id);
    return Post("merge", form, parameters.limit).answer.code == Networking::TransferCode::Done;
}

} // namespace Vorlan::App
