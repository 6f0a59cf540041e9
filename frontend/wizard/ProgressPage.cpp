#include "wizard/ProgressPage.h"

#include "StageTexts.h"
#include "wizard/Texts.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace Vorlan::FrontEnd
{
namespace
{

constexpr int barLength = 1000;

} // namespace

ProgressPage::ProgressPage(const QStringList& pictureLayers, const char* englishHeading)
    : Page("progressPage", pictureLayers, Shape::UnderPicture),
      headingText(englishHeading),
      heading(AddHeading()),
      percent(new QLabel(this)),
      bar(new QProgressBar(this)),
      detailsButton(new QPushButton(this)),
      details(new QListWidget(this))
{
    auto* row = new QHBoxLayout;
    step = AddLine("step");
    row->addWidget(step, 1);
    row->addWidget(percent);
    percent->setObjectName("percent");
    Body()->addLayout(row);
    bar->setObjectName("bar");
    bar->setRange(0, barLength);
    bar->setTextVisible(false);
    Body()->addWidget(bar);
    detailsButton->setObjectName("detailsButton");
    detailsButton->setCheckable(true);
    detailsButton->setAutoDefault(false);
    Body()->addWidget(detailsButton, 0, Qt::AlignLeft);
    details->setObjectName("details");
    details->setTextElideMode(Qt::ElideMiddle);
    details->setUniformItemSizes(true); // for lists with a line for each of many files
    details->hide();
    Body()->addWidget(details, 1);
    Body()->addStretch();
    connect(detailsButton, &QPushButton::toggled, this,
        [this](bool isWanted) { ShowDetails(isWanted); });
    Clear();
}

void ProgressPage::Retranslate(const QString&)
{
    heading->setText(QString(WizardText(headingText)).arg(ProductTitle()));
    bar->setAccessibleName(WizardText("Progress"));
    details->setAccessibleName(WizardText("Details"));
    ShowDetails(detailsButton->isChecked());
}

QWidget* ProgressPage::FirstControl() const
{
    return detailsButton;
}

void ProgressPage::ShowDetails(bool isWanted)
{
    detailsButton->setText(isWanted ? WizardText("Hide &details") : WizardText("Show &details"));
    details->setVisible(isWanted);
    details->scrollToBottom();
}

void ProgressPage::Clear()
{
    copyErrors.clear();
    details->clear();
    ShowStep(WizardText("Preparing..."));
    ShowPosition(0);
}

void ProgressPage::Show(const RunEvent& event)
{
    if (const auto* started = std::get_if<Events::ProcessStarted>(&event))
    {
        const QString id = QString::fromStdString(started->stage);
        const char* const text = StageText(id);
        ShowStep(text ? WizardText(text) : id);
    }
    else if (const auto* problem = std::get_if<Events::CopyFileError>(&event))
    {
        copyErrors << problem->fileName + ": " + problem->reason;
        AddDetail(copyErrors.last());
    }
    else if (const auto* position = std::get_if<Events::InstallationProgress>(&event))
    {
        if (!position->title.isEmpty() || !position->text.isEmpty())
            ShowStep(position->title.isEmpty() ? position->text : position->title);
        ShowPosition(position->fraction);
    }
}

void ProgressPage::ShowStep(const QString& text)
{
    if (details->count() > 0 && details->item(details->count() - 1)->text() == text)
        return;
    step->setText(text);
    AddDetail(text);
}

void ProgressPage::AddDetail(const QString& text)
{
    details->addItem(text);
    if (details->isVisible())
        details->scrollToBottom();
}

void ProgressPage::ShowPosition(double position)
{
    const double bounded = qBound(0.0, position, 1.0);
    bar->setValue(qRound(bounded * barLength));
    percent->setText(QString("%1 %").arg(qRound(bounded * 100)));
}

} // namespace Vorlan::FrontEnd
