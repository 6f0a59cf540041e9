#include "base/Handle.h"
#include "support/Machine.h"
#include "support/SetupRun.h"

#include <QDir>

#include <gtest/gtest.h>

// This process started the setup and does not count as a program in its way, but what it has open
// cannot be written.
TEST(SilentRunWindowsTest, AFileThatCannotBeReplacedIsNamed)
{
    SetupRun setup;
    setup.AddArchive("small.7z");
    const QString folder = setup.WorkFolder() + "/Vorlan Quillax";
    const QString file = QDir::toNativeSeparators(folder + "/libs/codec one.dll");
    ASSERT_EQ(setup.Start({"/S", "/D=" + folder}).exitCode, 0);
    const Vorlan::Platform::UniqueObject open(CreateFileW(file.toStdWString().c_str(), GENERIC_READ,
        0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    ASSERT_NE(open.Get(), INVALID_HANDLE_VALUE);
    const auto result = setup.Start({"/S", "/D=" + folder});
    EXPECT_EQ(result.exitCode, 1603);
    EXPECT_TRUE(result.errors.contains(file)) << result.errors.toStdString();
    EXPECT_TRUE(result.errors.contains("it is write-protected or in use"))
        << result.errors.toStdString();
}
