#include "support/WizardDriver.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QTimer>

#include <algorithm>

using namespace Vorlan::FrontEnd;

namespace
{

constexpr int timeLimitMs = 60000;

} // namespace

WizardDriver::WizardDriver(Wizard& driven) : wizard(driven)
{
    wizard.Window().show();
    QApplication::setActiveWindow(&wizard.Window());
}

std::string WizardDriver::PageName() const
{
    return wizard.Window().Current()->objectName().toStdString();
}

void WizardDriver::Press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QWidget* focus = wizard.Window().focusWidget();
    QTest::keyClick(focus != nullptr ? focus : &wizard.Window(), key, modifiers);
    WaitForExamination();
}

void WizardDriver::Type(const QString& text)
{
    for (const QChar letter : text) // of any alphabet
        QTest::sendKeyEvent(QTest::Click, wizard.Window().focusWidget(), Qt::Key_unknown,
            QString(letter), Qt::NoModifier);
    WaitForExamination();
}

void WizardDriver::WaitForExamination() const
{
    const auto isExamining = [this]
    {
        const QList<QWidget*> widgets = wizard.Window().findChildren<QWidget*>();
        return std::any_of(widgets.begin(), widgets.end(),
            [](const QWidget* widget) { return widget->property("isExamining").toBool(); });
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isExamining(); }, timeLimitMs));
}

void WizardDriver::Click(const char* name)
{
    auto* widget = Find<QWidget>(name);
    ASSERT_NE(widget, nullptr) << name;
    ASSERT_TRUE(widget->isVisible()) << name;
    QTest::mouseClick(widget, Qt::LeftButton);
    WaitForExamination();
}

bool WizardDriver::TabTo(const char* name)
{
    for (int presses = 0; presses < 30; ++presses)
    {
        const QWidget* focus = wizard.Window().focusWidget();
        if (focus != nullptr && focus->objectName() == name)
            return true;
        Press(Qt::Key_Tab);
    }
    return false;
}

QString WizardDriver::WithBox(
    const std::function<void()>& open, const std::function<void(QWidget&)>& work)
{
    QString text;
    QTimer::singleShot(0, qApp,
        [&]
        {
            QWidget* box = QApplication::activeModalWidget();
            ASSERT_NE(box, nullptr) << "no box";
            text = box->findChild<QLabel*>("message")->text();
            if (work)
                work(*box);
            if (box->isVisible())
                QTest::keyClick(box, Qt::Key_Escape);
        });
    open();
    return text;
}
