#include "platform/InternetConnection.h"

#include <mutex>
#include <optional>
#include <utility>

namespace Vorlan::App
{

namespace
{

class InternetConnectionChecker : public IInternetConnectionChecker
{
public:
    InternetConnectionChecker(std::chrono::microseconds duration, std::function<bool()> asked)
        : freshness(duration), probe(std::move(asked))
    {
    }

    bool IsConnected() override
    {
        const std::lock_guard lock(mutex);
        const auto now = std::chrono::steady_clock::now();
        if (!answer || now - answer->time >= freshness)
            answer = {probe(), now};
        return answer->isConnected;
    }

private:
    struct Answer
    {
        bool isConnected;
        std::chrono::steady_clock::time_point time;
    };

    const std::chrono::microseconds freshness;
    const std::function<bool()> probe;
    std::mutex mutex;
    std::optional<Answer> answer;
};

} // namespace

std::shared_ptr<IInternetConnectionChecker> createInternetConnectionChecker(
    std::chrono::microseconds freshness, std::function<bool()> probe)
{
    return std::make_shared<InternetConnectionChecker>(freshness, std::move(probe));
}

} // namespace Vorlan::App
