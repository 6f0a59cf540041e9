#pragma once

#include "support/MachineRoot.h"
#include "support/Printing.h"

#include <QMap>
#include <QMutex>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

// A fresh machine for one test: a machine root, empty registry roots, an empty current folder, and
// the lines that the engine logs. Everything is put back when it goes.
class Machine
{
public:
    // Whose registry and shell folders this test looks at: its own, empty ones, or those of the
    // programs that it starts through SetupRun.
    enum class Registry
    {
        OfThisTest,
        OfStartedPrograms
    };

    explicit Machine(Registry registry = Registry::OfThisTest);
    ~Machine();
    Machine(const Machine&) = delete;
    Machine& operator=(const Machine&) = delete;

    // A path below this machine's scratch folder.
    QString Path(const QString& relative) const;

    // The lines logged so far, as Qt's logger writes them; on any thread.
    QStringList Log() const;

private:
    static void Capture(QtMsgType type, const QMessageLogContext& context, const QString& line);

    QTemporaryDir scratch;
    std::unique_ptr<MachineRoot> root;
    QString formerFolder;
    QtMessageHandler formerHandler;
    mutable QMutex mutex;
    QStringList lines;
};

// A text in quotes, as Qt's logger writes it: backslashes are doubled.
QString Quoted(const QString& text);

void WriteFile(const QString& path, const QByteArray& content);
QByteArray ReadFile(const QString& path);

// Every file and folder below a folder, relative to it and sorted; folders end with "/".
QStringList ListTree(const QString& folder);

// Contents of every file below a folder by relative path; folders carry no entry.
QMap<QString, QByteArray> ReadTree(const QString& folder);

// The folder of the payload archives that the test runner made.
QString Payload(const QString& name);
