#include "wizard/WizardWindow.h"

#include "base/ProductProfile.h"
#include "widgets/ButtonWithIcon.h"
#include "wizard/Page.h"
#include "wizard/PictureFrame.h"
#include "wizard/Texts.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace Vorlan::FrontEnd
{
namespace
{

constexpr QSize windowSize{670, 600};
constexpr int smallestHeight = 520;
constexpr int pictureHeight = 302;
constexpr int stripHeight = 92;

// The height of the window, reduced on a low screen down to a limit at which all pages fit.
int WindowHeight()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return qBound(smallestHeight, screen->availableGeometry().height(), windowSize.height());
}

} // namespace

WizardWindow::WizardWindow()
    : MovableWidget<QDialog>(nullptr),
      locale(ProductProfile::defaultLocale),
      frames(new QStackedWidget(this)),
      pages(new QStackedWidget(this)),
      buttons(new ButtonBar(this))
{
    setObjectName("wizardWindow");
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinimizeButtonHint);
    setWindowTitle(ProductTitle());
    setFixedSize(windowSize.width(), WindowHeight());
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(frames);
    column->addWidget(pages, 1);
    column->addWidget(buttons);
    connect(buttons->Cancel(), &QPushButton::clicked, this, [this] { closeRequested(); });
}

void WizardWindow::Add(Page* page)
{
    pages->addWidget(page);
    page->completenessChanged = [this] { UpdateForward(); };
    page->Retranslate(locale);
}

// Frames are created on first use.
PictureFrame* WizardWindow::FrameFor(const Page& page)
{
    PictureFrame*& frame = frameOfLayers[page.Layers()];
    if (frame == nullptr)
    {
        frame = new PictureFrame(page.Layers(), locale, frames);
        frames->addWidget(frame);
        connect(frame->MinimizeButton(), &QToolButton::clicked, this, &QWidget::showMinimized);
        connect(frame->CloseButton(), &QToolButton::clicked, this, [this] { closeRequested(); });
    }
    return frame;
}

// On a low screen the picture is reduced, not the page.
int WizardWindow::PictureHeight(const Page& page) const
{
    if (page.PictureShape() == Page::Shape::Form)
        return stripHeight;
    return qMax(stripHeight, pictureHeight - (windowSize.height() - height()));
}

void WizardWindow::Show(Page* page)
{
    frames->setCurrentWidget(FrameFor(*page));
    frames->setFixedHeight(PictureHeight(*page));
    pages->setCurrentWidget(page);
    UpdateForward();
    buttons->Forward()->setDefault(page->HasDefaultButton());
    QWidget* first = page->FirstControl();
    QWidget* button = page->HasDefaultButton() ? buttons->Forward() : buttons->Cancel();
    (first != nullptr ? first : button)->setFocus(Qt::TabFocusReason);
}

Page* WizardWindow::Current() const
{
    return static_cast<Page*>(pages->currentWidget());
}

void WizardWindow::SetLabels(const ButtonBar::Labels& labels)
{
    buttons->SetLabels(labels);
}

void WizardWindow::Retranslate(const QString& newLocale)
{
    locale = newLocale;
    for (const auto& [layers, frame] : frameOfLayers)
        frame->Retranslate(locale);
    for (int index = 0; index < pages->count(); ++index)
        static_cast<Page*>(pages->widget(index))->Retranslate(locale);
}

void WizardWindow::UpdateForward()
{
    if (Current() != nullptr)
        buttons->Forward()->setEnabled(Current()->IsComplete());
}

void WizardWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    closeRequested();
}

} // namespace Vorlan::FrontEnd
