#include "installer/InstallerMediator.h"

#include "platform/Browser.h"
#include "registry/SettingsManager.h"

namespace Vorlan
{

QString InstallerMediator::GetUrl(const QString&) const
{
    return QString();
}

QString InstallerMediator::GetUrl(URL) const
{
    return QString();
}

void InstallerMediator::OpenUrl(const QString&) const {}

void InstallerMediator::OpenUrl(URL) const {}

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
