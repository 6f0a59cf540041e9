// A file behind a HANDLE.
#pragma once

#include <string>

#include <sys/stat.h>

#include "HandleTable.h"

namespace Pal
{

class OpenFile : public OpenObject
{
public:
    // Takes over the descriptor.
    OpenFile(int descriptor, std::string path, DWORD access, DWORD shareMode);
    ~OpenFile() override;
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    std::string Name() const override { return m_path; }
    DWORD Close() override;

    // Whether the share modes forbid that both are open at once.
    bool Excludes(const OpenFile& other) const;

    bool Allows(DWORD access) const { return (m_access & access) != 0; }
    int Descriptor() const { return m_descriptor; }
    // As it was when it was opened; all zero where the system did not tell.
    const struct stat& Status() const { return m_status; }

private:
    int m_descriptor;
    const std::string m_path;
    const DWORD m_access;
    const DWORD m_shareMode;
    struct stat m_status = {};
};

} // namespace Pal
