#include "archive/ArchiveExtractor.h"

#include "base/ExtractSettings.h"
#include "platform/Path.h"
#include "support/ArchiveWriter.h"
#include "support/Machine.h"

#include <Pal.h>
#include <windows.h>

#include <QDir>

#include <gtest/gtest.h>

#include <sys/resource.h>

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

namespace
{

// What a header says in the published format: its numbers are a byte 0xFF and eight bytes.
QByteArray Number(quint64 number)
{
    return '\xFF' + QByteArray(reinterpret_cast<const char*>(&number), sizeof number);
}

// As many folders, and nothing else.
QByteArray HeaderOfFolders(quint64 count)
{
    const QByteArray emptyStreams(static_cast<int>((count + 7) / 8), '\xFF');
    return QByteArray("\x01\x05") + Number(count) + '\x0E' +
           Number(static_cast<quint64>(emptyStreams.size())) + emptyStreams + QByteArray(2, '\0');
}

// A header that is said to lie, packed by the method Copy, in the archive's one byte.
QByteArray HeaderOfSize(quint64 size)
{
    return QByteArray("\x17\x06") + Number(0) + "\x01\x09" + Number(1) +
           QByteArray("\0\x07\x0B", 3) + QByteArray("\x01\0\x01\x01\0\x0C", 6) + Number(size) +
           QByteArray(2, '\0');
}

long long PeakMemory() // in bytes
{
    struct rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss * 1024LL;
}

} // namespace

TEST(ArchiveClaims, WhatNobodyCanHoldIsRefusedWithoutTheMemoryForIt)
{
    constexpr quint64 files = quint64{1} << 27;
    constexpr quint64 bytes = quint64{1} << 60;
    const Machine machine;
    const QString archive = machine.Path("claim.7z");
    const auto errorOf = [](const QString& path, const QString& destination)
    {
        try
        {
            ArchiveExtractor(WideFromText(path)).Unpack({}, WideFromText(destination), {});
        }
        catch (const std::runtime_error& error)
        {
            return std::string(error.what());
        }
        return std::string();
    };
    const long long before = PeakMemory();
    for (const QByteArray& header : {HeaderOfFolders(files), HeaderOfSize(bytes),
             QByteArray("\x01\x05") + Number(files) + QByteArray(2, '\0')})
    {
        WriteFile(archive, AssembleArchive("x", header));
        EXPECT_EQ(errorOf(archive, machine.Path("")),
            "Failed read archive data, maybe file is corrupted");
    }
    EXPECT_EQ(errorOf(Payload("huge.7z"), machine.Path("")), "Failed to extract file data!");
    EXPECT_LT(PeakMemory() - before, 128 << 20);

    WriteFile(archive, AssembleArchive("x", HeaderOfFolders(100000)));
    EXPECT_EQ(ArchiveExtractor(WideFromText(archive)).GetEntryNames().size(), 100000u);
}
