#include "support/MachineRoot.h"

#include <QFile>

namespace
{

constexpr char rootVariable[] = "VORLAN_MACHINE";

} // namespace

MachineRoot::MachineRoot(const QString& folder) : formerRoot(qgetenv(rootVariable))
{
    qputenv(rootVariable, QFile::encodeName(folder));
}

MachineRoot::~MachineRoot()
{
    qputenv(rootVariable, formerRoot);
}

void UndoRedirectionOfMachine() {}

MachineOfChildren::MachineOfChildren(const QString& folder, QProcessEnvironment& environment)
    : formerRoot(qgetenv(rootVariable))
{
    qputenv(rootVariable, QFile::encodeName(folder));
    environment.insert(rootVariable, folder);
}

MachineOfChildren::~MachineOfChildren()
{
    qputenv(rootVariable, formerRoot);
}
