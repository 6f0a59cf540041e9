#include "platform/Path.h"
#include "support/Machine.h"

#include <QDir>

#include <gtest/gtest.h>

#include <windows.h>

using namespace Vorlan;

TEST(PathWindowsTest, TheReadOnlyAttributeOfAFolderForbidsNothing)
{
    const Machine machine;
    const QString folder = machine.Path("marked");
    QDir().mkpath(folder);
    ASSERT_TRUE(
        SetFileAttributesW(Platform::WideFromText(folder).c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ(Util::IsThisPathValid(folder + "/Vorlan Quillax"), PathValidationState::Valid);
    SetFileAttributesW(Platform::WideFromText(folder).c_str(), FILE_ATTRIBUTE_NORMAL);
}
