#include "installer/InstallerMediator.h"

#include "archive/ArchiveExtractor.h"
#include "base/ExtractSettings.h"
#include "installer/FileCopy.h"
#include "installer/ProgressThrottle.h"
#include "installer/Shortcuts.h"
#include "platform/Links.h"
#include "platform/Path.h"
#include "platform/System.h"
#include "registry/RegistrationProfile.h"
#include "registry/SettingsManager.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QThread>
#include <QThreadPool>

#include <algorithm>
#include <chrono>
#include <set>
#include <stdexcept>
#include <unordered_set>

namespace Vorlan
{

namespace
{

using ProgressFunction = std::function<void(unsigned long long)>;

// The host receives fewer than this many copy errors; further ones only reach the log.
constexpr int copyErrorLimit = 10;

// Libraries of the version on the machine that survive a reinstallation.
QStringList ReservedLibraries()
{
    return {"opengl32.dll", "libgallium_wgl.dll"};
}

// The whole payload; the front end becomes the uninstaller.
ExtractSettings PayloadSelection()
{
    ExtractSettings selection;
    selection.rename[L"installergui.exe"] = L"uninst.exe";
    return selection;
}

// Creates every folder that the selected names need below the installation folder.
void CreateDirectoryTree(const std::vector<std::wstring>& names, const ExtractSettings& selection,
    const QString& installDir)
{
    std::set<QString> created;
    for (const std::wstring& name : names)
    {
        const CopyJob job = CreateCopyJob(selection, name, installDir);
        const QString folder = job.destination.left(job.destination.lastIndexOf('/'));
        if (!job.valid || !created.insert(folder).second)
            continue;
        if (!QDir(folder).exists() && !QDir().mkpath(folder))
            throw std::runtime_error("Couldn't create directory " + folder.toStdString());
    }
    qInfo() << "Directory tree've been created";
}

bool HoldsFileLinks(const QString& folder)
{
    QDirIterator file(
        folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (file.hasNext())
    {
        file.next();
        if (file.fileInfo().isSymbolicLink())
            return true;
    }
    return false;
}

// The files to be placed take the place of links, and what lies behind these stays as it is.
void RemoveLinksInTheWay(const std::vector<std::wstring>& names, const ExtractSettings& selection,
    const QString& installDir)
{
    if (!HoldsFileLinks(installDir)) // the usual case, decided without looking at every name
        return;
    for (const std::wstring& name : names)
    {
        const CopyJob job = CreateCopyJob(selection, name, installDir);
        if (job.valid)
            Platform::RemoveFileLink(job.destination);
    }
}

bool MoveOver(const QString& source, const QString& destination)
{
    if (QFile::exists(destination))
        QFile::remove(destination);
    QDir().mkpath(QFileInfo(destination).path());
    return QFile::rename(source, destination);
}

// The names that are to be copied, each once: two copies at a time must not meet in one file.
std::vector<CopyJob> DistinctJobs(const std::vector<std::wstring>& names,
    const ExtractSettings& selection, const QString& installDir)
{
    std::vector<CopyJob> jobs;
    std::unordered_set<std::wstring> keys;
    for (const std::wstring& name : names)
    {
        CopyJob job = CreateCopyJob(selection, name, installDir);
        if (job.valid && keys.insert(job.key).second)
            jobs.push_back(std::move(job));
    }
    return jobs;
}

} // namespace

std::vector<InstallerMediator::PlacedFile> InstallerMediator::ListPlacedFiles() const
{
    std::vector<PlacedFile> files;
    for (const QString& name : ReservedLibraries() + QStringList{installerMessageScript,
                                                         settings.productFolderName + ".url",
                                                         settings.mainExeName, GetUninstName()})
        files.push_back({name});
    if (extractor == nullptr)
        return files;
    const ExtractSettings selection = PayloadSelection();
    const std::vector<std::wstring>& names = extractor->GetEntryNames();
    for (std::size_t index = 0; index < names.size(); ++index)
    {
        const CopyJob job = CreateCopyJob(selection, names[index], QString());
        if (job.valid)
            files.push_back({job.destination, static_cast<qint64>(extractor->GetEntrySize(index))});
    }
    return files;
}

QStringList InstallerMediator::ReserveFilesForReinstall()
{
    QStringList reserved;
    const QString previousFolder = settingsManager->GetInstallLocation();
    if (previousFolder.isEmpty())
        return reserved;

    bool isArchitectureChecked = false;
    for (const QString& name : ReservedLibraries())
    {
        const QString source = previousFolder + name;
        if (!QFile::exists(source))
            continue;
        if (!isArchitectureChecked &&
            settingsManager->GetArchitectBits() != SettingsManager::GetAppBits())
        {
            qInfo() << "OpenGL libraries of previous installation are incompatible with current "
                       "because of different bit capacity";
            return QStringList();
        }
        isArchitectureChecked = true;

        const QString destination =
            QCoreApplication::applicationDirPath() + QDir::separator() + name;
        if (CopyOneFile(source, destination).skipped)
        {
            HandleCopyFileError(
                name, tr("Failed to copy %1. Wrong path or no permission").arg(name));
            continue;
        }
        qInfo() << "OpenGL library" << name
                << "of previous installation has been successfully reserved";
        reserved += name;
    }
    return reserved;
}

void InstallerMediator::ExtractFiles(const QStringList& reservedNames, double weight)
{
    ExtractSettings selection = PayloadSelection();
    ProgressThrottle throttle;
    if (!QDir(settings.installDir).exists() && !QDir().mkpath(settings.installDir))
        qInfo() << "Error: failed to create dir!";

    const uint64_t total = extractor->GetTotalUnpackedSize();
    qInfo() << "Start copying files:" << total << " bytes";
    const ProgressFunction progress = [&](unsigned long long bytes)
    {
        if (total != 0 && throttle.IsDue())
            emit InstallationProgress(
                static_cast<double>(bytes) / static_cast<double>(total) * weight, QString());
    };

    const auto start = std::chrono::steady_clock::now();
    const CopyOperationInfo copied = CopyExistingFiles(progress, selection, reservedNames);
    const auto elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now() - start);
    qInfo() << "Copied:" << copied.copiedFiles << " files, size:" << copied.copiedBytes
            << " elapsed time:" << static_cast<qint64>(elapsed.count()) << " ms"
            << " excluded:" << selection.exclude.size();

