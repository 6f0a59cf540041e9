#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <utility>

namespace Vorlan::App
{

class IProductSettingsManager;

// What the choice of a browser may look at.
struct PreferredBrowserContext
{
    QString locale;
    QString installerBrowser; // tag of the browser that the installer came through
    QString currentBrowser;   // the user's current preferred browser
};

class AbstractPreferredBrowser
{
public:
    virtual ~AbstractPreferredBrowser() = default;

    // Tag of the preferred browser, empty when there is none.
    virtual QString Name() const = 0;
};

// Names no browser of its own: it hands on the tag that the installer came with.
class PreferredBrowser : public AbstractPreferredBrowser
{
public:
    using ContextCallback = std::function<PreferredBrowserContext()>;

    explicit PreferredBrowser(std::shared_ptr<IProductSettingsManager> settingsManager)
        : productSettings(std::move(settingsManager))
    {
    }

    // For a fresh context after Init.
    void SetContextCallback(ContextCallback newCallback) { callback = std::move(newCallback); }
    void Init(const PreferredBrowserContext& context) { name = context.installerBrowser; }
    QString Name() const override { return name; }

private:
    std::shared_ptr<IProductSettingsManager> productSettings;
    ContextCallback callback;
    QString name;
};

// Keeps the preferred browser at hand while links may be opened; links go to the system's browser.
class URLHandler : public QObject
{
public:
    URLHandler(QObject* parent, std::shared_ptr<AbstractPreferredBrowser> preferredBrowser)
        : QObject(parent), browser(std::move(preferredBrowser))
    {
    }

private:
    std::shared_ptr<AbstractPreferredBrowser> browser;
};

} // namespace Vorlan::App
