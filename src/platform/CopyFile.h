#pragma once

#include <QFile>
#include <QString>

namespace Vorlan::Platform
{

// Copies a file and its permissions to a path that must not exist, as QFile::copy does, with its
// error text in `source`, but leaves it to the system when the content reaches the disk: forcing
// every file to it takes many times as long as copying. A copy that fails leaves nothing at the
// destination. Any thread.
bool CopyToNewFile(QFile& source, const QString& destination);

} // namespace Vorlan::Platform
