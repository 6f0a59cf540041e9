#include "archive/ArchiveExtractor.h"

#include "base/ExtractSettings.h"
#include "platform/Path.h"
#include "support/ArchiveWriter.h"
#include "support/Machine.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using Vorlan::ArchiveExtractor;
using Vorlan::Platform::TextFromWide;
using Vorlan::Platform::WideFromText;

namespace
{

constexpr char corrupted[] = "Failed read archive data, maybe file is corrupted";

class ArchiveExtractorTest : public testing::Test
{
protected:
    QString Write(const std::vector<ArchiveEntry>& entries) const
    {
        WriteFile(archive, CreateArchive(entries));
        return archive;
    }

    // The error of opening and unpacking the archive, empty when there is none.
    QString Unpack(const QString& path, const ExtractSettings& selection = {})
    {
        progress.clear();
        try
        {
            ArchiveExtractor extractor(WideFromText(path));
            extractor.Unpack(selection, WideFromText(output),
                [this](uint64_t bytes, const std::wstring& name)
                { progress += QString("%1 %2").arg(bytes).arg(TextFromWide(name)); });
        }
        catch (const std::runtime_error& error)
        {
            return error.what();
        }
        return QString();
    }

    void EmptyOutput() const
    {
        QDir(output).removeRecursively();
        QDir().mkpath(output);
    }

    void SetUp() override { EmptyOutput(); }

    Machine machine;
    const QString archive = machine.Path("test.7z");
    const QString output = machine.Path("out/");
    QStringList progress;
};

const std::vector<ArchiveEntry> product = {
    {"quill.exe", "program"},
    {"empty.txt", ""},
    {"nothing", "", true},
    {"Libs/Codec.dll", "codec of the product"},
    {"libs2/deep/data.bin", QByteArray(70000, 'x')},
};

} // namespace

TEST_F(ArchiveExtractorTest, RealPayloadUnpacksBitForBit)
{
    for (const QString name : {"small.7z", "many-blocks.7z", "old-methods.7z"})
    {
        EmptyOutput();
        EXPECT_EQ(Unpack(Payload(name)), "") << name.toStdString();
        EXPECT_EQ(ReadTree(output), ReadTree(Payload(QString(name).replace(".7z", "-content"))))
            << name.toStdString();
    }
}

TEST_F(ArchiveExtractorTest, CatalogueTellsNamesLongestNameAndTotalSize)
{
    const ArchiveExtractor extractor(WideFromText(Write(product)));
    const std::vector<std::wstring> names = {
        L"quill.exe", L"empty.txt", L"", L"Libs/Codec.dll", L"libs2/deep/data.bin"};
    EXPECT_EQ(extractor.GetEntryNames(), names);
    EXPECT_EQ(extractor.GetLongestNameLength(), 19u);
    EXPECT_EQ(extractor.GetTotalUnpackedSize(), 7u + 20u + 70000u);
}

TEST_F(ArchiveExtractorTest, ArchiveThatHoldsNothingGivesNothing)
{
    for (const QString& path : {Payload("no-entries.7z"), Write({{"nothing", "", true}})})
    {
        const ArchiveExtractor extractor(WideFromText(path));
        EXPECT_EQ(extractor.GetLongestNameLength(), 0u);
        EXPECT_EQ(extractor.GetTotalUnpackedSize(), 0u);
        EXPECT_EQ(Unpack(path), "");
        EXPECT_EQ(progress, QStringList());
        EXPECT_EQ(ListTree(output), QStringList());
    }
}

TEST_F(ArchiveExtractorTest, EntriesComeInArchiveOrderWithTheirRunningTotal)
{
    EXPECT_EQ(Unpack(Write(product)), "");
    EXPECT_EQ(progress, QStringList({"7 quill.exe", "7 empty.txt", "27 Libs/Codec.dll",
                            "70027 libs2/deep/data.bin"}));
    EXPECT_EQ(ListTree(output), QStringList({"Libs/", "Libs/Codec.dll", "empty.txt", "libs2/",
                                    "libs2/deep/", "libs2/deep/data.bin", "quill.exe"}));
    EXPECT_EQ(ReadFile(output + "Libs/Codec.dll"), "codec of the product");
}

TEST_F(ArchiveExtractorTest, SelectionIsByLowerCaseNames)
{
    ExtractSettings selection;
    selection.include = {L"quill.exe", L"libs/codec.dll", L"Empty.txt"};
    selection.exclude = {L"quill.exe"};
    EXPECT_EQ(Unpack(Write(product), selection), "");
    EXPECT_EQ(progress, QStringList({"20 Libs/Codec.dll"}));

    EmptyOutput();
    selection = {};
    selection.exclude = {L"libs/codec.dll", L"Quill.exe", L"libs2/deep/data.bin"};
    EXPECT_EQ(Unpack(archive, selection), "");
    EXPECT_EQ(ListTree(output), QStringList({"empty.txt", "quill.exe"}));
}

TEST_F(ArchiveExtractorTest, RenameReplacesTheWholeName)
{
    ExtractSettings selection;
    selection.include = {L"libs/codec.dll"};
    selection.rename = {{L"libs/codec.dll", L"other/uninst.exe"}};
    EXPECT_EQ(Unpack(Write(product), selection), "");
    EXPECT_EQ(progress, QStringList({"20 other/uninst.exe"}));
    EXPECT_EQ(ReadFile(output + "other/uninst.exe"), "codec of the product");
}

