#include "wizard/ElidedLabel.h"

#include <QPainter>
#include <QStyle>

namespace Vorlan::FrontEnd
{

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, width());
    style()->drawItemText(&painter, rect(), static_cast<int>(Qt::AlignVCenter | Qt::AlignLeft),
        palette(), isEnabled(), shown, foregroundRole());
}

} // namespace Vorlan::FrontEnd
