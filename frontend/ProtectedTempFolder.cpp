#include "ProtectedTempFolder.h"

#include "base/ProductProfile.h"

#include <QDir>
#include <QUuid>

#include <stdexcept>

namespace Vorlan::FrontEnd
{
namespace
{

constexpr char formerVariable[] = "VORLAN_FORMER_TEMP";

constexpr const char* variables[] = {"TMP", "TEMP", "TMPDIR"};

} // namespace

QString ProtectedTempFolder::PathFor(const QString& id)
{
    const QString name = QString(ProductProfile::productFullName).remove(' ') + "Setup-" + id;
    return QDir(SystemTemp::Parent()).filePath(name);
}

ProtectedTempFolder::ProtectedTempFolder(const QString& id) : path(PathFor(id))
{
    const bool isUuid = QUuid::fromString(id).toString(QUuid::WithoutBraces) == id;
    if (!isUuid || !SystemTemp::CreateProtected(path))
    {
        throw std::runtime_error(
            QString("The folder %1 for temporary files cannot be created: start the program again.")
                .arg(QDir::toNativeSeparators(path))
                .toStdString());
    }
    if (!qEnvironmentVariableIsSet(formerVariable)) // else this process was started by another one
    {
        Set(formerVariable, QDir::tempPath());
    }
    for (const char* variable : variables)
    {
        Set(variable, path);
    }
}

ProtectedTempFolder::~ProtectedTempFolder()
{
    for (const auto& [variable, value] : former)
    {
        value.isNull() ? qunsetenv(variable) : qputenv(variable, value);
    }
    QDir().rmdir(path);
}

void ProtectedTempFolder::Set(const char* variable, const QString& folder)
{
    former.emplace_back(variable, qgetenv(variable));
    qputenv(variable, QDir::toNativeSeparators(folder).toLocal8Bit());
}

} // namespace Vorlan::FrontEnd
