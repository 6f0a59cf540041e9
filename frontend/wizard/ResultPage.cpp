#include "wizard/ResultPage.h"

#include "widgets/AlertBox.h"
#include "wizard/Texts.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace Vorlan::FrontEnd
{

QString FailureText(const Outcome& outcome, const QString& logFile)
{
    const Explanation& explanation = outcome.explanation;
    QStringList paragraphs{explanation.cause.isEmpty() ? outcome.error : explanation.cause,
        explanation.state, explanation.advice, WizardText("Log file: %1").arg(PathText(logFile))};
    paragraphs.removeAll(QString());
    return paragraphs.join("\n\n");
}

ResultPage::ResultPage(const QStringList& pictureLayers, ResultTexts texts)
    : Page("resultPage", pictureLayers, texts.isDone ? Shape::UnderPicture : Shape::Form),
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
    if (!result.isDone) // long paths may need more lines than there are
        MakeScrollable();
    text = AddText("resultText");
    text->setText(result.text);
    text->setHidden(result.text.isEmpty());
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (!result.list.isEmpty())
        AddList();
    openLog = new QPushButton(this);
    openLog->setObjectName("openLog");
    openLog->setAutoDefault(false);
    openLog->setHidden(result.logFile.isEmpty());
    Body()->addWidget(openLog, 0, Qt::AlignLeft);
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
    connect(openLog, &QPushButton::clicked, this, [this] { OpenLog(); });
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
    openLog->setText(WizardText("Open &log"));
}

// With the system's viewer.
void ResultPage::OpenLog()
{
    const QFileInfo log(result.logFile);
    if (!log.isFile() || !QDesktopServices::openUrl(QUrl::fromLocalFile(log.absoluteFilePath())))
        AlertBox::error(window(),
            WizardText("The log file %1 cannot be opened.").arg(PathText(result.logFile)), false);
}

bool ResultPage::IsStartWanted() const
{
    return result.canStart && start->isChecked();
}

} // namespace Vorlan::FrontEnd
