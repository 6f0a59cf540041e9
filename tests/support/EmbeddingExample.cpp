// A complete front end: installs the product without asking. "InstallerData.7z" lies beside it.
#include "installer/InstallerMediator.h"

#include <QApplication>
#include <QDir>

#include <iostream>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QDir::setCurrent(QApplication::applicationDirPath()); // the engine looks for files here
    const QString name = "setup.exe";
    Vorlan::InstallerMediator mediator({name, true, true, QSettings::UserScope, true});

    Vorlan::InstallationSettings settings = mediator.GetSettings();
    settings.createShortcuts = false; // what the user chose
    mediator.SetSettings(settings);

    using Mediator = Vorlan::InstallerMediator; // signals come from another thread: queued
    QObject::connect(
        &mediator, &Mediator::InstallationFinished, &application, [] { QApplication::exit(0); },
        Qt::QueuedConnection);
    QObject::connect(
        &mediator, &Mediator::InstallationError, &application,
        [](const QString& text) { std::cerr << qPrintable(text) << '\n', QApplication::exit(1); },
        Qt::QueuedConnection);
    mediator.StartInstallation();
    return QApplication::exec();
}
