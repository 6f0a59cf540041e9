#include "registry/RegFileWriter.h"

#include "registry/ValueData.h"

namespace Pal
{

const std::u16string_view regFileHeader = u"\uFEFFWindows Registry Editor Version 5.00\r\n\r\n";

namespace
{

constexpr std::u16string_view lineEnd = u"\r\n";
constexpr size_t longestHexLine = 77;

void AppendSectionLine(std::u16string& text, const std::u16string& path)
{
    text.append(u"[").append(path).append(u"]").append(lineEnd);
}

void AppendQuoted(std::u16string& text, std::u16string_view content)
{
    text.push_back(u'"');
    for (const char16_t unit : content)
    {
        if (unit == u'"' || unit == u'\\')
            text.push_back(u'\\');
        text.push_back(unit);
    }
    text.push_back(u'"');
}

void AppendValueName(std::u16string& text, const std::u16string& name)
{
    if (name.empty())
        text.append(u"@");
    else
        AppendQuoted(text, name);
    text.append(u"=");
}

void AppendHexNumber(std::u16string& text, DWORD number, int digits)
{
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4)
        text.push_back(u"0123456789abcdef"[(number >> shift) & 0xF]);
}

// A line that becomes too long ends in a backslash and continues after two blanks.
void AppendHexData(std::u16string& text, size_t lineStart, const std::string& data)
{
    for (size_t i = 0; i < data.size(); ++i)
    {
        if (text.size() - lineStart + 3 > longestHexLine)
        {
            text.append(u"\\").append(lineEnd);
            lineStart = text.size();
            text.append(u"  ");
        }
        AppendHexNumber(text, static_cast<BYTE>(data[i]), 2);
        if (i + 1 < data.size())
            text.push_back(u',');
    }
}

void AppendHexType(std::u16string& text, DWORD type)
{
    text.append(u"hex");
    if (type != REG_BINARY)
    {
        text.append(u"(");
        AppendHexNumber(text, type, type > 0xF ? 8 : 1);
        text.append(u")");
    }
    text.append(u":");
}

void AppendValueLine(std::u16string& text, const RegistryValue& value)
{
    const size_t lineStart = text.size();
    AppendValueName(text, value.name);
    std::u16string content;
    if (value.type == REG_SZ && IsPlainText(value.data, content))
    {
        AppendQuoted(text, content);
    }
    else if (value.type == REG_DWORD && value.data.size() == sizeof(DWORD))
    {
        text.append(u"dword:");
        AppendHexNumber(text, DwordOf(value.data), 8);
    }
    else
    {
        AppendHexType(text, value.type);
        AppendHexData(text, lineStart, value.data);
    }
    text.append(lineEnd);
}

void AppendKey(std::u16string& text, const KeyNode& key, const std::u16string& path)
{
    AppendSectionLine(text, path);
    for (const RegistryValue& value : key.AllValues())
        AppendValueLine(text, value);
    text.append(lineEnd);
    for (const auto& [folded, child] : key.SubKeys())
        AppendKey(text, *child, path + u"\\" + child->Name());
}

} // namespace

std::u16string WholeRegFile(const KeyNode& root)
{
    std::u16string text(regFileHeader);
    AppendKey(text, root, root.Name());
    return text;
}

} // namespace Pal
