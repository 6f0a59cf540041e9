#include "platform/Path.h"

#include <QFile>

#include <unistd.h>

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

bool MayCreateIn(const QString& folder)
{
    return access(QFile::encodeName(folder).constData(), W_OK | X_OK) == 0;
}

QString DriveRoot(const QString& path)
{
    return path;
}

} // namespace Vorlan::Platform
