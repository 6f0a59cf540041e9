#include "OwnFolder.h"

#include "RemovalMark.h"

#include "base/ProductProfile.h"
#include "registry/SettingsManager.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace Vorlan::FrontEnd
{
namespace
{

QString RegisteredFolder(QSettings::Scope scope)
{
    return SettingsManager(ProductProfile::applicationKey, ProductProfile::companyName, scope)
        .GetInstallLocation();
}

bool IsSameFolder(const QString& left, const QString& right)
{
    return QDir(QDir::fromNativeSeparators(left)) == QDir(QDir::fromNativeSeparators(right));
}

bool LooksLikeTheProduct(const QString& folder)
{
    return QFile::exists(QDir(folder).filePath(ProductProfile::mainExecutable)) ||
           RemovalMark::IsIn(folder);
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
            return {scope, {}};
        }
        other = other.isEmpty() ? registered : other;
    }
    if (!other.isEmpty())
    {
        return {defaultScope,
            QCoreApplication::translate("Uninstaller",
                "The program is installed in %1, not in %2: nothing was deleted. Start the "
                "uninstaller there.")
                .arg(other, QDir::toNativeSeparators(folder))};
    }
    if (LooksLikeTheProduct(folder))
    {
        return {defaultScope, {}};
    }
    return {defaultScope,
        QCoreApplication::translate("Uninstaller",
            "The program is not installed in %1: nothing was deleted. Delete the folder by hand "
            "if it is not needed.")
            .arg(QDir::toNativeSeparators(folder))};
}

} // namespace Vorlan::FrontEnd
