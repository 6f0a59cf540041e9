#include "platform/SessionTracker.h"

#include <QUuid>

namespace Vorlan::Tracking
{

namespace
{

class RandomSession : public ISessionTracker
{
public:
    std::string GetSessionText() const override { return text; }

private:
    const std::string text = QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString();
};

} // namespace

std::shared_ptr<ISessionTracker> getSessionTrackerInstance()
{
    static const auto tracker = std::make_shared<RandomSession>();
    return tracker;
}

} // namespace Vorlan::Tracking
