#pragma once

#include "installer/Export.h"

#include <QDialog>
#include <QPoint>

namespace Vorlan
{

// A window without a title bar that is dragged by its body with the left mouse button.
template <class Base>
class MovableWidget : public Base
{
public:
    explicit MovableWidget(QWidget* parent);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QPoint lastPosition; // of the mouse on the screen; (0, 0) while nothing is dragged
};

extern template class INSTALLER_EXPORT MovableWidget<QDialog>;

} // namespace Vorlan
