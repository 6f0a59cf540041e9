#include "ProtectedTempFolder.h"

#include <QDir>
#include <QRegularExpression>
#include <QUuid>

#include <gtest/gtest.h>

#include <windows.h>

#include <aclapi.h>
#include <sddl.h>

namespace
{

// Owner and access list of a file or folder.
QString AccessOf(const QString& path)
{
    std::wstring name = QDir::toNativeSeparators(path).toStdWString();
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    const SECURITY_INFORMATION parts = OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION;
    EXPECT_EQ(GetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT, parts, nullptr, nullptr, nullptr,
                  nullptr, &descriptor),
        ERROR_SUCCESS);
    LPWSTR text = nullptr;
    EXPECT_TRUE(ConvertSecurityDescriptorToStringSecurityDescriptorW(
        descriptor, SDDL_REVISION_1, parts, &text, nullptr));
    const QString access = QString::fromWCharArray(text);
    LocalFree(text);
    LocalFree(descriptor);
    return access;
}

// Wine stores an access list as far as the permissions of Linux can express it.
TEST(ProtectedTempFolderWindowsTest, OnlyAdministratorsMayWrite)
{
    const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    const Vorlan::FrontEnd::ProtectedTempFolder folder(id);
    EXPECT_TRUE(folder.Path().contains("/Temp/", Qt::CaseInsensitive));
    const QString access = AccessOf(folder.Path());
    const QString owner = access.section("O:", 1).section(QRegularExpression("[GD]:"), 0, 0);
    const QStringList entries = access.split('(').mid(1);
    EXPECT_FALSE(entries.isEmpty());
    for (const QString& entry : entries)
    {
        const QString rights = entry.section(';', 2, 2);
        const QString who = entry.section(';', 5, 5).remove(')');
        EXPECT_TRUE((rights == "FA" && (who == "SY" || who == "BA" || who == owner)) ||
                    (rights == "0x1200a9" && who == "BU"))
            << access.toStdString();
    }
}

} // namespace
