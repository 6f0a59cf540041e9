#include "widgets/AlertBox.h"
#include "support/Machine.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QPainter>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace Vorlan;

namespace
{

QPixmap Filled(QSize size, const QColor& color)
{
    QPixmap picture(size);
    picture.fill(color);
    return picture;
}

// Runs a box and works on it while it is shown; what the box returned.
int RunBox(const std::function<int()>& run, const std::function<void(QDialog&)>& work)
{
    QTimer::singleShot(0, qApp,
        [&]
        {
            auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            work(*box);
            if (box->isVisible())
            {
                ADD_FAILURE() << "the box stays open";
                box->reject();
            }
        });
    return run();
}

void Click(const QWidget& box, const char* name)
{
    auto* button = box.findChild<QPushButton*>(name);
    ASSERT_NE(button, nullptr) << name;
    QTest::mouseClick(button, Qt::LeftButton);
}

std::string ButtonNames(const QWidget& box)
{
    QStringList names;
    for (const auto* button : box.findChild<QDialogButtonBox*>("buttonBox")->buttons())
        names << button->objectName();
    names.sort();
    return names.join(' ').toStdString();
}

QMargins MarginsOf(const QWidget& box, const char* layout)
{
    return box.findChild<QLayout*>(layout)->contentsMargins();
}

struct Variant
{
    const char* name;
    int (*run)();
    const char* buttons;
    const char* pressed; // object name, or null for the key
    Qt::Key key;
    int result;
};

void PrintTo(const Variant& variant, std::ostream* out)
{
    *out << variant.name;
}

class AlertBoxVariants : public testing::TestWithParam<Variant>
{
};

TEST_P(AlertBoxVariants, ReturnsWhatWasClicked)
{
    const auto work = [](QDialog& box)
    {
        EXPECT_EQ(ButtonNames(box), GetParam().buttons);
        EXPECT_EQ(box.findChild<QLabel*>("message")->text(), "Something happened");
        if (GetParam().pressed != nullptr)
            Click(box, GetParam().pressed);
        else
            QTest::keyClick(&box, GetParam().key);
    };
    EXPECT_EQ(RunBox(GetParam().run, work), GetParam().result);
}

int Error()
{
    return AlertBox::error(nullptr, "Something happened", false);
}
int ErrorWithRetry()
{
    return AlertBox::error(nullptr, "Something happened", true);
}
int Info()
{
    return AlertBox::info(nullptr, "Something happened");
}
int Question()
{
    return AlertBox::question(nullptr, "Something happened");
}

const Variant variants[] = {
    {"Error", Error, "okButton", "okButton", {}, QDialogButtonBox::Ok},
    {"ErrorByKey", Error, "okButton", nullptr, Qt::Key_Return, QDialogButtonBox::Ok},
    {"Retry", ErrorWithRetry, "cancelButton retryButton", "retryButton", {},
        QDialogButtonBox::Retry},
    {"Cancel", ErrorWithRetry, "cancelButton retryButton", "cancelButton", {},
        QDialogButtonBox::Cancel},
    {"Info", Info, "okButton", "okButton", {}, QDialogButtonBox::Ok},
    {"Yes", Question, "confirmationButton rejectButton", "confirmationButton", {},
        QDialogButtonBox::Yes},
    {"No", Question, "confirmationButton rejectButton", "rejectButton", {}, QDialogButtonBox::No},
    {"Closed", Question, "confirmationButton rejectButton", "closeDialog", {}, 0},
    {"NoByKey", Question, "confirmationButton rejectButton", nullptr, Qt::Key_Return,
        QDialogButtonBox::No},
    {"ClosedByKey", Question, "confirmationButton rejectButton", nullptr, Qt::Key_Escape, 0},
};
INSTANTIATE_TEST_SUITE_P(Boxes, AlertBoxVariants, testing::ValuesIn(variants),
    [](const auto& row) { return row.param.name; });

TEST(AlertBoxTest, IsBuiltAsItsFormSays)
{
    QApplication::setApplicationName("Some program");
    const AlertBox box("text", nullptr, QDialogButtonBox::Retry, QPixmap());
    EXPECT_EQ(box.objectName(), "AlertBox");
    EXPECT_EQ(box.windowTitle(), "Some program");
    EXPECT_TRUE(box.windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_TRUE(box.isModal());
    EXPECT_FALSE(box.isSizeGripEnabled());
    EXPECT_EQ(box.minimumSize(), QSize(352, 149));
    EXPECT_EQ(box.maximumSize(), QSize(425, 250));
    EXPECT_EQ(MarginsOf(box, "verticalLayout_3"), QMargins());
    EXPECT_EQ(MarginsOf(box, "verticalLayout_2"), QMargins());
    EXPECT_EQ(MarginsOf(box, "horizontalLayout_3").bottom(), 0);
    EXPECT_EQ(MarginsOf(box, "verticalLayout").left(), 20);
    EXPECT_EQ(MarginsOf(box, "verticalLayout").bottom(), 20);
    EXPECT_EQ(box.findChild<QLayout*>("verticalLayout")->spacing(), 22);
    const auto* frame = box.findChild<QFrame*>("frame");
    EXPECT_EQ(frame->frameStyle(), QFrame::StyledPanel | QFrame::Raised);
    const auto* message = frame->findChild<QLabel*>("message");
    EXPECT_EQ(message->alignment(), Qt::AlignTop | Qt::AlignHCenter);
    EXPECT_TRUE(message->wordWrap());
    EXPECT_TRUE(frame->findChild<QDialogButtonBox*>("buttonBox")->centerButtons());
    EXPECT_EQ(frame->findChild<QPushButton*>("closeDialog")->text(), "");
    EXPECT_EQ(frame->findChild<QPushButton*>("retryButton")->text(), "Retry");
}

TEST(AlertBoxTest, ALongTextWrapsInsideTheLargestSize)
{
    const QString text = QString("many words ").repeated(60);
    AlertBox box(text, nullptr, QDialogButtonBox::Ok, QPixmap());
    box.show();
    EXPECT_LE(box.width(), 425);
    EXPECT_LE(box.height(), 250);
    EXPECT_GT(box.height(), 149);
}

TEST(AlertBoxTest, RulesOfTheStyleSheetFindTheButtonsByName)
{
    qApp->setStyleSheet("QPushButton#okButton { min-width: 171px; }");
    const AlertBox box("text", nullptr, QDialogButtonBox::Ok, QPixmap());
    EXPECT_GE(box.findChild<QPushButton*>("okButton")->sizeHint().width(), 171);
    qApp->setStyleSheet(QString());
}

TEST(AlertBoxTest, PaintsTheIconOnWhite)
{
    AlertBox box("", nullptr, QDialogButtonBox::Ok, Filled({31, 15}, Qt::red));
    box.findChild<QFrame*>("frame")->hide();
    const QImage image = box.grab().toImage();
    QImage expected(image.size(), image.format());
    expected.fill(Qt::white);
    QPainter(&expected).fillRect(box.width() / 2 - 31 / 2, 20, 31, 15, Qt::red);
    EXPECT_TRUE(image == expected);
}

TEST(MovableWidgetTest, IsDraggedByTheLeftButtonOnly)
{
    MovableWidget<QDialog> window(nullptr);
    window.setWindowFlag(Qt::FramelessWindowHint);
    window.setGeometry(100, 100, 200, 200);
    window.show();
    const auto send = [&](QEvent::Type type, Qt::MouseButton button, QPoint global)
    {
        QMouseEvent event(type, window.mapFromGlobal(global), global, button,
            Qt::MouseButtons(button), Qt::NoModifier);
        QApplication::sendEvent(&window, &event);
    };
    send(QEvent::MouseMove, Qt::NoButton, {150, 150});
    send(QEvent::MouseButtonPress, Qt::RightButton, {150, 150});
    send(QEvent::MouseMove, Qt::RightButton, {160, 160});
    EXPECT_EQ(window.pos(), QPoint(100, 100));
    send(QEvent::MouseButtonPress, Qt::LeftButton, {150, 150});
    send(QEvent::MouseMove, Qt::LeftButton, {157, 145});
    EXPECT_EQ(window.pos(), QPoint(107, 95));
    send(QEvent::MouseMove, Qt::LeftButton, {150, 150});
    EXPECT_EQ(window.pos(), QPoint(100, 100));
    send(QEvent::MouseButtonRelease, Qt::RightButton, {150, 150});
    send(QEvent::MouseMove, Qt::LeftButton, {190, 190});
    EXPECT_EQ(window.pos(), QPoint(100, 100)) << "any release ends the drag";
}

} // namespace
