#pragma once

#include "widgets/MultiLayerBackgroundFrame.h"

class QToolButton;

namespace Vorlan::FrontEnd
{

// The picture at the top of a window, with the minimize and close buttons of the frameless window.
class PictureFrame : public MultiLayerBackgroundFrame
{
public:
    PictureFrame(const QStringList& layers, const QString& locale, QWidget* parent);

    void Retranslate(const QString& locale);

    QToolButton* MinimizeButton() const { return minimize; }
    QToolButton* CloseButton() const { return close; }

private:
    QToolButton* MakeButton(const char* name);

    QToolButton* minimize;
    QToolButton* close;
};

} // namespace Vorlan::FrontEnd
