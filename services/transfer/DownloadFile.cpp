#include "transfer/DownloadFile.h"

#include "platform/Path.h"

#include <QDir>
#include <QTemporaryDir>

namespace Vorlan::Networking
{

DownloadFile::DownloadFile(const QString& wantedName)
{
    QTemporaryDir created(QDir::temp().filePath("Vorlan-download-XXXXXX"));
    created.setAutoRemove(false);
    folder = created.path();
    const bool isAllowed = Platform::IsFileNameAllowed(wantedName) &&
                           Platform::IsFileNameAllowed(wantedName + ".part");
    path = QDir(folder).filePath(isAllowed ? wantedName : "download");
    file.setFileName(path + ".part");
    if (!created.isValid())
    {
        code = TransferCode::NotWritable;
        error = QDir::tempPath() + ": " + created.errorString();
    }
    // Each piece is written at once: a full disk shows at the piece that it has no room for.
    else if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        Fail(0);
}

DownloadFile::~DownloadFile()
{
    if (isHandedOver)
        return;
    file.close();
    file.remove();
    QDir().rmdir(folder);
}

bool DownloadFile::Write(const char* data, std::size_t size)
{
    const auto length = static_cast<qint64>(size);
    return IsGood() && (file.write(data, length) == length || Fail(size));
}

bool DownloadFile::Finish()
{
    file.close();
    return IsGood() && (file.rename(path) || Fail(0));
}

QString DownloadFile::HandOver()
{
    isHandedOver = true;
    return path;
}

bool DownloadFile::Fail(std::size_t wanted)
{
    if (!IsGood())
        return false;
    const auto room = Util::GetAvailableDiskSpace(ioPath(folder.toStdString()));
    const bool isFull = room < static_cast<std::int64_t>(wanted);
    code = isFull ? TransferCode::DiskFull : TransferCode::NotWritable;
    error = QDir::toNativeSeparators(file.fileName()) + ": " +
            (isFull ? QString("the disk is full") : file.errorString());
    return false;
}

} // namespace Vorlan::Networking
