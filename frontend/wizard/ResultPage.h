#pragma once

#include "wizard/Page.h"

class QCheckBox;
class QListWidget;

namespace Vorlan::FrontEnd
{

// How a run ended. `isDone`: it succeeded, with the files that could not be copied where there are
// any.
struct ResultTexts
{
    bool isDone = true;
    const char* headingText = ""; // in English, "%1" for the product
    QString text;                 // may be empty
    const char* linkText = "";    // in English, rich text; may be empty
    QStringList copyErrors;
    bool canStart = false; // the program that was installed can be started
};

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
