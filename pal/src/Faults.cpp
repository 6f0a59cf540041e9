#include "Faults.h"

#include <Pal.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <mutex>

namespace Pal
{

struct ScopedFault::State
{
    const std::string function;
    const DWORD error;
    const unsigned callNumber;
    const Expect expect;
    unsigned calls = 0;

    bool CountCall(const char* called)
    {
        if (function != "*" && function != called)
            return false;
        ++calls;
        return calls == callNumber;
    }

    bool Fired() const { return calls >= callNumber; }
};

namespace
{

using UnusedFaultHandler = std::function<void(const std::string&)>;

[[noreturn]] void PrintAndAbort(const std::string& text)
{
    std::fprintf(stderr, "%s\n", text.c_str());
    std::abort();
}

struct FaultList
{
    std::mutex mutex;
    std::vector<ScopedFault::State*> active;
    UnusedFaultHandler unusedHandler = PrintAndAbort;
};

FaultList& Faults()
{
    static FaultList& faults =
        *new FaultList; // never destroyed: calls may come from static destructors
    return faults;
}

} // namespace

ScopedFault::ScopedFault(const char* function, DWORD error, unsigned callNumber, Expect expect)
    : state(new State{function, error, callNumber, expect})
{
    const std::lock_guard lock(Faults().mutex);
    Faults().active.push_back(state.get());
}

ScopedFault::~ScopedFault()
{
    std::unique_lock lock(Faults().mutex);
    auto& active = Faults().active;
    active.erase(std::find(active.begin(), active.end(), state.get()));
    if (state->expect == Expect::MayStayUnused || state->Fired())
        return;
    const UnusedFaultHandler handler = Faults().unusedHandler;
    lock.unlock();
    handler("The injected fault for call " + std::to_string(state->callNumber) + " of " +
            state->function + " was never used: there were " + std::to_string(state->calls) +
            " calls.");
}

bool ScopedFault::Fired() const
{
    const std::lock_guard lock(Faults().mutex);
    return state->Fired();
}

void SetUnusedFaultHandler(std::function<void(const std::string&)> handler)
{
    const std::lock_guard lock(Faults().mutex);
    Faults().unusedHandler = handler ? std::move(handler) : PrintAndAbort;
}

std::optional<DWORD> InjectedFault(const char* function)
{
    const std::lock_guard lock(Faults().mutex);
    std::optional<DWORD> error;
    for (ScopedFault::State* fault : Faults().active)
    {
        if (fault->CountCall(function))
            error = fault->error;
    }
    return error;
}

bool FaultHits(const char* function)
{
    const std::optional<DWORD> error = InjectedFault(function);
    if (error)
        SetLastError(*error);
    return error.has_value();
}

} // namespace Pal
