#include "ui/form/OptionButton.h"

#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace tavrelion::tests {
namespace {

class OptionButtons : public testing::Test {
protected:
    OptionButtons() {
        auto* column = new QVBoxLayout(&window);
        column->addWidget(first);
        column->addWidget(second);
        QObject::connect(first, &OptionButton::turnedTrue, [this] { ++clicks; });
        window.show();
    }
    QWidget window;
    OptionButton* first = new OptionButton;
    OptionButton* second = new OptionButton;
    int clicks = 0;
};

TEST_F(OptionButtons, FireWhenTurnedOnByCodeAndByTheUser) {
    first->setValue(true);
    EXPECT_EQ(clicks, 1);
    second->setValue(true);
    EXPECT_FALSE(first->value()) << "one of a group";
    QTest::mouseClick(first, Qt::LeftButton, {}, QPoint(8, first->height() / 2));
    EXPECT_EQ(clicks, 2);
}

TEST_F(OptionButtons, DoNotFireWhenTheyAreOnAlready) {
    first->setValue(true);
    first->setValue(true);
    first->click();
    EXPECT_EQ(clicks, 1);
}

TEST_F(OptionButtons, CanBeTakenBackSoThatNoneIsChosen) {
    first->setValue(true);
    first->setValue(false);
    EXPECT_FALSE(first->value());
    EXPECT_FALSE(second->value());
    first->setValue(true);
    second->setValue(true);
    EXPECT_FALSE(first->value()) << "the group holds again";
    EXPECT_EQ(clicks, 2);
}

TEST_F(OptionButtons, TabStopsAtTheChosenOne) {
    second->setValue(true);
    EXPECT_FALSE(first->focusPolicy() & Qt::TabFocus);
    EXPECT_TRUE(second->focusPolicy() & Qt::TabFocus);
    second->setValue(false);
    EXPECT_TRUE(first->focusPolicy() & Qt::TabFocus);
}

} // namespace
} // namespace tavrelion::tests
