#include "installer/InstallerMediator.h"

#include "checks/StubAccelerationChecker.h"
#include "platform/System.h"
#include "registry/RegistrySettings.h"
#include "support/CodecProbe.h"
#include "support/Machine.h"
#include "support/MediatorAccess.h"
#include "support/SignalLog.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace Vorlan;

namespace
{

constexpr char failureText[] =
    "Installation failed. Try to select another location and run install again.";

class InstallationPipelineTest : public testing::Test
{
protected:
    void SetUp() override
    {
        InstallationSettings settings = mediator.GetSettings();
        settings.installDir = installDir;
        settings.userInfo.webUid = "web-id";
        mediator.SetSettings(settings);
        access.OpenArchive(Payload("small.7z"));
        access.SkipWaits();
        access.UseProbe(noProbe);
    }

    void Install()
    {
        mediator.StartInstallation();
        signalLog.WaitForEnd();
    }

    // What the small payload leaves in the installation folder.
    static QMap<QString, QByteArray> PlacedFiles()
    {
        QMap<QString, QByteArray> files = ReadTree(Payload("small-content"));
        files["uninst.exe"] = files.take("installergui.exe");
        files.remove("fonts.conf");
        return files;
    }

    QMap<QString, QByteArray> InstalledFiles() const
    {
        QMap<QString, QByteArray> files = ReadTree(installDir);
        EXPECT_EQ(files.remove("InstallerMessage.vbs"), 1);
        EXPECT_EQ(files.remove("Vorlan Quillax.url"), 1);
        return files;
    }

    Machine machine;
    const QString name = "setup.exe";
    const QString noProbe = machine.Path("corechecker.exe");
    const QString installDir = machine.Path("\u30A2\u30D7\u30EA folder/Vorlan Quillax/");
    InstallerMediator mediator{{name, false, true, QSettings::UserScope, true}};
    MediatorAccess access{mediator};
    SignalLog signalLog{mediator};
};

} // namespace

TEST_F(InstallationPipelineTest, StagesRunInTheirOrder)
{
    Install();
    EXPECT_EQ(signalLog.Calls(),
        QStringList({"InstallationStarted", "WebConfigLoaderStarted", "WebConfigLoaderFinished(2)",
            "ProcessStarted(REMOVE_PREVIOUS_VERSION)", "ProcessStarted(EXTRACT_FILES)",
            "FilesExtracted", "ProcessStarted(UPDATE_REGISTRY)",
            "ProcessStarted(CHECK_ACCELERATIONS)", "TrackCoreStatistics(0)",
            "InstallationFinished"}));
    access.Join();
    EXPECT_EQ(mediator.GetInstallationState(), InstallationState::Finished);
    EXPECT_EQ(InstalledFiles(), PlacedFiles());
    EXPECT_EQ(signalLog.Progress().mid(signalLog.Progress().size() - 2),
        QStringList({"1 |  | ", "1 |  | Checking hardware acceleration..."}));
}

TEST_F(InstallationPipelineTest, EachStageLeavesItsLines)
{
    mediator.OnLocaleChanged("en_US");
    Install();
    access.Join();
    QStringList log = machine.Log();
    log = log.mid(log.indexOf("Request web config..."));
    for (const QString& line : log.filter("Creating shortcut '"))
        log.removeAll(line);
    const QStringList placement = log.mid(log.indexOf("Extracting files..."));
    EXPECT_EQ(log.mid(0, 12),
        QStringList({"Request web config...", "Web config requested with  2",
            "Start search broken plugins and(or) codecs...", "Core timeout:  0 s",
            "Using verifiable codec impls by default :  \"QSV, MEDIA_FOUNDATION, VIDEO_TOOLBOX_HW, "
            "VIDEO_TOOLBOX_SW, AUDIO_TOOLBOX, NVENC, NVDEC, AMF, DIRECTX\"",
            "Using verifiable codecs by default :  \"AAC, AC3, H264, H265, WMV3\"",
            "Broken plugins path:  \"\"", "Broken codecs path:  \"\"", "Reserving necessary files",
            "Removing previous versions...", "Skipping  \"\"", "Extracting files..."}));
    EXPECT_EQ(placement.mid(placement.indexOf("Files are extracted") + 2),
        QStringList({"Updating registry...", "Searching for broken plugins and(or) codecs",
            "No broken plugins", "No broken codecs",
            "CoreChecker error info:  " +
                Quoted("There is no probe program " + noProbe + ": nothing was checked"),
            "Creating shortcuts...", "Done!"}));
}

