#include "codecs/KnownBroken.h"

#include "platform/CoreChecker.h"

#include <stdexcept>

namespace Vorlan::Core::Utils
{

KnownBroken::KnownBroken(
    const ioPath& codecsPath, const ioPath& pluginsPath, const OnError& tellError)
    : onError(tellError),
      codecs(Open(BrokenList::Kind::Codecs, codecsPath)),
      plugins(Open(BrokenList::Kind::Plugins, pluginsPath))
{
}

ImplsOfCodec KnownBroken::Codecs() const
{
    return codecs ? ReadBrokenCodecs(codecs->Lines()) : ImplsOfCodec();
}

std::set<std::string> KnownBroken::Plugins() const
{
    return plugins ? ReadBrokenPlugins(plugins->Lines()) : std::set<std::string>();
}

void KnownBroken::Add(const std::map<std::string, std::vector<std::string>>& foundCodecs,
    const std::vector<std::string>& foundPlugins) const
{
    ImplsOfCodec allCodecs = Codecs();
    for (const auto& [codec, impls] : foundCodecs)
        allCodecs[codec].insert(impls.begin(), impls.end());
    std::vector<std::string> lines;
    for (const auto& [codec, impls] : allCodecs)
        lines.push_back(Proc::ModuleOptionsToString({{codec, {impls.begin(), impls.end()}}}, true));
    Write(codecs, lines);
    std::set<std::string> allPlugins = Plugins();
    allPlugins.insert(foundPlugins.begin(), foundPlugins.end());
    Write(plugins, {allPlugins.begin(), allPlugins.end()});
}

std::optional<BrokenList> KnownBroken::Open(BrokenList::Kind kind, const ioPath& path) const
{
    try
    {
        return BrokenList(kind, path);
    }
    catch (const std::runtime_error& error)
    {
        onError(error.what());
        return std::nullopt;
    }
}

void KnownBroken::Write(
    const std::optional<BrokenList>& list, const std::vector<std::string>& lines) const
{
    try
    {
        if (list)
            list->Write(lines);
    }
    catch (const std::runtime_error& error)
    {
        onError(error.what());
    }
}

} // namespace Vorlan::Core::Utils
