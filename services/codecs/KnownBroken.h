#pragma once

#include "codecs/BrokenList.h"

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace Vorlan::Core::Utils
{

// The lists of broken codecs and plug-ins. A file that cannot be read counts as absent, one that
// cannot be written is left unchanged; `onError` receives the cause.
class KnownBroken
{
public:
    using OnError = std::function<void(const std::string&)>;

    KnownBroken(const ioPath& codecsPath, const ioPath& pluginsPath, const OnError& onError);

    ImplsOfCodec Codecs() const;
    std::set<std::string> Plugins() const;

    // Adds what was found.
    void Add(const std::map<std::string, std::vector<std::string>>& foundCodecs,
        const std::vector<std::string>& foundPlugins) const;

private:
    std::optional<BrokenList> Open(BrokenList::Kind kind, const ioPath& path) const;
    void Write(const std::optional<BrokenList>& list, const std::vector<std::string>& lines) const;

    OnError onError;
    std::optional<BrokenList> codecs;
    std::optional<BrokenList> plugins;
};

} // namespace Vorlan::Core::Utils
