#pragma once

#include "archive/ArchiveExtractor.h"
#include "base/ExtractSettings.h"
#include "checks/AccelerationChecker.h"
#include "installer/InstallerMediator.h"
#include "installer/SilentUninstaller.h"
#include "platform/Path.h"
#include "registry/RegistrationProfile.h"
#include "registry/SettingsManager.h"

namespace Vorlan
{

// Reaches a mediator's stages one by one, and stands in for what a product's profile could hold.
struct MediatorAccess
{
    InstallerMediator& mediator;

    // Lets the mediator install from an archive that does not lie beside the test program.
    void OpenArchive(const QString& path)
    {
        mediator.extractor = std::make_unique<ArchiveExtractor>(Platform::WideFromText(path));
    }
    // Lets every wait for an old uninstaller's folder be over at once.
    void SkipWaits()
    {
        auto time = std::make_shared<std::chrono::steady_clock::time_point>();
        *mediator.waitClock = {[time] { return *time += std::chrono::seconds(61); }, [] {}};
    }
    // Lets runs check the codecs with that program, or in that way.
    void UseProbe(const QString& program)
    {
        UseChecker([program] { return std::make_shared<Installer::AccelerationChecker>(program); });
    }
    void UseChecker(std::function<std::shared_ptr<Installer::IAccelerationChecker>()> make)
    {
        mediator.makeChecker = std::move(make);
    }
    // Waits for the whole run, what follows its end signal included.
    void Join() { mediator.worker.join(); }

    RegistrationProfile& Profile() { return *mediator.profile; }
    SettingsManager& Registry() { return *mediator.settingsManager; }
    InstallationSettings& Settings() { return mediator.settings; }

    QStringList ReserveFilesForReinstall() { return mediator.ReserveFilesForReinstall(); }
    void ExtractFiles(const QStringList& reserved) { mediator.ExtractFiles(reserved, 1.0); }
    void HandleCopyFileError(const QString& name, const QString& reason)
    {
        mediator.HandleCopyFileError(name, reason);
    }
    void UpdateProgramData() { mediator.UpdateProgramData(); }
    void AddRegistryInfo() { mediator.AddRegistryInfo(); }
    void RemoveRegistryInfo() { mediator.RemoveRegistryInfo(); }
    void TerminateApps() { mediator.TerminateApps(); }
    void RemovePreviousVersion() { mediator.RemovePreviousVersion(); }
    void RemoveAdditionalModules() { mediator.RemoveAdditionalModules(); }
    void CreateShortcuts() { mediator.CreateShortcuts(); }
    void RemoveShortcuts() { mediator.RemoveShortcuts(); }

    void CopyInParallel(const std::vector<std::wstring>& names, int threads)
    {
        ExtractSettings selection;
        mediator.ParallelCopyExistingFiles([](unsigned long long) {}, selection, names, threads);
    }
};

} // namespace Vorlan
