#include "archive/ArchiveExtractor.h"

#include "archive/ArchiveStream.h"
#include "archive/BlockDecoder.h"
#include "archive/EntryName.h"
#include "base/ExtractSettings.h"
#include "platform/Path.h"

#include <algorithm>
#include <stdexcept>

namespace Vorlan
{

namespace
{

constexpr ISzAlloc heap = {SzAlloc, SzFree};

// The catalogue's largest table has 8 bytes for each entry: room for eight million, and an archive
// that claims more takes no memory for them.
constexpr std::size_t largestTable = std::size_t{64} << 20; // bytes

void* AllocateTable(ISzAllocPtr allocator, std::size_t size)
{
    return size > largestTable ? nullptr : SzAlloc(allocator, size);
}

constexpr ISzAlloc catalogueHeap = {AllocateTable, SzFree};

void ThrowUnless(bool condition, const char* error)
{
    if (!condition)
        throw std::runtime_error(error);
}

// A file to be written; closed by the destructor at the latest.
class OutputFile
{
public:
    OutputFile() { File_Construct(&file); }
    ~OutputFile() { File_Close(&file); }
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    bool Open(const std::wstring& path)
    {
        return OutFile_OpenW(&file, Platform::PathForCall(path).c_str()) == 0;
    }

    void Write(const Byte* data, std::size_t size)
    {
        std::size_t written = size;
        ThrowUnless(
            File_Write(&file, data, &written) == 0 && written == size, "Cannot write output file");
    }

    void Close() { ThrowUnless(File_Close(&file) == 0, "Cannot close output file"); }

private:
    CSzFile file;
};

bool IsFolder(const std::wstring& path)
{
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// Creates the folders that the name of an output file goes through and that are missing. Returns
// whether there were any.
bool CreateMissingFolders(const std::wstring& destination, std::wstring name)
{
    bool areCreated = false;
    for (auto slash = name.find(L'/'); slash != std::wstring::npos; slash = name.find(L'/', slash))
    {
        const std::wstring folder = Platform::PathForCall(destination + name.substr(0, slash));
        if (!IsFolder(folder))
        {
            ThrowUnless(CreateDirectoryW(folder.c_str(), nullptr), "Failed to create directory");
            areCreated = true;
        }
        name[slash] = L'\\';
    }
    return areCreated;
}

// Most files have their folder already: it is looked for only where the file cannot be opened.
void OpenOutput(OutputFile& file, const std::wstring& destination, const std::wstring& name)
{
    const bool isOpen = file.Open(destination + name) ||
                        (CreateMissingFolders(destination, name) && file.Open(destination + name));
    ThrowUnless(isOpen, "Cannot open destination file for write");
}

bool IsSelected(const ExtractSettings& selection, const std::wstring& key)
{
    return (selection.include.empty() || selection.include.count(key) != 0) &&
           selection.exclude.count(key) == 0;
}

} // namespace

struct ArchiveExtractor::State
{
    State() { SzArEx_Init(&database); }
    ~State() { SzArEx_Free(&database, &heap); }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    struct Data
    {
        const Byte* bytes = nullptr;
        std::size_t size = 0;
    };

    void Open(const std::wstring& archivePath);
    void ReadNames();
    bool HasData(UInt32 index) const { return SzArEx_GetFileSize(&database, index) != 0; }
    std::vector<UInt32> BlocksOf(const std::vector<UInt32>& entries) const;
    Data Read(UInt32 index, BlockDecoder& decoder, BlockDecoder::Block*& block);

