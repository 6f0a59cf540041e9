#pragma once

#include "base/Export.h"

#include <QDialog>
#include <QPoint>

namespace Vorlan
{

/// A window without a title bar that is dragged by its body with the left mouse button. The library
/// holds the one for QDialog and no other. To be used on the application's thread.
template <class Base>
class MovableWidget : public Base
{
public:
    /// Makes the window; being frameless is for the class that derives from it.
    explicit MovableWidget(QWidget* parent);

protected:
    void mousePressEvent(QMouseEvent* event) override;   ///< begins to drag
    void mouseReleaseEvent(QMouseEvent* event) override; ///< ends it
    void mouseMoveEvent(QMouseEvent* event) override;    ///< moves the window with the mouse

private:
    QPoint lastPosition; // of the mouse on the screen; (0, 0) while nothing is dragged
};

extern template class INSTALLER_EXPORT MovableWidget<QDialog>;

} // namespace Vorlan
