#pragma once

#include "wizard/Page.h"

class QCheckBox;
class QListWidget;

namespace Vorlan::FrontEnd
{

// Content of the last page. `isDone`: the run succeeded, except for what the list says.
struct ResultTexts
{
    bool isDone = true;
    const char* headingText = ""; // in English, "%1" for the product
    QString text;                 // may be empty
    const char* linkText = "";    // in English, rich text; may be empty
    QString listText;             // above the list
    QStringList list;             // may be empty
    bool canStart = false;        // offers to start the installed program
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
    void AddList();

    ResultTexts result;
    QLabel* icon;
    QLabel* heading;
    QLabel* text;
    QCheckBox* start;
    QLabel* link;
};

} // namespace Vorlan::FrontEnd
