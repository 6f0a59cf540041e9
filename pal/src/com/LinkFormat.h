// Numbers of the Shell Link Binary File Format.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Pal::LinkFormat
{

constexpr uint32_t headerSize = 0x4C;
constexpr std::string_view classId("\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46", 16);

enum LinkFlag : uint32_t
{
    HasItemList = 0x01,
    HasLinkInfo = 0x02,
    HasName = 0x04,
    HasRelativePath = 0x08,
    HasWorkingFolder = 0x10,
    HasArguments = 0x20,
    HasIconLocation = 0x40,
    IsUnicode = 0x80
};

constexpr uint32_t showNormal = 1;

// Offsets of fields in the header and in the link information.
constexpr size_t classIdOffset = 4;
constexpr size_t linkFlagsOffset = 20;

constexpr uint32_t linkInfoHeaderSize = 0x24; // with the offsets of Unicode texts
constexpr uint32_t hasLocalPath = 1;
constexpr size_t linkInfoFlagsOffset = 8;
constexpr size_t localPathOffset = 16;
constexpr size_t suffixOffset = 24;
constexpr size_t unicodeLocalPathOffset = 28;
constexpr size_t unicodeSuffixOffset = 32;

constexpr uint32_t volumeSize = 0x12; // a label of one character, and padding
constexpr uint32_t fixedDrive = 3;
constexpr uint32_t volumeLabelOffset = 0x10;

} // namespace Pal::LinkFormat
