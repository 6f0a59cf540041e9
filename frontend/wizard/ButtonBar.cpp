#include "wizard/ButtonBar.h"

#include "widgets/ButtonWithIcon.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QVariant>

namespace Vorlan::FrontEnd
{
namespace
{

constexpr QSize smallestForward{140, 40};
constexpr int forwardPadding = 44; // the style sheet's space beside label and icon

QPushButton* MakeButton(const char* name, QWidget* parent)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

void SetLabel(QPushButton* button, const QString& text)
{
    button->setText(text);
    button->setVisible(!text.isEmpty());
}

} // namespace

ButtonBar::ButtonBar(QWidget* parent)
    : QFrame(parent),
      back(MakeButton("back", this)),
      cancel(MakeButton("cancel", this)),
      forward(new ButtonWithIcon(this))
{
    setObjectName("buttonBar");
    forward->setObjectName("forward");
    forward->setDefault(true);
    auto* label = forward->findChild<QLabel*>("buttonLabel");
    label->setBuddy(forward); // the label's mnemonic clicks the button
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(40, 12, 40, 20);
    row->setSpacing(12);
    row->addWidget(back);
    row->addStretch(1);
    row->addWidget(cancel);
    row->addWidget(forward);
}

void ButtonBar::SetLabels(const Labels& labels)
{
    SetLabel(back, labels.back);
    SetLabel(cancel, labels.cancel);
    SetForwardLabel(labels.forward);
    SetShield(labels.needsRights);
    setHidden(labels.back.isEmpty() && labels.cancel.isEmpty() && labels.forward.isEmpty());
}

// The style sheet has the picture.
void ButtonBar::SetShield(bool isShown)
{
    auto* icon = forward->findChild<QWidget*>("buttonIcon");
    icon->setProperty("needsRights", isShown);
    icon->style()->unpolish(icon);
    icon->style()->polish(icon);
}

// The size hint of a push button does not include its layout.
void ButtonBar::SetForwardLabel(const QString& text)
{
    forward->setText(text);
    forward->setAccessibleName(QString(text).remove('&'));
    forward->setVisible(!text.isEmpty());
    forward->ensurePolished();
    const int wanted = forward->layout()->sizeHint().width() + forwardPadding;
    forward->setMinimumSize(smallestForward.expandedTo({wanted, 0}));
}

} // namespace Vorlan::FrontEnd
