#pragma once

#include <QString>

#include <map>
#include <string>
#include <vector>

namespace Vorlan::Installer
{

// Finds out in the background which codec implementations and plug-ins are broken on this machine.
// Set up, start, wait; the results are there after WaitForCheck. One thread drives a checker; the
// setters are not called after StartCheck.
class IAccelerationChecker
{
public:
    using StatisticInfo = std::map<std::string, std::map<std::string, std::string>>;

    virtual void StartCheck() = 0;
    // Throws again what the check threw. A second call does nothing.
    virtual void WaitForCheck() = 0;

    virtual std::vector<std::string> GetBrokenPlugins() = 0;
    virtual std::string GetBrokenCodecsText() = 0;
    virtual StatisticInfo GetStatisticInfo() = 0;
    virtual std::string GetErrorInfo() = 0;

    // Files of what is known to be broken; a path that does not exist counts as none.
    virtual void SetBrokenCodecsPath(const QString& path) = 0;
    virtual void SetBrokenPluginsPath(const QString& path) = 0;
    virtual void SetCheckCoreTimeout(int seconds) = 0;
    // Comma-separated names; an empty text means the default list.
    virtual void SetVerifiableCodecImpls(const QString& names) = 0;
    virtual void SetVerifiableCodecs(const QString& names) = 0;
    virtual QString DefaultCodecImplsText() = 0;
    virtual QString DefaultCodecsText() = 0;

    // Waits for a check still running.
    virtual ~IAccelerationChecker() = default;
};

} // namespace Vorlan::Installer
