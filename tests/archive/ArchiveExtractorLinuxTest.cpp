#include "archive/ArchiveExtractor.h"

#include "installer/ExtractSettings.h"
#include "platform/Path.h"
#include "support/ArchiveWriter.h"
#include "support/Machine.h"

#include <Pal.h>
#include <windows.h>

#include <QDir>

#include <gtest/gtest.h>

using Vorlan::ArchiveExtractor;
using Vorlan::Platform::WideFromText;

namespace
{

struct FaultCase
{
    const char* function;
    DWORD error;
    const char* message;
};

} // namespace

TEST(ArchiveExtractorFaults, EveryFailingCallEndsWithItsTextAndNoOpenFile)
{
    const Machine machine;
    const QString archive = machine.Path("test.7z");
    const QString output = machine.Path("out/");
    QDir().mkpath(output);
    WriteFile(archive, CreateArchive({{"a.txt", "content"}, {"libs/b.txt", "content"}}));

    const FaultCase faults[] = {
        {"WriteFile", ERROR_DISK_FULL, "Cannot write output file"},
        {"CreateFileW", ERROR_ACCESS_DENIED, "Cannot open destination file for write"},
        {"CreateDirectoryW", ERROR_ACCESS_DENIED, "Failed to create directory"},
        {"ReadFile", ERROR_READ_FAULT, "Failed to extract file data!"},
        {"CloseHandle", ERROR_INVALID_HANDLE, "Cannot close output file"},
    };
    for (const FaultCase& fault : faults)
    {
        QDir(output + "libs").removeRecursively();
        ArchiveExtractor extractor(WideFromText(archive));
        const std::size_t open = Pal::OpenHandles().size();
        const Pal::ScopedFault failing(fault.function, fault.error);
        try
        {
            extractor.Unpack({}, WideFromText(output), {});
            ADD_FAILURE() << fault.function << " did not fail";
        }
        catch (const std::runtime_error& error)
        {
            EXPECT_STREQ(error.what(), fault.message);
        }
        EXPECT_EQ(Pal::OpenHandles().size(), open) << fault.function;
    }
}

TEST(ArchiveExtractorFaults, RefusedArchiveLeavesNoOpenFile)
{
    const Machine machine;
    WriteFile(machine.Path("bad.7z"), CreateArchive({{"../a", "content"}}));
    EXPECT_THROW(ArchiveExtractor(WideFromText(machine.Path("bad.7z"))), std::runtime_error);
    EXPECT_EQ(Pal::OpenHandles(), std::vector<std::string>());
}
