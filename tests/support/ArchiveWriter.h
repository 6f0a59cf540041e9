#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

// An entry of an archive to be written; names may be as hostile as a test wants.
struct ArchiveEntry
{
    QString name;
    QByteArray content;
    bool isFolder = false;
};

// A 7z archive in the published format (7zFormat.txt of the LZMA SDK): one uncompressed block, an
// uncompressed header, all checksums right.
QByteArray CreateArchive(const std::vector<ArchiveEntry>& entries);

// An archive of this packed data and this header, which may say what a test wants.
QByteArray AssembleArchive(const QByteArray& packed, const QByteArray& header);
