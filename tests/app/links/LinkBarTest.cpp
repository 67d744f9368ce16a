#include "ui/links/LinkBar.h"
#include "app/support/LinkFakes.h"
#include "app/support/ScratchHome.h"
#include "ui/form/LinkLabel.h"
#include "ui/form/Picture.h"

#include <QTest>
#include <QVBoxLayout>

#include <gmock/gmock.h>

namespace tavrelion::tests {
namespace {

/// A window with the strip of links and a page below it.
class LinkBarWindow : public ScratchHome {
protected:
    LinkBarWindow() {
        auto* column = new QVBoxLayout(&window);
        bar = new LinkBar;
        page = new QFrame;
        column->addWidget(bar);
        column->addWidget(page, 1);
        bar->connectLinks(actions, QString(TAVRELION_PROGRAM_FOLDER) + "/images");
        window.resize(760, 300);
        window.show();
    }
    QWidget& part(const QString& name) { return *window.findChild<QWidget*>(name); }
    void moveOver(QWidget& widget) {
        QMouseEvent move(QEvent::MouseMove, QPointF(3, 3), widget.mapToGlobal(QPointF(3, 3)), Qt::NoButton, {}, {});
        QCoreApplication::sendEvent(&widget, &move);
    }
    QStringList whiteLabels() {
        QStringList names;
        for (const LinkLabel* label : window.findChildren<LinkLabel*>())
            if (label->palette().color(QPalette::WindowText) == Qt::white)
                names << label->objectName();
        return names;
    }

    FakeOpener opener;
    LinkActions actions{opener, "/opt/tavrelion"};
    QWidget window;
    LinkBar* bar = nullptr;
    QFrame* page = nullptr;
};

TEST_F(LinkBarWindow, HasFiveLinksEachWithAnIcon) {
    QStringList captions;
    for (const LinkLabel* label : window.findChildren<LinkLabel*>())
        captions << label->text();
    EXPECT_EQ(captions, (QStringList{"Help", "Online Support", "Other Products", "Quick Tour", "Website"}));
    for (const char* image : {"imgHelp", "imgOnline", "imgOtherProducts", "imgQuickTour", "imgWebsite"})
        EXPECT_FALSE(dynamic_cast<Picture&>(part(image)).isEmpty()) << image;
}

TEST_F(LinkBarWindow, ALabelAndItsImageDoTheSame) {
    for (const char* name : {"lblHelp", "imgHelp", "lblOnline", "imgOnline", "lblOtherProducts", "imgOtherProducts",
                             "lblQuickTour", "imgQuickTour", "lblWebsite", "imgWebsite"})
        QTest::mouseClick(&part(name), Qt::LeftButton);
    const QString home = GetRedirectUrl("homepage");
    const QString tour = GetRedirectUrl("quicktour2");
    const QString support = GetRedirectUrl("support");
    const QString help = "/opt/tavrelion/Tavrelion.chm";
    EXPECT_EQ(opener.opened, (QStringList{help, help, support, support, home, home, tour, tour, home, home}));
}

TEST_F(LinkBarWindow, TheLinksAreReachedByTheKeyboard) {
    part("lblOnline").setFocus();
    QTest::keyClick(&part("lblOnline"), Qt::Key_Return);
    EXPECT_EQ(opener.opened, QStringList{GetRedirectUrl("support")});
    EXPECT_EQ(part("lblOnline").focusPolicy(), Qt::TabFocus);
}

TEST_F(LinkBarWindow, MovingFromLinkToLinkLeavesOneWhite) {
    bar->followMouse(*page);
    moveOver(part("lblHelp"));
    EXPECT_EQ(whiteLabels(), QStringList{"lblHelp"});
    EXPECT_EQ(bar->intHoverLink(), 1);
    moveOver(part("lblOnline"));
    EXPECT_EQ(whiteLabels(), QStringList{"lblOnline"});
    moveOver(part("imgWebsite"));
    EXPECT_EQ(whiteLabels(), QStringList{"lblWebsite"});
    EXPECT_EQ(bar->intHoverLink(), 5);
}

TEST_F(LinkBarWindow, TheHotLinkCoolsDownOverTheBackground) {
    bar->followMouse(*page);
    moveOver(part("imgQuickTour"));
    EXPECT_EQ(bar->intHoverLink(), 4);
    moveOver(*page);
    EXPECT_EQ(whiteLabels(), QStringList());
    EXPECT_EQ(bar->intHoverLink(), 0);
    moveOver(part("lblOtherProducts"));
    EXPECT_EQ(bar->intHoverLink(), 3);
    moveOver(*bar);
    EXPECT_EQ(bar->intHoverLink(), 0) << "the empty parts of the strip are background too";
}

TEST_F(LinkBarWindow, WithoutFollowingTheMouseNothingChangesColour) {
    moveOver(part("lblHelp"));
    EXPECT_EQ(whiteLabels(), QStringList());
    EXPECT_EQ(bar->intHoverLink(), 0);
}

} // namespace
} // namespace tavrelion::tests
