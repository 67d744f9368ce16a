#include "PageFixture.h"

#include <QLineEdit>
#include <QTest>

namespace tavrelion::tests {
namespace {

/// A walk through the pages with the keyboard alone: Enter goes on, arrows choose, Escape leaves.
class KeyboardWalk : public PageFixture {
protected:
    void showActive(const QString& window) {
        show(window);
        waitFor(window);
    }
    void waitFor(const QString& window) {
        form(window)->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form(window).get())) << window.toStdString();
    }
    void press(const QString& window, Qt::Key key) {
        QWidget* focused = form(window)->focusWidget();
        QTest::keyClick(focused ? focused : form(window).get(), key);
    }
    void tabTo(const QString& window, const QString& control) {
        for (int i = 0; i < 60; ++i) {
            if (form(window)->focusWidget() && form(window)->focusWidget()->objectName() == control)
                return;
            press(window, Qt::Key_Tab);
        }
        FAIL() << "Tab does not reach " << control.toStdString();
    }
};

TEST_F(KeyboardWalk, ThroughTheConversionWizard) {
    showActive("frmLayout");
    tabTo("frmLayout", "lblFlowingText");
    press("frmLayout", Qt::Key_Down); // table text
    press("frmLayout", Qt::Key_Up);
    press("frmLayout", Qt::Key_Return);
    waitFor("frmImageRecovery");
    tabTo("frmImageRecovery", "optAutoAnchor");
    press("frmImageRecovery", Qt::Key_Down);
    press("frmImageRecovery", Qt::Key_Return);
    waitFor("frmCharSpacing");
    press("frmCharSpacing", Qt::Key_Return);
    waitFor("frmPageRange");
    tabTo("frmPageRange", "chkAllPages");
    press("frmPageRange", Qt::Key_Down);
    tabTo("frmPageRange", "txtFrom");
    control<QLineEdit>("frmPageRange", "txtFrom").selectAll();
    type("frmPageRange", "txtFrom", "2-3");
    press("frmPageRange", Qt::Key_Return);
    waitFor("frmOutputSummary");
    press("frmOutputSummary", Qt::Key_Return);
    EXPECT_EQ(shownWindows(), QStringList{"frmProgress"});
    EXPECT_EQ(records.settings.intReconstMode, 3);
    EXPECT_EQ(records.settings.intRecoverImg, 0);
    EXPECT_EQ(records.job.strPageRange, "2-3");
    EXPECT_EQ(records.settings.intConvertFrom, 1);
}

TEST_F(KeyboardWalk, ThroughTheExtractionWizard) {
    showActive("frmImageFormatOutput");
    tabTo("frmImageFormatOutput", "cboExtImageType");
    press("frmImageFormatOutput", Qt::Key_Down);
    press("frmImageFormatOutput", Qt::Key_Return);
    waitFor("frmFinishExtractImages");
    EXPECT_EQ(records.job.strImageFormat, "PNG");
    press("frmFinishExtractImages", Qt::Key_Return);
    EXPECT_EQ(shownWindows(), QStringList{"frmProgress"});
    EXPECT_EQ(records.flags.intRunKind, 2);
}

TEST_F(KeyboardWalk, EscapeLeavesAWizard) {
    for (const char* window : {"frmLayout", "frmImageRecovery", "frmCharSpacing", "frmPageRange",
                               "frmImageFormatOutput", "frmFinishExtractImages"}) {
        showActive(window);
        press(window, Qt::Key_Escape);
        EXPECT_EQ(shownWindows(), QStringList{"frmMain"}) << window;
    }
}

} // namespace
} // namespace tavrelion::tests
