#pragma once

#include <QFrame>

class QPushButton;

namespace Vorlan
{
class ButtonWithIcon;
}

namespace Vorlan::FrontEnd
{

// The row of buttons at the bottom of a window: back, cancel, and forward, the default button. A
// button without a text is hidden. "&" marks the mnemonic of a button.
class ButtonBar : public QFrame
{
public:
    explicit ButtonBar(QWidget* parent);

    struct Labels
    {
        QString back;
        QString cancel;
        QString forward;
        bool needsRights = false; // forward has the shield of administrator rights
    };
    void SetLabels(const Labels& labels);

    QPushButton* Back() const { return back; }
    QPushButton* Cancel() const { return cancel; }
    ButtonWithIcon* Forward() const { return forward; }

private:
    void SetForwardLabel(const QString& text);
    void SetShield(bool isShown);

    QPushButton* back;
    QPushButton* cancel;
    ButtonWithIcon* forward;
};

} // namespace Vorlan::FrontEnd
