// One registry root on disk and in memory.
//
// Every change replaces the file, so a process that is killed leaves the old content or the new
// one. Other processes notice the replacement by the inode number, and an edit by size and time.
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

    // Reads the file if it was changed. ERROR_BADDB: the file is damaged, see SetAside.
    DWORD Refresh();

    // Renames a damaged file to an unused name and continues with a fresh root.
    DWORD SetAside();

    // Replaces the file by the tree. After a failure the next Refresh reads the old content again.
    DWORD Write();

    const std::shared_ptr<KeyNode>& Root() const { return root; }

    // Changes whenever the tree is read again, which replaces all of its nodes.
    unsigned Generation() const { return generation; }

    // Reports, once for each kind of access, that the file cannot be "read" or "written".
    void ReportFailure(const char* access);

    // The warnings since the last call.
    std::vector<std::string> TakeReports();

private:
    // The keys that every Windows has; the first change writes them to disk.
    void StartFresh();
    DWORD Read();
    bool IsKnown(const struct stat& status) const;
    void Keep(Descriptor opened);

    const std::filesystem::path path;
    const std::u16string rootName;
    std::shared_ptr<KeyNode> root;
    unsigned generation = 0;
    Descriptor file; // last read or written; open so that its inode number is not reused
    struct stat known = {};
    std::set<std::string> reportedFailures;
    std::vector<std::string> reports;
};

} // namespace Pal
