#pragma once

#include <QString>

#include <vector>

namespace Vorlan::FrontEnd
{

// A running program that holds files: it runs from one of them, or has one loaded or open.
struct FileHolder
{
    qint64 processId = 0;
    quint64 startTime = 0;   // in the system's unit; another process with the same id has another
    QString image;           // absolute path with "/"; empty if the system does not name it
    QString name;            // for the user
    bool hasWindow = false;  // what has none cannot be closed by the user
    bool isCritical = false; // a part of the system, which must not be ended
};

// The programs that hold this file, or files below this folder, ordered by process id. This process
// and those that it was started by are left out. What the system does not allow to be looked into
// is not found. Takes as long as the system needs for all processes: up to seconds; may be called
// on any thread.
std::vector<FileHolder> FindFileHolders(const QString& path);

// "Quill (4711)".
QString HolderText(const FileHolder& holder);

} // namespace Vorlan::FrontEnd