    std::wstring path;
    ArchiveStream stream;
    CSzArEx database = {};
    std::vector<std::wstring> names;
};

void ArchiveExtractor::State::Open(const std::wstring& archivePath)
{
    path = archivePath;
    ThrowUnless(stream.Open(path), "Failed to open input file");
    CrcGenerateTable();
    ThrowUnless(SzArEx_Open(&database, stream.Get(), &catalogueHeap, &catalogueHeap) == SZ_OK,
        "Failed read archive data, maybe file is corrupted");
}

void ArchiveExtractor::State::ReadNames()
{
    names.reserve(database.NumFiles);
    std::vector<UInt16> units;
    bool allNamed = true;
    for (UInt32 index = 0; index < database.NumFiles; ++index)
    {
        names.emplace_back();
        if (SzArEx_IsDir(&database, index))
            continue;
        units.resize(SzArEx_GetFileNameUtf16(&database, index, nullptr));
        SzArEx_GetFileNameUtf16(&database, index, units.data());
        names.back().assign(units.begin(), units.end() - 1);
        allNamed = allNamed && !names.back().empty();
    }
    ThrowUnless(
        allNamed && AreEntryNamesSafe(names), "Failed read archive data, maybe file is corrupted");
}

// The blocks that hold these entries' data. Entries of one block follow each other.
std::vector<UInt32> ArchiveExtractor::State::BlocksOf(const std::vector<UInt32>& entries) const
{
    std::vector<UInt32> blocks;
    for (const UInt32 index : entries)
    {
        const UInt32 block = database.FileToFolder[index];
        if (HasData(index) && (blocks.empty() || blocks.back() != block))
            blocks.push_back(block);
    }
    return blocks;
}

// block: the one of the entry read before.
ArchiveExtractor::State::Data ArchiveExtractor::State::Read(
    UInt32 index, BlockDecoder& decoder, BlockDecoder::Block*& block)
{
    if (!HasData(index))
        return {}; // it belongs to no block
    if (!block || block->index != database.FileToFolder[index])
        block = decoder.Next();
    std::size_t offset = 0;
    std::size_t size = 0;
    // Finds the block decoded, and compares the entry's checksum.
    ThrowUnless(block && SzArEx_Extract(&database, stream.Get(), index, &block->index, &block->data,
                             &block->size, &offset, &size, &heap, &heap) == SZ_OK,
        "Failed to extract file data!");
    return {block->data + offset, size};
}

ArchiveExtractor::ArchiveExtractor(const std::wstring& archivePath)
    : state(std::make_unique<State>())
{
    state->Open(archivePath);
    state->ReadNames();
}

ArchiveExtractor::~ArchiveExtractor() = default;

const std::vector<std::wstring>& ArchiveExtractor::GetEntryNames() const
{
    return state->names;
}

uint64_t ArchiveExtractor::GetEntrySize(std::size_t index) const
{
    return SzArEx_GetFileSize(&state->database, index);
}

std::size_t ArchiveExtractor::GetLongestNameLength() const
{
    std::size_t longest = 0;
    for (const std::wstring& name : state->names)
        longest = std::max(longest, name.size());
    return longest;
}

uint64_t ArchiveExtractor::GetTotalUnpackedSize() const
{
    // An archive that holds nothing has no table of positions.
    const CSzArEx& database = state->database;
    return database.NumFiles == 0 ? 0 : database.UnpackPositions[database.NumFiles];
}

void ArchiveExtractor::Unpack(
    const ExtractSettings& selection, const std::wstring& destination, const Progress& progress)
{
    std::vector<UInt32> entries;
    for (UInt32 index = 0; index < state->names.size(); ++index)
    {
        const std::wstring& name = state->names[index];
        if (!name.empty() && IsSelected(selection, EntryKey(name)))
            entries.push_back(index);
    }

    BlockDecoder decoder(state->database, state->stream, state->path, state->BlocksOf(entries));
    BlockDecoder::Block* block = nullptr;
    uint64_t total = 0;
    for (const UInt32 index : entries)
    {
        const std::wstring& name = state->names[index];
        const State::Data data = state->Read(index, decoder, block);
        const auto renamed = selection.rename.find(EntryKey(name));
        const std::wstring& outputName = renamed == selection.rename.end() ? name : renamed->second;
        OutputFile file;
        OpenOutput(file, destination, outputName);
        total += data.size;
        file.Write(data.bytes, data.size);
        file.Close();
        if (progress)
            progress(total, outputName);
    }
}

} // namespace Vorlan
