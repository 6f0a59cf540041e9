#include "FailureCause.h"
#include "LogTail.h"
#include "support/Machine.h"

#include <QDebug>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Vorlan::FrontEnd;

namespace
{

QString WithoutIsolates(QString text)
{
    return text.remove(QRegularExpression("[\u2066\u2069]")).replace('\\', '/');
}

QString Ending(const QString& error)
{
    return "Error  " + error + "  in InstallerMediator::Extract()";
}

struct Row
{
    QStringList logLines;
    QString blockedFile; // that the system names, with its holders
    std::vector<FileHolder> holders;
    qint64 freeBytes;
    QString cause;
    QString advice;
};

const FileHolder quill{4711, 1, "/p/quill.exe", "Quill", true, false};
const FileHolder player{12, 1, "/u/player", "player", true, false};

const std::vector<Row> rows{
    {{Ending("Failed to extract file data!")}, "", {}, 0,
        "The file InstallerData.7z is damaged or cut off.", "Download the setup again."},
    {{Ending("Cannot open destination file for write")}, "/p/libs/codec.dll", {quill, player}, 0,
        "codec.dll is in use by Quill (4711), player (12).", "Close the program, and try again."},
    {{Ending("Failed to remove existing file from destination /p/quill.exe error Text busy")}, "",
        {quill}, 0, "quill.exe is in use by Quill (4711).", "Close the program, and try again."},
    {{Ending("Cannot open destination file for write")}, "/p/libs/codec.dll", {}, 0,
        "The file /p/libs/codec.dll cannot be replaced: it is write-protected or in use.",
        "Choose another folder, or start the setup as an administrator."},
    {{Ending("Cannot open destination file for write")}, "", {}, 0,
        "Nothing can be created in the folder /p: the rights to it are missing.",
        "Choose another folder, or start the setup as an administrator."},
    {{Ending("Cannot write output file")}, "", {}, 2048,
        "The drive with /p is full: 2.0 kB are free.",
        "Make sure that 4.0 kB are free there, or choose another folder."},
    {{Ending("Cannot write output file")}, "", {}, 4096,
        "The drive with /p reports an error while files are written.",
        "Check the drive, or choose another folder."},
    {{"Failed to terminate  \"quill.exe\"  process. Error code =  5",
         Ending("Failed TerminateProcess!")},
        "", {}, 0, "quill.exe is running and cannot be ended.",
        "Close the program, and try again."},
    {{Ending("Waiting for the calling application is failed. Something must have gone wrong.")}, "",
        {}, 0, "The uninstaller of the previous version has failed.",
        "Uninstall the previous version yourself, and try again."},
    {{Ending("std::bad_alloc")}, "", {}, 0, "Installation failed.", ""},
};

TEST(FailureCauseTest, EveryCauseHasItsOwnTextWithTheFileAndTheProgram)
{
    for (const Row& row : rows)
    {
        FailedRun run;
        run.folder = "/p";
        run.locale = "en_US";
        run.neededBytes = 4096;
        run.engineText = "Installation failed.";
        run.logLines = QStringList("Extracting files...") + row.logLines;
        const FailureProbe probe{[&](const QString&) { return row.holders; },
            [&](const QString&) { return row.blockedFile; },
            [&](const QString&) { return row.freeBytes; }};
        const Explanation explanation = ExplainFailure(run, probe);
        EXPECT_EQ(WithoutIsolates(explanation.cause), row.cause);
        EXPECT_EQ(explanation.advice, row.advice) << row.cause.toStdString();
        EXPECT_EQ(explanation.state, "Nothing was changed.");
    }
}

TEST(FailureCauseTest, AFileInThePlaceOfAFolderIsNamed)
{
    const Machine machine;
    WriteFile(machine.Path("libs"), "a file");
    FailedRun run;
    run.stage = "EXTRACT_FILES";
    run.folder = machine.Path("");
    run.logLines << Ending("Couldn't create directory " + machine.Path("libs/deep"));
    const Explanation explanation = ExplainFailure(run, SystemFailureProbe());
    EXPECT_EQ(WithoutIsolates(explanation.cause),
        WithoutIsolates(machine.Path("libs")) + " is a file where a folder is needed.");
    EXPECT_TRUE(explanation.state.contains("is incomplete"));
}

TEST(LogTailTest, TheLastLinesAreKeptAndAllArePassedOn)
{
    const Machine machine;
    const LogTail tail;
    for (int line = 0; line < 150; ++line)
        qInfo() << line;
    EXPECT_EQ(tail.Lines().size(), 100);
    EXPECT_EQ(tail.Lines().last(), "149");
    EXPECT_EQ(machine.Log().size(), 150);
}

} // namespace
