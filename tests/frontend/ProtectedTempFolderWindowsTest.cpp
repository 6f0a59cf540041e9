#include "ProtectedTempFolder.h"

#include <QDir>
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

TEST(ProtectedTempFolderWindowsTest, OnlyAdministratorsMayWrite)
{
    const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    const Vorlan::FrontEnd::ProtectedTempFolder folder(id);
    EXPECT_TRUE(folder.Path().contains("/Temp/", Qt::CaseInsensitive));
    const QString access = AccessOf(folder.Path());
    EXPECT_TRUE(access.contains(";FA;;;SY)")) << access.toStdString();
    EXPECT_TRUE(access.contains(";FA;;;BA)")) << access.toStdString();
    EXPECT_TRUE(access.contains(";0x1200a9;;;BU)")) << access.toStdString();
    EXPECT_FALSE(access.contains(";;;WD)")) << access.toStdString();
}

} // namespace
