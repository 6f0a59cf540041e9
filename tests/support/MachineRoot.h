#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>

// While it lives, this process sees an empty registry, and shell folders below the given folder. On
// Linux the folder is the machine root; on Windows both registry roots are redirected to empty
// keys, in which the shell folders are set.
class MachineRoot
{
public:
    explicit MachineRoot(const QString& folder);
    ~MachineRoot();
    MachineRoot(const MachineRoot&) = delete;
    MachineRoot& operator=(const MachineRoot&) = delete;

private:
    QByteArray formerRoot;
};

// Until the end of the MachineRoot this process sees the true root of the local machine again.
// Nothing changes on Linux.
void UndoRedirectionOfMachine();

// A MachineRoot for the programs that a test starts with this environment, and for the test itself.
// Windows cannot redirect the registry of another process: there the product's keys in the true
// registry are emptied before and after, and the user's shell folders set meanwhile, which only a
// Wine prefix of one's own bears.
class MachineOfChildren
{
public:
    MachineOfChildren(const QString& folder, QProcessEnvironment& environment);
    ~MachineOfChildren();
    MachineOfChildren(const MachineOfChildren&) = delete;
    MachineOfChildren& operator=(const MachineOfChildren&) = delete;

private:
    QByteArray formerRoot;
};
