#include "registry/RegFileReader.h"

#include "registry/RegFileWriter.h"
#include "registry/ValueData.h"

#include <optional>

namespace Pal
{

namespace
{

constexpr std::u16string_view lineEnd = u"\r\n";

bool TakePrefix(std::u16string_view& text, std::u16string_view prefix)
{
    if (text.substr(0, prefix.size()) != prefix)
        return false;
    text.remove_prefix(prefix.size());
    return true;
}

bool TakeSuffix(std::u16string_view& text, std::u16string_view suffix)
{
    if (text.size() < suffix.size() || text.substr(text.size() - suffix.size()) != suffix)
        return false;
    text.remove_suffix(suffix.size());
    return true;
}

std::u16string_view TakeLine(std::u16string_view& text)
{
    const size_t end = text.find(lineEnd);
    const std::u16string_view line = text.substr(0, end);
    text.remove_prefix(end == text.npos ? text.size() : end + lineEnd.size());
    return line;
}

std::optional<DWORD> HexDigit(char16_t digit)
{
    if (digit >= u'0' && digit <= u'9')
        return digit - u'0';
    const char16_t lower = digit | 0x20;
    if (lower >= u'a' && lower <= u'f')
        return lower - u'a' + 10;
    return std::nullopt;
}

std::optional<DWORD> HexNumber(std::u16string_view digits, size_t mostDigits)
{
    if (digits.empty() || digits.size() > mostDigits)
        return std::nullopt;
    DWORD number = 0;
    for (const char16_t unit : digits)
    {
        const std::optional<DWORD> digit = HexDigit(unit);
        if (!digit)
            return std::nullopt;
        number = number << 4 | *digit;
    }
    return number;
}

char16_t Unescaped(char16_t character)
{
    switch (character)
    {
    case u'r':
        return u'\r';
    case u'n':
        return u'\n';
    default:
        return character;
    }
}

// Takes a quoted text and resolves its escapes. Both quotes are required.
std::optional<std::u16string> TakeQuoted(std::u16string_view& text)
{
    if (!TakePrefix(text, u"\""))
        return std::nullopt;
    std::u16string content;
    while (!text.empty() && text.front() != u'"')
    {
        const bool escaped = TakePrefix(text, u"\\");
        if (text.empty())
            return std::nullopt;
        content.push_back(escaped ? Unescaped(text.front()) : text.front());
        text.remove_prefix(1);
    }
    return TakePrefix(text, u"\"") ? std::optional(content) : std::nullopt;
}

class FileParser
{
public:
    FileParser(std::u16string_view text, const std::shared_ptr<KeyNode>& treeRoot)
        : rest(text), root(treeRoot)
    {
    }

    bool Parse()
    {
        while (!rest.empty())
        {
            const std::u16string_view line = TakeLine(rest);
            if (line.empty() || line.front() == u';')
                continue;
            if (!(line.front() == u'[' ? ApplySection(line) : ApplyValue(line)))
                return false;
        }
        return true;
    }

private:
    bool ApplySection(std::u16string_view line)
    {
        key.reset();
        if (!TakePrefix(line, u"[") || !TakeSuffix(line, u"]"))
            return false;
        const bool removed = TakePrefix(line, u"-");
        const std::optional<KeyPath> path = ParsePath(line);
        if (!path || (removed && path->empty()))
            return false;
        if (removed)
            RemoveKey(root, *path);
        else
            key = MakeKey(root, *path);
        return true;
    }

    std::optional<KeyPath> ParsePath(std::u16string_view text) const
    {
        KeyPath path;
        while (true)
        {
            const size_t separator = text.find(u'\\');
            path.emplace_back(text.substr(0, separator));
            if (path.back().empty())
                return std::nullopt;
            if (separator == text.npos)
                break;
            text.remove_prefix(separator + 1);
        }
        if (FoldCase(path.front()) != FoldCase(root->Name()))
            return std::nullopt;
        path.erase(path.begin());
        return path;
    }

    bool ApplyValue(std::u16string_view line)
    {
        RegistryValue value;
        if (!TakePrefix(line, u"@"))
        {
            const std::optional<std::u16string> name = TakeQuoted(line);
            if (!name)
                return false;
            value.name = *name;
        }
        if (!key || !TakePrefix(line, u"="))
            return false;
        if (line == u"-")
        {
            key->RemoveValue(value.name);
            return true;
        }
        if (!ParseData(line, value))
            return false;
        key->SetValue(std::move(value));
        return true;
    }

    bool ParseData(std::u16string_view text, RegistryValue& value)
    {
        if (text.substr(0, 1) == u"\"")
            return ParseText(text, value);
        if (TakePrefix(text, u"dword:"))
            return ParseDword(text, value);
        if (!TakePrefix(text, u"hex"))
            return false;
        value.type = REG_BINARY;
        if (TakePrefix(text, u"(") && !ParseHexType(text, value))
            return false;
        return TakePrefix(text, u":") && ParseHexLines(text, value);
    }

    static bool ParseText(std::u16string_view text, RegistryValue& value)
    {
        const std::optional<std::u16string> content = TakeQuoted(text);
        if (!content || !text.empty())
            return false;
        value.type = REG_SZ;
        value.data = DiskBytes(*content + u'\0');
        return true;
    }

    static bool ParseDword(std::u16string_view text, RegistryValue& value)
    {
        const std::optional<DWORD> number = HexNumber(text, 8);
        if (!number)
            return false;
        value.type = REG_DWORD;
        for (int shift = 0; shift < 32; shift += 8)
            value.data.push_back(static_cast<char>(*number >> shift));
        return true;
    }

    static bool ParseHexType(std::u16string_view& text, RegistryValue& value)
    {
        const size_t end = text.find(u')');
        const std::optional<DWORD> type = HexNumber(text.substr(0, end), 8);
        if (end == text.npos || !type)
            return false;
        value.type = *type;
        text.remove_prefix(end + 1);
        return true;
    }

    // Continues with the next line as long as a line ends in a backslash.
    bool ParseHexLines(std::u16string_view text, RegistryValue& value)
    {
        while (TakeSuffix(text, u"\\"))
        {
            if (rest.empty() || !ParseHexBytes(text, value))
                return false;
            text = TakeLine(rest);
            while (TakePrefix(text, u" "))
                continue;
            if (text.empty())
                return false;
        }
        return ParseHexBytes(text, value);
    }

    static bool ParseHexBytes(std::u16string_view text, RegistryValue& value)
    {
        while (!text.empty())
        {
            const size_t comma = text.find(u',');
            const std::optional<DWORD> byte = HexNumber(text.substr(0, comma), 2);
            if (!byte)
                return false;
            value.data.push_back(static_cast<char>(*byte));
            text.remove_prefix(comma == text.npos ? text.size() : comma + 1);
        }
        return true;
    }

    std::u16string_view rest;
    const std::shared_ptr<KeyNode>& root;
    std::shared_ptr<KeyNode> key; // of the section; null after a removed one
};

} // namespace

bool ReadRegFile(std::u16string_view text, const std::shared_ptr<KeyNode>& root)
{
    return TakePrefix(text, regFileHeader) && FileParser(text, root).Parse();
}

} // namespace Pal
