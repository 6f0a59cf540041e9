#include "platform/CopyFile.h"

namespace Vorlan::Platform
{

bool CopyToNewFile(QFile& source, const QString& destination)
{
    return source.copy(destination); // the system's own copy, which forces nothing to the disk
}

} // namespace Vorlan::Platform
