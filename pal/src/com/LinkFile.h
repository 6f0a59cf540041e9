// The part of the Shell Link Binary File Format that this layer uses.
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

// The file for a link, or nothing if a text is too long for the format.
std::optional<std::string> FormatLinkFile(const LinkContent& content);

// The content of a link file, or nothing if the bytes are not one. A target stored as 8-bit text
// only is read as UTF-8; an item list is skipped.
std::optional<LinkContent> ParseLinkFile(const std::string& bytes);

} // namespace Pal
