#pragma once

#include "platform/CodecNames.h"
#include "platform/Path.h"

#include <QString>

#include <chrono>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace Vorlan::Proc
{

// Codecs with what belongs to each as one line: "AAC=AMF,QSV;H264=NVENC"; empty for an empty map.
// With `withoutEmpty` a codec that has nothing is left out, else it stands there as "AC3=".
std::string ModuleOptionsToString(
    const std::map<std::string, std::vector<std::string>>& options, bool withoutEmpty);

} // namespace Vorlan::Proc

namespace Vorlan::Core::Utils
{

// What a check looks for, as bits.
enum class CheckType : int
{
    Plugins = 1,
    Codecs = 2,
    PluginsAndCodecs = 3
};

// Finds out which implementations of codecs are broken on this machine, by starting a probe program
// for each codec with each implementation, several at once up to the number of processors. The
// probe's contract, the files and the statistics are described in docs/probe.md.
//
// A probe that crashes, hangs, or answers anything but its one line makes its pair broken and never
// disturbs the check; one that cannot be ended is left running and named in the error text. A pair
// that could not be tried within the time is not broken. Without a probe program the result is what
// the files name.
//
// Set up, then StartCheck once, then ask; one thread, which need not be the main one.
class CoreCheckerLauncher
{
public:
    // "corechecker.exe" beside the running program.
    static QString DefaultProbe();

    explicit CoreCheckerLauncher(const QString& probeProgram = DefaultProbe());

    // The limit of the whole check, its files included but for the last write; 0 or less means
    // 20 s, more than a day means a day. A single probe gets at most a quarter of it, so that a
    // few that hang leave time for the others.
    void SetCheckCoreTimeout(std::chrono::seconds limit);
    // Names as in CodecNames.h. What cannot be a name is left out, and named in the error text.
    void SetVerifiableCodecImpls(const std::vector<std::string>& names);
    void SetVerifiableCodecs(const std::vector<std::string>& names);
    // Files of what is known to be broken (BrokenList.h): what they name is not started again and
    // counts as broken; what is found is added. An empty path stands for none.
    void SetBrokenPluginsPath(const ioPath& path);
    void SetBrokenCodecsPath(const ioPath& path);

    // Checks and returns when all is done. Throws std::system_error where the system gives no
    // thread; all other failures are in GetErrorInfo.
    void StartCheck(CheckType type);

    // By "codec.<name>", what each implementation came to; by "check", the sums. Empty when nothing
    // was tried.
    const std::map<std::string, std::map<std::string, std::string>>& GetStatisticInfo() const;
    // What went wrong besides broken codecs, sentences separated by "; ".
    const std::string& GetErrorInfo() const;
    // Implementations of which something is broken, and nothing usable or untried.
    const std::vector<std::string>& GetBrokenPlugins() const;
    const std::map<std::string, std::vector<std::string>>& GetBrokenCodecs() const;

private:
    enum class State
    {
        Untried,
        Usable,
        NotPresent,
        Broken,
        PluginBroken // known from the file of plug-ins; nothing is known of the pair
    };
    struct Pair
    {
        std::string codec;
        std::string impl;
        State state;
        std::string detail; // for the statistics
    };
    using Clock = std::chrono::steady_clock;

    void AddError(const std::string& text);
    std::vector<std::string> ValidNames(const std::vector<std::string>& names);
    void MakePairs(const std::map<std::string, std::set<std::string>>& knownCodecs,
        const std::set<std::string>& knownPlugins);
    std::chrono::milliseconds Grace() const;
    void TryPairs(Clock::time_point end);
    std::string TryPair(Pair& pair, Clock::time_point end) const;
    static void TakeAnswer(Pair& pair, int exitCode, const std::string& output);
    bool IsPluginBroken(const std::string& impl) const;
    void CollectBroken(CheckType type);
    void CollectStatistics(Clock::duration elapsed);

    QString probe;
    std::chrono::milliseconds limit;
    std::vector<std::string> impls;
    std::vector<std::string> codecs;
    ioPath brokenPluginsPath;
    ioPath brokenCodecsPath;
    std::vector<Pair> pairs;
    std::map<std::string, std::map<std::string, std::string>> statistics;
    std::string errorInfo;
    std::vector<std::string> brokenPlugins;
    std::map<std::string, std::vector<std::string>> brokenCodecs;
};

} // namespace Vorlan::Core::Utils
