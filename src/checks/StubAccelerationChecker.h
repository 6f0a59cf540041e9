#pragma once

#include "checks/IAccelerationChecker.h"

namespace Vorlan::Installer
{

// Checks nothing: every result is empty.
class StubAccelerationChecker : public IAccelerationChecker
{
public:
    void StartCheck() override {}
    void WaitForCheck() override {}
    std::vector<std::string> GetBrokenPlugins() override { return {}; }
    std::string GetBrokenCodecsText() override { return {}; }
    StatisticInfo GetStatisticInfo() override { return {}; }
    std::string GetErrorInfo() override { return {}; }
    void SetBrokenCodecsPath(const QString&) override {}
    void SetBrokenPluginsPath(const QString&) override {}
    void SetCheckCoreTimeout(int) override {}
    void SetVerifiableCodecImpls(const QString&) override {}
    void SetVerifiableCodecs(const QString&) override {}
    QString DefaultCodecImplsText() override { return {}; }
    QString DefaultCodecsText() override { return {}; }
};

} // namespace Vorlan::Installer
