#include "support/SignalLog.h"

#include <QMutexLocker>

#include <gtest/gtest.h>

using Vorlan::InstallerMediator;

SignalLog::SignalLog(InstallerMediator& observed) : mediator(observed)
{
    const auto on = [&](auto signal, auto toText)
    {
        QObject::connect(
            &observed, signal, &observed,
            [this, toText](const auto&... arguments) { Add(toText(arguments...)); },
            Qt::DirectConnection);
    };
    on(&InstallerMediator::ApplicationStarted,
        [](const QString& method) { return "ApplicationStarted(" + method + ')'; });
    on(&InstallerMediator::InstallationStarted, [] { return QString("InstallationStarted"); });
    on(&InstallerMediator::ProcessStarted, [](const std::string& stage)
        { return "ProcessStarted(" + QString::fromStdString(stage) + ')'; });
    on(&InstallerMediator::WebConfigLoaderStarted,
        [] { return QString("WebConfigLoaderStarted"); });
    on(&InstallerMediator::WebConfigLoaderFinished,
        [](int code) { return QString("WebConfigLoaderFinished(%1)").arg(code); });
    on(&InstallerMediator::FilesExtracted, [](float) { return QString("FilesExtracted"); });
    on(&InstallerMediator::TrackCoreStatistics,
        [](const auto& info) { return QString("TrackCoreStatistics(%1)").arg(info.size()); });
    on(&InstallerMediator::CopyFileError, [](const QString& name, const QString& reason)
        { return "CopyFileError(" + name + ", " + reason + ')'; });
    on(&InstallerMediator::InstallationFinished, [] { return QString("InstallationFinished"); });
    on(&InstallerMediator::InstallationError, [](const QString& text, int page)
        { return QString("InstallationError(%1, %2)").arg(text).arg(page); });
    QObject::connect(
        &observed, &InstallerMediator::InstallationProgress, &observed,
        [this](double position, const QString& title, const QString& text)
        {
            const QMutexLocker lock(&mutex);
            progress += QString("%1 | %2 | %3").arg(position).arg(title, text);
        },
        Qt::DirectConnection);
}

void SignalLog::Add(const QString& call)
{
    const QMutexLocker lock(&mutex);
    calls += call;
    if (call == "InstallationFinished" || call.startsWith("InstallationError"))
        ended.set_value();
}

void SignalLog::WaitForEnd()
{
    ASSERT_EQ(end.wait_for(std::chrono::minutes(2)), std::future_status::ready)
        << "the run did not end";
    const QMutexLocker lock(&mutex);
    ended = std::promise<void>();
    end = ended.get_future();
}

QStringList SignalLog::Calls() const
{
    const QMutexLocker lock(&mutex);
    return calls;
}

int SignalLog::Count(const QString& name) const
{
    const QStringList all = Calls();
    return static_cast<int>(std::count_if(
        all.begin(), all.end(), [&](const QString& call) { return call.startsWith(name); }));
}

QStringList SignalLog::Progress() const
{
    const QMutexLocker lock(&mutex);
    return progress;
}
