#include "MediatorRun.h"

#include "Await.h"
#include "FailureCause.h"
#include "LogTail.h"
#include "MediatorEvents.h"

#include "installer/InstallerMediator.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QEventLoop>
#include <QTranslator>

namespace Vorlan::FrontEnd
{
namespace
{

// The engine has one text for all failures; only an uninstallation that is refused because of other
// programs has another, which names them.
ExitCode CodeOf(const QString& errorText)
{
    const QString failure = QCoreApplication::translate("Vorlan::InstallerMediator",
        "Installation failed. Try to select another location and run install again.");
    return errorText == failure ? ExitCode::Failed : ExitCode::DependentProgramsExist;
}

FailedRun DescribeRun(const InstallerMediator& mediator, void (InstallerMediator::*start)())
{
    const InstallationSettings& settings = mediator.GetSettings();
    FailedRun run;
    run.isUninstallation = start == &InstallerMediator::StartUninstall;
    run.folder = QDir::fromNativeSeparators(
        run.isUninstallation ? QCoreApplication::applicationDirPath() : settings.installDir);
    run.locale = settings.locale;
    run.neededBytes = settings.requiredSpace;
    return run;
}

Outcome Explained(FailedRun run, const QString& engineText)
{
    run.engineText = engineText;
    const Explanation explanation =
        Await([run] { return ExplainFailure(run, SystemFailureProbe()); });
    return {ExitCode::Failed, QString(explanation.cause + ' ' + explanation.advice).trimmed(),
        explanation};
}

} // namespace

std::unique_ptr<QTranslator> InstallTranslation(const QString& locale)
{
    auto translator = std::make_unique<QTranslator>();
    const QString path = QString("resources/locales/%1/InstallerGUI_%1.qm").arg(locale);
    if (translator->load(path))
    {
        QCoreApplication::installTranslator(translator.get());
    }
    else
    {
        qWarning() << "No translation in" << path << ": texts stay English";
    }
    return translator;
}

Outcome RunToTheEnd(
    InstallerMediator& mediator, void (InstallerMediator::*start)(), const EventSink& sink)
{
    const LogTail log;
    QEventLoop loop;
    Outcome outcome;
    FailedRun run = DescribeRun(mediator, start);
    ConnectEvents(mediator, loop,
        [&](const RunEvent& event)
        {
            sink(event);
            if (const auto* started = std::get_if<Events::ProcessStarted>(&event))
                run.stage = QString::fromStdString(started->stage);
            else if (const auto* problem = std::get_if<Events::CopyFileError>(&event))
                run.copyErrors << problem->reason;
            else if (const auto* error = std::get_if<Events::InstallationError>(&event))
            {
                outcome = {CodeOf(error->text), error->text};
                loop.quit();
            }
            else if (std::holds_alternative<Events::InstallationFinished>(event))
            {
                loop.quit();
            }
        });
    (mediator.*start)();
    loop.exec();
    run.logLines = log.Lines();
    return outcome.code == ExitCode::Failed ? Explained(run, outcome.error) : outcome;
}

} // namespace Vorlan::FrontEnd
