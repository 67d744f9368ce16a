#include "ui/form/Style.h"

#include <QApplication>
#include <QPalette>

#include <gmock/gmock.h>

namespace tavrelion::tests {
namespace {

class Look : public testing::Test {
protected:
    ~Look() override {
        qApp->setPalette(m_before);
        qApp->setStyleSheet({});
    }
    static QColor pageOn(const QColor& desktop) {
        QPalette palette;
        palette.setColor(QPalette::Window, desktop);
        qApp->setPalette(palette);
        applyStyle(*qApp);
        return qApp->palette().color(QPalette::Window);
    }

private:
    QPalette m_before = qApp->palette();
};

TEST_F(Look, ALightDesktopGetsTheProductsPage) {
    EXPECT_EQ(pageOn(QColor(0xEF, 0xEF, 0xEF)), QColor(0xF7, 0xF8, 0xFA));
}

TEST_F(Look, ADarkDesktopKeepsItsOwnColours) {
    EXPECT_EQ(pageOn(QColor(0x20, 0x20, 0x20)), QColor(0x20, 0x20, 0x20));
}

TEST_F(Look, ADarkDesktopHasCheckBoxesWithAnOutlineThatShows) {
    qApp->setPalette(QPalette(QColor(0x3A, 0x3A, 0x3A), QColor(0x20, 0x20, 0x20)));
    applyStyle(*qApp);
    EXPECT_GT(QApplication::palette("QCheckBox").color(QPalette::Window).lightness(), 128);
    EXPECT_LT(QApplication::palette().color(QPalette::Window).lightness(), 128);
}

} // namespace
} // namespace tavrelion::tests
