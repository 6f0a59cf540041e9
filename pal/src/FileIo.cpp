// Calls on an open file.
#include <windows.h>

#include "ErrorMapping.h"
#include "Faults.h"
#include "LastError.h"
#include "OpenFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <limits>

#include <sys/stat.h>
#include <unistd.h>

namespace Pal
{

namespace
{

constexpr DWORD largestTransfer = 1u << 30; // read and write transfer less than 2 GiB per call

std::shared_ptr<OpenFile> FindFile(HANDLE handle)
{
    return HandleTable::Instance().Find<OpenFile>(handle);
}

DWORD CheckTransfer(const OpenFile* file, DWORD access, const DWORD* count, const void* overlapped)
{
    if (!file)
        return ERROR_INVALID_HANDLE;
    if (overlapped)
        return ERROR_NOT_SUPPORTED;
    if (!count)
        return ERROR_INVALID_PARAMETER;
    return file->Allows(access) ? ERROR_SUCCESS : ERROR_ACCESS_DENIED;
}

// Calls transfer(offset, size) until all bytes are transferred, a call transfers none, or one
// fails.
template <typename Transfer>
DWORD TransferAll(DWORD size, DWORD& done, Transfer transfer)
{
    done = 0;
    while (done < size)
    {
        const DWORD wanted = std::min(size - done, largestTransfer);
        const ssize_t moved = transfer(done, wanted);
        if (moved < 0 && errno == EINTR)
            continue;
        if (moved < 0)
            return ErrorFromErrno(errno);
        if (moved == 0)
            return ERROR_SUCCESS;
        done += static_cast<DWORD>(moved);
    }
    return ERROR_SUCCESS;
}

DWORD Origin(int descriptor, DWORD moveMethod, int64_t& origin)
{
    struct stat status = {};
    off_t position = 0;
    switch (moveMethod)
    {
    case FILE_BEGIN:
        break;
    case FILE_CURRENT:
        position = lseek(descriptor, 0, SEEK_CUR);
        break;
    case FILE_END:
        position = fstat(descriptor, &status) == 0 ? status.st_size : -1;
        break;
    default:
        return ERROR_INVALID_PARAMETER;
    }
    origin = position;
    return position < 0 ? ErrorFromErrno(errno) : ERROR_SUCCESS;
}

DWORD MovePointer(int descriptor, int64_t distance, DWORD moveMethod, bool wide, int64_t& target)
{
    const DWORD error = Origin(descriptor, moveMethod, target);
    if (error != ERROR_SUCCESS)
        return error;
    if (__builtin_add_overflow(target, distance, &target))
        return ERROR_INVALID_PARAMETER;
    if (target < 0)
        return ERROR_NEGATIVE_SEEK;
    if (!wide && target > std::numeric_limits<DWORD>::max())
        return ERROR_INVALID_PARAMETER;
    return lseek(descriptor, target, SEEK_SET) < 0 ? ErrorFromErrno(errno) : ERROR_SUCCESS;
}

int64_t Distance(LONG low, const LONG* high)
{
    if (!high)
        return low;
    const uint64_t upper = static_cast<uint64_t>(static_cast<DWORD>(*high)) << 32;
    return static_cast<int64_t>(upper | static_cast<DWORD>(low));
}

// A valid low part of 0xFFFFFFFF differs from a failure by the last error NO_ERROR.
DWORD LowPart(int64_t value)
{
    const auto low = static_cast<DWORD>(value & 0xFFFFFFFF);
    if (low == INVALID_SET_FILE_POINTER)
        SetLastError(NO_ERROR);
    return low;
}

} // namespace

} // namespace Pal

