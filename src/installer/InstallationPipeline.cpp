#include "installer/InstallerMediator.h"

#include "archive/ArchiveExtractor.h"
#include "base/TriState.h"
#include "checks/AccelerationChecker.h"
#include "installer/ProcessTermination.h"
#include "network/QtDownloader.h"
#include "network/WebConfigRequest.h"
#include "platform/Exception.h"
#include "platform/Timer.h"
#include "registry/RegistrationProfile.h"
#include "registry/SettingsManager.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QProcess>

#include <stdexcept>

namespace Vorlan
{

namespace
{

// Share of the bar that the download of additional data fills, where there is one.
constexpr double downloadRange = 0.3;

} // namespace

void InstallerMediator::StartInstallation()
{
    StartRun(&InstallerMediator::Extract);
}

void InstallerMediator::StartRun(void (InstallerMediator::*run)())
{
    emit InstallationStarted();
    state = InstallationState::InProgress;
    if (worker.joinable())
    {
        worker.join();
        state = InstallationState::InProgress; // the run before may have ended only now
    }
    worker = std::thread(run, this);
}

void InstallerMediator::Extract()
{
    try
    {
        RunInstallation();
    }
    catch (const std::exception& error)
    {
        Core::TrackException(error);
        qWarning() << "Error " << error.what() << " in InstallerMediator::Extract()";
        ReportFailure();
    }
    catch (...)
    {
        qWarning() << "Error unknown error in InstallerMediator::Extract()";
        ReportFailure();
    }
}

void InstallerMediator::RunInstallation()
{
    if (!extractor)
        throw std::runtime_error("There is no payload archive to install from");
    if (settings.installDir.isEmpty())
        throw std::runtime_error("There is no folder to install into");

    RequestWebConfig(settings, *this);
    const std::shared_ptr<Installer::IAccelerationChecker> checker = makeChecker();
    StartCapabilityCheck(*checker);
    const double downloadShare = WillDownloadAdditionalData() ? downloadRange : 0.0;
    const double placementShare = 1.0 - downloadShare;

    qInfo() << "Reserving necessary files";
    const QStringList reservedNames = ReserveFilesForReinstall();
    StopRunningPrograms();
    BeginStage("REMOVE_PREVIOUS_VERSION", "Removing previous versions...");
    RemovePreviousVersion();
    BeginStage("EXTRACT_FILES", "Extracting files...");
    PlaceFiles(reservedNames, placementShare);
    BeginStage("UPDATE_REGISTRY", "Updating registry...");
    AddRegistryInfo();
    StoreCapabilityResults(*checker, placementShare);
    if (settings.createShortcuts)
    {
        qInfo() << "Creating shortcuts...";
        CreateShortcuts();
    }
    CreateInstallerMessageScript();
    if (WillDownloadAdditionalData())
    {
        BeginStage("DOWNLOAD_ADDITIONAL_DATA", "Downloading additional data...");
        DownloadAdditionalData(placementShare, downloadShare);
    }
    if (profile->afterInstall)
    {
        BeginStage("PERFORM_AFTER_INSTALL_ACTION", "Performing after install action...");
        profile->afterInstall(settings);
    }
    qInfo() << "Done!";
    emit InstallationFinished();
    state = InstallationState::Finished;

    if (!unattended)
        SetDefaultApps();
}

void InstallerMediator::BeginStage(const char* stageId, const char* logText)
{
    emit ProcessStarted(stageId);
    qInfo() << logText;
}

bool InstallerMediator::WillDownloadAdditionalData() const
{
    return settings.downloadAdditionalData == TriState::chosen && !profile->additionalData.empty();
}

std::shared_ptr<Installer::IAccelerationChecker> InstallerMediator::MakeChecker()
{
    return std::make_shared<Installer::AccelerationChecker>();
}

void InstallerMediator::StartCapabilityCheck(Installer::IAccelerationChecker& checker) const
{
    checker.SetCheckCoreTimeout(settings.coreCheckTimeout);
    checker.SetVerifiableCodecImpls(settings.verifiableCodecImpls);
    checker.SetVerifiableCodecs(settings.verifiableCodecs);
    checker.SetBrokenPluginsPath(settings.brokenPluginsPath);
    checker.SetBrokenCodecsPath(settings.brokenCodecsPath);
    checker.StartCheck();

    qInfo() << "Start search broken plugins and(or) codecs...";
    qInfo() << "Core timeout: " << settings.coreCheckTimeout << "s";
    if (settings.verifiableCodecImpls.isEmpty())
        qInfo() << "Using verifiable codec impls by default : " << checker.DefaultCodecImplsText();
    else
        qInfo() << "Verifiable codec impls: " << settings.verifiableCodecImpls;
    if (settings.verifiableCodecs.isEmpty())
        qInfo() << "Using verifiable codecs by default : " << checker.DefaultCodecsText();
    else
        qInfo() << "Verifiable codec: " << settings.verifiableCodecs;
    qInfo() << "Broken plugins path: " << settings.brokenPluginsPath;
    qInfo() << "Broken codecs path: " << settings.brokenCodecsPath;
}

void InstallerMediator::StopRunningPrograms()
{
    if (!profile->stopProcesses)
        return;
    settingsManager->SetKilledByInstaller(true);
    // From a setup that runs out of the destination itself this process would be among them.
    if (QDir(settings.installDir) != QDir(QCoreApplication::applicationDirPath()))
        KillAllProcessesInFolder(settings.installDir);
}

void InstallerMediator::PlaceFiles(const QStringList& reservedNames, double weight)
{
    long long elapsed = 0;
    const Core::TimerSimple timer(elapsed);
    ExtractFiles(reservedNames, weight);
    UpdateProgramData();
    emit FilesExtracted(Core::ToTenthsOfSeconds(timer.Elapsed()));
    emit InstallationProgress(weight, QString());
}

void InstallerMediator::StoreCapabilityResults(
    Installer::IAccelerationChecker& checker, double position)
{
    qInfo() << "Searching for broken plugins and(or) codecs";
    emit InstallationProgress(position, QString(), tr("Checking hardware acceleration..."));
    try
    {
        emit ProcessStarted("CHECK_ACCELERATIONS");
        checker.WaitForCheck();

        const std::vector<std::string> plugins = checker.GetBrokenPlugins();
        settingsManager->DisablePlugins(plugins);
        if (plugins.empty())
            qInfo() << "No broken plugins";
        else
            qInfo() << "Broken plugins: " << Installer::JoinNames(plugins);

        const std::string codecs = checker.GetBrokenCodecsText();
        settingsManager->DisableCodecs(codecs);
        if (codecs.empty())
            qInfo() << "No broken codecs";
        else
            qInfo() << "Broken codecs: " << QString::fromStdString(codecs);

        const std::string errorInfo = checker.GetErrorInfo();
        if (!errorInfo.empty())
            qInfo() << "CoreChecker error info: " << QString::fromStdString(errorInfo);
        emit TrackCoreStatistics(checker.GetStatisticInfo());
    }
    catch (const std::runtime_error& error)
    {
        Core::TrackException(error);
        qWarning() << "Error " << error.what() << " while searching of broken plugins";
    }
}

void InstallerMediator::DownloadAdditionalData(double start, double range)
{
    const auto downloader = std::make_unique<Installer::QtDownloader>();
    connect(
        downloader.get(), &Installer::AbstractDownloader::Progress, this,
        [this](double percentage)
        { emit InstallationProgress(percentage, tr("Downloading additional data..."), QString()); },
        Qt::DirectConnection);
    downloader->DownloadFiles(profile->additionalData, settings.locale.toStdString(), start, range);
}

void InstallerMediator::ReportFailure()
{
    emit InstallationError(
        tr("Installation failed. Try to select another location and run install again."),
        static_cast<int>(state.load()));
    state = InstallationState::NotStarted;
}

void InstallerMediator::StartMainExecutable(const QString& method)
{
    const QString& arguments = settings.mainAppArguments;
    qInfo() << "Starting " << profile->mainExecutable << " in " << settings.installDir
            << " with args: " << arguments;
    QProcess::startDetached(
        settings.installDir + profile->mainExecutable, arguments.split(' '), settings.installDir);
    emit ApplicationStarted(method);
}

} // namespace Vorlan
