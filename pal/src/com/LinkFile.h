// The Shell Link Binary File Format, as far as this layer keeps links.
#pragma once

#include <optional>
#include <string>

namespace Pal
{

struct LinkContent
{
    std::u16string target;
    std::u16string workingFolder;
    std::u16string arguments;
};

// The file for a link, or nothing when a text is too long for the format.
std::optional<std::string> FormatLinkFile(const LinkContent& content);

// What a file says, or nothing when it is no link. Of a target that the file keeps as 8-bit text
// only, that text is taken as UTF-8; an item list is passed over.
std::optional<LinkContent> ParseLinkFile(const std::string& bytes);

} // namespace Pal
