#include "ProtectedTempFolder.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

namespace Vorlan::FrontEnd
{

QString SystemTemp::Parent()
{
    return QDir::tempPath();
}

// Without rights for others: the engine makes the deletion script writable for all.
bool SystemTemp::CreateProtected(const QString& path)
{
    return mkdir(QFile::encodeName(path).constData(), S_IRWXU) == 0;
}

} // namespace Vorlan::FrontEnd
