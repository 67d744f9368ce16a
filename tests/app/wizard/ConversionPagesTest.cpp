#include "PageFixture.h"

#include "ui/form/DropDownList.h"
#include "ui/form/Picture.h"
#include "ui/wizard/frmImageRecovery.h"

#include <QTest>

namespace tavrelion::tests {
namespace {

class LayoutPage : public PageFixture {};

TEST_F(LayoutPage, EachModeHasItsOptionAndPicture) {
    struct Row {
        const char* option;
        const char* picture;
    };
    std::int16_t mode = 0;
    for (const Row& row :
         {Row{"lblTruePage", "as_is.gif"}, Row{"lblContinuous", "formatted.gif"}, Row{"lblPlainText", "plain_text.gif"},
          Row{"lblFlowingText", "Flowing_text.gif"}, Row{"lblTableText", "Flowing_text.gif"}}) {
        records.settings.intReconstMode = mode++;
        show("frmLayout");
        EXPECT_TRUE(option("frmLayout", row.option).value());
        EXPECT_EQ(picture("frmLayout", "imgPDF"), row.picture);
        hide("frmLayout");
    }
}

TEST_F(LayoutPage, AClickOnAnOptionShowsItsPictureAndStoresNothing) {
    show("frmLayout");
    const auto before = fields();
    click("frmLayout", "lblContinuous");
    EXPECT_EQ(picture("frmLayout", "imgPDF"), "formatted.gif");
    EXPECT_EQ(fields(), before);
}

TEST_F(LayoutPage, AnUnknownModeSelectsNothingAndStoresNothing) {
    records.settings.intReconstMode = 7;
    show("frmLayout");
    const auto before = fields();
    click("frmLayout", "cmdNext");
    EXPECT_EQ(fields(), before);
}

TEST_F(LayoutPage, CancelBringsTheOldOptionBackAtTheNextShowing) {
    show("frmLayout");
    click("frmLayout", "lblTableText");
    click("frmLayout", "cmdCancel");
    EXPECT_EQ(records.settings.intReconstMode, 3);
    EXPECT_EQ(records.job.strLayoutCaption, "");
    show("frmLayout");
    EXPECT_TRUE(option("frmLayout", "lblFlowingText").value());
}

TEST_F(LayoutPage, ADescriptionWithoutATextGivesAnEmptyCaption) {
    useOwnLanguageFile([](const QString& line) { return !line.contains("\"lblTableText1\""); });
    records.settings.intReconstMode = 4;
    records.job.strLayoutCaption = "old";
    show("frmLayout");
    click("frmLayout", "cmdNext");
    EXPECT_EQ(records.job.strLayoutCaption, "");
    EXPECT_EQ(records.settings.intReconstMode, 4);
    EXPECT_EQ(shownWindows(), QStringList{"frmImageRecovery"});
}

TEST_F(LayoutPage, AMissingPictureLeavesTheOldOneAndTheWalkGoesOn) {
    show("frmLayout");
    languages.applicationFolder = home();
    option("frmLayout", "lblPlainText").setValue(true);
    EXPECT_EQ(picture("frmLayout", "imgPDF"), "Flowing_text.gif");
    languages.applicationFolder = TAVRELION_PROGRAM_FOLDER;
    click("frmLayout", "cmdNext");
    EXPECT_EQ(shownWindows(), QStringList{"frmImageRecovery"});
}

class ImageRecoveryPage : public PageFixture {
protected:
    static constexpr char kPage[] = "frmImageRecovery";
    void showWith(std::int16_t mode, std::int16_t treatment) {
        records.settings.intReconstMode = mode;
        records.settings.intRecoverImg = treatment;
        show(kPage);
    }
    bool anchors() { return option(kPage, "optAutoAnchor").value(); }
    bool removes() { return option(kPage, "optRemImg").value(); }
};

TEST_F(ImageRecoveryPage, ShowsTheStoredTreatmentWithItsPicture) {
    showWith(3, 1);
    EXPECT_TRUE(anchors());
    EXPECT_EQ(picture(kPage, "Image1"), "automatic_anchoring.gif");
    click(kPage, "optRemImg");
    EXPECT_EQ(picture(kPage, "Image1"), "remove_images.gif");
    EXPECT_FALSE(anchors());
    hide(kPage);
    showWith(3, 0);
    EXPECT_TRUE(removes());
    EXPECT_EQ(records.settings.intRecoverImg, 0);
}

TEST_F(ImageRecoveryPage, ForcesItsAnswerWhereDocumentsHaveNoImages) {
    showWith(1, 1);
    EXPECT_TRUE(removes());
    EXPECT_FALSE(option(kPage, "optAutoAnchor").isEnabled());
    EXPECT_EQ(picture(kPage, "Image1"), "remove_images.gif");
    EXPECT_EQ(records.settings.intRecoverImg, 0) << "written by the load";
    click(kPage, "cmdCancel");
    EXPECT_EQ(records.settings.intRecoverImg, 1) << "and put back by Cancel";

    showWith(2, 1);
    EXPECT_TRUE(removes());
    EXPECT_EQ(records.settings.intRecoverImg, 1) << "an activation leaves the field alone";
}

TEST_F(ImageRecoveryPage, OffersAnchoringAgainInAModeWithImages) {
    showWith(1, 1);
    hide(kPage);
    showWith(0, 1);
    EXPECT_TRUE(option(kPage, "optAutoAnchor").isEnabled());
    EXPECT_TRUE(anchors());
}

TEST_F(ImageRecoveryPage, DropsTheChoiceInTheModeForTables) {
    showWith(4, 1);
    click(kPage, "optRemImg");
    click(kPage, "cmdNext");
    EXPECT_EQ(records.settings.intRecoverImg, 1);
    show(kPage);
    EXPECT_TRUE(anchors());
}

TEST_F(ImageRecoveryPage, SelectsAndStoresNothingForAnUnknownTreatment) {
    showWith(3, 5);
    EXPECT_FALSE(anchors());
    EXPECT_FALSE(removes());
    click(kPage, "cmdNext");
    EXPECT_EQ(records.settings.intRecoverImg, 5);
}

TEST_F(ImageRecoveryPage, CancelRestoresWhatStoodWhenThePageLastBecameActive) {
    showWith(3, 1);
    click(kPage, "optRemImg");
    click(kPage, "cmdNext");
    hide("frmCharSpacing");
    show(kPage);
    records.settings.intRecoverImg = 1; // as another window may do
    click(kPage, "cmdCancel");
    EXPECT_EQ(records.settings.intRecoverImg, 0) << "what Next had stored";
}

class CharSpacingPage : public PageFixture {
protected:
    static constexpr char kPage[] = "frmCharSpacing";
};

TEST_F(CharSpacingPage, ZeroIsTheYesOption) {
    records.settings.intCharSpac = 0;
    show(kPage);
    EXPECT_TRUE(option(kPage, "optCharSpaceYes").value());
    EXPECT_EQ(picture(kPage, "imgcharcterSpacing"), "keep_char_spacing.gif");
    hide(kPage);
    records.settings.intCharSpac = 1;
    show(kPage);
    EXPECT_TRUE(option(kPage, "optCharSpaceNo").value());
    EXPECT_EQ(picture(kPage, "imgcharcterSpacing"), "no_char_spacing.gif");
}

TEST_F(CharSpacingPage, BackLosesTheChoice) {
    show(kPage);
    click(kPage, "optCharSpaceYes");
    click(kPage, "cmdBack");
    EXPECT_EQ(records.settings.intCharSpac, 1);
    EXPECT_EQ(records.job.strCharSpacing, "no");
    click("frmImageRecovery", "cmdNext");
    EXPECT_TRUE(option(kPage, "optCharSpaceNo").value());
}

TEST_F(CharSpacingPage, StoresTheCaptionInTheLanguageOfTheMoment) {
    records.settings.intLanguageID = 3;
    show(kPage);
    click(kPage, "cmdNext");
    EXPECT_EQ(records.job.strCharSpacing, "Zeichenabstand nicht beibehalten");
}

TEST_F(CharSpacingPage, TheHiddenListActsOnlyWhenCodeSelectsAnItem) {
    show(kPage);
    auto& list = control<DropDownList>(kPage, "cboCharSpacingType");
    EXPECT_FALSE(list.isVisible());
    EXPECT_EQ(list.count(), 2);
    EXPECT_EQ(records.settings.intCharSpac, 1) << "filling the list selects nothing";
    list.setListIndex(0);
    EXPECT_EQ(records.settings.intCharSpac, 0);
    EXPECT_EQ(picture(kPage, "imgcharcterSpacing"), "keep_char_spacing.gif");
    list.setListIndex(1);
    EXPECT_EQ(records.settings.intCharSpac, 1);
    EXPECT_EQ(picture(kPage, "imgcharcterSpacing"), "no_char_spacing.gif");
}

} // namespace
} // namespace tavrelion::tests
