#include "ui/form/KeyPress.h"
#include "core/PageRangeCheck.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

namespace tavrelion::tests {
namespace {

/// A box that takes page ranges.
class KeyPress : public testing::Test {
protected:
    KeyPress() {
        onKeyPress(box, [this](int& keyCode) {
            offered << keyCode;
            filterPageRangeKey(keyCode, box.text());
        });
        box.show();
    }

    QLineEdit box;
    QList<int> offered;
};

TEST_F(KeyPress, LetsThroughWhatTheHandlerLeaves) {
    QTest::keyClicks(&box, ",1,,a-3 -,7");
    EXPECT_EQ(box.text(), "1,3-7");
}

TEST_F(KeyPress, JudgesASeparatorInTheMiddleByTheEndOfTheText) {
    QTest::keyClicks(&box, "12");
    box.setCursorPosition(1);
    QTest::keyClicks(&box, ",");
    EXPECT_EQ(box.text(), "1,2");
    QTest::keyClicks(&box, ",");
    EXPECT_EQ(box.text(), "1,,2") << "the text does not end in a separator";
}

TEST_F(KeyPress, OffersBackspaceButNoKeyThatTypesNothing) {
    QTest::keyClicks(&box, "12");
    offered.clear();
    QTest::keyClick(&box, Qt::Key_Backspace);
    QTest::keyClick(&box, Qt::Key_Left);
    QTest::keyClick(&box, Qt::Key_Delete);
    QTest::keyClick(&box, Qt::Key_Tab);
    EXPECT_EQ(offered, QList<int>{8});
    EXPECT_EQ(box.text(), QString());
}

TEST_F(KeyPress, LetsPastedTextThrough) {
    QApplication::clipboard()->setText("pages 3 and 4");
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.text(), "pages 3 and 4");
    EXPECT_TRUE(offered.isEmpty());
}

} // namespace
} // namespace tavrelion::tests
