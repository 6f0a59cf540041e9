// Calls that take a file name: opening, creating, reading attributes.
#include <windows.h>

#include "ErrorMapping.h"
#include "Faults.h"
#include "LastError.h"
#include "OpenFile.h"
#include "WideText.h"

#include <QString>

#include <cerrno>
#include <filesystem>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pal
{

OpenFile::OpenFile(int opened, std::string name, DWORD rights, DWORD sharing)
    : descriptor(opened), path(std::move(name)), access(rights), shareMode(sharing)
{
    if (fstat(descriptor, &status) != 0)
        status = {};
}

OpenFile::~OpenFile()
{
    OpenFile::Close();
}

DWORD OpenFile::Close()
{
    if (descriptor < 0)
        return ERROR_SUCCESS;
    const int result = close(descriptor);
    descriptor = -1;
    return result == 0 ? ERROR_SUCCESS : ErrorFromErrno(errno);
}

bool OpenFile::Excludes(const OpenFile& other) const
{
    const auto forbids = [](const OpenFile& first, const OpenFile& second)
    {
        return (second.Allows(GENERIC_READ) && !(first.shareMode & FILE_SHARE_READ)) ||
               (second.Allows(GENERIC_WRITE) && !(first.shareMode & FILE_SHARE_WRITE));
    };
    return status.st_dev == other.status.st_dev && status.st_ino == other.status.st_ino &&
           (forbids(*this, other) || forbids(other, *this));
}

namespace
{

struct OpenRequest
{
    DWORD access;
    DWORD shareMode;
    DWORD disposition;
};

HANDLE FailedOpen(DWORD error)
{
    SetLastError(error);
    return INVALID_HANDLE_VALUE;
}

bool Truncates(DWORD disposition)
{
    return disposition == CREATE_ALWAYS || disposition == TRUNCATE_EXISTING;
}

DWORD CheckRequest(const OpenRequest& request, DWORD flags, bool hasExtras)
{
    constexpr DWORD allAccess = GENERIC_READ | GENERIC_WRITE;
    constexpr DWORD allSharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    if (hasExtras || (flags & ~DWORD{FILE_ATTRIBUTE_NORMAL}))
        return ERROR_NOT_SUPPORTED;
    if (!(request.access & allAccess) || (request.access & ~allAccess))
        return ERROR_NOT_SUPPORTED;
    if ((request.shareMode & ~allSharing) || request.disposition < CREATE_NEW ||
        request.disposition > TRUNCATE_EXISTING)
        return ERROR_INVALID_PARAMETER;
    if (Truncates(request.disposition) && !(request.access & GENERIC_WRITE))
        return ERROR_INVALID_PARAMETER;
    return ERROR_SUCCESS;
}

int OpenFlags(const OpenRequest& request)
{
    int flags = O_CLOEXEC;
    if (request.access == GENERIC_READ)
        flags |= O_RDONLY;
    else
        flags |= (request.access & GENERIC_READ) ? O_RDWR : O_WRONLY;
    if (request.disposition == CREATE_NEW)
        flags |= O_CREAT | O_EXCL;
    if (request.disposition == CREATE_ALWAYS || request.disposition == OPEN_ALWAYS)
        flags |= O_CREAT;
    return flags;
}

int OpenDescriptor(const std::string& path, int flags)
{
    int descriptor = -1;
    do
        descriptor = open(path.c_str(), flags, 0777);
    while (descriptor < 0 && errno == EINTR);
    return descriptor;
}

// Truncates the file only after the share modes were checked.
HANDLE EnterFile(const std::shared_ptr<OpenFile>& file, DWORD disposition)
{
    const auto excludes = [&file](const OpenObject& other)
    {
        const auto* otherFile = dynamic_cast<const OpenFile*>(&other);
        return otherFile && otherFile->Excludes(*file);
    };
    const HANDLE handle = HandleTable::Instance().AddUnless(excludes, file);
    if (!handle)
        return FailedOpen(ERROR_SHARING_VIOLATION);
    const struct stat& status = file->Status();
    const bool mustEmpty = Truncates(disposition) && S_ISREG(status.st_mode) && status.st_size != 0;
    if (mustEmpty && ftruncate(file->Descriptor(), 0) != 0)
    {
        const DWORD error = ErrorFromErrno(errno);
        HandleTable::Instance().Take<OpenFile>(handle);
        return FailedOpen(error);
    }
    return handle;
}

bool IsNullDevice(const std::string& path)
{
    const std::string name = std::filesystem::path(path).filename();
    return QString::fromStdString(name).compare("nul", Qt::CaseInsensitive) == 0;
}

HANDLE OpenNativeFile(const std::string& path, const OpenRequest& request)
{
    if (path.back() == '/')
        return FailedOpen(ERROR_PATH_NOT_FOUND);
    struct stat status = {};
    const bool existed = stat(path.c_str(), &status) == 0;
    const int descriptor = OpenDescriptor(path, OpenFlags(request));
    if (descriptor < 0)
    {
        const int error = errno;
        return FailedOpen(error == EEXIST ? ERROR_FILE_EXISTS : ErrorForPath(error, path));
    }
    const auto file =
        std::make_shared<OpenFile>(descriptor, path, request.access, request.shareMode);
    if (S_ISDIR(file->Status().st_mode))
        return FailedOpen(ERROR_ACCESS_DENIED);
    const HANDLE handle = EnterFile(file, request.disposition);
    const bool foundInstead =
        existed && (request.disposition == CREATE_ALWAYS || request.disposition == OPEN_ALWAYS);
    if (handle != INVALID_HANDLE_VALUE)
        SetLastError(foundInstead ? ERROR_ALREADY_EXISTS : ERROR_SUCCESS);
    return handle;
}

template <typename Name>
HANDLE OpenNamedFile(Name name, const OpenRequest& request, DWORD flags, bool hasExtras)
{
    DWORD error = CheckRequest(request, flags, hasExtras);
    std::string path;
    if (error == ERROR_SUCCESS)
        error = NativePath(name, path);
    if (error != ERROR_SUCCESS)
        return FailedOpen(error);
    return OpenNativeFile(IsNullDevice(path) ? "/dev/null" : path, request);
}

DWORD AttributesOf(const std::string& path, const struct stat& status)
{
    struct stat target = {};
    const bool folder = stat(path.c_str(), &target) == 0 && S_ISDIR(target.st_mode);
    DWORD attributes = folder ? FILE_ATTRIBUTE_DIRECTORY : 0;
    if (S_ISLNK(status.st_mode))
        attributes |= FILE_ATTRIBUTE_REPARSE_POINT;
    else if (!folder && !(status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)))
        attributes |= FILE_ATTRIBUTE_READONLY;
    return attributes ? attributes : FILE_ATTRIBUTE_NORMAL;
}

} // namespace

} // namespace Pal

