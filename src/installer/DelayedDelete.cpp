#include "installer/DelayedDelete.h"

#include "base/Handle.h"
#include "platform/Path.h"

#include <QDir>
#include <QFile>
#include <QUuid>

#include <shellapi.h>

namespace Vorlan
{

namespace
{

constexpr char scriptResource[] = ":/Batch/uninstallDelayedDir.bat";

// A writable copy of the script in the temporary folder; empty when it cannot be made.
QString CopyScript()
{
    QString path = QDir::toNativeSeparators(QDir::tempPath()) + QDir::separator() +
                   QUuid::createUuid().toString() + ".bat";
    if (!QFile::copy(scriptResource, path))
        return QString();
    QFile::setPermissions(path, QFile::permissions(path) | QFile::WriteOwner | QFile::WriteUser |
                                    QFile::WriteGroup | QFile::WriteOther);
    return path;
}

bool IsAloneInItsParent(const QString& folder)
{
    QDir parent(folder);
    parent.cdUp();
    return parent.entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size() == 1;
}

} // namespace

void DelayedDeleteDir(int delaySeconds, const QString& folder)
{
    const bool isAlone = IsAloneInItsParent(folder);
    const std::wstring script = Platform::WideFromText(CopyScript());
    const std::wstring parameters = Platform::WideFromText(
        QString("%1 \"%2\" %3").arg(delaySeconds).arg(folder, isAlone ? "true" : "false"));
    const std::wstring workingFolder = Platform::WideFromText(QDir::tempPath());

    SHELLEXECUTEINFOW info = {};
    info.cbSize = sizeof info;
    info.fMask = SEE_MASK_NOCLOSEPROCESS;
    info.lpFile = script.c_str();
    info.lpParameters = parameters.c_str();
    info.lpDirectory = workingFolder.c_str();
    info.nShow = SW_HIDE;
    ShellExecuteExW(&info);
    const Platform::UniqueProcess process(info.hProcess);
}

} // namespace Vorlan
