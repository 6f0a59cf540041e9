#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

struct ExtractSettings;

namespace Vorlan
{

// Reads a 7z payload archive. Used by one thread at a time.
//
// Entry names are as the archive holds them: UTF-16 code units, one per wchar_t on every system,
// their components separated by "/". An archive with a name that must not become a file name (see
// IsSafeEntryName) is refused as corrupted.
class ArchiveExtractor
{
public:
    // The running total of bytes written by this call, and the output name of the entry just
    // written.
    using Progress = std::function<void(uint64_t, std::wstring)>;

    // Opens the archive and reads its catalogue, of at most eight million entries. Throws
    // std::runtime_error: "Failed to open input file", or "Failed read archive data, maybe file is
    // corrupted".
    explicit ArchiveExtractor(const std::wstring& archivePath);
    ~ArchiveExtractor();
    ArchiveExtractor(const ArchiveExtractor&) = delete;
    ArchiveExtractor& operator=(const ArchiveExtractor&) = delete;

    // One name per entry, in archive order; empty for a folder.
    const std::vector<std::wstring>& GetEntryNames() const;

    // Unpacked size of the entry at this position in GetEntryNames(), in bytes.
    uint64_t GetEntrySize(std::size_t index) const;

    // Length of the longest name in UTF-16 code units.
    std::size_t GetLongestNameLength() const;

    // Unpacked size of all entries together, in bytes.
    uint64_t GetTotalUnpackedSize() const;

    // Writes the selected entries below `destination`, which ends with a separator, in archive
    // order. Existing files are overwritten. The calling thread writes, while other threads, as
    // many as there are cores, decode blocks ahead: at most the larger of two blocks and 256 MiB
    // lie in memory. Throws std::runtime_error: "Failed to extract file data!", "Failed to create
    // directory", "Cannot open destination file for write", "Cannot write output file" or "Cannot
    // close output file". What was written before stays.
    void Unpack(const ExtractSettings& selection, const std::wstring& destination,
        const Progress& progress);

private:
    struct State;
    std::unique_ptr<State> state;
};

} // namespace Vorlan
