#pragma once

#include <QByteArray>
#include <QString>

#include <utility>
#include <vector>

namespace Vorlan::FrontEnd
{

// The temporary folder of a process with administrator rights: until the object is destroyed,
// QDir::tempPath() of this process and of those that it starts is a new folder that only
// administrators may change, so that no ordinary program can replace what such a process runs from
// there. The former temporary folder is in the variable VORLAN_FORMER_TEMP. On one thread, before
// temporary files are used.
//
// On Windows it is a folder of %SystemRoot%\Temp, which everybody may read; on Linux one of the
// former temporary folder, for its owner only.
class ProtectedTempFolder
{
public:
    // The folder of the process with this identity, a UUID. Equal on all processes of a machine.
    static QString PathFor(const QString& id);

    // Throws std::runtime_error with one line for the user if the folder exists or cannot be
    // created, or if `id` is no UUID.
    explicit ProtectedTempFolder(const QString& id);
    // Removes the folder if it is empty.
    ~ProtectedTempFolder();
    ProtectedTempFolder(const ProtectedTempFolder&) = delete;
    ProtectedTempFolder& operator=(const ProtectedTempFolder&) = delete;

    QString Path() const { return path; }

private:
    void Set(const char* variable, const QString& folder);

    QString path;
    std::vector<std::pair<const char*, QByteArray>> former; // of the environment
};

namespace SystemTemp
{

// Where protected folders are created.
QString Parent();

// Creates a folder that only administrators may change; false if it exists or cannot be created.
bool CreateProtected(const QString& path);

} // namespace SystemTemp

} // namespace Vorlan::FrontEnd
