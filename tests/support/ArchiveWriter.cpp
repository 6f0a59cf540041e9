#include "support/ArchiveWriter.h"

#include "archive/SevenZip.h"

#include <algorithm>

namespace
{

enum Property : char
{
    kEnd = 0x00,
    kHeader = 0x01,
    kMainStreamsInfo = 0x04,
    kFilesInfo = 0x05,
    kPackInfo = 0x06,
    kUnpackInfo = 0x07,
    kSubStreamsInfo = 0x08,
    kSize = 0x09,
    kCrc = 0x0A,
    kFolder = 0x0B,
    kCodersUnpackSize = 0x0C,
    kNumUnpackStream = 0x0D,
    kEmptyStream = 0x0E,
    kEmptyFile = 0x0F,
    kNames = 0x11
};

template <typename Number>
QByteArray LittleEndian(Number number)
{
    return QByteArray(reinterpret_cast<const char*>(&number), sizeof number);
}

// A number of the header: 0xFF and eight bytes is the longest of its forms, and always allowed.
QByteArray Number(quint64 number)
{
    return '\xFF' + LittleEndian(number);
}

quint32 Crc(const QByteArray& bytes)
{
    return CrcCalc(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

QByteArray Bits(const std::vector<bool>& flags)
{
    QByteArray bytes(static_cast<int>((flags.size() + 7) / 8), '\0');
    for (std::size_t i = 0; i < flags.size(); ++i)
    {
        if (flags[i])
            bytes[static_cast<int>(i / 8)] =
                static_cast<char>(bytes[static_cast<int>(i / 8)] | (0x80 >> i % 8));
    }
    return bytes;
}

QByteArray PropertyBlock(Property id, const QByteArray& content)
{
    return QByteArray(1, id) + Number(static_cast<quint64>(content.size())) + content;
}

QByteArray StreamsInfo(const std::vector<QByteArray>& contents, const QByteArray& packed)
{
    const auto packedSize = static_cast<quint64>(packed.size());
    QByteArray info(1, kMainStreamsInfo);
    info += kPackInfo + Number(0) + Number(1) + kSize + Number(packedSize) + kEnd;
    const QByteArray copyCoder("\x01\x01\x00", 3);
    info += kUnpackInfo + QByteArray(1, kFolder) + Number(1) + QByteArray(1, '\0') + copyCoder +
            kCodersUnpackSize + Number(packedSize) + kEnd;
    info += kSubStreamsInfo + QByteArray(1, kNumUnpackStream) + Number(contents.size()) + kSize;
    for (std::size_t i = 0; i + 1 < contents.size(); ++i)
        info += Number(static_cast<quint64>(contents[i].size()));
    info += kCrc + QByteArray(1, '\x01');
    for (const QByteArray& content : contents)
        info += LittleEndian(Crc(content));
    return info + kEnd + kEnd;
}

QByteArray FilesInfo(const std::vector<ArchiveEntry>& entries)
{
    std::vector<bool> emptyStreams;
    std::vector<bool> emptyFiles;
    QByteArray names(1, '\0');
    for (const ArchiveEntry& entry : entries)
    {
        emptyStreams.push_back(entry.content.isEmpty());
        if (entry.content.isEmpty())
            emptyFiles.push_back(!entry.isFolder);
        names += QByteArray(
            reinterpret_cast<const char*>(entry.name.utf16()), (entry.name.size() + 1) * 2);
    }
    QByteArray info = kFilesInfo + Number(entries.size());
    if (!emptyFiles.empty())
        info += PropertyBlock(kEmptyStream, Bits(emptyStreams)) +
                PropertyBlock(kEmptyFile, Bits(emptyFiles));
    return info + PropertyBlock(kNames, names) + kEnd;
}

} // namespace

QByteArray CreateArchive(const std::vector<ArchiveEntry>& entries)
{
    CrcGenerateTable(); // for the checksums of the contents
    std::vector<QByteArray> contents;
    QByteArray packed;
    for (const ArchiveEntry& entry : entries)
    {
        if (!entry.content.isEmpty())
            contents.push_back(entry.content);
        packed += entry.content;
    }
    QByteArray header(1, kHeader);
    if (!contents.empty())
        header += StreamsInfo(contents, packed);
    header += FilesInfo(entries) + kEnd;

    return AssembleArchive(packed, header);
}

QByteArray AssembleArchive(const QByteArray& packed, const QByteArray& header)
{
    CrcGenerateTable();
    const QByteArray start = LittleEndian(static_cast<quint64>(packed.size())) +
                             LittleEndian(static_cast<quint64>(header.size())) +
                             LittleEndian(Crc(header));
    const QByteArray signature("7z\xBC\xAF\x27\x1C\x00\x04", 8);
    return signature + LittleEndian(Crc(start)) + start + packed + header;
}
