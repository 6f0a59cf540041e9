#pragma once

#include "RunEvent.h"
#include "wizard/Page.h"

class QListWidget;
class QProgressBar;
class QPushButton;

namespace Vorlan::FrontEnd
{

// Shows the current step of a run, its progress, and on request the list of steps so far.
class ProgressPage : public Page
{
public:
    ProgressPage(const QStringList& layers, const char* headingText);

    void Retranslate(const QString& locale) override;
    QWidget* FirstControl() const override;

    // Removes the display of an earlier run.
    void Clear();
    void Show(const RunEvent& event);

    // "<file>: <reason>" for each file that could not be copied.
    const QStringList& CopyErrors() const { return copyErrors; }

private:
    void ShowDetails(bool isWanted);
    void ShowStep(const QString& text);
    void AddDetail(const QString& text);
    void ShowPosition(double position);

    const char* headingText; // in English
    QStringList copyErrors;
    QLabel* heading;
    QLabel* step;
    QLabel* percent;
    QProgressBar* bar;
    QPushButton* detailsButton;
    QListWidget* details;
};

} // namespace Vorlan::FrontEnd
