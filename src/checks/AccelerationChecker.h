#pragma once

#include "checks/IAccelerationChecker.h"
#include "platform/CoreChecker.h"
#include "platform/Path.h"

#include <QString>

#include <chrono>
#include <future>
#include <map>
#include <string>
#include <vector>

namespace Vorlan::Installer
{

// The names as one text, such as "QSV, NVENC".
QString JoinNames(const std::vector<std::string>& names);

// Runs the platform's checker on one background thread. That thread writes the results; they are
// read only after WaitForCheck, which ends it.
class AccelerationChecker : public IAccelerationChecker
{
public:
    AccelerationChecker() = default;
    explicit AccelerationChecker(const QString& probeProgram) : probe(probeProgram) {}
    // Waits for a check that was not waited for; what it threw is logged.
    ~AccelerationChecker() override;

    // Throws std::system_error when no thread can be created. Does nothing while a check that
    // was started is not yet waited for.
    void StartCheck() override;
    void WaitForCheck() override;

    std::vector<std::string> GetBrokenPlugins() override;
    std::string GetBrokenCodecsText() override;
    StatisticInfo GetStatisticInfo() override;
    std::string GetErrorInfo() override;

    void SetBrokenCodecsPath(const QString& path) override;
    void SetBrokenPluginsPath(const QString& path) override;
    void SetCheckCoreTimeout(int seconds) override;
    void SetVerifiableCodecImpls(const QString& names) override;
    void SetVerifiableCodecs(const QString& names) override;
    QString DefaultCodecImplsText() override;
    QString DefaultCodecsText() override;

private:
    using BrokenCodecs = std::map<std::string, std::vector<std::string>>;

    BrokenCodecs Check();

    std::future<BrokenCodecs> result; // valid until it is collected
    std::chrono::seconds timeout{0};
    std::vector<std::string> codecImpls;
    std::vector<std::string> codecs;
    std::vector<std::string> brokenPlugins;
    BrokenCodecs brokenCodecs;
    StatisticInfo statisticInfo;
    std::string errorInfo;
    ioPath brokenPluginsPath;
    ioPath brokenCodecsPath;
    QString probe = Core::Utils::CoreCheckerLauncher::DefaultProbe();
};

} // namespace Vorlan::Installer
