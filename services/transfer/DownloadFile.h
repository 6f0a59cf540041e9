#pragma once

#include "platform/Transfer.h"

#include <QFile>
#include <QString>

#include <cstddef>

namespace Vorlan::Networking
{

// A file that is being downloaded, in a new folder of its own below the temporary folder: under its
// name with ".part" behind it until it is finished. Without HandOver nothing of it stays.
class DownloadFile
{
public:
    explicit DownloadFile(const QString& wantedName);
    ~DownloadFile();
    DownloadFile(const DownloadFile&) = delete;
    DownloadFile& operator=(const DownloadFile&) = delete;

    // False from the first failure on.
    bool Write(const char* data, std::size_t size);

    // Gives the file its name.
    bool Finish();

    // Leaves the finished file to the caller; its path.
    QString HandOver();

    bool IsGood() const { return code == TransferCode::Done; }
    TransferCode Code() const { return code; } // NotWritable or DiskFull once something failed
    QString ErrorText() const { return error; }

private:
    bool Fail(std::size_t wanted);

    QString folder;
    QString path;
    QFile file;
    TransferCode code = TransferCode::Done;
    QString error;
    bool isHandedOver = false;
};

} // namespace Vorlan::Networking
