#pragma once

#include "Outcome.h"
#include "wizard/Page.h"

class QCheckBox;
class QListWidget;

namespace Vorlan::FrontEnd
{

// Content of the last page. `isDone`: the run succeeded, except for the files in `copyErrors`.
struct ResultTexts
{
    bool isDone = true;
    const char* headingText = ""; // in English, "%1" for the product
    QString text;                 // may be empty
    const char* linkText = "";    // in English, rich text; may be empty
    QStringList copyErrors;
    bool canStart = false; // offers to start the installed program
};

// Cause of a failure, what the machine is now, what to do, and where the log is: a paragraph each.
QString FailureText(const Outcome& outcome, const QString& logFile);

// Opens the log with the system's viewer, or shows a box that it cannot.
void ShowLog(QWidget& window, const QString& logFile);

// The last page.
class ResultPage : public Page
{
public:
    ResultPage(const QStringList& layers, ResultTexts texts);

    void Retranslate(const QString& locale) override;

    bool IsStartWanted() const;

    std::function<void()> linkFollowed = [] {};

private:
    void AddCopyErrors();

    ResultTexts result;
    QLabel* icon;
    QLabel* heading;
    QLabel* text;
    QLabel* listLabel = nullptr;
    QListWidget* list = nullptr;
    QCheckBox* start;
    QLabel* link;
};

} // namespace Vorlan::FrontEnd