// Keeps:   access, share modes and dispositions; ERROR_FILE_EXISTS from CREATE_NEW; success sets
//          the last error to zero, or to ERROR_ALREADY_EXISTS if CREATE_ALWAYS or OPEN_ALWAYS found
//          the file. A folder is ERROR_ACCESS_DENIED, a name with a separator at its end
//          ERROR_PATH_NOT_FOUND. A symbolic link is followed. "nul" is the null device in every
//          folder.
// Differs: share modes apply to the handles of this process only, and FILE_SHARE_DELETE changes
//          nothing. Names are case-sensitive, may hold any character and have any length; the
//          prefix "\\?\" has no meaning, and the names of other devices, such as CON and COM1, are
//          ordinary ones. A new file gets mode 0777 less the umask, because Windows has no
//          executable bit.
// Refuses: access other than GENERIC_READ and GENERIC_WRITE, every flag and attribute but
//          FILE_ATTRIBUTE_NORMAL, security attributes, a template; CREATE_ALWAYS without
//          GENERIC_WRITE.
HANDLE CreateFileW(LPCWSTR fileName, DWORD desiredAccess, DWORD shareMode,
    LPSECURITY_ATTRIBUTES securityAttributes, DWORD creationDisposition, DWORD flagsAndAttributes,
    HANDLE templateFile)
{
    if (Pal::FaultHits(__func__))
        return INVALID_HANDLE_VALUE;
    return Pal::OpenNamedFile(fileName, {desiredAccess, shareMode, creationDisposition},
        flagsAndAttributes, securityAttributes || templateFile);
}

// As CreateFileW.
// Differs: the name is UTF-8.
HANDLE CreateFileA(LPCSTR fileName, DWORD desiredAccess, DWORD shareMode,
    LPSECURITY_ATTRIBUTES securityAttributes, DWORD creationDisposition, DWORD flagsAndAttributes,
    HANDLE templateFile)
{
    if (Pal::FaultHits(__func__))
        return INVALID_HANDLE_VALUE;
    return Pal::OpenNamedFile(fileName, {desiredAccess, shareMode, creationDisposition},
        flagsAndAttributes, securityAttributes || templateFile);
}

// Keeps:   ERROR_ALREADY_EXISTS if the name exists, ERROR_PATH_NOT_FOUND without the parent folder.
// Differs: names as in CreateFileW, so dots and blanks at the end of a name are kept.
// Refuses: security attributes.
BOOL CreateDirectoryW(LPCWSTR pathName, LPSECURITY_ATTRIBUTES securityAttributes)
{
    if (Pal::FaultHits(__func__))
        return FALSE;
    if (securityAttributes)
        return Pal::Failed(ERROR_NOT_SUPPORTED);
    std::string path;
    const DWORD error = Pal::NativePath(pathName, path);
    if (error != ERROR_SUCCESS)
        return Pal::Failed(error);
    if (mkdir(path.c_str(), 0777) != 0)
        return Pal::Failed(Pal::ErrorForPath(errno, path));
    return TRUE;
}

// Keeps:   folder, read-only, and a symbolic link as FILE_ATTRIBUTE_REPARSE_POINT of its own;
//          FILE_ATTRIBUTE_NORMAL if no other attribute is set.
// Differs: a file is read-only if nobody may write it; a folder never is. The other attributes,
//          including FILE_ATTRIBUTE_ARCHIVE, do not exist.
DWORD GetFileAttributesW(LPCWSTR fileName)
{
    if (Pal::FaultHits(__func__))
        return INVALID_FILE_ATTRIBUTES;
    std::string path;
    DWORD error = Pal::NativePath(fileName, path);
    struct stat status = {};
    if (error == ERROR_SUCCESS && lstat(path.c_str(), &status) != 0)
        error = Pal::ErrorForPath(errno, path);
    if (error == ERROR_SUCCESS)
        return Pal::AttributesOf(path, status);
    SetLastError(error);
    return INVALID_FILE_ATTRIBUTES;
}