// Keeps:   at the end of the file TRUE with zero bytes; ERROR_ACCESS_DENIED without GENERIC_READ,
//          ERROR_NOACCESS for an unusable buffer, both with zero bytes.
// Refuses: overlapped reading.
BOOL ReadFile(
    HANDLE file, LPVOID buffer, DWORD bytesToRead, LPDWORD bytesRead, LPOVERLAPPED overlapped)
{
    if (bytesRead)
        *bytesRead = 0;
    if (Pal::FaultHits(__func__))
        return FALSE;
    const auto open = Pal::FindFile(file);
    DWORD error = Pal::CheckTransfer(open.get(), GENERIC_READ, bytesRead, overlapped);
    if (error != ERROR_SUCCESS)
        return Pal::Failed(error);
    const auto readSome = [&](DWORD offset, DWORD size)
    { return read(open->Descriptor(), static_cast<char*>(buffer) + offset, size); };
    error = Pal::TransferAll(bytesToRead, *bytesRead, readSome);
    return error == ERROR_SUCCESS ? TRUE : Pal::Failed(error);
}

// Keeps:   all bytes are written, or FALSE; ERROR_DISK_FULL if there is no room,
//          ERROR_ACCESS_DENIED without GENERIC_WRITE, ERROR_INVALID_USER_BUFFER for an unusable
//          buffer.
// Differs: after a failure bytesWritten counts the bytes written before it.
// Refuses: overlapped writing.
BOOL WriteFile(
    HANDLE file, LPCVOID buffer, DWORD bytesToWrite, LPDWORD bytesWritten, LPOVERLAPPED overlapped)
{
    if (bytesWritten)
        *bytesWritten = 0;
    if (Pal::FaultHits(__func__))
        return FALSE;
    const auto open = Pal::FindFile(file);
    DWORD error = Pal::CheckTransfer(open.get(), GENERIC_WRITE, bytesWritten, overlapped);
    if (error != ERROR_SUCCESS)
        return Pal::Failed(error);
    const auto writeSome = [&](DWORD offset, DWORD size)
    { return write(open->Descriptor(), static_cast<const char*>(buffer) + offset, size); };
    error = Pal::TransferAll(bytesToWrite, *bytesWritten, writeSome);
    if (error == ERROR_NOACCESS)
        error = ERROR_INVALID_USER_BUFFER;
    if (error == ERROR_SUCCESS && *bytesWritten < bytesToWrite)
        error = ERROR_WRITE_FAULT;
    return error == ERROR_SUCCESS ? TRUE : Pal::Failed(error);
}

// Keeps:   64-bit distances and positions with the high part; a low part of 0xFFFFFFFF with the
//          last error NO_ERROR is a position; ERROR_NEGATIVE_SEEK before the start, and
//          ERROR_INVALID_PARAMETER past 4 GiB without a high part, both without moving the pointer.
DWORD SetFilePointer(HANDLE file, LONG distanceToMove, PLONG distanceToMoveHigh, DWORD moveMethod)
{
    if (Pal::FaultHits(__func__))
        return INVALID_SET_FILE_POINTER;
    const auto open = Pal::FindFile(file);
    int64_t position = 0;
    const DWORD error = open ? Pal::MovePointer(open->Descriptor(),
                                   Pal::Distance(distanceToMove, distanceToMoveHigh), moveMethod,
                                   distanceToMoveHigh != nullptr, position)
                             : ERROR_INVALID_HANDLE;
    if (error != ERROR_SUCCESS)
    {
        SetLastError(error);
        return INVALID_SET_FILE_POINTER;
    }
    if (distanceToMoveHigh)
        *distanceToMoveHigh = static_cast<LONG>(position >> 32);
    return Pal::LowPart(position);
}

// Keeps:   the high part if it is asked for; a low part of 0xFFFFFFFF with the last error NO_ERROR
//          is a size.
DWORD GetFileSize(HANDLE file, LPDWORD fileSizeHigh)
{
    if (Pal::FaultHits(__func__))
        return INVALID_FILE_SIZE;
    const auto open = Pal::FindFile(file);
    struct stat status = {};
    if (!open || fstat(open->Descriptor(), &status) != 0)
    {
        SetLastError(open ? Pal::ErrorFromErrno(errno) : ERROR_INVALID_HANDLE);
        return INVALID_FILE_SIZE;
    }
    if (fileSizeHigh)
        *fileSizeHigh = static_cast<DWORD>(status.st_size >> 32);
    return Pal::LowPart(status.st_size);
}
