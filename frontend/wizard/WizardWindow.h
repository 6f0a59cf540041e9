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
// be dragged anywhere. Closing calls `closeRequested` and nothing else.
class WizardWindow : public MovableWidget<QDialog>
{
public:
    WizardWindow();

    // The window owns the page.
    void Add(Page* page);
    void Show(Page* page);
    Page* Current() const;

    void SetLabels(const ButtonBar::Labels& labels);
    // Sets all texts and pictures.
    void Retranslate(const QString& locale);

    ButtonBar* Buttons() const { return buttons; }

    // Called by the cancel button, the close button, Esc or the system.
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
