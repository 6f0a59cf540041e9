#include "wizard/ProgressPage.h"

#include "StageTexts.h"
#include "wizard/Texts.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <chrono>
#include <cmath>

namespace Vorlan::FrontEnd
{
namespace
{

constexpr int barLength = 1000;
constexpr double measureGap = 0.25; // seconds between two changes of the numbers
constexpr int secondsPerMinute = 60;

// Rounded, because nobody can rely on single seconds.
QString LeftText(double seconds)
{
    const int exact = static_cast<int>(std::ceil(seconds));
    if (exact > 2 * secondsPerMinute)
        return WizardText("About %1 min left")
            .arg((exact + secondsPerMinute - 1) / secondsPerMinute);
    constexpr int coarse = 5;
    const int rounded = exact > 2 * coarse ? (exact + coarse - 1) / coarse * coarse : exact;
    return WizardText("About %1 s left").arg(rounded);
}

} // namespace

ProgressPage::ProgressPage(
    const QStringList& pictureLayers, const char* englishHeading, Clock givenClock)
    : Page("progressPage", pictureLayers, Shape::UnderPicture),
      headingText(englishHeading),
      clock(std::move(givenClock)),
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
    measures = AddLine("measures");
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
    Begin(0);
}

ProgressPage::Clock ProgressPage::SystemClock()
{
    return []
    {
        const auto time = std::chrono::steady_clock::now().time_since_epoch();
        return std::chrono::duration<double>(time).count();
    };
}

void ProgressPage::Retranslate(const QString& newLocale)
{
    locale = newLocale;
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

void ProgressPage::Begin(quint64 bytesToPlace)
{
    bytes = bytesToPlace;
    copyErrors.clear();
    details->clear();
    steps = {};
    estimate = {};
    ShowStep(WizardText("Preparing..."));
    ShowPosition(0);
}

void ProgressPage::End()
{
    taskbar.Clear(*window());
}

QString ProgressPage::Status() const
{
    const QString current = steps.Number() > 0 ? step->text() + ' ' : QString();
    return (current + TimeLeftText()).trimmed();
}

// Empty as long as it is not known.
QString ProgressPage::TimeLeftText() const
{
    const std::optional<double> left = IsMeasured() ? estimate.TimeLeft() : std::nullopt;
    return left ? LeftText(*left) : QString();
}

// The engine reports progress while it places files, and during an uninstallation, which has no
// steps.
bool ProgressPage::IsMeasured() const
{
    return steps.Number() == 0 || steps.Stage() == "EXTRACT_FILES";
}

void ProgressPage::Show(const RunEvent& event)
{
    if (steps.Show(event))
        ShowStage();
    if (const auto* problem = std::get_if<Events::CopyFileError>(&event))
    {
        copyErrors << problem->fileName + ": " + problem->reason;
        AddDetail(copyErrors.last());
    }
    else if (const auto* position = std::get_if<Events::InstallationProgress>(&event))
    {
        const QString text = position->title.isEmpty() ? position->text : position->title;
        if (steps.Number() == 0 && !text.isEmpty())
            ShowStep(text);
        ShowPosition(position->fraction);
    }
}

void ProgressPage::ShowStage()
{
    const char* const text = StageText(steps.Stage());
    estimate = {};
    ShowStep(WizardText("Step %1 of %2: %3")
                 .arg(steps.Number())
                 .arg(steps.Count())
                 .arg(text ? WizardText(text) : steps.Stage()));
    if (!IsMeasured())
        measures->clear();
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

// Before anything has been done there is no percentage to show.
void ProgressPage::ShowPosition(double position)
{
    const double bounded = qBound(0.0, position, 1.0);
    bar->setValue(qRound(bounded * barLength));
    percent->setText(bounded > 0 ? QString("%1 %").arg(qRound(bounded * 100)) : QString());
    if (bounded > 0)
        taskbar.Show(*window(), bounded);
    if (bounded == 0 || IsMeasured())
        ShowMeasures(bounded);
}

void ProgressPage::ShowMeasures(double position)
{
    if (position == 0)
        return measures->clear();
    const double time = clock();
    const auto done = static_cast<qint64>(position * static_cast<double>(bytes));
    estimate.Add(time, position, done);
    if (!measures->text().isEmpty() && time - measuredAt < measureGap)
        return;
    measuredAt = time;
    QStringList parts;
    if (bytes > 0)
        parts << WizardText("%1 of %2")
                     .arg(SizeText(done, locale), SizeText(static_cast<qint64>(bytes), locale));
    const std::optional<double> speed = estimate.Speed();
    if (bytes > 0 && speed)
        parts << WizardText("%1 per second").arg(SizeText(static_cast<qint64>(*speed), locale));
    if (!TimeLeftText().isEmpty())
        parts << TimeLeftText();
    measures->setText(parts.join(QStringLiteral("  \u00b7  ")));
}

} // namespace Vorlan::FrontEnd
