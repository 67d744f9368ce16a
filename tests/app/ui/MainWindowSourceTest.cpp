#include "app/support/MainFixture.h"

namespace tavrelion::tests {
namespace {

/// The choice of files in the main window.
class MainWindowSource : public MainWindow {};

TEST_F(MainWindowSource, AsksForPdfFiles) {
    show();
    click("cmdBrowse");
    ASSERT_EQ(dialogs.openRequests.size(), 1u);
    const FileDialogs::OpenRequest& request = dialogs.openRequests.front();
    EXPECT_EQ(request.title, "Open");
    EXPECT_EQ(request.filter, "PDF Files (*.pdf)|*.pdf");
    EXPECT_EQ(request.initialFolder, languages.applicationFolder) << "nothing was used before";
    EXPECT_EQ(request.longestAnswer, 4096);
    records.settings.strRecentFolder = "/recent";
    click("cmdBrowse");
    EXPECT_EQ(dialogs.openRequests.back().initialFolder, "/recent");
}

TEST_F(MainWindowSource, ShowsTheFileAndItsSize) {
    show();
    browse("/in/report.pdf");
    EXPECT_EQ(text("txtfilepath"), "/in/report.pdf");
    EXPECT_EQ(text("txtFileBrowsePath"), "/in/report.pdf");
    EXPECT_EQ(child("txtFileBrowsePath").toolTip(), "/in/report.pdf");
    EXPECT_EQ(text("txtFileSize"), "12.5  KB");
    EXPECT_EQ(records.job.strFileSizeText, "12.5  KB");
    EXPECT_EQ(records.job.strSourcePDF, "/in/report.pdf");
    EXPECT_TRUE(child("cmdBrowseOutput").isEnabled());
    EXPECT_EQ(text("txtfilepathOutput"), "/out/report.docx") << "and its output";
    EXPECT_EQ(records.settings.strRecentFolder, "/in/report.pdf") << "the first selection ever leaves a file's path";
}

TEST_F(MainWindowSource, OfSeveralFilesShowsTheLast) {
    show();
    addFiles({"/in/a.pdf", "/in/b.PDF", "/in/c.pdf"});
    browse(QStringList{"/in", "c.pdf", "a.pdf", "b.PDF"});
    EXPECT_EQ(text("txtfilepath"), "/in/b.PDF");
    EXPECT_EQ(records.queue.lngSelectedBound, 3);
    EXPECT_EQ(text("txtfilepathOutput"), "/out/b.docx");
    EXPECT_FALSE(child("lblBatchInProcess").isVisible()) << "the banner comes with the next activation";
    showAgain();
    EXPECT_TRUE(child("lblBatchInProcess").isVisible());
    EXPECT_FALSE(child("lblPlzBrowse").isVisible());
}

TEST_F(MainWindowSource, CancelChangesNothing) {
    show();
    browse("/in/report.pdf");
    const SharedRecords before = records;
    dialogs.opened = std::nullopt;
    click("cmdBrowse");
    EXPECT_EQ(text("txtfilepath"), "/in/report.pdf");
    EXPECT_EQ(text("txtFileSize"), "12.5  KB");
    EXPECT_EQ(text("txtfilepathOutput"), "/out/report.docx");
    EXPECT_EQ(records.queue.strSelectedFiles, before.queue.strSelectedFiles);
    EXPECT_EQ(records.queue.lngSelectedBound, before.queue.lngSelectedBound);
    EXPECT_EQ(records.job.strOutputFile, before.job.strOutputFile);
    EXPECT_EQ(records.settings.strRecentFolder, before.settings.strRecentFolder);
    EXPECT_EQ(errorLog(), "");
}

TEST_F(MainWindowSource, AMissingFileStopsSilently) {
    show();
    browse("/in/report.pdf");
    browse(QStringList{"/in/gone.pdf"});
    EXPECT_EQ(journalled(), QStringList());
    EXPECT_EQ(text("txtfilepath"), "/in/report.pdf");
    EXPECT_EQ(text("txtFileBrowsePath"), "/in/report.pdf");
    EXPECT_EQ(records.queue.strSelectedFiles, QStringList{"/in/gone.pdf"});
    EXPECT_EQ(errorLog(), "");
}

TEST_F(MainWindowSource, OneFileOfAnotherKindRefusesThemAllOnce) {
    show();
    browse("/in/report.pdf");
    addFiles({"/in/e.pdf"});
    browse(QStringList{"/in", "a.pdf", "b.pdf", "c.txt", "d.txt", "e.pdf"});
    EXPECT_EQ(journalled(), QStringList{"refuse txtInvalidFileFormat"});
    EXPECT_EQ(text("txtfilepath"), "");
    EXPECT_EQ(text("txtFileBrowsePath"), "/in/report.pdf") << "it keeps what it showed";
    EXPECT_EQ(records.job.strSourcePDF, "/in/report.pdf");
    EXPECT_EQ(records.queue.lngSelectedBound, 5);
    click("lblConvert");
    EXPECT_EQ(journalled(), QStringList{"refuse txtSelectPDFFile"}) << "and it cannot be converted";
}

TEST_F(MainWindowSource, AFileWithoutALengthStopsSilently) {
    show();
    files.files.insert("/in/report.pdf");
    browse(QStringList{"/in/report.pdf"});
    EXPECT_EQ(text("txtfilepath"), "/in/report.pdf") << "the path is shown already";
    EXPECT_EQ(text("txtFileSize"), "");
    EXPECT_FALSE(child("cmdBrowseOutput").isEnabled()) << "it keeps its state";
    EXPECT_EQ(text("txtfilepathOutput"), "");
    EXPECT_EQ(journalled(), QStringList());
    EXPECT_EQ(errorLog(), "");
}

TEST_F(MainWindowSource, ANewSelectionIsNotWhatWasFinished) {
    show();
    window().showFinishedDocument("/out/old.docx");
    browse("/in/report.pdf");
    EXPECT_FALSE(child("lblFinishedDocument").isVisible());
}

TEST_F(MainWindowSource, TheBoxesHandTheFocusOn) {
    show();
    window().activateWindow();
    QApplication::processEvents();
    for (const char* box : {"txtFileBrowsePath", "txtFileSize"}) {
        child("txtfilepathOutput").setFocus();
        click(box);
        QApplication::processEvents();
        EXPECT_TRUE(child("cmdBrowse").hasFocus()) << box;
    }
    child("cmdBrowse").setEnabled(false);
    for (const char* box : {"txtFileBrowsePath", "txtFileSize"}) {
        click(box);
        QApplication::processEvents();
        EXPECT_TRUE(child(box).hasFocus()) << box << ": there is nobody to hand it to";
    }
}

} // namespace
} // namespace tavrelion::tests
