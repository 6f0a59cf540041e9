#include "platform/Path.h"

#include <QDir>

#include <windows.h>

#include <algorithm>

namespace Vorlan::Platform
{

QString ToNativePath(QString path)
{
    return path;
}

std::wstring PathForCall(std::wstring path)
{
    constexpr std::size_t plainLimit = 248;
    if (path.size() < plainLimit)
        return path;
    std::replace(path.begin(), path.end(), L'/', L'\\');
    const bool isOnDrive = path[1] == L':';
    const bool isOnShare = path.compare(0, 2, L"\\\\") == 0 && path[2] != L'?';
    if (isOnShare)
        return L"\\\\?\\UNC" + path.substr(1);
    return isOnDrive ? L"\\\\?\\" + path : path;
}

// A handle with these rights is given exactly where the folder's access list allows it; the
// read-only attribute has no such meaning for folders.
bool MayCreateIn(const QString& folder)
{
    const std::wstring path = PathForCall(WideFromText(QDir::toNativeSeparators(folder)));
    const HANDLE handle = CreateFileW(path.c_str(), FILE_ADD_FILE | FILE_ADD_SUBDIRECTORY,
        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
        FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return false;
    CloseHandle(handle);
    return true;
}

QString DriveRoot(const QString& path)
{
    return path.left(3);
}

} // namespace Vorlan::Platform
