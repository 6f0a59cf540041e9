#pragma once

#include "ProgressEstimate.h"
#include "RunEvent.h"
#include "RunSteps.h"
#include "wizard/Page.h"
#include "wizard/TaskbarProgress.h"

class QListWidget;
class QProgressBar;
class QPushButton;

namespace Vorlan::FrontEnd
{

// Shows the current step of a run, its number, its progress with bytes, speed and time left, and on
// request the list of steps so far. The button of the window in the taskbar shows the progress too.
class ProgressPage : public Page
{
public:
    // Seconds since any fixed moment.
    using Clock = std::function<double()>;

    ProgressPage(const QStringList& layers, const char* headingText, Clock clock = SystemClock());

    void Retranslate(const QString& locale) override;
    QWidget* FirstControl() const override;

    // Removes the display of an earlier run. The next one places so many bytes; 0 if it places
    // none.
    void Begin(quint64 bytesToPlace);
    void Show(const RunEvent& event);
    // Removes the progress from the taskbar.
    void End();

    // What runs now, "Step 1 of 3: Placing the files... About 5 s left", as far as it is known.
    QString Status() const;

    // "<file>: <reason>" for each file that could not be copied.
    const QStringList& CopyErrors() const { return copyErrors; }

    static Clock SystemClock();

private:
    void ShowDetails(bool isWanted);
    void ShowStage();
    void ShowStep(const QString& text);
    void AddDetail(const QString& text);
    void ShowPosition(double position);
    void ShowMeasures(double position);
    QString TimeLeftText() const;
    bool IsMeasured() const;

    const char* headingText; // in English
    Clock clock;
    QString locale;
    QStringList copyErrors;
    quint64 bytes = 0;
    double measuredAt = 0;
    RunSteps steps;
    ProgressEstimate estimate;
    TaskbarProgress taskbar;
    QLabel* heading;
    QLabel* step;
    QLabel* percent;
    QProgressBar* bar;
    QLabel* measures;
    QPushButton* detailsButton;
    QListWidget* details;
};

} // namespace Vorlan::FrontEnd
