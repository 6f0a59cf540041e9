#include "widgets/ButtonWithIcon.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>

namespace Vorlan
{

// The parts of the button, which owns them.
struct ButtonWithIcon::Form
{
    explicit Form(QPushButton& button);

    QLabel* buttonLabel;
};

ButtonWithIcon::Form::Form(QPushButton& button) : buttonLabel(new QLabel(&button))
{
    if (button.objectName().isEmpty())
        button.setObjectName("ButtonWithIcon");
    button.resize(205, 50);
    button.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    button.setWindowTitle(QCoreApplication::translate("ButtonWithIcon", "Form"));

    buttonLabel->setObjectName("buttonLabel");
    buttonLabel->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);
    buttonLabel->setMinimumSize(50, 0);
    auto* buttonIcon = new QWidget(&button);
    buttonIcon->setObjectName("buttonIcon");
    buttonIcon->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    buttonIcon->setMinimumSize(19, 16);

    auto* layout = new QHBoxLayout(&button);
    layout->setObjectName("horizontalLayout");
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addItem(new QSpacerItem(1, 20, QSizePolicy::Expanding, QSizePolicy::Minimum));
    layout->addWidget(buttonLabel);
    layout->addWidget(buttonIcon);
    layout->addItem(new QSpacerItem(1, 20, QSizePolicy::Expanding, QSizePolicy::Minimum));
}

ButtonWithIcon::ButtonWithIcon(QWidget* parent)
    : QPushButton(parent), form(std::make_unique<Form>(*this))
{
}

ButtonWithIcon::~ButtonWithIcon() = default;

void ButtonWithIcon::setText(const QString& text)
{
    form->buttonLabel->setText(text);
}

} // namespace Vorlan
