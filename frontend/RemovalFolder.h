#pragma once

#include <QString>

namespace Vorlan::FrontEnd
{

// A folder beside the product's folder, with a name that nothing else has: <folder>.<8 hexadecimal
// digits>. What is in use during an uninstallation, the running program and its libraries, is moved
// there, and a script deletes this folder after the program has ended. The product's folder itself
// is free for the next installation at once.
class RemovalFolder
{
public:
    explicit RemovalFolder(const QString& folder);

    // The script is copied to the temporary folder. Without one nothing is moved.
    static bool CanRunScript();

    // Moves a file or a folder, given relative to the product's folder, with all that is in it. A
    // folder that cannot be moved as a whole is moved file by file. False if something is left.
    bool Take(const QString& path);

    // Starts the script if something was moved. It begins a second later.
    void ScheduleRemoval() const;

private:
    QString folder;
    QString identity;
    QString path;
};

} // namespace Vorlan::FrontEnd
