#pragma once

namespace Vorlan::App
{

// The managers that an application can give the platform's components. This engine gives none.
class IApplicationSettings;
class ICustomizationManager;
class IIdleManager;
class IInstallerSettings;
class IInternetConnectionChecker;
class ILifetimeManager;
class ILaunchType;
class ILinksManager;
class ILookAndFeel;
class IMailSettings;
class IIpcProtocol;
class IPartnerTracking;
class IProductSettings;
class IUserSettings;
class IWebAccountController;
class IWebSocketMessageBroker;
class IExternalStimulusGateway;
class IHttpClient;
class IGeneralTracker;

// Hears when the application's managers change.
class TApplicationContextObservers
{
public:
    virtual ~TApplicationContextObservers() = default;
    virtual void OnContextChanged() = 0;
};

// What the platform's components see of the application.
template <typename... Managers>
class IApplicationContext
{
public:
    // Observers are not owned: they remove themselves before they go. A null one, one that is there
    // already, and the removal of one that is not there change nothing. Any thread.
    virtual void AddObserver(TApplicationContextObservers* observer) = 0;
    virtual void RemoveObserver(TApplicationContextObservers* observer) = 0;
    virtual ~IApplicationContext() = default;
};

class ITopManager
    : public IApplicationContext<IApplicationSettings, ICustomizationManager, IIdleManager,
          IInstallerSettings, IInternetConnectionChecker, ILifetimeManager, ILaunchType,
          ILinksManager, ILookAndFeel, IMailSettings, IIpcProtocol, IPartnerTracking,
          IProductSettings, IUserSettings, IWebAccountController, IWebSocketMessageBroker,
          IExternalStimulusGateway, IHttpClient, IGeneralTracker>
{
};

} // namespace Vorlan::App
