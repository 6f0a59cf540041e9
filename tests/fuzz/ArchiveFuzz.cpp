// Feeds archives of any content to the archive reader: opens them, and unpacks those that say that
// they are small. What it finds is a crash, a report of the sanitisers, an error that is not among
// the reader's documented ones, or a file outside of the destination.
#include "archive/ArchiveExtractor.h"
#include "base/ExtractSettings.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <stdexcept>
#include <string>

#include <unistd.h>

namespace fs = std::filesystem;

namespace
{

constexpr std::uint64_t largestUnpacked = 1 << 20; // bytes
constexpr std::size_t startHeaderSize = 32;        // bytes

const std::set<std::string> documentedErrors = {"Failed to open input file",
    "Failed read archive data, maybe file is corrupted", "Failed to extract file data!",
    "Failed to create directory", "Cannot open destination file for write",
    "Cannot write output file", "Cannot close output file"};

// A folder of this process, which holds the archive and the folder to unpack it into.
class Scratch
{
public:
    Scratch() : folder(fs::temp_directory_path() / ("archive-fuzz-" + std::to_string(getpid())))
    {
        fs::remove_all(folder);
        fs::create_directories(Output());
    }
    ~Scratch() { fs::remove_all(folder); }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    fs::path Archive() const { return folder / "input.7z"; }
    fs::path Output() const { return folder / "out" / ""; }

    void EmptyOutput() const
    {
        if (fs::is_empty(Output()))
            return;
        fs::remove_all(Output());
        fs::create_directory(Output());
    }

    bool HoldsNothingElse() const
    {
        return std::distance(fs::directory_iterator(folder), fs::directory_iterator()) == 2;
    }

private:
    const fs::path folder;
};

void Require(bool condition, const std::string& finding)
{
    if (condition)
        return;
    std::fprintf(stderr, "finding: %s\n", finding.c_str());
    std::abort();
}

// With the signature, and with the checksums that every start header has here (see
// NoChecksums.cpp), so that what stands behind it is looked at.
void Write(const fs::path& path, const std::uint8_t* data, std::size_t size)
{
    std::string content(reinterpret_cast<const char*>(data), size);
    if (size >= startHeaderSize)
    {
        content.replace(0, 7, std::string("7z\xBC\xAF\x27\x1C\0", 7));
        content.replace(8, 4, 4, '\0');
        content.replace(28, 4, 4, '\0');
    }
    std::ofstream(path, std::ios::binary | std::ios::trunc) << content;
}

void Read(const Scratch& scratch)
try
{
    Vorlan::ArchiveExtractor extractor(scratch.Archive().wstring());
    const std::vector<std::wstring>& names = extractor.GetEntryNames();
    Require(std::all_of(names.begin(), names.end(),
                [&](const std::wstring& name)
                { return name.size() <= extractor.GetLongestNameLength(); }),
        "the longest name is not the longest");
    if (extractor.GetTotalUnpackedSize() > largestUnpacked)
        return;
    std::uint64_t unpacked = 0;
    extractor.Unpack({}, scratch.Output().wstring(),
        [&](std::uint64_t bytes, const std::wstring&)
        {
            Require(bytes >= unpacked, "progress goes back");
            unpacked = bytes;
        });
    Require(unpacked <= extractor.GetTotalUnpackedSize(), "more was unpacked than was told");
}
catch (const std::runtime_error& error)
{
    Require(documentedErrors.count(error.what()) == 1, error.what());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const Scratch scratch;
    Write(scratch.Archive(), data, size);
    Read(scratch);
    Require(scratch.HoldsNothingElse(), "a file outside of the destination");
    scratch.EmptyOutput();
    return 0;
}
