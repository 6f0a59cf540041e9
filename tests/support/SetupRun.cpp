#include "support/SetupRun.h"

#include "support/Machine.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QSysInfo>

namespace
{

constexpr int timeLimitMs = 120000;

// Windows ends a line of a program's output with two characters.
QString TextOf(const QByteArray& output)
{
    return QString::fromUtf8(output).replace("\r\n", "\n");
}

} // namespace

SetupRun::SetupRun()
{
    EXPECT_TRUE(root.isValid());
    for (const QString& folder : {WorkFolder(), SetupFolder(), TemporaryFolder(), MachineFolder()})
    {
        EXPECT_TRUE(QDir().mkpath(folder));
    }
    for (const char* name : {"TMPDIR", "TMP", "TEMP"})
    {
        environment.insert(name, QDir::toNativeSeparators(TemporaryFolder()));
    }
    // A program that a test installs has no plugin beside it.
    qputenv("QT_QPA_PLATFORM_PLUGIN_PATH", FRONTEND_FOLDER "/platforms");
    environment.insert("QT_QPA_PLATFORM_PLUGIN_PATH", FRONTEND_FOLDER "/platforms");
    AddProgram("installergui.exe");
    AddProgram(ENGINE_FILE_NAME);
    for (const QString& program : QString(BESIDE_SETUP).split(' ', Qt::SkipEmptyParts))
    {
        AddProgram(program);
    }
}

int SetupRun::ShownExitCode(int code)
{
    return QSysInfo::kernelType() == "winnt" ? code : code & 0xFF;
}

void SetupRun::AddProgram(const QString& fileName)
{
    const QString source = QDir(FRONTEND_FOLDER).filePath(fileName);
    const QString target = QDir(SetupFolder()).filePath(fileName);
    EXPECT_TRUE(QDir().mkpath(QFileInfo(target).path()));
    EXPECT_TRUE(QFile::copy(source, target)) << source.toStdString();
}

void SetupRun::AddArchive(const QString& payloadName)
{
    EXPECT_TRUE(QFile::copy(Payload(payloadName), SetupFolder() + "/InstallerData.7z"))
        << "no payload " << payloadName.toStdString();
}

void SetupRun::AddArchiveContent(const QByteArray& content)
{
    WriteFile(SetupFolder() + "/InstallerData.7z", content);
}

SetupRun::Result SetupRun::Start(const QString& program, const QStringList& arguments)
{
    return StartFrom(SetupFolder(), program, arguments);
}

SetupRun::Result SetupRun::StartFrom(
    const QString& folder, const QString& program, const QStringList& arguments)
{
    QProcess process;
    Launch(process, QDir(folder).filePath(program), arguments);
    EXPECT_TRUE(process.waitForFinished(timeLimitMs)) << process.errorString().toStdString();
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), TextOf(process.readAllStandardOutput()),
        TextOf(process.readAllStandardError())};
}

void SetupRun::Launch(
    QProcess& process, const QString& programPath, const QStringList& arguments) const
{
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(WorkFolder());
    process.start(programPath, arguments);
}

QString SetupRun::WorkFolder() const
{
    return root.filePath("work");
}

QString SetupRun::SetupFolder() const
{
    return root.filePath("set up");
}

QString SetupRun::TemporaryFolder() const
{
    return root.filePath("temporary");
}

QString SetupRun::MachineFolder() const
{
    return root.filePath("machine");
}

QString SetupRun::DefaultProductFolder() const
{
    QDirIterator folders(
        MachineFolder(), {"Vorlan Quillax"}, QDir::Dirs, QDirIterator::Subdirectories);
    while (folders.hasNext())
    {
        const QString folder = folders.next();
        if (folder.endsWith("/AppData/Roaming/Vorlan Quillax"))
        {
            return folder;
        }
    }
    return {};
}
