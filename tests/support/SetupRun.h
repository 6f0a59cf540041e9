#pragma once

#include "support/MachineRoot.h"

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// A folder with the built front end and its library, and a machine of its own to install into. Each
// object has its own; everything goes with it.
class SetupRun
{
public:
    struct Result
    {
        int exitCode; // as this system shows it
        QString output;
        QString errors;
    };

    SetupRun();

    // An exit code of the front end as this system shows it.
    static int ShownExitCode(int code);

    // Puts one of the test payloads, or a file with this content, beside the program.
    void AddArchive(const QString& payloadName);
    void AddArchiveContent(const QByteArray& content);

    // Starts a program of the setup folder, in the work folder, and waits for its end.
    Result Start(const QString& program, const QStringList& arguments);
    // Starts a program of another folder.
    Result StartFrom(const QString& folder, const QString& program, const QStringList& arguments);
    Result Start(const QStringList& arguments) { return Start("installergui.exe", arguments); }

    // Starts a program and does not wait for its end.
    void Launch(QProcess& process, const QString& programPath, const QStringList& arguments) const;

    // Sets a variable of the programs' environment.
    void SetVariable(const QString& name, const QString& value) { environment.insert(name, value); }

    // Copies a file of the build's program folder into the setup folder, under the same path.
    void AddProgram(const QString& fileName);

    QString WorkFolder() const;  // where the program is started
    QString SetupFolder() const; // where it lies
    QString TemporaryFolder() const;
    QString MachineFolder() const;
    // Where this machine's user gets the product without /D.
    QString DefaultProductFolder() const;

private:
    QString MakeFolder(const QString& name) const;

    QTemporaryDir root;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    MachineOfChildren machine{MachineFolder(), environment};
};
