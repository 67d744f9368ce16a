#include "PageFixture.h"

#include "ui/extract/frmImageFormatOutput.h"
#include "ui/form/DropDownList.h"

#include <QFile>
#include <QLineEdit>
#include <QPushButton>

namespace tavrelion::tests {
namespace {

class FormatPage : public PageFixture {
protected:
    static constexpr char kPage[] = "frmImageFormatOutput";
    static constexpr char kFinish[] = "frmFinishExtractImages";

    DropDownList& list() { return control<DropDownList>(kPage, "cboExtImageType"); }
    void choosePages(const QString& pages) {
        option(kPage, "chkFromTo").setValue(true);
        setText(kPage, "txtFrom", pages);
    }
    frmImageFormatOutput& page() { return dynamic_cast<frmImageFormatOutput&>(*form(kPage)); }
};

TEST_F(FormatPage, ListsTheFormatsOfItsHiddenOptions) {
    show(kPage);
    QStringList rows;
    for (int i = 0; i < list().count(); ++i)
        rows << list().itemText(i);
    EXPECT_EQ(rows, (QStringList{"Same as in the source", "PNG", "TIFF", "BMP", "JPG", "PCX", "PBM", "PNM", "PPM"}));
    EXPECT_EQ(list().listIndex(), 0);
}

TEST_F(FormatPage, BringsStoredFormatsBackByTheOldPositions) {
    struct Row {
        const char* stored;
        int position;
        const char* shown;
    };
    for (const Row& row :
         {Row{"PNG", 1, "PNG"}, Row{"TIFF", 2, "TIFF"}, Row{"BMP", 3, "BMP"}, Row{"JPG", 4, "JPG"},
          Row{"PCX", 5, "PCX"}, Row{"PSD", 6, "PBM"}, Row{"PBM", 7, "PNM"}, Row{"PNM", 8, "PPM"}, Row{"PPM", -1, ""},
          Row{"png", 0, "Same as in the source"}, Row{"Same as in the source", 0, "Same as in the source"},
          Row{"", 0, "Same as in the source"}}) {
        records.job.strImageFormat = row.stored;
        page().intExtractFromTo = 1; // the option for all pages would take the shown format when it turns on
        show(kPage);
        EXPECT_EQ(list().listIndex(), row.position) << row.stored;
        EXPECT_EQ(list().currentText(), row.shown) << row.stored;
        hide(kPage);
    }
}

TEST_F(FormatPage, ThePbmRowComesBackAsPnmAndGoesOnAsSuch) {
    show(kPage);
    list().setListIndex(6);
    click(kPage, "cmdNext");
    EXPECT_EQ(records.job.strImageFormat, "PBM");
    click(kFinish, "cmdBack");
    EXPECT_EQ(list().currentText(), "PNM");
    click(kPage, "cmdNext");
    EXPECT_EQ(records.job.strImageFormat, "PNM");
}

TEST_F(FormatPage, ThePpmRowComesBackAsNothing) {
    show(kPage);
    list().setListIndex(8);
    click(kPage, "cmdNext");
    click(kFinish, "cmdBack");
    EXPECT_EQ(list().currentText(), "");
    click(kPage, "cmdNext");
    EXPECT_EQ(records.job.strImageFormat, "");
}

TEST_F(FormatPage, BrowsesForTheFolder) {
    show(kPage);
    folderDialog.folder = "/pictures";
    click(kPage, "cmdBrowse");
    EXPECT_EQ(folderDialog.titles, QStringList{"Browse Folder"});
    EXPECT_EQ(text(kPage, "txtFileBrowsePath"), "/pictures");
    EXPECT_EQ(records.job.strImageFolder, "/pictures");

    setText(kPage, "txtFileBrowsePath", "typed");
    folderDialog.folder.clear();
    click(kPage, "cmdBrowse");
    EXPECT_EQ(text(kPage, "txtFileBrowsePath"), "/pictures") << "a cancelled dialog shows the stored folder again";

    folderDialog.folder = "/pictures/??";
    click(kPage, "cmdBrowse");
    EXPECT_EQ(records.job.strImageFolder, home()) << "a name that could not be put into the code page";
}

TEST_F(FormatPage, NextAndLastFollowThePathBoxInBothDirections) {
    records.job.strImageFolder.clear();
    show(kPage);
    for (const char* button : {"cmdNext", "cmdLast"})
        EXPECT_FALSE(control(kPage, button).isEnabled()) << button;
    setText(kPage, "txtFileBrowsePath", "/pictures");
    for (const char* button : {"cmdNext", "cmdLast"})
        EXPECT_TRUE(control(kPage, button).isEnabled()) << button;
    setText(kPage, "txtFileBrowsePath", "");
    for (const char* button : {"cmdNext", "cmdLast"})
        EXPECT_FALSE(control(kPage, button).isEnabled()) << button;
}

TEST_F(FormatPage, AFolderDialogThatFailsCountsAsCancelled) {
    show(kPage);
    folderDialog.failsToOpen = true;
    setText(kPage, "txtFileBrowsePath", "typed");
    EXPECT_NO_THROW(control<QPushButton>(kPage, "cmdBrowse").click());
    EXPECT_EQ(text(kPage, "txtFileBrowsePath"), "/out/");
    EXPECT_EQ(records.job.strImageFolder, "/out/");
}

struct PageList {
    const char* text;
    const char* next; ///< the refusal of Next, empty when it passes
    const char* last;
    const char* lastStores;
};

TEST_F(FormatPage, NextAndLastJudgeThePages) {
    for (const PageList& row :
         {PageList{"", "txtIncompleteRange", "txtIncompleteRange", ""},
          PageList{"  ", "txtPageRangeZero", "txtIncompleteRange", ""},
          PageList{"0", "txtPageRangeZero", "txtPageRangeZero", ""}, PageList{",5", "lblpgformat", "lblpgformat", ""},
          PageList{"1-2-3", "lblpgformat", "lblpgformat", ""}, PageList{"3-0", "", "", "3-0"},
          PageList{"7,123456", "lblpgnumber", "lblpgnumber", ""}, PageList{" 2-3 ", "", "", "2-3"}})
        for (const bool isNext : {true, false}) {
            const QString message = isNext ? row.next : row.last;
            refusals.refused.clear();
            page().strExtractPages = "old";
            show(kPage);
            choosePages(row.text);
            click(kPage, isNext ? "cmdNext" : "cmdLast");
            EXPECT_EQ(refusals.refused, message.isEmpty() ? QStringList() : QStringList{message}) << row.text;
            if (!message.isEmpty()) {
                EXPECT_EQ(page().strExtractPages, "old");
                EXPECT_TRUE(page().isVisible());
            } else {
                EXPECT_EQ(page().strExtractPages, isNext ? row.text : row.lastStores);
                EXPECT_EQ(page().intExtractFromTo, 1);
                hide(kFinish);
            }
        }
}

TEST_F(FormatPage, AListThatIsRefusedAtOnceStoresNothing) {
    show(kPage);
    records.job.strImageFormat = "TIFF";
    list().setListIndex(1);
    setText(kPage, "txtFileBrowsePath", "/pictures");
    choosePages("1-2-3");
    for (const char* button : {"cmdNext", "cmdLast"}) {
        click(kPage, button);
        EXPECT_EQ(records.job.strImageFormat, "TIFF") << button;
        EXPECT_EQ(records.job.strImageFolder, "/out/") << button;
    }
}

TEST_F(FormatPage, FormatAndFolderStayStoredWhenThePagesAreRefusedLate) {
    show(kPage);
    list().setListIndex(1);
    setText(kPage, "txtFileBrowsePath", "/pictures");
    choosePages("");
    click(kPage, "cmdNext");
    EXPECT_EQ(records.job.strImageFormat, "PNG");
    EXPECT_EQ(records.job.strImageFolder, "/pictures");
}

TEST_F(FormatPage, ThePagesStayInTheWindow) {
    show(kPage);
    choosePages("2-3");
    click(kPage, "cmdNext");
    EXPECT_EQ(records.job.strPageRange, "1");
    EXPECT_EQ(records.settings.intConvertFrom, 0);
}

TEST_F(FormatPage, ItsOptionsActAtOnce) {
    show(kPage);
    list().setListIndex(2);
    click(kPage, "lblFrom");
    EXPECT_EQ(page().intExtractFromTo, 1);
    EXPECT_TRUE(control(kPage, "txtFrom").isEnabled());
    click(kPage, "lblAllPages");
    EXPECT_EQ(records.job.strImageFormat, "TIFF");
    EXPECT_FALSE(control(kPage, "txtFrom").isEnabled());
    EXPECT_EQ(page().intExtractFromTo, 1) << "only Next and Last set it back";
}

TEST_F(FormatPage, StartsWithTheMainWindowsChoice) {
    page().intExtractFromTo = 1;
    page().strExtractPages = "4-6";
    show(kPage);
    EXPECT_TRUE(option(kPage, "chkFromTo").value());
    EXPECT_EQ(text(kPage, "txtFrom"), "4-6");
    EXPECT_TRUE(control(kPage, "txtFrom").isEnabled());
}

TEST_F(FormatPage, TheMainWindowReachesItsControls) {
    page().chooseFromTo();
    EXPECT_TRUE(option(kPage, "chkFromTo").value());
    page().chooseAllPages();
    EXPECT_TRUE(option(kPage, "chkAllPages").value());
    EXPECT_EQ(page().captionOfSameSourceImages(), "Same as in the source");
    EXPECT_FALSE(page().isVisible());
}

TEST_F(FormatPage, TheFinishPageShowsThePagesOfTheFormatPage) {
    show(kPage);
    list().setListIndex(1);
    choosePages("2-3");
    click(kPage, "cmdNext");
    EXPECT_EQ(text(kFinish, "lblFromVal"), "2-3");
    EXPECT_TRUE(control(kFinish, "lblFromVal").isVisible());
    EXPECT_FALSE(control(kFinish, "lblAllPages").isVisible());
    EXPECT_EQ(text(kFinish, "lblImageFor"), "PNG");
    EXPECT_EQ(text(kFinish, "lblOutPath"), "/out/");
    click(kFinish, "cmdBack");
    click(kPage, "chkAllPages");
    click(kPage, "cmdNext");
    EXPECT_FALSE(control(kFinish, "lblFromVal").isVisible());
    EXPECT_TRUE(control(kFinish, "lblAllPages").isVisible());
}

TEST_F(FormatPage, BackOfTheFinishPageReadsTheFolderBack) {
    show(kFinish);
    setText(kFinish, "lblOutPath", "/elsewhere");
    click(kFinish, "cmdBack");
    EXPECT_EQ(records.job.strImageFolder, "/elsewhere");
    EXPECT_EQ(text(kPage, "txtFileBrowsePath"), "/elsewhere");
}

TEST_F(FormatPage, FinishStartsAnImageRunAndSavesNoSettings) {
    show(kFinish);
    click(kFinish, "cmdFinish");
    EXPECT_EQ(records.flags.intRunKind, 2);
    EXPECT_EQ(shownWindows(), QStringList{"frmProgress"});
    EXPECT_FALSE(QFile::exists(path("docval.temp")));
}

TEST_F(FormatPage, FinishStaysWhenAStopIsRequested) {
    records.flags.blnCloseRequested = true;
    show(kFinish);
    click(kFinish, "cmdFinish");
    EXPECT_EQ(records.flags.intRunKind, 2) << "even so";
    EXPECT_EQ(shownWindows(), QStringList{kFinish});
}

TEST_F(FormatPage, AFailureOfFinishIsLoggedWithADoubleN) {
    whenRunStarts = [] { throw std::runtime_error("no progress window"); };
    show(kFinish);
    click(kFinish, "cmdFinish");
    QFile log(path("GUILog.tmp"));
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    EXPECT_TRUE(log.readAll().startsWith("Form Name: frmFinnishExtractImages, Module Name: cmdFinish_click\r\n"));
}

} // namespace
} // namespace tavrelion::tests
