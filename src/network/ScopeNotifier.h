#pragma once

#include <functional>
#include <utility>

namespace Vorlan
{

// Announces a stretch of work: calls one function when it is constructed and the other when it
// goes, also through an exception. The second one must not throw; it is not called when the first
// one did.
class ScopeNotifier
{
public:
    ScopeNotifier(std::function<void()> enterFunction, std::function<void()> exitFunction)
        : enter(std::move(enterFunction)), exit(std::move(exitFunction))
    {
        enter();
        entered = true;
    }
    ~ScopeNotifier()
    {
        if (entered)
            exit();
    }
    ScopeNotifier(const ScopeNotifier&) = delete;
    ScopeNotifier& operator=(const ScopeNotifier&) = delete;

private:
    bool entered = false;
    std::function<void()> enter;
    std::function<void()> exit;
};

} // namespace Vorlan
