#include "installer/InstallerMediator.h"

#include "base/ProductProfile.h"
#include "platform/Browser.h"
#include "platform/System.h"
#include "registry/SettingsManager.h"

#include <QDesktopServices>
#include <QUrl>

#include <map>

namespace Vorlan
{

namespace
{

const QString tailMarker = QStringLiteral("-TAIL_WITH_ARGS-");

const QStringList installerQuery = {"app=<APP>", "module=installer", "version=<VERSION>",
    "lang=<LANG>", "partner=<PARTNER>", "huid=<HASH_USER_ID>", "build_name=<BUILD_NAME>",
    "brand=<BRAND_NAME>", "utm_nooverride=1", "market=global"};

const QStringList tailQuery = {"app=<APP>", "app_ver=<VERSION>", "lang=<LANG>", "partner=<PARTNER>",
    "huid=<HASH_USER_ID>", "build_name=<BUILD_NAME>", "brand=<BRAND_NAME>", "utm_nooverride=1",
    "market=global"};

QString Join(const QStringList& query)
{
    return query.join('&');
}

QString Template(const QString& pathAndQuery, const QString& query)
{
    return QStringLiteral("https://links.") + ProductProfile::vendorDomain + pathAndQuery + query;
}

const std::map<InstallerMediator::URL, QString> urlTemplates = {
    {InstallerMediator::URL::ThanksForYourInterest,
        Template("/thanks-for-your-interest/?", Join(installerQuery))},
    {InstallerMediator::URL::UninstallPage, Template("/uninstall/?", Join(installerQuery))},
    {InstallerMediator::URL::StartPage, Template("/?asrc=start&", Join(installerQuery))},
    {InstallerMediator::URL::BuyFromUninstaller,
        Template("/buyuninstall/?asrc=uninstaller&", tailMarker)},
    {InstallerMediator::URL::PrivacyPolicy, Template("/privacy/?", Join(installerQuery))},
    {InstallerMediator::URL::Ideas,
        Template("/ideas/?asrc=uninstallerideas&", Join(installerQuery))},
};

// Salted with the product, so that the id of one machine cannot be matched across products.
QString HashedMachineId()
{
    const std::string salted = ProductProfile::applicationId.data() + (':' + Platform::MachineId());
    return QString::fromStdString(Util::SHA1(salted));
}

} // namespace

QString InstallerMediator::GetUrl(const QString& urlTemplate) const
{
    const auto setting = [this](const QString& name)
    { return productIniSettings ? productIniSettings->value(name).toString() : QString(); };
    const QString version = ProductProfile::versionMajor + QLatin1Char('-') +
                            QString(ProductProfile::versionMinor).replace('.', '-');

    // The marker comes first: what stands for it holds placeholders of its own.
    QString url = urlTemplate;
    url.replace(tailMarker, Join(tailQuery));
    url.replace("<PARTNER>", setting("PARTNER"));
    url.replace("<APP>", ProductProfile::applicationId);
    url.replace("<VERSION>", version);
    url.replace("<LANG>", settings.locale.toLower());
    url.replace("<HASH_USER_ID>", HashedMachineId());
    url.replace("<BUILD_NAME>", setting("BUILD_NAME"));
    url.replace("<BRAND_NAME>", ProductProfile::brandName);
    return Util::ReplaceUrlProtocol(url);
}

QString InstallerMediator::GetUrl(URL url) const
{
    const auto urlTemplate = urlTemplates.find(url);
    return urlTemplate == urlTemplates.end() ? QString() : GetUrl(urlTemplate->second);
}

void InstallerMediator::OpenUrl(const QString& urlTemplate) const
{
    QDesktopServices::openUrl(QUrl(GetUrl(urlTemplate), QUrl::TolerantMode));
}

void InstallerMediator::OpenUrl(URL url) const
{
    const QString address = GetUrl(url);
    if (!address.isEmpty())
        QDesktopServices::openUrl(QUrl(address, QUrl::TolerantMode));
}

QString InstallerMediator::GetWebUID() const
{
    return settingsManager->GetWebUID();
}

QString InstallerMediator::GetWebUIDFromProductKey() const
{
    return settingsManager->GetWebUIDFromProductKey();
}

QString InstallerMediator::GetWebUIDFromUserKey() const
{
    return settingsManager->GetWebUIDFromUserKey();
}

void InstallerMediator::CheckForPreferredBrowser()
{
    const auto context = [this]
    {
        const QString tag = settings.browser.isEmpty()
                                ? SettingsManager::GetBrowserFromFilename(settings.installerName)
                                : settings.browser;
        return App::PreferredBrowserContext{
            settings.locale, tag, settingsManager->GetCurrentBrowser()};
    };
    const auto browser = std::make_shared<App::PreferredBrowser>(nullptr);
    preferredBrowser = browser;
    browser->SetContextCallback(context);
    browser->Init(context());
    settings.browser = browser->Name();
    urlHandler = std::make_unique<App::URLHandler>(this, preferredBrowser);
}

} // namespace Vorlan
