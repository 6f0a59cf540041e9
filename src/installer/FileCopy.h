#pragma once

#include <QString>
#include <QtGlobal>

#include <functional>
#include <string>
#include <vector>

struct ExtractSettings;

namespace Vorlan
{

// One file that the payload names and that may lie beside the installer already.
struct CopyJob
{
    bool valid = false;  // false: a folder, or not selected
    QString source;      // relative to the current folder
    QString destination; // below the installation folder
    std::wstring key;    // the lower-case name
};

CopyJob CreateCopyJob(
    const ExtractSettings& selection, const std::wstring& name, const QString& folder);

struct CopyFileOperationStatus
{
    bool skipped = true; // true unless the file is in place now
    quint64 size = 0;    // bytes
    QString error;       // empty on success and on a plain skip
};

// Copies a file over whatever file is at the destination. A source that does not exist is skipped;
// a source that is the destination itself counts as copied. Throws nothing; any thread.
CopyFileOperationStatus CopyOneFile(const QString& source, const QString& destination);

using CopyCollector = std::function<void(const CopyJob&, const CopyFileOperationStatus&)>;

using Copier = std::function<CopyFileOperationStatus(const QString&, const QString&)>;

// Copies the jobs' files, in order, on `threadCount` threads of the global pool; starts no further
// copy once one has failed. `collect` gets the result of each copy that was made, on the caller's
// thread; what a copy threw is logged there and is its error.
void RunCopies(int threadCount, const std::vector<CopyJob>& jobs, const CopyCollector& collect,
    const Copier& copy = CopyOneFile);

} // namespace Vorlan
