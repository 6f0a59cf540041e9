#include "MediatorRun.h"

#include "MediatorEvents.h"

#include "installer/InstallerMediator.h"

#include <QCoreApplication>
#include <QDebug>
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
    QEventLoop loop;
    Outcome outcome;
    ConnectEvents(mediator, loop,
        [&](const RunEvent& event)
        {
            sink(event);
            if (const auto* error = std::get_if<Events::InstallationError>(&event))
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
    return outcome;
}

} // namespace Vorlan::FrontEnd
