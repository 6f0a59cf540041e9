#include "platform/Path.h"

namespace Vorlan::Platform
{

QString ToNativePath(QString path)
{
    return path;
}

QString DriveRoot(const QString& path)
{
    return path.left(3);
}

} // namespace Vorlan::Platform
