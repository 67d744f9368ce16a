#include "app/support/MainFixture.h"
#include "ui/main/DropDownPicture.h"

namespace tavrelion::tests {
namespace {

/// The labels of the main window under the mouse.
class HotLabel : public MainWindow {
protected:
    HotLabel() { show(); }

    void move(const char* name) {
        QWidget& target = name == QString("frmMain") ? static_cast<QWidget&>(window()) : child(name);
        QMouseEvent event(QEvent::MouseMove, QPointF(2, 2), target.mapToGlobal(QPointF(2, 2)), Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &event);
    }
    bool isWhite(const char* label) { return child(label).palette().color(QPalette::WindowText) == Qt::white; }
    QStringList whiteLabels() {
        QStringList white;
        for (const char* label : {"lblConvert", "lblExit", "lblHelp", "lblOnline", "lblSettings", "lblOtherProducts",
                                  "lblQuickTour", "lblWebsite", "lblExtimgWiz"})
            if (isWhite(label))
                white << label;
        return white;
    }
};

TEST_F(HotLabel, TurnsWhiteAndTheOthersBlack) {
    const struct {
        const char* mouse;
        const char* white;
    } rows[] = {{"lblConvert", "lblConvert"},
                {"lblExit", "lblExit"},
                {"imgExit", "lblExit"},
                {"lblHelp", "lblHelp"},
                {"imgHelp", "lblHelp"},
                {"lblOnline", "lblOnline"},
                {"imgOnline", "lblOnline"},
                {"lblSettings", "lblSettings"},
                {"imgSettings", "lblSettings"},
                {"lblOtherProducts", "lblOtherProducts"},
                {"imgOtherProducts", "lblOtherProducts"},
                {"lblQuickTour", "lblQuickTour"},
                {"imgQuickTour", "lblQuickTour"},
                {"lblWebsite", "lblWebsite"},
                {"imgWebsite", "lblWebsite"},
                {"lblExtimgWiz", "lblExtimgWiz"}};
    EXPECT_EQ(whiteLabels(), QStringList());
    for (const auto& row : rows) {
        move(row.mouse);
        EXPECT_EQ(whiteLabels(), QStringList{row.white}) << "mouse over " << row.mouse;
    }
}

TEST_F(HotLabel, StaysWhiteUntilTheMouseReachesTheBackground) {
    for (const char* background : {"picMain", "frmMain", "column", "band"}) {
        move("lblSettings");
        move("imgConvert");
        EXPECT_EQ(whiteLabels(), QStringList{"lblSettings"}) << "that image does nothing";
        move(background);
        EXPECT_EQ(whiteLabels(), QStringList()) << background;
    }
}

TEST_F(HotLabel, StaysTheSameFromALabelToItsImage) {
    move("lblHelp");
    move("imgHelp");
    EXPECT_EQ(whiteLabels(), QStringList{"lblHelp"});
}

TEST_F(HotLabel, TheImageOfTheTourLeavesTheExtractionLabelWhite) {
    move("lblExtimgWiz");
    move("imgQuickTour");
    EXPECT_EQ(whiteLabels(), (QStringList{"lblQuickTour", "lblExtimgWiz"}));
    move("picMain");
    EXPECT_EQ(whiteLabels(), QStringList{"lblExtimgWiz"}) << "only the label whose number is kept cools down";
    move("lblExtimgWiz");
    move("picMain");
    EXPECT_EQ(whiteLabels(), QStringList());
}

TEST_F(HotLabel, TheTourAsALabelLeavesNoneWhite) {
    move("lblExtimgWiz");
    move("lblQuickTour");
    EXPECT_EQ(whiteLabels(), QStringList{"lblQuickTour"});
}

TEST_F(HotLabel, TheArrowsFrameGoesOnlyOverTheBackgroundExitAndSettings) {
    auto& arrow = child<DropDownPicture>("imgDropDown");
    const auto frame = [&arrow] { return std::make_pair(arrow.borderStyle(), arrow.appearance()); };
    EXPECT_EQ(frame(), std::make_pair(0, 0));
    move("imgDropDown");
    EXPECT_EQ(frame(), std::make_pair(1, 0));
    QTest::mousePress(&arrow, Qt::LeftButton);
    EXPECT_EQ(frame(), std::make_pair(1, 1));
    QTest::mouseRelease(&arrow, Qt::LeftButton, {}, QPoint(-50, -50));
    for (const char* other : {"lblConvert", "lblExit", "imgHelp", "imgQuickTour"}) {
        move(other);
        EXPECT_EQ(frame(), std::make_pair(1, 1)) << other;
    }
    for (const char* clearing : {"imgExit", "imgSettings", "picMain", "frmMain"}) {
        QTest::mousePress(&arrow, Qt::LeftButton);
        QTest::mouseRelease(&arrow, Qt::LeftButton, {}, QPoint(-50, -50));
        move(clearing);
        EXPECT_EQ(frame(), std::make_pair(0, 0)) << clearing;
    }
}

} // namespace
} // namespace tavrelion::tests
