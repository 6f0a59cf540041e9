// One registry root on disk and in memory.
//
// The file is its own journal: a change appends one record with a single write, so a process that
// is killed leaves the old content or the new one. A record that is cut off is not applied, and
// the next change cuts it off for good. When the journal has grown past its worth the file is
// replaced by a sorted one. Other processes notice what was appended by the size and a replaced
// file by its number.
//
// Nothing here locks: callers hold the registry's lock, exclusively for all but Refresh.
#pragma once

#include "registry/KeyTree.h"
#include <Descriptor.h>

#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include <sys/stat.h>

namespace Pal
{

class RegistryFile
{
public:
    RegistryFile(std::filesystem::path filePath, std::u16string nameOfRoot);

    // Brings the tree up to date. ERROR_BADDB: the file is damaged, see SetAside.
    DWORD Refresh();

    // Renames a damaged file to a name that is free and goes on with a fresh root.
    DWORD SetAside();

    // Writes one record; the caller then makes the same change in the tree.
    DWORD Append(const std::u16string& record);

    // Replaces the file by a sorted one when that saves more than half of it and 64 KiB.
    void CompactIfLarge();

    // The same for any saving, if this process has appended anything.
    void CompactIfAppended();

    const std::shared_ptr<KeyNode>& Root() const { return root; }

    // Changes when the tree was read anew, so that the nodes are other ones.
    unsigned Generation() const { return generation; }

    // Reports, once for each kind of access, that the file cannot be "read" or "written".
    void ReportFailure(const char* access);

    // The warnings for people that came up since the last call.
    std::vector<std::string> TakeReports();

private:
    // A root as every Windows has it, which the first change puts on disk.
    void StartFresh();
    DWORD ReadWhole();
    DWORD ReadAppended();
    bool IsOwnFile(const struct stat& status) const;
    DWORD WriteRecord(int descriptor, const std::string& bytes);
    DWORD Replace(const std::string& content);

    const std::filesystem::path path;
    const std::u16string rootName;
    std::shared_ptr<KeyNode> root;
    unsigned generation = 0;
    Descriptor file;        // for reading; held so that its number goes to no other file
    off_t seenSize = 0;     // of the file when it was last read
    off_t completeSize = 0; // up to the end of its last complete record
    off_t compactAbove;
    bool appended = false;
    std::set<std::string> reportedFailures;
    std::vector<std::string> reports;
};

} // namespace Pal
