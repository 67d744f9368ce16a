#include "core/LockedFile.h"
#include "app/support/RunFixture.h"

namespace tavrelion::tests {
namespace {

using Text = MainView::Text;
using Button = MainView::Button;

/// A batch of three files whose present one is locked.
class LockedFile : public RunFixture {
protected:
    LockedFile() {
        records.queue.strSelectedFiles = {"/in", "one.pdf", "two.x.pdf", "three.pdf"};
        records.queue.lngSelectedBound = 3;
        records.job.strSourcePDF = "/in/three.pdf";
        records.job.strOutputFile = "/out/three.docx";
        mainWindow.isShown = false;
        mainWindow.isEnabled = false;
        mainWindow.texts[Text::txtFileSize] = "7  KB";
    }
    void giveUp() { run::giveUpLockedFile(records, mainWindow); }
    QString box(Text control) const { return mainWindow.text(control); }
};

TEST_F(LockedFile, GivenUpStepsBackAFileAtATime) {
    giveUp();
    EXPECT_EQ(records.queue.lngSelectedBound, 2);
    EXPECT_EQ(records.queue.strCurrentFile, "/in/two.x.pdf");
    EXPECT_EQ(records.job.strSourcePDF, "/in/two.x.pdf");
    EXPECT_EQ(box(Text::txtfilepath), "/in/two.x.pdf");
    EXPECT_EQ(box(Text::txtFileBrowsePath), "/in/two.x.pdf");
    EXPECT_EQ(box(Text::txtfilepathOutput), "/out/two.x.docx") << "in the folder of the one given up";
    EXPECT_EQ(records.job.strOutputFile, "/out/two.x.docx");
    giveUp();
    EXPECT_EQ(records.queue.lngSelectedBound, 1);
    EXPECT_EQ(records.job.strSourcePDF, "/in/one.pdf");
    EXPECT_EQ(records.job.strOutputFile, "/out/one.docx");
    giveUp();
    EXPECT_EQ(records.queue.lngSelectedBound, 0);
    EXPECT_EQ(records.job.strSourcePDF, " ");
    EXPECT_EQ(box(Text::txtfilepath), " ");
    EXPECT_EQ(box(Text::txtfilepathOutput), "");
    EXPECT_EQ(records.job.strOutputFile, "/out/") << "the folder with its last separator";
    EXPECT_TRUE(mainWindow.buttons.at(Button::cmdBrowse));
}

TEST_F(LockedFile, GivenUpStopsTheRunAndBringsTheMainWindowBack) {
    giveUp();
    EXPECT_TRUE(records.flags.blnCloseRequested);
    EXPECT_TRUE(mainWindow.isShown);
    EXPECT_TRUE(mainWindow.isEnabled);
    EXPECT_EQ(box(Text::txtFileSize), "7  KB") << "the size box is not touched";
    EXPECT_EQ(mainWindow.buttons.count(Button::cmdBrowse), 0u);
    EXPECT_EQ(errorLog(), "");
}

TEST_F(LockedFile, GivenUpAloneLeavesOneBlank) {
    records.queue.strSelectedFiles = {"/in/report.pdf"};
    records.queue.lngSelectedBound = 0;
    giveUp();
    EXPECT_EQ(records.queue.lngSelectedBound, 0);
    EXPECT_EQ(records.job.strSourcePDF, " ");
    EXPECT_EQ(box(Text::txtfilepath), " ") << "not empty, and empty when trimmed";
    EXPECT_EQ(box(Text::txtfilepathOutput), "");
}

TEST_F(LockedFile, GivenUpWithoutASelectionKeepsItsSource) {
    records.queue.strSelectedFiles.clear();
    records.queue.lngSelectedBound = -1;
    giveUp();
    EXPECT_EQ(records.queue.lngSelectedBound, -1);
    EXPECT_EQ(box(Text::txtfilepath), "/in/three.pdf");
    EXPECT_EQ(records.job.strOutputFile, "/out/");
}

TEST_F(LockedFile, GivenUpNamesTheNextDocumentByTheFormat) {
    const std::map<std::int16_t, QString> documents{
        {0, "/out/two.x.doc"}, {1, "/out/two.x.rtf"}, {2, "/out/two.x.docx"}};
    for (const auto& [format, document] : documents) {
        records.queue.lngSelectedBound = 3;
        records.settings.intOutputFormat = format;
        giveUp();
        EXPECT_EQ(records.job.strOutputFile, document);
    }
}

TEST_F(LockedFile, GivenUpWithoutAnOutputFolderSkipsThatStatement) {
    records.job.strOutputFile = "three.docx";
    mainWindow.texts[Text::txtfilepathOutput] = "as it stood";
    giveUp();
    EXPECT_EQ(records.job.strOutputFile, "as it stood");
    EXPECT_TRUE(mainWindow.isShown);
}

TEST_F(LockedFile, GivenUpSkipsWhatFailsWithoutALogRecord) {
    mainWindow.failsToSetTexts = true;
    giveUp();
    EXPECT_EQ(records.job.strSourcePDF, "/in/two.x.pdf");
    EXPECT_TRUE(mainWindow.isShown);
    EXPECT_EQ(errorLog(), "");
}

} // namespace
} // namespace tavrelion::tests
