#include "ErrorMapping.h"

#include <cerrno>
#include <filesystem>

namespace Pal
{

namespace
{

struct Mapping
{
    int systemError;
    DWORD windowsError;
};

constexpr Mapping mappings[] = {
    {ENOENT, ERROR_FILE_NOT_FOUND},
    {ENOTDIR, ERROR_PATH_NOT_FOUND},
    {ENOEXEC, ERROR_BAD_EXE_FORMAT},
    {ESRCH, ERROR_INVALID_PARAMETER},
    {EMFILE, ERROR_TOO_MANY_OPEN_FILES},
    {ENFILE, ERROR_TOO_MANY_OPEN_FILES},
    {EACCES, ERROR_ACCESS_DENIED},
    {EPERM, ERROR_ACCESS_DENIED},
    {EISDIR, ERROR_ACCESS_DENIED},
    {ETXTBSY, ERROR_SHARING_VIOLATION},
    {EROFS, ERROR_WRITE_PROTECT},
    {EBADF, ERROR_INVALID_HANDLE},
    {ENOMEM, ERROR_NOT_ENOUGH_MEMORY},
    {EXDEV, ERROR_NOT_SAME_DEVICE},
    {ESPIPE, ERROR_SEEK},
    {EEXIST, ERROR_ALREADY_EXISTS},
    {EINVAL, ERROR_INVALID_PARAMETER},
    {ENOSPC, ERROR_DISK_FULL},
    {EDQUOT, ERROR_DISK_FULL},
    {EFBIG, ERROR_FILE_TOO_LARGE},
    {ENOTEMPTY, ERROR_DIR_NOT_EMPTY},
    {EBUSY, ERROR_BUSY},
    {ENAMETOOLONG, ERROR_FILENAME_EXCED_RANGE},
    {ELOOP, ERROR_CANT_RESOLVE_FILENAME},
    {EFAULT, ERROR_NOACCESS},
    {EILSEQ, ERROR_INVALID_NAME},
};

bool ParentIsFolder(std::string path)
{
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    const std::filesystem::path parent = std::filesystem::path(path).parent_path();
    std::error_code error;
    return parent.empty() || std::filesystem::is_directory(parent, error);
}

} // namespace

DWORD ErrorFromErrno(int systemError)
{
    for (const Mapping& mapping : mappings)
    {
        if (mapping.systemError == systemError)
            return mapping.windowsError;
    }
    return ERROR_GEN_FAILURE;
}

DWORD ErrorForPath(int systemError, const std::string& path)
{
    if (systemError == ENOENT && !ParentIsFolder(path))
        return ERROR_PATH_NOT_FOUND;
    return ErrorFromErrno(systemError);
}

} // namespace Pal
