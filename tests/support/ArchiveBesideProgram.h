#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QLockFile>

// A payload beside the test program, where the mediator looks for it. One at a time: tests that run
// beside each other wait.
class ArchiveBesideProgram
{
public:
    explicit ArchiveBesideProgram(const QString& source)
    {
        lock.setStaleLockTime(0);
        EXPECT_TRUE(lock.lock());
        Put(source);
    }
    ~ArchiveBesideProgram() { Remove(); }

    void Put(const QString& source) const
    {
        Remove();
        EXPECT_TRUE(QFile::copy(source, path)) << source.toStdString();
    }
    // False where it is open and the system keeps such a file.
    bool Remove() const { return QFile::remove(path); }

private:
    const QString path = QCoreApplication::applicationDirPath() + "/InstallerData.7z";
    QLockFile lock{path + ".lock"};
};
