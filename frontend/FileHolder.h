#pragma once

#include <QString>

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

// "Quill (4711)".
QString HolderText(const FileHolder& holder);

} // namespace Vorlan::FrontEnd
