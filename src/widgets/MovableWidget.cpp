#include "widgets/MovableWidget.h"

#include <QMouseEvent>

namespace Vorlan
{

template <class Base>
MovableWidget<Base>::MovableWidget(QWidget* parent) : Base(parent)
{
}

template <class Base>
void MovableWidget<Base>::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        lastPosition = event->globalPos();
    Base::mousePressEvent(event);
}

template <class Base>
void MovableWidget<Base>::mouseReleaseEvent(QMouseEvent* event)
{
    lastPosition = QPoint();
    Base::mouseReleaseEvent(event);
}

template <class Base>
void MovableWidget<Base>::mouseMoveEvent(QMouseEvent* event)
{
    if (!lastPosition.isNull())
    {
        this->move(this->pos() + event->globalPos() - lastPosition);
        lastPosition = event->globalPos();
    }
    Base::mouseMoveEvent(event);
}

template class MovableWidget<QDialog>;

} // namespace Vorlan
