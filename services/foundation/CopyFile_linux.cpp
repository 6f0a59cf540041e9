#include "platform/CopyFile.h"

#include <Descriptor.h>

#include <QFileInfo>

#include <string>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/sendfile.h>
#include <unistd.h>

namespace Vorlan::Platform
{

namespace
{

using Pal::Descriptor;

Descriptor Open(const QString& path, int flags)
{
    return Descriptor(open(QFile::encodeName(path).constData(), flags | O_CLOEXEC, 0600));
}

// Shares the blocks where the file system can do so, and copies them otherwise.
bool CopyContent(int source, int destination)
{
    constexpr std::size_t most = 0x7ffff000; // bytes that one call transfers, see sendfile(2)
    if (ioctl(destination, FICLONE, source) == 0)
        return true;
    ssize_t copied = 0;
    do
        copied = sendfile(destination, source, nullptr, most);
    while (copied > 0);
    return copied == 0;
}

// Without the right to link by the number alone, by its name in /proc, which takes longer: see
// open(2).
bool Name(int unnamed, const QByteArray& path)
{
    const std::string inProc = "/proc/self/fd/" + std::to_string(unnamed);
    return linkat(unnamed, "", AT_FDCWD, path.constData(), AT_EMPTY_PATH) == 0 ||
           linkat(AT_FDCWD, inProc.c_str(), AT_FDCWD, path.constData(), AT_SYMLINK_FOLLOW) == 0;
}

// The new file has no name until it is complete. False where something fails, or where the file
// system has no files without a name.
bool CopyUnnamed(const QFile& source, const QString& destination)
{
    const Descriptor from = Open(source.fileName(), O_RDONLY);
    const Descriptor to = Open(QFileInfo(destination).path(), O_WRONLY | O_TMPFILE);
    return from.IsOpen() && to.IsOpen() && CopyContent(from.Get(), to.Get()) &&
           Name(to.Get(), QFile::encodeName(destination));
}

} // namespace

bool CopyToNewFile(QFile& source, const QString& destination)
{
    if (!CopyUnnamed(source, destination))
        return source.copy(destination);
    QFile::setPermissions(destination, source.permissions());
    return true;
}

} // namespace Vorlan::Platform
