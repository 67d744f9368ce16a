#include "core/BatchConversion.h"
#include "app/support/RunFixture.h"
#include "core/SizeText.h"

namespace tavrelion::tests {
namespace {

using testing::HasSubstr;
using Text = MainView::Text;
using Button = MainView::Button;
using Banner = MainView::Banner;

/// A selection of three files, of which the last one is through.
class Queue : public RunFixture {
protected:
    Queue() {
        records.queue.strSelectedFiles = {"/in", "one.pdf", "two.pdf", "three.pdf"};
        records.queue.lngSelectedBound = 3;
        records.settings.intOutputPath = 2;
        run().blnAdvanceQueue = true;
        for (const QString name : {"/in/one.pdf", "/in/two.pdf", "/in/three.pdf"}) {
            files.files.insert(name);
            files.sizes[name] = 12800;
        }
        mainWindow.banner = Banner::lblPlzBrowse;
    }
    QString box(Text control) const { return mainWindow.text(control); }
};

TEST_F(Queue, StepsToTheFileBeforeAndLoadsItIntoTheMainWindow) {
    run::BatchConversion(run());
    EXPECT_EQ(records.queue.lngSelectedBound, 2);
    EXPECT_EQ(records.queue.intFileTaken, 1);
    EXPECT_EQ(records.queue.strCurrentFile, "/in/two.pdf");
    EXPECT_EQ(records.job.strSourcePDF, "/in/two.pdf");
    EXPECT_EQ(box(Text::txtfilepath), "/in/two.pdf");
    EXPECT_EQ(box(Text::txtFileBrowsePath), "/in/two.pdf");
    EXPECT_EQ(box(Text::txtFileSize), "12.5  KB");
    EXPECT_EQ(records.job.strFileSizeText, "12.5  KB");
    EXPECT_EQ(records.job.strOutputFile, "/in/two.docx");
    EXPECT_EQ(box(Text::txtfilepathOutput), "/in/two.docx");
    EXPECT_EQ(box(Text::lblOutputFormatDoc), "docx") << "the last four characters, whatever they are";
    EXPECT_FALSE(mainWindow.buttons.at(Button::cmdBrowse));
    EXPECT_EQ(mainWindow.banner, Banner::lblBatchInProcess);
    EXPECT_EQ(eventLoop.yields, 1);
    EXPECT_EQ(errorLog(), "");
}

TEST_F(Queue, IsWorkedFromItsLastFileToItsFirst) {
    QStringList sources;
    for (int i = 0; i < 3; ++i) {
        run::BatchConversion(run());
        sources << records.job.strSourcePDF;
    }
    EXPECT_EQ(sources, (QStringList{"/in/two.pdf", "/in/one.pdf", ""}));
    EXPECT_EQ(records.queue.lngSelectedBound, 0);
}

TEST_F(Queue, WithoutAdvancingLoadsTheSameFileAgain) {
    run().blnAdvanceQueue = false;
    run::BatchConversion(run());
    EXPECT_EQ(records.queue.lngSelectedBound, 3);
    EXPECT_EQ(records.job.strSourcePDF, "/in/three.pdf");
}

TEST_F(Queue, OfARunThatIsToStopOnlyUnloads) {
    records.flags.blnCloseRequested = true;
    run::BatchConversion(run());
    EXPECT_TRUE(view.isUnloaded);
    EXPECT_EQ(records.queue.lngSelectedBound, 3);
    EXPECT_EQ(eventLoop.yields, 0);
}

TEST_F(Queue, AtItsEndEmptiesTheMainWindow) {
    records.queue.lngSelectedBound = 1;
    for (const Text control : {Text::txtfilepath, Text::txtfilepathOutput, Text::lblOutputFormatDoc,
                               Text::txtFileBrowsePath, Text::txtFileSize})
        mainWindow.texts[control] = "old";
    records.job.strOutputShown = ".docx";
    records.job.strFileSizeText = "old";
    run::BatchConversion(run());
    EXPECT_EQ(records.queue.lngSelectedBound, 0);
    for (const auto& [control, text] : mainWindow.texts)
        EXPECT_EQ(text, "");
    EXPECT_EQ(mainWindow.sourceToolTip, "");
    EXPECT_TRUE(mainWindow.buttons.at(Button::cmdBrowse));
    EXPECT_EQ(mainWindow.banner, Banner::lblPlzBrowse);
    EXPECT_EQ(records.job.strSourcePDF, "") << "empty, where GetNextFile leaves a blank";
    EXPECT_EQ(records.job.strOutputFile, "");
    EXPECT_EQ(records.job.strOutputShown, "");
    EXPECT_EQ(records.job.strFileSizeText, "");
}

TEST_F(Queue, OfASingleFileIsDoneAtOnce) {
    records.queue.strSelectedFiles = {"/in/one.pdf"};
    records.queue.lngSelectedBound = 0;
    run::BatchConversion(run());
    EXPECT_EQ(records.queue.lngSelectedBound, -1);
    EXPECT_EQ(records.job.strSourcePDF, "");
}

TEST_F(Queue, BeforeAnySelectionTouchesNoList) {
    records.queue = BatchQueue();
    records.queue.lngSelectedBound = -1;
    run::BatchConversion(run());
    EXPECT_EQ(records.queue.lngSelectedBound, -2);
    EXPECT_EQ(errorLog(), "");
}

TEST_F(Queue, WhoseNextFileIsGoneKeepsTheOldTextsAndSaysNothing) {
    files.files.erase("/in/two.pdf");
    mainWindow.texts[Text::txtfilepath] = "/in/three.pdf";
    run::BatchConversion(run());
    EXPECT_EQ(records.queue.lngSelectedBound, 2);
    EXPECT_EQ(box(Text::txtfilepath), "/in/three.pdf");
    EXPECT_EQ(records.job.strSourcePDF, "/in/report.pdf");
    EXPECT_TRUE(messageBox.messages.empty());
    EXPECT_EQ(errorLog(), "");
}

TEST_F(Queue, WhoseNextFileIsNoPdfSaysSo) {
    records.queue.strSelectedFiles[2] = "two.txt";
    files.files.insert("/in/two.txt");
    run::BatchConversion(run());
    ASSERT_EQ(messageBox.messages.size(), 1u);
    EXPECT_EQ(messageBox.messages[0].text, "Invalid file format! Please select a file with .PDF extension only.");
    EXPECT_EQ(messageBox.messages[0].icon, UserMessages::Icon::Information);
    EXPECT_EQ(records.job.strSourcePDF, "/in/report.pdf");
}

TEST_F(Queue, TakesAnyLetterCaseOfTheExtension) {
    records.queue.strSelectedFiles[2] = "TWO.PdF";
    files.files.insert("/in/TWO.PdF");
    run::BatchConversion(run());
    EXPECT_EQ(records.job.strOutputFile, "/in/TWO.docx");
}

TEST_F(Queue, OfADrivesRootFolderGetsASecondSeparator) {
    records.queue.strSelectedFiles[0] = "/";
    files.files.insert("//two.pdf");
    run::BatchConversion(run());
    EXPECT_EQ(records.queue.strCurrentFile, "//two.pdf");
}

TEST_F(Queue, WhoseFileHasNoLengthIsLoggedAndTheNextStatementRuns) {
    files.sizes.clear();
    mainWindow.texts[Text::txtFileSize] = "9  KB";
    run::BatchConversion(run());
    EXPECT_THAT(errorLog().toStdString(), HasSubstr("Form Name: frmprogress, Module Name: BatchConversion\r\n"));
    EXPECT_EQ(records.job.strFileSizeText, "9  KB") << "read back from the box";
    EXPECT_EQ(records.job.strOutputFile, "/in/two.docx");
}

TEST_F(Queue, WhoseCursorIsBeyondTheSelectionIsLogged) {
    records.queue.lngSelectedBound = 9;
    records.queue.strCurrentFile.clear();
    run::BatchConversion(run());
    EXPECT_THAT(errorLog().toStdString(), HasSubstr("Subscript out of range"));
    EXPECT_EQ(records.job.strSourcePDF, "/in/report.pdf");
}

struct OutputRow {
    std::int16_t path;
    std::int16_t format;
    const char* recentFolder;
    const char* output;
    const char* shown;
    const char* why;
};

class QueueOutput : public Queue, public testing::WithParamInterface<OutputRow> {};

TEST_P(QueueOutput, FollowsTheSettings) {
    const OutputRow& row = GetParam();
    SCOPED_TRACE(row.why);
    records.settings.intOutputPath = row.path;
    records.settings.intOutputFormat = row.format;
    records.settings.strRecentOutputFolder = row.recentFolder;
    run::BatchConversion(run());
    EXPECT_EQ(records.job.strOutputFile, row.output);
    EXPECT_EQ(box(Text::txtfilepathOutput), row.output);
    EXPECT_EQ(box(Text::lblOutputFormatDoc), row.shown);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, QueueOutput,
    testing::Values(OutputRow{2, 0, "/out", "/in/two.doc", ".doc", "beside the source, DOC"},
                    OutputRow{2, 1, "/out", "/in/two.rtf", ".rtf", "beside the source, RTF"},
                    OutputRow{2, 2, "/out", "/in/two.docx", "docx", "beside the source, DOCX"},
                    OutputRow{0, 2, "/out", "/out/two.docx", "docx", "the remembered folder"},
                    OutputRow{0, 1, "/out/", "/out/two.rtf", ".rtf", "one that ends in a separator"},
                    OutputRow{0, 1, "", "/two.rtf", ".rtf", "no remembered folder"},
                    OutputRow{1, 1, "/out", "/out/report.docx", "docx", "all files aim at one target"}));

TEST_F(Queue, GivenUpStepsWhateverItIsTold) {
    run().blnAdvanceQueue = false;
    records.flags.blnCloseRequested = true;
    run::GetNextFile(run());
    EXPECT_EQ(records.queue.lngSelectedBound, 2);
    EXPECT_EQ(records.job.strSourcePDF, "/in/two.pdf");
    EXPECT_EQ(records.job.strOutputFile, "/in/two.docx");
    EXPECT_EQ(mainWindow.banner, Banner::lblBatchInProcess);
    EXPECT_FALSE(view.isUnloaded);
    EXPECT_EQ(eventLoop.yields, 0);
}

TEST_F(Queue, GivenUpTakesAnyExtension) {
    records.queue.strSelectedFiles[2] = "two.txt";
    files.files.insert("/in/two.txt");
    files.sizes["/in/two.txt"] = 1;
    run::GetNextFile(run());
    EXPECT_TRUE(messageBox.messages.empty());
    EXPECT_EQ(records.job.strSourcePDF, "/in/two.txt");
}

TEST_F(Queue, GivenUpAtItsEndLeavesBlanks) {
    records.queue.lngSelectedBound = 1;
    mainWindow.texts[Text::txtFileBrowsePath] = "/in/one.pdf";
    run::GetNextFile(run());
    EXPECT_EQ(records.job.strSourcePDF, " ");
    EXPECT_EQ(records.job.strFileSizeText, " ");
    for (const Text control : {Text::txtfilepathOutput, Text::txtfilepath, Text::lblOutputFormatDoc})
        EXPECT_EQ(box(control), " ");
    EXPECT_EQ(box(Text::txtFileBrowsePath), "/in/one.pdf") << "the window's next activation rewrites it";
    EXPECT_TRUE(mainWindow.buttons.at(Button::cmdBrowse));
    EXPECT_FALSE(mainWindow.buttons.at(Button::cmdBrowseOutput));
    EXPECT_EQ(mainWindow.banner, Banner::lblPlzBrowse);
}

TEST_F(Queue, GivenUpWithABrokenBoxIsLoggedUnderItsOwnNames) {
    mainWindow.failsToSetTexts = true;
    run::GetNextFile(run());
    EXPECT_THAT(errorLog().toStdString(), HasSubstr("Form Name: frmProgress, Module Name: GetNextFile\r\n"));
    EXPECT_EQ(mainWindow.banner, Banner::lblBatchInProcess) << "the next statement runs";
}

struct SizeRow {
    std::int64_t bytes;
    const char* text;
};

class SizeText : public testing::TestWithParam<SizeRow> {};

TEST_P(SizeText, IsInKilobytesInTheShortestForm) {
    EXPECT_EQ(sizeText(GetParam().bytes), GetParam().text);
}

// 5.12 bytes are half a hundredth of a kilobyte, so that halves come only with 128 bytes and more: 128/1024 is 0.125.
INSTANTIATE_TEST_SUITE_P(Rows, SizeText,
                         testing::Values(SizeRow{12800, "12.5  KB"}, SizeRow{1024, "1  KB"}, SizeRow{1000, "0.98  KB"},
                                         SizeRow{0, "0  KB"}, SizeRow{128, "0.12  KB"}, SizeRow{384, "0.38  KB"},
                                         SizeRow{1024000000, "1000000  KB"}, SizeRow{1234567890, "1205632.71  KB"}));

} // namespace
} // namespace tavrelion::tests
