#include "checks/AccelerationChecker.h"

#include <QDebug>
#include <QStringList>

#include <exception>

namespace Vorlan::Installer
{

namespace
{

using Conf::IFormatCodecAudio;
using Conf::IFormatCodecVideo;
using Core::Utils::CheckType;
using Core::Utils::CoreCheckerLauncher;

const std::vector<std::string> defaultCodecImpls{Proc::ImplNames::QSV,
    Proc::ImplNames::MEDIA_FOUNDATION, Proc::ImplNames::VIDEO_TOOLBOX_HW,
    Proc::ImplNames::VIDEO_TOOLBOX_SW, Proc::ImplNames::AUDIO_TOOLBOX, Proc::ImplNames::NVENC,
    Proc::ImplNames::NVDEC, Proc::ImplNames::AMF, Proc::ImplNames::DIRECTX};

const std::vector<std::string> defaultCodecs{IFormatCodecAudio::CODEC_ID_AAC,
    IFormatCodecAudio::CODEC_ID_AC3, IFormatCodecVideo::CODEC_ID_H264,
    IFormatCodecVideo::CODEC_ID_H265, IFormatCodecVideo::CODEC_ID_WMV3};

// The path where something is there, else none; also for text that is no path.
ioPath ExistingPath(const QString& text)
{
    try
    {
        const ioPath path(text.toStdString());
        return path.exists() ? path : ioPath();
    }
    catch (const std::exception&)
    {
        return {};
    }
}

std::vector<std::string> SplitNames(const QString& text)
{
    std::vector<std::string> names;
    for (const QString& part : text.split(','))
    {
        if (const QString name = part.trimmed(); !name.isEmpty())
            names.push_back(name.toStdString());
    }
    return names;
}

} // namespace

QString JoinNames(const std::vector<std::string>& names)
{
    QStringList texts;
    for (const std::string& name : names)
        texts += QString::fromStdString(name);
    return texts.join(", ");
}

AccelerationChecker::~AccelerationChecker()
{
    try
    {
        AccelerationChecker::WaitForCheck();
    }
    catch (const std::exception& error)
    {
        qWarning() << "The check of hardware acceleration failed: " << error.what();
    }
}

void AccelerationChecker::StartCheck()
{
    if (!result.valid())
        result = std::async(std::launch::async, &AccelerationChecker::Check, this);
}

void AccelerationChecker::WaitForCheck()
{
    if (result.valid())
        brokenCodecs = result.get();
}

AccelerationChecker::BrokenCodecs AccelerationChecker::Check()
{
    const CheckType type = CheckType::PluginsAndCodecs;
    CoreCheckerLauncher launcher(probe);
    launcher.SetCheckCoreTimeout(timeout);
    launcher.SetVerifiableCodecImpls(codecImpls.empty() ? defaultCodecImpls : codecImpls);
    launcher.SetVerifiableCodecs(codecs.empty() ? defaultCodecs : codecs);
    launcher.SetBrokenPluginsPath(brokenPluginsPath);
    launcher.SetBrokenCodecsPath(brokenCodecsPath);
    launcher.StartCheck(type);
    statisticInfo = launcher.GetStatisticInfo();
    errorInfo = launcher.GetErrorInfo();
    if (type == CheckType::PluginsAndCodecs)
        brokenPlugins = launcher.GetBrokenPlugins();
    return launcher.GetBrokenCodecs();
}

std::vector<std::string> AccelerationChecker::GetBrokenPlugins()
{
    return brokenPlugins;
}

std::string AccelerationChecker::GetBrokenCodecsText()
{
    return Proc::ModuleOptionsToString(brokenCodecs, true);
}

IAccelerationChecker::StatisticInfo AccelerationChecker::GetStatisticInfo()
{
    return statisticInfo;
}

std::string AccelerationChecker::GetErrorInfo()
{
    return errorInfo;
}

void AccelerationChecker::SetBrokenCodecsPath(const QString& path)
{
    brokenCodecsPath = ExistingPath(path);
}

void AccelerationChecker::SetBrokenPluginsPath(const QString& path)
{
    brokenPluginsPath = ExistingPath(path);
}

void AccelerationChecker::SetCheckCoreTimeout(int seconds)
{
    timeout = std::chrono::seconds(seconds);
}

void AccelerationChecker::SetVerifiableCodecImpls(const QString& names)
{
    codecImpls = SplitNames(names);
}

void AccelerationChecker::SetVerifiableCodecs(const QString& names)
{
    codecs = SplitNames(names);
}

QString AccelerationChecker::DefaultCodecImplsText()
{
    return JoinNames(defaultCodecImpls);
}

QString AccelerationChecker::DefaultCodecsText()
{
    return JoinNames(defaultCodecs);
}

} // namespace Vorlan::Installer
