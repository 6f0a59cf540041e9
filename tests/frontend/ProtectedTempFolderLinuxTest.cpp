#include "ProtectedTempFolder.h"

#include <QFileInfo>
#include <QUuid>

#include <gtest/gtest.h>

namespace
{

TEST(ProtectedTempFolderLinuxTest, OnlyTheOwnerHasAccess)
{
    const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    const Vorlan::FrontEnd::ProtectedTempFolder folder(id);
    EXPECT_EQ(QFileInfo(folder.Path()).permissions() & ~QFile::Permissions(0x0700),
        QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace
