#include "PageFixture.h"

#include "ui/links/LinkBar.h"

#include <QMouseEvent>
#include <QTest>

namespace tavrelion::tests {
namespace {

class PageLinks : public PageFixture {
protected:
    LinkBar& bar(const QString& window) { return *form(window)->findChild<LinkBar*>(); }
    void moveOver(QWidget& widget) {
        QMouseEvent move(QEvent::MouseMove, QPointF(3, 3), widget.mapToGlobal(QPointF(3, 3)), Qt::NoButton, {}, {});
        QCoreApplication::sendEvent(&widget, &move);
    }
};

const std::vector<std::pair<QString, QString>> kBackgrounds{{"frmLayout", "picMain"},
                                                            {"frmImageRecovery", "picMain"},
                                                            {"frmCharSpacing", "picMain"},
                                                            {"frmPageRange", "picMain"},
                                                            {"frmOutputSummary", "picMain"},
                                                            {"frmOutputOptions", "Picture1"},
                                                            {"frmImageFormatOutput", "Picture1"},
                                                            {"frmFinishExtractImages", "Picture1"}};

TEST_F(PageLinks, AreOnEveryPageAndCoolDownOverItsBackground) {
    for (const auto& [window, background] : kBackgrounds) {
        show(window);
        moveOver(control(window, "lblOnline"));
        EXPECT_EQ(bar(window).intHoverLink(), 2) << window.toStdString();
        moveOver(control(window, background));
        EXPECT_EQ(bar(window).intHoverLink(), 0) << window.toStdString();
        hide(window);
    }
}

TEST_F(PageLinks, OpenFromEveryPageAndChangeNothingElse) {
    for (const auto& [window, background] : kBackgrounds) {
        opener.opened.clear();
        show(window);
        const auto before = fields();
        click(window, "lblHelp");
        click(window, "imgOnline");
        EXPECT_EQ(opener.opened, (QStringList{"/opt/tavrelion/Tavrelion.chm", GetRedirectUrl("support")}))
            << window.toStdString();
        EXPECT_EQ(fields(), before) << window.toStdString();
        EXPECT_EQ(shownWindows(), QStringList{window});
        hide(window);
    }
}

TEST_F(PageLinks, ThatFailToOpenAreNotReported) {
    opener.failsToOpen = true;
    show("frmLayout");
    EXPECT_NO_THROW(click("frmLayout", "lblWebsite"));
    EXPECT_TRUE(messageBox.messages.empty());
}

} // namespace
} // namespace tavrelion::tests
