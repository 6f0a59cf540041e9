// A file behind a HANDLE.
#pragma once

#include "HandleTable.h"

#include <string>

#include <sys/stat.h>

namespace Pal
{

class OpenFile : public OpenObject
{
public:
    // Owns the descriptor.
    OpenFile(int opened, std::string name, DWORD rights, DWORD sharing);
    ~OpenFile() override;
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    std::string Name() const override { return path; }
    DWORD Close() override;

    // Whether the share modes of one forbid the access of the other.
    bool Excludes(const OpenFile& other) const;

    bool Allows(DWORD right) const { return (access & right) != 0; }
    int Descriptor() const { return descriptor; }
    // The status when the file was opened; all zero if fstat failed.
    const struct stat& Status() const { return status; }

private:
    int descriptor;
    const std::string path;
    const DWORD access;
    const DWORD shareMode;
    struct stat status = {};
};

} // namespace Pal
