#include "OwnFolder.h"

#include "FoundInstallations.h"
#include "PlacedFiles.h"

#include "base/ProductProfile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace Vorlan::FrontEnd
{
namespace
{

bool IsSameFolder(const QString& left, const QString& right)
{
    return QDir(QDir::fromNativeSeparators(left)) == QDir(QDir::fromNativeSeparators(right));
}

bool LooksLikeTheProduct(const QString& folder)
{
    return QFile::exists(QDir(folder).filePath(ProductProfile::mainExecutable)) ||
           PlacedFiles::IsIn(folder);
}

// Without a list, files of other programs may be in a folder that was registered under another name
// than the product's. The name is that of the link where the folder is behind one.
QString ForeignNameRefusal(const QString& registered)
{
    const QString name = ProductProfile::productFullName;
    const QDir folder(QDir::fromNativeSeparators(registered));
    if (folder.dirName().compare(name, Qt::CaseInsensitive) == 0 ||
        PlacedFiles::IsIn(folder.path()))
    {
        return {};
    }
    return QCoreApplication::translate("Uninstaller",
        "The name of the folder %1 is not %2, so files of other programs may be in it: nothing was "
        "deleted.")
        .arg(QDir::toNativeSeparators(folder.path()), name);
}

} // namespace

OwnFolder ExamineOwnFolder(const QString& folder, QSettings::Scope defaultScope)
{
    QString other;
    for (const QSettings::Scope scope : {QSettings::UserScope, QSettings::SystemScope})
    {
        const QString registered = RegisteredFolder(scope);
        if (!registered.isEmpty() && IsSameFolder(registered, folder))
        {
            return {scope, ForeignNameRefusal(registered), {}};
        }
        other = other.isEmpty() ? registered : other;
    }
    if (!other.isEmpty())
    {
        return {defaultScope,
            QCoreApplication::translate("Uninstaller",
                "The program is installed in %1, not in %2: nothing was deleted. Start the "
                "uninstaller there.")
                .arg(other, QDir::toNativeSeparators(folder)),
            other};
    }
    if (LooksLikeTheProduct(folder))
    {
        return {defaultScope, {}, {}};
    }
    return {defaultScope,
        QCoreApplication::translate("Uninstaller",
            "The program is not installed in %1: nothing was deleted. Delete the folder by hand "
            "if it is not needed.")
            .arg(QDir::toNativeSeparators(folder)),
        {}};
}

} // namespace Vorlan::FrontEnd
