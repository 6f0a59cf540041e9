#include "com/LinkFile.h"
#include "com/LinkFormat.h"

#include <QString>

#include <stdexcept>

namespace Pal
{

namespace
{

using namespace LinkFormat;

// Throws std::out_of_range for an offset outside the bytes.
class ByteView
{
public:
    explicit ByteView(std::string_view viewed) : bytes(viewed) {}

    uint32_t Number16(size_t offset) const { return Byte(offset) | Byte(offset + 1) << 8; }
    uint32_t Number32(size_t offset) const { return Number16(offset) | Number16(offset + 2) << 16; }
    std::string_view Part(size_t offset, size_t size) const
    {
        if (offset > bytes.size() || size > bytes.size() - offset)
            throw std::out_of_range("the link is truncated");
        return bytes.substr(offset, size);
    }
    std::u16string Text16(size_t offset, size_t count) const
    {
        Part(offset, count * sizeof(char16_t));
        std::u16string text;
        for (size_t i = 0; i < count; ++i)
            text += static_cast<char16_t>(Number16(offset + i * sizeof(char16_t)));
        return text;
    }
    std::u16string Text8(size_t offset, size_t count) const
    {
        const std::string_view text = Part(offset, count);
        return QString::fromUtf8(text.data(), static_cast<int>(text.size())).toStdU16String();
    }

    std::u16string ZeroEndedText16(size_t offset) const
    {
        size_t count = 0;
        while (Number16(offset + count * sizeof(char16_t)) != 0)
            ++count;
        return Text16(offset, count);
    }
    std::u16string ZeroEndedText8(size_t offset) const
    {
        size_t count = 0;
        while (Byte(offset + count) != 0)
            ++count;
        return Text8(offset, count);
    }

private:
    uint32_t Byte(size_t offset) const
    {
        return static_cast<unsigned char>(Part(offset, 1).front());
    }

    std::string_view bytes;
};

std::u16string TargetOf(const ByteView& linkInfo)
{
    if (!(linkInfo.Number32(linkInfoFlagsOffset) & hasLocalPath))
        return {};
    if (linkInfo.Number32(4) >= linkInfoHeaderSize)
        return linkInfo.ZeroEndedText16(linkInfo.Number32(unicodeLocalPathOffset)) +
               linkInfo.ZeroEndedText16(linkInfo.Number32(unicodeSuffixOffset));
    return linkInfo.ZeroEndedText8(linkInfo.Number32(localPathOffset)) +
           linkInfo.ZeroEndedText8(linkInfo.Number32(suffixOffset));
}

std::u16string TakeText(const ByteView& file, size_t& position, bool unicode)
{
    const size_t count = file.Number16(position);
    position += 2;
    std::u16string text = unicode ? file.Text16(position, count) : file.Text8(position, count);
    position += count * (unicode ? sizeof(char16_t) : 1);
    return text;
}

// The field for the text of a flag; ignored for a text that has no field.
std::u16string& PlaceOf(LinkContent& content, LinkFlag flag, std::u16string& ignored)
{
    if (flag == HasWorkingFolder)
        return content.workingFolder;
    return flag == HasArguments ? content.arguments : ignored;
}

LinkContent Parse(const ByteView& file)
{
    if (file.Number32(0) != headerSize || file.Part(classIdOffset, classId.size()) != classId)
        throw std::out_of_range("the file is no link");
    const uint32_t flags = file.Number32(linkFlagsOffset);
    size_t position = headerSize;
    LinkContent content;
    if (flags & HasItemList)
        position += 2 + file.Number16(position);
    if (flags & HasLinkInfo)
    {
        const size_t size = file.Number32(position);
        content.target = TargetOf(ByteView(file.Part(position, size)));
        position += size;
    }
    for (const LinkFlag flag :
        {HasName, HasRelativePath, HasWorkingFolder, HasArguments, HasIconLocation})
    {
        std::u16string ignored;
        if (flags & flag)
            PlaceOf(content, flag, ignored) = TakeText(file, position, flags & IsUnicode);
    }
    return content;
}

} // namespace

std::optional<LinkContent> ParseLinkFile(const std::string& bytes)
{
    try
    {
        return Parse(ByteView(bytes));
    }
    catch (const std::out_of_range&)
    {
        return std::nullopt;
    }
}

} // namespace Pal
