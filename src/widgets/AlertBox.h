#pragma once

#include "widgets/MovableWidget.h"

#include <QDialogButtonBox>
#include <QPixmap>
#include <QString>

#include <memory>

namespace Vorlan
{

/// The modal message boxes of the front ends: an icon, a text, standard buttons. Frameless, 352 to
/// 425 pixels wide; as high as the text needs. Enter answers a question with No and presses the
/// first button of any other box. The style sheet of the program finds the parts by their object
/// names: "closeDialog", "message", "buttonBox" and in it "okButton", "retryButton",
/// "cancelButton", "confirmationButton" and "rejectButton". To be used on the application's thread.
class INSTALLER_EXPORT AlertBox : public MovableWidget<QDialog>
{
    Q_OBJECT

public:
    /// Makes a box without showing it. The pixmap is drawn above the text and may be null.
    AlertBox(const QString& text, QWidget* parent, QFlags<QDialogButtonBox::StandardButton> buttons,
        QPixmap pixmap);
    ~AlertBox() override;

    /// Shows an error with OK, or with Retry and Cancel, and returns what exec() returns. The icon
    /// is the resource ":/Icons/alerts/error.png"; a missing one is left out.
    static int error(QWidget* parent, const QString& text, bool retry);
    /// The same with OK and ":/Icons/alerts/info.png".
    static int info(QWidget* parent, const QString& text);
    /// The same with Yes and No and ":/Icons/alerts/question.png".
    static int question(QWidget* parent, const QString& text);

public slots:
    /// Shows the box until it is closed. The QDialogButtonBox::StandardButton that was clicked, or
    /// 0 when the box was closed in another way.
    int exec() override;

protected:
    /// Draws the icon on white.
    void paintEvent(QPaintEvent* event) override;

private:
    struct Form;

    void NameButtons();
    void ChooseDefault();

    std::unique_ptr<Form> form;
    QPixmap icon;
};

} // namespace Vorlan