TEST_F(InstallationPipelineTest, WhatIsBrokenIsLoggedStoredAndTold)
{
    const CodecProbe probe(noProbe);
    access.Settings().verifiableCodecImpls = "exit, usable,silent";
    access.Settings().verifiableCodecs = "A,B";
    access.Settings().coreCheckTimeout = 60;
    std::map<std::string, std::map<std::string, std::string>> statistics;
    QObject::connect(
        &mediator, &InstallerMediator::TrackCoreStatistics, &mediator,
        [&](const auto& info) { statistics = info; }, Qt::DirectConnection);
    Install();
    access.Join();
    EXPECT_EQ(statistics["codec.B"]["silent"], "no valid answer");
    EXPECT_EQ(statistics["check"]["broken"], "4");
    const QStringList log = machine.Log();
    for (const char* line :
        {"Core timeout:  60 s", "Verifiable codec impls:  \"exit, usable,silent\"",
            "Verifiable codec:  \"A,B\"", "Broken plugins:  \"exit, silent\"",
            "Broken codecs:  \"A=exit,silent;B=exit,silent\""})
        EXPECT_TRUE(log.contains(line)) << log.join('\n').toStdString();
    EXPECT_TRUE(log.filter("CoreChecker error info").isEmpty());
    RegistrySettings key(QSettings::UserScope, "Vorlan", "Quillax24");
    EXPECT_EQ(key.value("BrokenPlugins").toString(), "exit,silent");
    EXPECT_EQ(key.value("BrokenCodecs").toString(), "A=exit,silent;B=exit,silent");
}

TEST_F(InstallationPipelineTest, FailedCheckDoesNotStopTheRun)
{
    struct FailingChecker : Installer::StubAccelerationChecker
    {
        void WaitForCheck() override { throw std::runtime_error("check failed"); }
    };
    access.UseChecker([] { return std::make_shared<FailingChecker>(); });
    Install();
    EXPECT_EQ(signalLog.Calls().last(), "InstallationFinished");
    EXPECT_EQ(signalLog.Count("TrackCoreStatistics"), 0);
    EXPECT_TRUE(machine.Log().contains("Error  check failed  while searching of broken plugins"));
    EXPECT_TRUE(ReadFile(Platform::LogFolder() + "/exceptions.jsonl").contains("check failed"));
}

TEST_F(InstallationPipelineTest, ProductKeyHoldsWhatWasInstalled)
{
    Install();
    SettingsManager& registry = access.Registry();
    EXPECT_EQ(registry.GetInstallLocation(), installDir);
    EXPECT_EQ(registry.GetWebUIDFromUserKey(), "web-id");
    RegistrySettings key(QSettings::UserScope, "Vorlan", "Quillax24");
    EXPECT_EQ(key.value("KilledDuringUpdateByInstaller").toString(), "true");
    EXPECT_TRUE(key.contains("BrokenPlugins"));
    EXPECT_TRUE(key.contains("BrokenCodecs"));
}

TEST_F(InstallationPipelineTest, MessageScriptIsUtf16WithoutMark)
{
    Install();
    const QByteArray script = ReadFile(installDir + "InstallerMessage.vbs");
    ASSERT_EQ(script.size() % 2, 0);
    QString text;
    for (int i = 0; i < script.size(); i += 2)
        text += QChar(static_cast<uchar>(script[i]), static_cast<uchar>(script[i + 1]));
    EXPECT_EQ(text,
        "MsgBox \"A Setup or Uninstall window is currently running and needs to be closed before "
        "starting Quillax.\", vbCritical+vbOKOnly+vbSystemModal, \"Quillax\"");
}

TEST_F(InstallationPipelineTest, DownloadStageHasTheEndOfTheBar)
{
    access.Profile().additionalData["all"] = {{"http://127.0.0.1:1/a", "a"}};
    Install();
    EXPECT_EQ(signalLog.Count("ProcessStarted(DOWNLOAD_ADDITIONAL_DATA)"), 0);
    EXPECT_EQ(signalLog.Progress().last(), "1 |  | Checking hardware acceleration...");

    access.Settings().downloadAdditionalData = 2;
    Install();
    EXPECT_EQ(signalLog.Count("ProcessStarted(DOWNLOAD_ADDITIONAL_DATA)"), 1);
    EXPECT_EQ(signalLog.Progress().last(), "0.7 |  | Checking hardware acceleration...");
}

