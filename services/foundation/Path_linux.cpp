#include "platform/Path.h"

namespace Vorlan::Platform
{

QString ToNativePath(QString path)
{
    return path.replace('\\', '/');
}

std::wstring PathForCall(std::wstring path)
{
    return path;
}

QString DriveRoot(const QString& path)
{
    return path;
}

} // namespace Vorlan::Platform
