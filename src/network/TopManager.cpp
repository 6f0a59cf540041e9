#include "network/TopManager.h"

#include "network/EventHandlerList.h"

namespace Vorlan
{

namespace
{

class TopManager : public App::ITopManager
{
public:
    void AddObserver(App::TApplicationContextObservers* observer) override
    {
        observers.Add(observer);
    }
    void RemoveObserver(App::TApplicationContextObservers* observer) override
    {
        observers.Remove(observer);
    }

private:
    Core::EventHandlerList<App::TApplicationContextObservers, Core::SyncExecutePolicy> observers;
};

} // namespace

App::ITopManager& GetTopManager()
{
    static TopManager instance;
    return instance;
}

} // namespace Vorlan
