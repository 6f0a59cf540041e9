#pragma once

#include "archive/SevenZip.h"
#include "platform/Path.h"

#include <array>
#include <string>

namespace Vorlan
{

// An archive file as the decoder reads it. Each reading thread has its own.
class ArchiveStream
{
public:
    ArchiveStream() { File_Construct(&stream.file); }
    ~ArchiveStream() { File_Close(&stream.file); }
    ArchiveStream(const ArchiveStream&) = delete;
    ArchiveStream& operator=(const ArchiveStream&) = delete;

    bool Open(const std::wstring& path)
    {
        if (InFile_OpenW(&stream.file, Platform::PathForCall(path).c_str()) != 0)
            return false;
        FileInStream_CreateVTable(&stream);
        LookToRead2_CreateVTable(&look, False);
        look.realStream = &stream.vt;
        look.buf = buffer.data();
        look.bufSize = buffer.size();
        LookToRead2_INIT(&look);
        return true;
    }

    ILookInStreamPtr Get() { return &look.vt; }

private:
    CFileInStream stream = {};
    CLookToRead2 look = {};
    std::array<Byte, std::size_t{256} * 1024> buffer;
};

} // namespace Vorlan
