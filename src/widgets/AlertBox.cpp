#include "widgets/AlertBox.h"

#include "widgets/Picture.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QFrame>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace Vorlan
{
namespace
{

constexpr QSize smallest{352, 149};
constexpr QSize largest{425, 250};
constexpr int iconTop = 20;

QSpacerItem* Space(QSize size, QSizePolicy::Policy horizontal, QSizePolicy::Policy vertical)
{
    return new QSpacerItem(size.width(), size.height(), horizontal, vertical);
}

QString FormText(const char* text)
{
    return QCoreApplication::translate("AlertBox", text);
}

} // namespace

// The parts of the box; the dialog owns them.
struct AlertBox::Form
{
    explicit Form(QDialog& dialog);

    QPushButton* closeDialog;
    QLabel* message;
    QDialogButtonBox* buttonBox;

private:
    static QFrame* MakeFrame(QDialog& dialog);
    QLayout* MakeTitleRow(QFrame* frame);
    QLayout* MakeBody(QFrame* frame);
};

AlertBox::Form::Form(QDialog& dialog)
{
    if (dialog.objectName().isEmpty())
        dialog.setObjectName("AlertBox");
    dialog.resize(smallest);
    dialog.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    dialog.setMinimumSize(smallest);
    dialog.setMaximumSize(largest);
    dialog.setSizeGripEnabled(false);
    dialog.setModal(true);

    QFrame* frame = MakeFrame(dialog);
    auto* frameLayout = new QVBoxLayout(frame);
    frameLayout->setObjectName("verticalLayout_2");
    frameLayout->setSpacing(0);
    frameLayout->setContentsMargins(0, 0, 0, 0);
    frameLayout->addLayout(MakeTitleRow(frame));
    frameLayout->addLayout(MakeBody(frame));

    dialog.setWindowTitle(FormText("Dialog"));
    message->setText(FormText("Message"));
    QObject::connect(buttonBox, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttonBox, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    QMetaObject::connectSlotsByName(&dialog);
}

QFrame* AlertBox::Form::MakeFrame(QDialog& dialog)
{
    auto* layout = new QVBoxLayout(&dialog);
    layout->setObjectName("verticalLayout_3");
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* frame = new QFrame(&dialog);
    frame->setObjectName("frame");
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setFrameShadow(QFrame::Raised);
    layout->addWidget(frame);
    return frame;
}

QLayout* AlertBox::Form::MakeTitleRow(QFrame* frame)
{
    auto* row = new QHBoxLayout;
    row->setObjectName("horizontalLayout_3");
    row->setSpacing(0);
    row->setContentsMargins(-1, -1, -1, 0);
    row->addItem(Space({40, 20}, QSizePolicy::Expanding, QSizePolicy::Minimum));
    closeDialog = new QPushButton(frame);
    closeDialog->setObjectName("closeDialog");
    closeDialog->setAccessibleName(AlertBox::tr("Close"));
    row->addWidget(closeDialog);
    return row;
}

// The first space is where the icon is painted.
QLayout* AlertBox::Form::MakeBody(QFrame* frame)
{
    auto* body = new QVBoxLayout;
    body->setObjectName("verticalLayout");
    body->setSpacing(22);
    body->setContentsMargins(20, -1, 20, 20);
    body->addItem(Space({17, 39}, QSizePolicy::Minimum, QSizePolicy::MinimumExpanding));
    message = new QLabel(frame);
    message->setObjectName("message");
    message->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    message->setWordWrap(true);
    body->addWidget(message);
    buttonBox = new QDialogButtonBox(frame);
    buttonBox->setObjectName("buttonBox");
    buttonBox->setOrientation(Qt::Horizontal);
    buttonBox->setStandardButtons(QDialogButtonBox::NoButton);
    buttonBox->setCenterButtons(true);
    body->addWidget(buttonBox);
    return body;
}

// The icon by value is part of the exported interface.
AlertBox::AlertBox(const QString& text, QWidget* parent,
    QFlags<QDialogButtonBox::StandardButton> buttons,
    QPixmap pixmap) // NOLINT(performance-unnecessary-value-param)
    : MovableWidget<QDialog>(parent), icon(pixmap)
{
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint);
    form = std::make_unique<Form>(*this);
    setWindowTitle(QCoreApplication::applicationName());
    form->buttonBox->setStandardButtons(buttons);
    form->message->setText(text);
    if (QPushButton* retry = form->buttonBox->button(QDialogButtonBox::Retry))
        retry->setText(tr("Retry"));
    NameButtons();
    ChooseDefault();
    connect(form->closeDialog, &QPushButton::clicked, this, &QDialog::close);
    adjustSize(); // stops short of the contents on a small screen
    resize(width(), qMax(height(), layout()->totalHeightForWidth(width())));
}

AlertBox::~AlertBox() = default;

// The style sheet was applied before the button had its name.
void AlertBox::NameButtons()
{
    const std::pair<QDialogButtonBox::StandardButton, const char*> names[] = {
        {QDialogButtonBox::Yes, "confirmationButton"},
        {QDialogButtonBox::No, "rejectButton"},
        {QDialogButtonBox::Ok, "okButton"},
        {QDialogButtonBox::Retry, "retryButton"},
        {QDialogButtonBox::Cancel, "cancelButton"},
    };
    for (const auto& [kind, name] : names)
    {
        QPushButton* button = form->buttonBox->button(kind);
        if (button == nullptr)
            continue;
        button->setObjectName(name);
        button->style()->unpolish(button);
        button->style()->polish(button);
    }
}

// Enter answers a question with No, and presses the first button of any other box; without this it
// would close the box.
void AlertBox::ChooseDefault()
{
    QPushButton* chosen = form->buttonBox->button(QDialogButtonBox::No);
    for (const auto kind : {QDialogButtonBox::Ok, QDialogButtonBox::Retry})
        chosen = chosen == nullptr ? form->buttonBox->button(kind) : chosen;
    if (chosen == nullptr)
        return;
    chosen->setDefault(true);
    chosen->setFocus();
}

int AlertBox::exec()
{
    int result = 0;
    const auto connection = connect(form->buttonBox, &QDialogButtonBox::clicked, this,
        [&](QAbstractButton* button) { result = form->buttonBox->standardButton(button); });
    QDialog::exec();
    disconnect(connection);
    return result;
}

void AlertBox::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    const int iconWidth = PictureSize(icon).width();
    painter.drawPixmap(width() / 2 - iconWidth / 2, iconTop, icon);
    painter.end();
    MovableWidget<QDialog>::paintEvent(event);
}

int AlertBox::error(QWidget* parent, const QString& text, bool retry)
{
    const auto buttons = retry ? QDialogButtonBox::Retry | QDialogButtonBox::Cancel
                               : QFlags<QDialogButtonBox::StandardButton>(QDialogButtonBox::Ok);
    return AlertBox(text, parent, buttons, LoadPicture(":/Icons/alerts/error.png")).exec();
}

int AlertBox::info(QWidget* parent, const QString& text)
{
    return AlertBox(text, parent, QDialogButtonBox::Ok, LoadPicture(":/Icons/alerts/info.png"))
        .exec();
}

int AlertBox::question(QWidget* parent, const QString& text)
{
    return AlertBox(text, parent, QDialogButtonBox::Yes | QDialogButtonBox::No,
        LoadPicture(":/Icons/alerts/question.png"))
        .exec();
}

} // namespace Vorlan
