#include "wizard/PictureFrame.h"

#include "wizard/Texts.h"

#include <QHBoxLayout>
#include <QToolButton>

namespace Vorlan::FrontEnd
{

PictureFrame::PictureFrame(const QStringList& layers, const QString& locale, QWidget* parent)
    : MultiLayerBackgroundFrame(layers, parent),
      minimize(MakeButton("minimizeWindow")),
      close(MakeButton("closeWindow"))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 8, 8, 0);
    row->setSpacing(4);
    row->addStretch();
    row->addWidget(minimize, 0, Qt::AlignTop);
    row->addWidget(close, 0, Qt::AlignTop);
    Retranslate(locale);
}

QToolButton* PictureFrame::MakeButton(const char* name)
{
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setFocusPolicy(Qt::TabFocus);
    button->setCursor(Qt::ArrowCursor);
    return button;
}

void PictureFrame::Retranslate(const QString& locale)
{
    SetGraphicsLocale(locale);
    minimize->setAccessibleName(WizardText("Minimize"));
    close->setAccessibleName(WizardText("Close"));
    minimize->setToolTip(minimize->accessibleName());
    close->setToolTip(close->accessibleName());
    update();
}

} // namespace Vorlan::FrontEnd
