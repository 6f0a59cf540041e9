#pragma once

#include "widgets/MovableWidget.h"

#include <QDialogButtonBox>
#include <QPixmap>
#include <QString>

#include <memory>

namespace Vorlan
{

// The modal message boxes of the front ends: an icon, a text, standard buttons. The style sheet of
// the program finds the parts by their object names. To be used on the application's thread.
class INSTALLER_EXPORT AlertBox : public MovableWidget<QDialog>
{
    Q_OBJECT

public:
    AlertBox(const QString& text, QWidget* parent, QFlags<QDialogButtonBox::StandardButton> buttons,
        QPixmap pixmap);
    ~AlertBox() override;

    // Each shows a box and returns what exec() returns: with OK, or Retry and Cancel; with OK; with
    // Yes and No.
    static int error(QWidget* parent, const QString& text, bool retry);
    static int info(QWidget* parent, const QString& text);
    static int question(QWidget* parent, const QString& text);

public slots:
    // Shows the box until it is closed. The QDialogButtonBox::StandardButton that was clicked, or 0
    // when the box was closed in another way.
    int exec() override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Form;

    void NameButtons();
    void ChooseDefault();

    std::unique_ptr<Form> form;
    QPixmap icon;
};

} // namespace Vorlan
