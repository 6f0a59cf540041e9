#pragma once

#include <QString>

class QWidget;

namespace Vorlan
{

// The modal message boxes of the front ends.
class AlertBox
{
public:
    // Returns the QDialogButtonBox::StandardButton that closed the box.
    static int error(QWidget* parent, const QString& text, bool retry);
};

} // namespace Vorlan
