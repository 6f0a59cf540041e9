#include "platform/Path.h"

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

QString DriveRoot(const QString& path)
{
    return path.left(3);
}

} // namespace Vorlan::Platform