TEST_F(InstallationPipelineTest, AfterInstallActionComesLast)
{
    QString actionFolder;
    access.Profile().afterInstall = [&](const InstallationSettings& settings)
    { actionFolder = settings.installDir; };
    access.Settings().createShortcuts = false;
    Install();
    EXPECT_EQ(actionFolder, installDir);
    EXPECT_EQ(signalLog.Calls().mid(signalLog.Calls().size() - 2),
        QStringList({"ProcessStarted(PERFORM_AFTER_INSTALL_ACTION)", "InstallationFinished"}));
    EXPECT_FALSE(machine.Log().contains("Creating shortcuts..."));
    EXPECT_TRUE(QFile::exists(installDir + "InstallerMessage.vbs"));
}

TEST_F(InstallationPipelineTest, FailureIsOneErrorAndTheNextRunStartsAfresh)
{
    access.Profile().afterInstall = [](const InstallationSettings&)
    { throw std::runtime_error("action failed"); };
    Install();
    access.Profile().afterInstall = [](const InstallationSettings&) { throw 7; };
    mediator.StartInstallation();
    signalLog.WaitForEnd();
    access.Join();
    EXPECT_EQ(signalLog.Count(QString("InstallationError(%1, 1)").arg(failureText)), 2);
    EXPECT_EQ(signalLog.Count("InstallationFinished"), 0);
    EXPECT_EQ(mediator.GetInstallationState(), InstallationState::NotStarted);
    EXPECT_TRUE(machine.Log().contains("Error  action failed  in InstallerMediator::Extract()"));
    EXPECT_TRUE(machine.Log().contains("Error unknown error in InstallerMediator::Extract()"));
    EXPECT_TRUE(
        ReadFile(Platform::LogFolder() + "/exceptions.jsonl").contains("std::runtime_error"));

    access.Profile().afterInstall = nullptr;
    Install();
    EXPECT_EQ(signalLog.Calls().last(), "InstallationFinished");
}

TEST_F(InstallationPipelineTest, ObstacleFailsOnceAndTheRunAfterItIsComplete)
{
    const QString obstacles[] = {
        installDir.chopped(1),            // a file where the installation folder must be
        installDir + "libs",              // a file where a folder must be
        installDir + "quill.exe/a folder" // a folder where a file must be
    };
    const QStringList errors = {
        "Error  Couldn't create directory " + QDir::fromNativeSeparators(installDir).chopped(1),
        "Error  Couldn't create directory " + QDir::fromNativeSeparators(installDir) + "libs",
        "Error  Cannot open destination file for write"};
    for (int i = 0; i < errors.size(); ++i)
    {
        WriteFile(obstacles[i], "in the way");
        Install();
        EXPECT_EQ(signalLog.Count("InstallationError"), i + 1);
        EXPECT_TRUE(machine.Log().contains(errors[i] + "  in InstallerMediator::Extract()"))
            << machine.Log().join('\n').toStdString();

        QFile::remove(obstacles[i]);
        QDir().rmdir(installDir + "quill.exe");
        Install();
        EXPECT_EQ(signalLog.Calls().last(), "InstallationFinished");
        EXPECT_EQ(InstalledFiles(), PlacedFiles());
        QDir(installDir).removeRecursively();
    }
}

TEST_F(InstallationPipelineTest, WithoutAnArchiveNothingIsTouched)
{
    InstallerMediator empty({name, false, true, QSettings::UserScope, false});
    SignalLog calls(empty);
    empty.StartInstallation();
    calls.WaitForEnd();
    EXPECT_EQ(calls.Calls(),
        QStringList({"InstallationStarted", QString("InstallationError(%1, 1)").arg(failureText)}));
    EXPECT_FALSE(QFile::exists(installDir));
}

TEST_F(InstallationPipelineTest, StartingTheMainProgramNamesItsMethod)
{
    InstallationSettings settings = mediator.GetSettings();
    settings.mainAppArguments = "a  b";
    mediator.SetSettings(settings);
    ASSERT_TRUE(QMetaObject::invokeMethod(&mediator, "StartMainExecutable"));
    mediator.StartMainExecutable("Auto");
    EXPECT_EQ(
        signalLog.Calls(), QStringList({"ApplicationStarted(Manual)", "ApplicationStarted(Auto)"}));
    EXPECT_TRUE(machine.Log().contains(
        "Starting  \"quill.exe\"  in  " + Quoted(installDir) + "  with args:  \"a  b\""));
}

TEST_F(InstallationPipelineTest, RunMayNotStartFromItsOwnThread)
{
    bool isRefused = false;
    QObject::connect(
        &mediator, &InstallerMediator::FilesExtracted, &mediator,
        [&]
        {
            try
            {
                mediator.StartInstallation();
            }
            catch (const std::system_error& error)
            {
                isRefused = error.code() == std::errc::resource_deadlock_would_occur;
            }
        },
        Qt::DirectConnection);
    Install();
    EXPECT_TRUE(isRefused);
}
