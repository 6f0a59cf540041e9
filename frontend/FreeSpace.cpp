#include "FreeSpace.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

namespace Vorlan::FrontEnd
{

std::optional<qint64> FreeSpace(const QString& folder)
{
    QFileInfo existing(QDir::cleanPath(folder));
    while (!existing.exists() && !existing.isRoot() && existing.path() != existing.filePath())
        existing.setFile(existing.path());
    const qint64 bytes = QStorageInfo(existing.absoluteFilePath()).bytesAvailable();
    return existing.exists() && bytes >= 0 ? std::optional<qint64>(bytes) : std::nullopt;
}

} // namespace Vorlan::FrontEnd
