#pragma once

#include "installer/InstallerMediator.h"
#include "support/Printing.h"

#include <QMutex>
#include <QStringList>

#include <future>

// Every signal of a mediator in its order, as text such as "ProcessStarted(EXTRACT_FILES)".
// InstallationProgress is kept apart.
class SignalLog
{
public:
    explicit SignalLog(Vorlan::InstallerMediator& observed);

    // Waits until the run has ended with InstallationFinished or InstallationError.
    void WaitForEnd();

    QStringList Calls() const;
    int Count(const QString& name) const;

    // "0.7 | title | text" for each InstallationProgress.
    QStringList Progress() const;

private:
    void Add(const QString& call);

    Vorlan::InstallerMediator& mediator;
    mutable QMutex mutex;
    QStringList calls;
    QStringList progress;
    std::promise<void> ended;
    std::future<void> end = ended.get_future();
};