TEST_F(ArchiveExtractorTest, ExistingFilesAreOverwritten)
{
    WriteFile(output + "quill.exe", QByteArray(5000, 'o'));
    EXPECT_EQ(Unpack(Write(product)), "");
    EXPECT_EQ(ReadFile(output + "quill.exe"), "program");
}

TEST_F(ArchiveExtractorTest, ObstaclesStopAtTheirEntryAndLeaveWhatWasWritten)
{
    WriteFile(output + "libs2", "a file where a folder must be");
    EXPECT_EQ(Unpack(Write(product)), "Failed to create directory");
    EXPECT_EQ(ListTree(output),
        QStringList({"Libs/", "Libs/Codec.dll", "empty.txt", "libs2", "quill.exe"}));

    EmptyOutput();
    QDir().mkpath(output + "Libs/Codec.dll");
    EXPECT_EQ(Unpack(archive), "Cannot open destination file for write");
    QDir(output + "Libs/Codec.dll").removeRecursively();
    EXPECT_EQ(Unpack(archive), "");
}

TEST_F(ArchiveExtractorTest, WhatIsNoArchiveIsRefused)
{
    EXPECT_EQ(Unpack(machine.Path("missing.7z")), "Failed to open input file");
    EXPECT_EQ(Unpack(machine.Path("")), "Failed to open input file");
    WriteFile(archive, "");
    EXPECT_EQ(Unpack(archive), corrupted);
    WriteFile(archive, QByteArray(100000, '7'));
    EXPECT_EQ(Unpack(archive), corrupted);
}

TEST_F(ArchiveExtractorTest, HostileNamesAreRefusedBeforeAnythingIsWritten)
{
    for (const QString name : {"../out.txt", "/tmp/out.txt", "a\\..\\..\\out.txt", "C:out.txt", ""})
    {
        EXPECT_EQ(Unpack(Write({{"first.txt", "first"}, {name, "out"}})), corrupted)
            << name.toStdString();
        EXPECT_EQ(ListTree(output), QStringList());
    }
    EXPECT_EQ(Unpack(Write({{"a.txt", "1"}, {"A.txt", "2"}})), corrupted);
}

TEST_F(ArchiveExtractorTest, ArchiveCutOffAnywhereIsRefused)
{
    const QByteArray whole = CreateArchive(product);
    const int headerSize = 32;
    const int packedSize = 70027;
    for (int size = 0; size < whole.size();
         size += size < headerSize || size > headerSize + packedSize ? 1 : 1009)
    {
        WriteFile(archive, whole.left(size));
        EXPECT_EQ(Unpack(archive), corrupted) << size;
    }
    EXPECT_EQ(ListTree(output), QStringList());
}

TEST_F(ArchiveExtractorTest, FlippedBitIsNoticedOrChangesNothing)
{
    const std::vector<ArchiveEntry> entries = {
        {"quill.exe", "program"}, {"empty.txt", ""}, {"Libs/Codec.dll", "codec of the product"}};
    const QByteArray whole = CreateArchive(entries);
    ASSERT_EQ(Unpack(Write(entries)), "");
    const QMap<QString, QByteArray> original = ReadTree(output);

    int unnoticed = 0;
    for (int bit = 0; bit < whole.size() * 8; ++bit)
    {
        EmptyOutput();
        QByteArray flipped = whole;
        flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ (1 << bit % 8));
        WriteFile(archive, flipped);
        const QString error = Unpack(archive);
        if (error.isEmpty())
        {
            ++unnoticed;
            EXPECT_EQ(ReadTree(output), original) << bit;
        }
        else
        {
            EXPECT_TRUE(error == corrupted || error == "Failed to extract file data!") << bit;
        }
    }
    // The minor version of the format is the only byte that no checksum covers.
    EXPECT_EQ(unnoticed, 8);
}

TEST_F(ArchiveExtractorTest, DamagedCompressedDataIsNoticed)
{
    const QByteArray whole = ReadFile(Payload("small.7z"));
    for (int position = 32; position < whole.size(); position += whole.size() / 40)
    {
        EmptyOutput();
        QByteArray damaged = whole;
        damaged[position] = static_cast<char>(~damaged[position]);
        WriteFile(archive, damaged);
        const QString error = Unpack(archive);
        EXPECT_TRUE(error == corrupted || error == "Failed to extract file data!")
            << position << " " << error.toStdString();
    }
    EmptyOutput();
    EXPECT_EQ(Unpack(Payload("small.7z")), "");
}

TEST_F(ArchiveExtractorTest, DamagedBlockLosesNothingThatStandsBeforeIt)
{
    ASSERT_EQ(Unpack(Payload("many-blocks.7z")), "");
    const QStringList whole = progress;
    const QMap<QString, QByteArray> original = ReadTree(output);

    EmptyOutput();
    QByteArray damaged = ReadFile(Payload("many-blocks.7z"));
    const int middle = damaged.size() / 2;
    damaged[middle] = static_cast<char>(~damaged[middle]);
    WriteFile(archive, damaged);
    EXPECT_EQ(Unpack(archive), "Failed to extract file data!");
    EXPECT_GT(progress.size(), 1);
    EXPECT_EQ(progress, whole.mid(0, progress.size()));
    const QMap<QString, QByteArray> written = ReadTree(output);
    EXPECT_EQ(written.size(), progress.size());
    for (const QString& name : written.keys())
        EXPECT_EQ(written[name], original[name]) << name.toStdString();
}
