#include "widgets/ButtonWithIcon.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLayout>
#include <QTest>

using namespace Vorlan;

namespace
{

TEST(ButtonWithIconTest, IsBuiltAsItsFormSays)
{
    ButtonWithIcon button(nullptr);
    EXPECT_EQ(button.objectName(), "ButtonWithIcon");
    EXPECT_EQ(button.windowTitle(), "Form");
    EXPECT_EQ(button.size(), QSize(205, 50));
    EXPECT_EQ(button.sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
    const QLayout* layout = button.layout();
    EXPECT_EQ(layout->objectName(), "horizontalLayout");
    EXPECT_EQ(layout->spacing(), 0);
    EXPECT_EQ(layout->contentsMargins(), QMargins());
    ASSERT_EQ(layout->count(), 4);
    EXPECT_EQ(layout->itemAt(0)->sizeHint(), QSize(1, 20));
    EXPECT_EQ(layout->itemAt(1)->widget()->objectName(), "buttonLabel");
    EXPECT_EQ(layout->itemAt(1)->widget()->minimumSize(), QSize(50, 0));
    EXPECT_EQ(layout->itemAt(2)->widget()->objectName(), "buttonIcon");
    EXPECT_EQ(layout->itemAt(2)->widget()->minimumSize(), QSize(19, 16));
    EXPECT_EQ(layout->itemAt(3)->expandingDirections(), Qt::Horizontal);
}

TEST(ButtonWithIconTest, TheTextIsThatOfTheLabelAndAClickOnItPressesTheButton)
{
    ButtonWithIcon button(nullptr);
    button.setText("Next");
    auto* label = button.findChild<QLabel*>("buttonLabel");
    EXPECT_EQ(label->text(), "Next");
    EXPECT_EQ(static_cast<QPushButton&>(button).text(), "");
    int clicks = 0;
    QObject::connect(&button, &QPushButton::clicked, [&] { ++clicks; });
    button.show();
    QTest::mouseClick(
        button.windowHandle(), Qt::LeftButton, {}, label->mapTo(&button, label->rect().center()));
    QTest::keyClick(&button, Qt::Key_Space);
    EXPECT_EQ(clicks, 2);
}

} // namespace
