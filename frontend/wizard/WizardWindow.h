#pragma once

#include "widgets/MovableWidget.h"
#include "wizard/ButtonBar.h"

#include <functional>
#include <map>

class QStackedWidget;

namespace Vorlan::FrontEnd
{

class Page;
class PictureFrame;

// The window of an installation or an uninstallation: a picture, a page, a row of buttons. It can
// be dragged by its body and does not close by itself: closing only asks.
class WizardWindow : public MovableWidget<QDialog>
{
public:
    WizardWindow();

    // The window owns the page.
    void Add(Page* page);
    void Show(Page* page);
    Page* Current() const;

    void SetLabels(const ButtonBar::Labels& labels);
    // Sets every text and picture anew.
    void Retranslate(const QString& locale);

    ButtonBar* Buttons() const { return buttons; }

    // Called when the person wants to leave: by the button, the window's own, Esc or the system.
    std::function<void()> closeRequested = [] {};

    void reject() override { closeRequested(); }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    PictureFrame* FrameFor(const Page& page);
    int PictureHeight(const Page& page) const;
    void UpdateForward();

    QString locale;
    QStackedWidget* frames;
    QStackedWidget* pages;
    ButtonBar* buttons;
    std::map<QStringList, PictureFrame*> frameOfLayers;
};

} // namespace Vorlan::FrontEnd
