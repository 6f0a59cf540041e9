#include "installer/FileCopy.h"
#include "support/Machine.h"

#include <gtest/gtest.h>

using namespace Vorlan;

TEST(FilePlacementWindowsTest, AFileIsItselfInWhateverCaseItIsNamed)
{
    const Machine machine;
    const QString file = machine.Path("Apps/Quill.exe");
    WriteFile(file, "the program");
    const CopyFileOperationStatus status = CopyOneFile(file, machine.Path("apps/QUILL.EXE"));
    EXPECT_EQ(status.error, "");
    EXPECT_FALSE(status.skipped);
    EXPECT_EQ(ReadFile(file), "the program");
}
