#include "platform/Path.h"

namespace Vorlan::Platform
{

QString ToNativePath(QString path)
{
    return path.replace('\\', '/');
}

QString DriveRoot(const QString& path)
{
    return path;
}

} // namespace Vorlan::Platform
