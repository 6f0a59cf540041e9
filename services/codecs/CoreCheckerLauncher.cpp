#include "platform/CoreChecker.h"

#include "codecs/BoundedProcess.h"
#include "codecs/KnownBroken.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <atomic>
#include <future>
#include <mutex>
#include <thread>

namespace Vorlan::Core::Utils
{

namespace
{

using std::chrono::milliseconds;

constexpr std::chrono::seconds defaultLimit{20};
constexpr std::chrono::seconds maxLimit = std::chrono::hours(24);
constexpr int sharesOfLimit = 4;           // a single probe gets one of them
constexpr milliseconds longestGrace{1000}; // for a probe that was killed to end
constexpr std::size_t maxOutput = 4096;    // bytes; an answer is one line
constexpr char notTried[] = "not tried";
constexpr char knownBroken[] = "known broken";
constexpr char leftBehind[] = "cannot be ended";

// The parts of the probe's one line, or no match.
QRegularExpressionMatch ReadAnswer(const std::string& output)
{
    static const QRegularExpression pattern(
        "\\A((usable|unusable|not present)(: [\\x20-\\x7e]{1,200})?)\\r?\\n?\\z");
    return pattern.match(QString::fromLatin1(output.data(), static_cast<int>(output.size())));
}

} // namespace

QString CoreCheckerLauncher::DefaultProbe()
{
    return QCoreApplication::applicationDirPath() + "/corechecker.exe";
}

CoreCheckerLauncher::CoreCheckerLauncher(const QString& probeProgram)
    : probe(probeProgram), limit(defaultLimit)
{
}

void CoreCheckerLauncher::SetCheckCoreTimeout(std::chrono::seconds newLimit)
{
    limit = newLimit.count() <= 0 ? defaultLimit : std::min(newLimit, maxLimit);
}

void CoreCheckerLauncher::SetVerifiableCodecImpls(const std::vector<std::string>& names)
{
    impls = names;
}

void CoreCheckerLauncher::SetVerifiableCodecs(const std::vector<std::string>& names)
{
    codecs = names;
}

void CoreCheckerLauncher::SetBrokenPluginsPath(const ioPath& path)
{
    brokenPluginsPath = path;
}

void CoreCheckerLauncher::SetBrokenCodecsPath(const ioPath& path)
{
    brokenCodecsPath = path;
}

void CoreCheckerLauncher::StartCheck(CheckType type)
{
    const Clock::time_point start = Clock::now();
    statistics.clear();
    errorInfo.clear();
    brokenPlugins.clear();
    brokenCodecs.clear();
    const KnownBroken known(
        brokenCodecsPath, brokenPluginsPath, [this](const std::string& text) { AddError(text); });
    MakePairs(known.Codecs(), known.Plugins());
    const bool hasProbe = QFileInfo(probe).isFile();
    if (hasProbe)
        TryPairs(start + limit - Grace());
    else
        AddError("There is no probe program " + probe.toStdString() + ": nothing was checked");
    CollectBroken(type);
    if (hasProbe)
        CollectStatistics(Clock::now() - start);
    known.Add(brokenCodecs, brokenPlugins);
}

const std::map<std::string, std::map<std::string, std::string>>&
CoreCheckerLauncher::GetStatisticInfo() const
{
    return statistics;
}

const std::string& CoreCheckerLauncher::GetErrorInfo() const
{
    return errorInfo;
}

const std::vector<std::string>& CoreCheckerLauncher::GetBrokenPlugins() const
{
    return brokenPlugins;
}

const std::map<std::string, std::vector<std::string>>& CoreCheckerLauncher::GetBrokenCodecs() const
{
    return brokenCodecs;
}

void CoreCheckerLauncher::AddError(const std::string& text)
{
    errorInfo += (errorInfo.empty() ? "" : "; ") + text;
}

// Each valid name once, in its order.
std::vector<std::string> CoreCheckerLauncher::ValidNames(const std::vector<std::string>& names)
{
    std::vector<std::string> valid;
    for (const std::string& name : names)
    {
        if (!IsCodecName(name))
            AddError("\"" + name.substr(0, 64) + "\" cannot be a codec's or implementation's name");
        else if (std::find(valid.begin(), valid.end(), name) == valid.end())
            valid.push_back(name);
    }
    return valid;
}

void CoreCheckerLauncher::MakePairs(const std::map<std::string, std::set<std::string>>& knownCodecs,
    const std::set<std::string>& knownPlugins)
{
    pairs.clear();
    const std::vector<std::string> validImpls = ValidNames(impls);
    for (const std::string& codec : ValidNames(codecs))
    {
        const auto known = knownCodecs.find(codec);
        for (const std::string& impl : validImpls)
        {
            Pair pair{codec, impl, State::Untried, notTried};
            if (known != knownCodecs.end() && known->second.count(impl) > 0)
                pair = {codec, impl, State::Broken, knownBroken};
            else if (knownPlugins.count(impl) > 0)
                pair = {codec, impl, State::PluginBroken, knownBroken};
            pairs.push_back(pair);
        }
    }
}

void CoreCheckerLauncher::TryPairs(Clock::time_point end)
{
    std::atomic<std::size_t> next{0};
    std::once_flag isStartErrorKept;
    std::string startError;
    const auto work = [&]
    {
        for (std::size_t i = next++; i < pairs.size(); i = next++)
        {
            if (pairs[i].state != State::Untried)
                continue;
            const std::string error = TryPair(pairs[i], end);
            if (error.empty())
                continue;
            std::call_once(isStartErrorKept, [&] { startError = error; });
            next = pairs.size(); // the next start would fail as well
        }
    };
    {
        std::vector<std::future<void>> helpers;
        for (unsigned i = 1;
             i < std::min<std::size_t>(std::thread::hardware_concurrency(), pairs.size()); ++i)
            helpers.push_back(std::async(std::launch::async, work));
        work();
        for (std::future<void>& helper : helpers)
            helper.get();
    }
    for (const Pair& pair : pairs)
    {
        if (pair.detail == leftBehind)
            AddError("The probe for " + pair.codec + " with " + pair.impl +
                     " cannot be ended and was left running");
    }
    if (!startError.empty())
        AddError("The probe program " + probe.toStdString() + " cannot be started: " + startError);
}

// The part of the limit that is kept for the end of probes that are killed at it.
milliseconds CoreCheckerLauncher::Grace() const
{
    return std::min(longestGrace, limit / sharesOfLimit);
}

// Why the probe could not be started, or nothing.
std::string CoreCheckerLauncher::TryPair(Pair& pair, Clock::time_point end) const
{
    const milliseconds share = limit / sharesOfLimit;
    const auto left = std::chrono::floor<milliseconds>(end - Clock::now());
    if (left.count() <= 0)
        return {};
    const Platform::BoundedRun run = Platform::RunBounded(probe,
        {QString::fromStdString(pair.codec), QString::fromStdString(pair.impl)},
        std::min(share, left), Grace(), maxOutput);
    if (run.isLeftBehind)
    {
        pair.state = State::Broken;
        pair.detail = leftBehind;
        return {};
    }
    const auto isBroken = [&pair](const std::string& detail)
    {
        pair.state = State::Broken;
        pair.detail = detail;
    };
    switch (run.end)
    {
    case Platform::BoundedRun::End::NotStarted:
        return run.error;
    case Platform::BoundedRun::End::Crashed:
        isBroken("crashed");
        break;
    case Platform::BoundedRun::End::TooMuchOutput:
        isBroken("too much output");
        break;
    case Platform::BoundedRun::End::TimedOut:
        if (left >= share) // else only the whole check's time was over
            isBroken("timed out");
        break;
    case Platform::BoundedRun::End::Exited:
        TakeAnswer(pair, run.exitCode, run.output);
        break;
    }
    return {};
}

void CoreCheckerLauncher::TakeAnswer(Pair& pair, int exitCode, const std::string& output)
{
    const QRegularExpressionMatch answer = ReadAnswer(output);
    const QString verdict = answer.captured(2);
    pair.state = State::Broken;
    if (exitCode != 0)
        pair.detail = "exit code " + std::to_string(exitCode);
    else if (!answer.hasMatch())
        pair.detail = "no valid answer";
    else
    {
        pair.detail = answer.captured(1).toStdString();
        if (verdict != "unusable")
            pair.state = verdict == "usable" ? State::Usable : State::NotPresent;
    }
}

bool CoreCheckerLauncher::IsPluginBroken(const std::string& impl) const
{
    bool isAnyBroken = false;
    for (const Pair& pair : pairs)
    {
        if (pair.impl != impl)
            continue;
        if (pair.state == State::PluginBroken)
            return true;
        if (pair.state == State::Usable || pair.state == State::Untried)
            return false;
        isAnyBroken = isAnyBroken || pair.state == State::Broken;
    }
    return isAnyBroken;
}

void CoreCheckerLauncher::CollectBroken(CheckType type)
{
    const auto isAskedFor = [type](CheckType part)
    { return (static_cast<int>(type) & static_cast<int>(part)) != 0; };
    std::set<std::string> seenImpls;
    for (const Pair& pair : pairs)
    {
        if (isAskedFor(CheckType::Codecs) && pair.state == State::Broken)
            brokenCodecs[pair.codec].push_back(pair.impl);
        if (isAskedFor(CheckType::Plugins) && seenImpls.insert(pair.impl).second &&
            IsPluginBroken(pair.impl))
            brokenPlugins.push_back(pair.impl);
    }
}

void CoreCheckerLauncher::CollectStatistics(Clock::duration elapsed)
{
    const auto count = [this](std::initializer_list<State> states)
    {
        return std::to_string(std::count_if(pairs.begin(), pairs.end(),
            [&](const Pair& pair)
            { return std::find(states.begin(), states.end(), pair.state) != states.end(); }));
    };
    if (count({State::Untried}) == std::to_string(pairs.size()))
        return;
    for (const Pair& pair : pairs)
        statistics["codec." + pair.codec][pair.impl] = pair.detail;
    const auto time = std::chrono::duration_cast<milliseconds>(elapsed).count();
    statistics["check"] = {{"pairs", std::to_string(pairs.size())},
        {"usable", count({State::Usable})}, {"not present", count({State::NotPresent})},
        {"broken", count({State::Broken, State::PluginBroken})},
        {"not tried", count({State::Untried})}, {"milliseconds", std::to_string(time)}};
}

} // namespace Vorlan::Core::Utils