    qInfo() << "Extracting file is started to:" << settings.installDir;
    extractor->Unpack(selection, Platform::WideFromText(settings.installDir),
        [&](uint64_t bytes, const std::wstring&) { progress(bytes + copied.copiedBytes); });
    qInfo() << "Files are extracted";
}

InstallerMediator::CopyOperationInfo InstallerMediator::CopyExistingFiles(
    const ProgressFunction& progress, ExtractSettings& selection, const QStringList& reservedNames)
{
    std::vector<std::wstring> names = extractor->GetEntryNames();
    for (const QString& name : reservedNames)
        names.push_back(Platform::WideFromText(name));
    RemoveLinksInTheWay(names, selection, settings.installDir);
    CreateDirectoryTree(names, selection, settings.installDir);

    const int threads = std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
    if (parallelCopy && threads >= 2 && Core::IsRunningOnSSD() &&
        Core::IsPathOnSSD(settings.installDir.toStdString()))
        return ParallelCopyExistingFiles(progress, selection, names, threads);
    return CopyOneAfterAnother(progress, selection, names);
}

InstallerMediator::CopyOperationInfo InstallerMediator::CopyOneAfterAnother(
    const ProgressFunction& progress, ExtractSettings& selection,
    const std::vector<std::wstring>& names)
{
    CopyOperationInfo info;
    for (const std::wstring& name : names)
    {
        const CopyJob job = CreateCopyJob(selection, name, settings.installDir);
        const CopyFileOperationStatus status =
            job.valid ? CopyOneFile(job.source, job.destination) : CopyFileOperationStatus();
        if (!status.error.isEmpty())
        {
            qInfo() << "Copy error:" << status.error;
            HandleCopyFileError(job.source, status.error);
            throw std::runtime_error(status.error.toStdString());
        }
        if (status.skipped || status.size == 0)
        {
            ++info.skippedFiles;
            continue;
        }
        info.copiedBytes += status.size;
        ++info.copiedFiles;
        progress(info.copiedBytes);
        selection.exclude.insert(job.key);
    }
    return info;
}

InstallerMediator::CopyOperationInfo InstallerMediator::ParallelCopyExistingFiles(
    const ProgressFunction& progress, ExtractSettings& selection,
    const std::vector<std::wstring>& names, int threadCount)
{
    qInfo() << "Using " << threadCount
            << " threads to copy files , thread id:" << QThread::currentThreadId();
    QThreadPool& pool = *QThreadPool::globalInstance();
    if (threadCount > pool.maxThreadCount())
    {
        qInfo() << "The pool parameter is changed to:" << threadCount
                << ", thread id:" << QThread::currentThreadId();
        pool.setMaxThreadCount(threadCount);
    }

    CopyOperationInfo info;
    const std::vector<CopyJob> jobs = DistinctJobs(names, selection, settings.installDir);
    info.skippedFiles = names.size() - jobs.size();
    QString errors;
    const auto collect = [&](const CopyJob& job, const CopyFileOperationStatus& status)
    {
        errors += status.error;
        const bool isCopied = !status.skipped && status.size != 0;
        info.copiedBytes += isCopied ? status.size : 0;
        ++(isCopied ? info.copiedFiles : info.skippedFiles);
        if (!status.error.isEmpty())
        {
            qInfo() << "Copy error:" << status.error;
            HandleCopyFileError(Platform::TextFromWide(job.key), status.error);
        }
        else if (isCopied)
        {
            progress(info.copiedBytes);
            selection.exclude.insert(job.key);
        }
    };
    RunCopies(threadCount, jobs, collect);
    if (!errors.isEmpty())
        throw std::runtime_error(errors.toStdString());
    qInfo() << "Copy is completed, thread id:" << QThread::currentThreadId();
    return info;
}

void InstallerMediator::HandleCopyFileError(const QString& fileName, const QString& reason)
{
    ++copyErrorCount;
    if (copyErrorCount < copyErrorLimit)
        emit CopyFileError(fileName, reason);
    else
        qDebug() << "Error on file " << fileName << ". " << reason;
}

void InstallerMediator::UpdateProgramData()
{
    for (auto entry = profile->outputNames.begin(); entry != profile->outputNames.end(); ++entry)
    {
        const QString& name = entry.key();
        const QString& target = entry.value();
        const QString source = settings.installDir + name;
        const QString allUsers = GetStandardLocation(StandardLocation::CommonAppData);
        const QString destination = allUsers + QDir::separator() + Platform::ToNativePath(target);
        const bool isMoved = !allUsers.isEmpty() && MoveOver(source, destination);
        qInfo() << "Moved " << source << " to " << destination << " successfully: " << isMoved;
        if (!isMoved)
            HandleCopyFileError(name,
                tr("Failed to move file %1 to %2. Wrong path or no permission").arg(name, target));
    }
}

} // namespace Vorlan
