#include "support/Machine.h"

#include <QDebug>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMutexLocker>

#include <gtest/gtest.h>

#include <stdexcept>

namespace
{

Machine* current = nullptr;

} // namespace

Machine::Machine(Registry registry) : formerFolder(QDir::currentPath())
{
    if (registry == Registry::OfThisTest)
        root = std::make_unique<MachineRoot>(Path("machine"));
    current = this;
    QDir().mkpath(Path("current"));
    QDir::setCurrent(Path("current"));
    formerHandler = qInstallMessageHandler(Capture);
}

Machine::~Machine()
{
    qInstallMessageHandler(formerHandler);
    QDir::setCurrent(formerFolder);
    current = nullptr;
}

QString Machine::Path(const QString& relative) const
{
    return QDir::toNativeSeparators(scratch.filePath(relative));
}

QStringList Machine::Log() const
{
    const QMutexLocker lock(&mutex);
    return lines;
}

void Machine::Capture(QtMsgType, const QMessageLogContext&, const QString& line)
{
    const QMutexLocker lock(&current->mutex);
    current->lines += line;
}

QString Quoted(const QString& text)
{
    QString quoted;
    QDebug(&quoted).nospace() << text;
    return quoted;
}

void WriteFile(const QString& path, const QByteArray& content)
{
    ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path())) << path.toStdString();
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    ASSERT_EQ(file.write(content), content.size());
}

QByteArray ReadFile(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

QStringList ListTree(const QString& folder)
{
    QStringList names;
    QDirIterator entry(folder,
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
        QDirIterator::Subdirectories);
    while (entry.hasNext())
    {
        const QString name = QDir(folder).relativeFilePath(entry.next());
        names += entry.fileInfo().isDir() ? name + '/' : name;
    }
    names.sort();
    return names;
}

QMap<QString, QByteArray> ReadTree(const QString& folder)
{
    QMap<QString, QByteArray> contents;
    for (const QString& name : ListTree(folder))
    {
        if (!name.endsWith('/'))
            contents[name] = ReadFile(folder + '/' + name);
    }
    return contents;
}

QString Payload(const QString& name)
{
    const QString folder = qEnvironmentVariable("VORLAN_TEST_PAYLOADS");
    if (folder.isEmpty())
        throw std::runtime_error("VORLAN_TEST_PAYLOADS does not name the folder of the payloads");
    return folder + '/' + name;
}
