#include "wizard/ResultPage.h"

#include "wizard/Texts.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QVBoxLayout>

namespace Vorlan::FrontEnd
{

ResultPage::ResultPage(const QStringList& pictureLayers, ResultTexts texts)
    : Page("resultPage", pictureLayers, Shape::UnderPicture),
      result(std::move(texts)),
      icon(new QLabel(this)),
      heading(new QLabel(this))
{
    auto* row = new QHBoxLayout;
    row->setSpacing(14);
    icon->setObjectName(result.isDone ? "doneIcon" : "failedIcon");
    heading->setObjectName("heading");
    heading->setWordWrap(true);
    row->addWidget(icon);
    row->addWidget(heading, 1);
    Body()->addLayout(row);
    text = AddText("resultText");
    text->setText(result.text);
    text->setHidden(result.text.isEmpty());
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (!result.list.isEmpty())
        AddList();
    start = new QCheckBox(this);
    start->setObjectName("startNow");
    start->setChecked(result.canStart);
    start->setVisible(result.canStart);
    Body()->addWidget(start);
    link = AddText("link");
    link->setTextFormat(Qt::RichText);
    link->setTextInteractionFlags(Qt::TextBrowserInteraction);
    link->setHidden(*result.linkText == '\0');
    Body()->addStretch();
    connect(link, &QLabel::linkActivated, this, [this] { linkFollowed(); });
}

void ResultPage::AddList()
{
    AddText("group")->setText(result.listText);
    auto* list = new QListWidget(this);
    list->setObjectName("list");
    list->setAccessibleName(result.listText);
    list->addItems(result.list);
    list->setTextElideMode(Qt::ElideMiddle);
    Body()->addWidget(list);
}

void ResultPage::Retranslate(const QString&)
{
    heading->setText(WizardText(result.headingText).arg(ProductTitle()));
    start->setText(WizardText("&Start %1 now").arg(ProductTitle()));
    link->setText(WizardText(result.linkText));
}

bool ResultPage::IsStartWanted() const
{
    return result.canStart && start->isChecked();
}

} // namespace Vorlan::FrontEnd
