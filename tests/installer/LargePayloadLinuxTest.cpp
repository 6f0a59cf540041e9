#include "platform/Path.h"
#include "support/ArchiveBesideProgram.h"
#include "support/Machine.h"
#include "support/MediatorAccess.h"
#include "support/SignalLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <gtest/gtest.h>

using namespace Vorlan;

namespace
{

constexpr qint64 gibibyte = qint64{1} << 30;
constexpr qint64 largeSize = 4 * gibibyte + 12345; // more than 32 bits count
constexpr int furtherFiles = 6;                    // of one GiB each
constexpr qint64 payloadSize = largeSize + furtherFiles * gibibyte;
constexpr qint64 neededDisk = payloadSize + gibibyte / 2;
constexpr qint64 neededMemory = 2 * largeSize + 2 * gibibyte; // two blocks, and room for others

// Bytes that programs can still get, see proc(5).
qint64 AvailableMemory()
{
    for (const QByteArray& line : ReadFile("/proc/meminfo").split('\n'))
        if (line.startsWith("MemAvailable:"))
            return line.simplified().split(' ').value(1).toLongLong() * 1024;
    return 0;
}

// Why the payload is not unpacked, or empty.
std::string WhyNot(const QString& folder)
{
#ifdef __SANITIZE_ADDRESS__
    return "the sanitisers need too much memory and time for 10 GiB";
#endif
    if (!qEnvironmentVariableIsSet("VORLAN_LARGE_TESTS"))
        return "10 GiB are unpacked only where VORLAN_LARGE_TESTS is set: it takes minutes";
    const qint64 disk = Util::GetAvailableDiskSpace(folder.toStdString());
    if (disk < neededDisk)
        return "only " + std::to_string(disk) + " bytes are free on the disk";
    if (AvailableMemory() < neededMemory)
        return "only " + std::to_string(AvailableMemory()) + " bytes of memory are available";
    return {};
}

// Zeros that take no room, and a text at the end.
void WriteSparse(const QString& path, qint64 size, const QByteArray& end)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(size - end.size()) &&
                file.seek(file.size()) && file.write(end) == end.size());
}

QByteArray ReadEnd(const QString& path, qint64 size)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.seek(file.size() - size) ? file.readAll()
                                                                           : QByteArray();
}

// A file of more than 4 GiB and six others, each a block of its own.
void MakePayload(const QString& folder, const QString& archive)
{
    QDir().mkpath(folder);
    WriteSparse(folder + "/0.bin", largeSize, "end 0");
    for (int i = 1; i <= furtherFiles; ++i)
        WriteSparse(folder + QString("/%1.bin").arg(i), gibibyte, "end " + QByteArray::number(i));
    ASSERT_EQ(QProcess::execute(
                  "7zz", {"a", "-bso0", "-bsp0", "-mx=1", "-ms=off", archive, folder + "/."}),
        0);
    QDir(folder).removeRecursively();
}

// The archive lies beside the program, where other tests wait for their turn, only meanwhile.
std::unique_ptr<InstallerMediator> CreateMediator(const QString& archive)
{
    static const QString name = "setup.exe";
    const ArchiveBesideProgram beside(archive);
    return std::make_unique<InstallerMediator>(
        InstallerMediator::Initializer{name, true, true, QSettings::UserScope, false});
}

} // namespace

TEST(LargePayloadLinuxTest, SizesAndProgressHold64Bits)
{
    const Machine machine;
    const std::string reason = WhyNot(machine.Path(""));
    if (!reason.empty())
        GTEST_SKIP() << reason;
    MakePayload(machine.Path("payload"), machine.Path("large.7z"));
    const auto mediator = CreateMediator(machine.Path("large.7z"));
    EXPECT_EQ(mediator->GetSettings().requiredSpace,
        static_cast<qint64>(payloadSize * 0.02 + static_cast<double>(payloadSize)));

    MediatorAccess access{*mediator};
    const SignalLog signalLog{*mediator};
    access.Settings().installDir = machine.Path("product/");
    access.ExtractFiles({});

    EXPECT_TRUE(
        machine.Log().contains("Start copying files: " + QString::number(payloadSize) + "  bytes"));
    for (int i = 0; i <= furtherFiles; ++i)
    {
        const QString file = machine.Path(QString("product/%1.bin").arg(i));
        EXPECT_EQ(QFileInfo(file).size(), i == 0 ? largeSize : gibibyte);
        EXPECT_EQ(ReadEnd(file, 5), "end " + QByteArray::number(i));
    }
    double last = 0;
    for (const QString& line : signalLog.Progress())
    {
        const double progress = line.section(" | ", 0, 0).toDouble();
        EXPECT_GE(progress, last);
        last = progress;
    }
    EXPECT_DOUBLE_EQ(last, 1);
}
