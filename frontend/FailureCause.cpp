#include "FailureCause.h"

#include "FileHolders.h"
#include "FreeSpace.h"
#include "base/ProductProfile.h"
#include "wizard/Texts.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QRegularExpression>

namespace Vorlan::FrontEnd
{
namespace
{

struct Case
{
    const FailedRun& run;
    const FailureProbe& probe;
    QString error; // of the engine, in English

    // The first group of the expression in the error.
    QString Captured(const char* expression) const
    {
        return QRegularExpression(expression).match(error).captured(1);
    }
};

Explanation Texts(const QString& cause, const QString& advice)
{
    return {cause, {}, advice};
}

QString Shown(const QString& path)
{
    return PathText(QDir::toNativeSeparators(QDir::cleanPath(path)));
}

QString AnotherFolder()
{
    return WizardText("Choose another folder, or start the setup as an administrator.");
}

Explanation ExplainDamage(const Case&)
{
    return Texts(WizardText("The file %1 is damaged or cut off.")
                     .arg(PathText(ProductProfile::archiveFileName)),
        WizardText("Download the setup again."));
}

Explanation ExplainBlockedFile(const Case& failed, const QString& path)
{
    QStringList holders;
    for (const FileHolder& holder : failed.probe.holdersOf(path))
        holders << HolderText(holder);
    if (!holders.isEmpty())
        return Texts(WizardText("%1 is in use by %2.")
                         .arg(PathText(QFileInfo(path).fileName()), holders.join(", ")),
            WizardText("Close the program, and try again."));
    return Texts(WizardText("The file %1 cannot be replaced: it is write-protected or in use.")
                     .arg(Shown(path)),
        AnotherFolder());
}

Explanation ExplainFolder(const QString& folder)
{
    QFileInfo existing(folder);
    while (!existing.exists() && !existing.isRoot())
        existing.setFile(existing.path());
    if (existing.isFile())
        return Texts(
            WizardText("%1 is a file where a folder is needed.").arg(Shown(existing.filePath())),
            WizardText("Move the file to another place, and try again."));
    return Texts(
        WizardText("Nothing can be created in the folder %1: the rights to it are missing.")
            .arg(Shown(folder)),
        AnotherFolder());
}

Explanation ExplainCreation(const Case& failed)
{
    const QString folder = failed.Captured("^Couldn't create directory (.*)$");
    return ExplainFolder(folder.isEmpty() ? failed.run.folder : folder);
}

Explanation ExplainOpening(const Case& failed)
{
    const QString path = failed.probe.findBlockedFile(failed.run.folder);
    return path.isEmpty() ? ExplainFolder(failed.run.folder) : ExplainBlockedFile(failed, path);
}

Explanation ExplainRemoval(const Case& failed)
{
    return ExplainBlockedFile(failed, failed.Captured("from destination (.*?) error "));
}

// A volume may refuse a large file while it has space for smaller ones.
Explanation ExplainWriting(const Case& failed)
{
    const auto needed = static_cast<qint64>(failed.run.neededBytes);
    const std::optional<qint64> free = failed.probe.freeBytes(failed.run.folder);
    if (!free || *free >= needed)
        return Texts(WizardText("The drive with %1 reports an error while files are written.")
                         .arg(Shown(failed.run.folder)),
            WizardText("Check the drive, or choose another folder."));
    return Texts(WizardText("The drive with %1 is full: %2 are free.")
                     .arg(Shown(failed.run.folder), SizeText(*free, failed.run.locale)),
        WizardText("Make sure that %1 are free there, or choose another folder.")
            .arg(SizeText(needed, failed.run.locale)));
}

// The engine names the program in an earlier line.
Explanation ExplainRunningProgram(const Case& failed)
{
    static const QRegularExpression named(
        "^(?:Failed to terminate|Error waiting for process)\\s+\"(.*)\"");
    QString program;
    for (const QString& line : failed.run.logLines)
    {
        const auto match = named.match(line);
        program = match.hasMatch() ? match.captured(1) : program;
    }
    return Texts(WizardText("%1 is running and cannot be ended.").arg(PathText(program)),
        WizardText("Close the program, and try again."));
}

Explanation ExplainUninstaller(const Case&)
{
    return Texts(WizardText("The uninstaller of the previous version has failed."),
        WizardText("Uninstall the previous version yourself, and try again."));
}

struct Rule
{
    const char* part; // of the engine's error
    Explanation (*explain)(const Case&);
};

constexpr Rule rules[] = {
    {"Failed to extract file data!", ExplainDamage},
    {"Failed read archive data", ExplainDamage},
    {"Failed to open input file", ExplainDamage},
    {"Failed to remove existing file", ExplainRemoval},
    {"Cannot open destination file for write", ExplainOpening},
    {"Couldn't create directory", ExplainCreation},
    {"Failed to create directory", ExplainCreation},
    {"Cannot write output file", ExplainWriting},
    {"Cannot close output file", ExplainWriting},
    {"Failed to copy file", ExplainWriting},
    {"Failed TerminateProcess!", ExplainRunningProgram},
    {"Failed waiting TerminateProcess!", ExplainRunningProgram},
    {"Waiting for the calling application is failed", ExplainUninstaller},
};

// The last line with which the engine has ended a run; else the last error of a copy.
QString EngineError(const FailedRun& run)
{
    static const QRegularExpression ending(
        "^Error\\s+(.*?)\\s+in InstallerMediator::(?:Extract|Uninstall)\\(\\)$",
        QRegularExpression::DotMatchesEverythingOption);
    QString error = run.copyErrors.value(run.copyErrors.size() - 1);
    for (const QString& line : run.logLines)
    {
        const auto match = ending.match(line);
        error = match.hasMatch() ? match.captured(1) : error;
    }
    return error;
}

QString StateAfter(const FailedRun& run)
{
    if (run.isUninstallation)
        return UninstallText("A part of the program may already be removed.");
    if (run.stage.isEmpty())
        return WizardText("Nothing was changed.");
    if (run.stage == "REMOVE_PREVIOUS_VERSION")
        return WizardText("A part of the previous version may already be removed.");
    if (run.stage == "EXTRACT_FILES")
        return WizardText("The installation in %1 is incomplete: repeat it to use the program.")
            .arg(Shown(run.folder));
    return WizardText("The files are in %1, but the program is not completely registered.")
        .arg(Shown(run.folder));
}

// The running setup may be in the folder itself; its files are not to be replaced.
QString FindBlockedFile(const QString& folder)
{
    const QString own = QCoreApplication::applicationDirPath();
    QDirIterator file(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (file.hasNext())
    {
        QString path = file.next();
        if (file.fileInfo().path() != own &&
            !QFile(path).open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
            return path;
    }
    return {};
}

} // namespace

FailureProbe SystemFailureProbe()
{
    return {FindFileHolders, FindBlockedFile, FreeSpace};
}

Explanation ExplainFailure(const FailedRun& run, const FailureProbe& probe)
{
    const QString error = EngineError(run);
    Explanation explanation{run.engineText, {}, {}};
    for (const Rule& rule : rules)
    {
        if (error.contains(rule.part))
        {
            explanation = rule.explain({run, probe, error});
            break;
        }
    }
    explanation.state = StateAfter(run);
    return explanation;
}

} // namespace Vorlan::FrontEnd
