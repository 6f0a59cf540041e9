#include "platform/CoreChecker.h"

namespace Vorlan::Proc
{

namespace
{

template <typename Texts>
std::string Join(const Texts& texts, char separator)
{
    std::string joined;
    for (const std::string& text : texts)
    {
        if (!joined.empty())
            joined += separator;
        joined += text;
    }
    return joined;
}

} // namespace

std::string ModuleOptionsToString(
    const std::map<std::string, std::vector<std::string>>& options, bool withoutEmpty)
{
    std::vector<std::string> texts;
    for (const auto& [codec, names] : options)
    {
        if (!withoutEmpty || !names.empty())
            texts.push_back(codec + '=' + Join(names, ','));
    }
    return Join(texts, ';');
}

} // namespace Vorlan::Proc
