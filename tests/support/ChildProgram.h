#pragma once

#include "support/Printing.h"

#include <QProcess>
#include <QString>
#include <QStringList>

// A copy of the test program (TestProgram.cpp) under a name of its own. A started one is ended with
// the object.
class ChildProgram
{
public:
    explicit ChildProgram(const QString& path, const QByteArray& orders = "exit 0");
    ~ChildProgram();
    ChildProgram(const ChildProgram&) = delete;
    ChildProgram& operator=(const ChildProgram&) = delete;

    // Starts it and waits until it runs as far as its orders.
    void Start(const QStringList& arguments = {});

    qint64 Id() const { return process.processId(); }
    bool IsRunning() const { return process.state() == QProcess::Running; }
    // Waits for the end of a started one; false when it still runs after a minute.
    bool HasEnded();

    // The arguments of its last run, once it was run.
    bool WasRun() const;
    void WaitForRun() const; // at most a minute
    QStringList Arguments() const;

private:
    QString path;
    QProcess process;
};
