#include "com/LinkFile.h"
#include "com/LinkFormat.h"

#include <QString>

#include <limits>

namespace Pal
{

namespace
{

using namespace LinkFormat;

class ByteWriter
{
public:
    void Number16(uint32_t number)
    {
        bytes += static_cast<char>(number & 0xFF);
        bytes += static_cast<char>((number >> 8) & 0xFF);
    }
    void Number32(uint32_t number)
    {
        Number16(number & 0xFFFF);
        Number16(number >> 16);
    }
    void Text16(const std::u16string& text)
    {
        for (const char16_t unit : text)
            Number16(unit);
    }
    void Raw(std::string_view part) { bytes += part; }
    void Zeros(size_t count) { bytes.append(count, '\0'); }

    const std::string& Bytes() const { return bytes; }

private:
    std::string bytes;
};

std::string Volume()
{
    ByteWriter writer;
    writer.Number32(volumeSize);
    writer.Number32(fixedDrive);
    writer.Number32(0); // serial number
    writer.Number32(volumeLabelOffset);
    writer.Zeros(volumeSize - volumeLabelOffset);
    return writer.Bytes();
}

// Stores the path twice, each time with an empty suffix: as 8-bit text for old readers, and as
// UTF-16.
std::string LinkInfo(const std::u16string& target)
{
    std::string narrow = QString::fromStdU16String(target).toStdString();
    narrow.resize((narrow.size() + 2) & ~size_t{1}); // closing zero, padded to an even size
    const auto narrowAt = static_cast<uint32_t>(linkInfoHeaderSize + volumeSize);
    const auto wideAt = static_cast<uint32_t>(narrowAt + narrow.size() + 2);
    const auto wideEnd = static_cast<uint32_t>(wideAt + (target.size() + 1) * sizeof(char16_t));
    ByteWriter writer;
    writer.Number32(wideEnd + sizeof(char16_t));
    writer.Number32(linkInfoHeaderSize);
    writer.Number32(hasLocalPath);
    writer.Number32(linkInfoHeaderSize); // the volume
    writer.Number32(narrowAt);
    writer.Number32(0); // no network share
    writer.Number32(wideAt - 2);
    writer.Number32(wideAt);
    writer.Number32(wideEnd);
    writer.Raw(Volume());
    writer.Raw(narrow);
    writer.Zeros(2);
    writer.Text16(target);
    writer.Zeros(2 * sizeof(char16_t));
    return writer.Bytes();
}

uint32_t Flags(const LinkContent& content)
{
    return IsUnicode | (content.target.empty() ? 0u : HasLinkInfo) |
           (content.workingFolder.empty() ? 0u : HasWorkingFolder) |
           (content.arguments.empty() ? 0u : HasArguments);
}

std::string Header(uint32_t flags)
{
    ByteWriter writer;
    writer.Number32(headerSize);
    writer.Raw(classId);
    writer.Number32(flags);
    writer.Zeros(36); // attributes, times and size of the target, and the icon's number
    writer.Number32(showNormal);
    writer.Zeros(12); // no hot key
    return writer.Bytes();
}

void AddText(ByteWriter& writer, const std::u16string& text)
{
    if (text.empty())
        return;
    writer.Number16(static_cast<uint32_t>(text.size()));
    writer.Text16(text);
}

bool Fits(const std::u16string& text)
{
    return text.size() <= std::numeric_limits<uint16_t>::max();
}

} // namespace

std::optional<std::string> FormatLinkFile(const LinkContent& content)
{
    if (!Fits(content.target) || !Fits(content.workingFolder) || !Fits(content.arguments))
        return std::nullopt;
    ByteWriter writer;
    writer.Raw(Header(Flags(content)));
    if (!content.target.empty())
        writer.Raw(LinkInfo(content.target));
    AddText(writer, content.workingFolder);
    AddText(writer, content.arguments);
    writer.Number32(0); // no extra data
    return writer.Bytes();
}

} // namespace Pal
