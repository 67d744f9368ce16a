#include "app/support/MainFixture.h"

namespace tavrelion::tests {
namespace {

/// The choice of the document to write.
class MainWindowOutput : public MainWindow {
protected:
    /// A window with a source, as it stands before the save dialog.
    void showWithSource() {
        show();
        browse("/in/report.pdf");
        journal.clear();
    }
    void save(const QString& fileName) {
        dialogs.saved = fileName;
        click("cmdBrowseOutput");
    }
};

TEST_F(MainWindowOutput, ModeFollowsTheHomeFolderWhateverTheSettingsHold) {
    records.settings.intOutputPath = 1;
    showWithSource();
    EXPECT_EQ(records.settings.intOutputPath, 0);
    EXPECT_EQ(text("txtfilepathOutput"), "/out/report.docx");
    EXPECT_EQ(caption("lblOutputFormatDoc"), ".docx");
    records.flags.blnHomeFolderKnown = true;
    browse("/in/other.PDF");
    EXPECT_EQ(records.settings.intOutputPath, 2);
    EXPECT_EQ(text("txtfilepathOutput"), "/in/other.docx");
}

TEST_F(MainWindowOutput, OfTheThreeFormats) {
    const struct {
        std::int16_t format;
        const char* extension;
    } rows[] = {{0, ".doc"}, {1, ".rtf"}, {2, ".docx"}};
    show();
    for (const auto& row : rows) {
        records.settings.intOutputFormat = row.format;
        browse("/in/report.pdf");
        EXPECT_EQ(records.job.strOutputFile, QString("/out/report") + row.extension);
        EXPECT_EQ(records.job.strOutputShown, row.extension);
        EXPECT_EQ(caption("lblOutputFormatDoc"), row.extension);
    }
}

TEST_F(MainWindowOutput, TheRootAsRecentFolderGetsOneSeparatorOrTwo) {
    records.settings.strRecentOutputFolder = "/";
    showWithSource();
    EXPECT_EQ(text("txtfilepathOutput"), "/report.docx") << "after a selection";
    showAgain();
    EXPECT_EQ(text("txtfilepathOutput"), "//report.docx") << "after an activation";
    EXPECT_EQ(records.job.strOutputFile, "//report.docx");
}

TEST_F(MainWindowOutput, TheSaveDialogOffersTheFormatsOfTheWordProcessor) {
    const struct {
        std::int16_t installed;
        std::int16_t release;
        std::int16_t format;
        const char* filter;
        int row;
        const char* why;
    } rows[] = {
        {0, 2010, 2, "RTF Files (*.rtf)|*.rtf", 0, "there is none"},
        {1, 2003, 2, "DOC Files (*.doc)|*.doc|RTF Files (*.rtf)|*.rtf", 1, "an old one"},
        {1, 2003, 0, "DOC Files (*.doc)|*.doc|RTF Files (*.rtf)|*.rtf", 2, "the row of the longer filter"},
        {1, 2003, 1, "DOC Files (*.doc)|*.doc|RTF Files (*.rtf)|*.rtf", 3, "a row that is not there"},
        {1, 2007, 2, "DOC Files (*.docx)|*.docx|DOC Files (*.doc)|*.doc|RTF Files (*.rtf)|*.rtf", 1, "a new one"},
        {1, 2010, 0, "DOC Files (*.docx)|*.docx|DOC Files (*.doc)|*.doc|RTF Files (*.rtf)|*.rtf", 2, "a new one"},
        {1, 2010, 1, "DOC Files (*.docx)|*.docx|DOC Files (*.doc)|*.doc|RTF Files (*.rtf)|*.rtf", 3, "a new one"},
    };
    showWithSource();
    for (const auto& row : rows) {
        wordInstalled = row.installed;
        wordRelease = row.release;
        records.settings.intOutputFormat = row.format;
        click("cmdBrowseOutput");
        const FileDialogs::SaveRequest& request = dialogs.saveRequests.back();
        EXPECT_EQ(request.filter, row.filter) << row.why;
        EXPECT_EQ(request.filterRow, row.row) << row.why;
        EXPECT_EQ(request.title, "Save As");
        EXPECT_EQ(request.initialFolder, "/out");
    }
}

TEST_F(MainWindowOutput, TheSaveDialogProposesTheSourcesName) {
    const struct {
        const char* source;
        const char* proposal;
    } rows[] = {{"/in/report.pdf", "report"},
                {"/in/REPORT.PDF", "REPORT"},
                {"/in/a.pdf.old.pdf", "a.pdf.old"},
                {"/in.pdf/report.Pdf", "report"}};
    show();
    for (const auto& row : rows) {
        browse(row.source);
        click("cmdBrowseOutput");
        EXPECT_EQ(dialogs.saveRequests.back().fileName, row.proposal);
    }
    records.queue.strCurrentFile = "/in/gone.pdf";
    click("cmdBrowseOutput");
    EXPECT_EQ(dialogs.saveRequests.back().fileName, "") << "a file that is not there";
    addFiles({"/in/notes.txt"});
    records.queue.strCurrentFile = "/in/notes.txt";
    click("cmdBrowseOutput");
    EXPECT_EQ(dialogs.saveRequests.back().fileName, "") << "no PDF";
}

TEST_F(MainWindowOutput, WithoutAFolderOfTheOutputNoDialogOpens) {
    showWithSource();
    records.job.strOutputFile = "report.docx";
    click("cmdBrowseOutput");
    EXPECT_TRUE(dialogs.saveRequests.empty());
    EXPECT_EQ(errorLog(), "");
}

TEST_F(MainWindowOutput, CancelInTheSaveDialogChangesNothing) {
    showWithSource();
    click("cmdBrowseOutput");
    EXPECT_EQ(dialogs.saveRequests.size(), 1u);
    EXPECT_EQ(records.job.strOutputFile, "/out/report.docx");
    EXPECT_EQ(text("txtfilepathOutput"), "/out/report.docx");
    EXPECT_EQ(records.settings.intOutputFormat, 2);
    EXPECT_EQ(journalled(), QStringList());
    EXPECT_EQ(errorLog(), "");
}

TEST_F(MainWindowOutput, TheFormatFollowsTheNameThatWasSaved) {
    const struct {
        const char* name;
        const char* label;
        std::int16_t format;
    } rows[] = {{"/new/report.docx", ".docx", 2}, {"/new/report.Docx", ".Docx", 2}, {"/new/report.doc", ".doc", 0},
                {"/new/report.DOC", ".DOC", 0},   {"/new/report.rtf", ".rtf", 1},   {"/new/report.RTF", ".RTF", 1},
                {"/new/a.b.rtf", ".rtf", 1}};
    showWithSource();
    for (const auto& row : rows) {
        save(row.name);
        EXPECT_EQ(records.job.strOutputFile, row.name);
        EXPECT_EQ(text("txtfilepathOutput"), row.name);
        EXPECT_EQ(caption("lblOutputFormatDoc"), row.label) << "as typed";
        EXPECT_EQ(records.settings.intOutputFormat, row.format) << row.name;
        EXPECT_EQ(journalled(), QStringList());
    }
}

TEST_F(MainWindowOutput, ANameWithAnotherExtensionIsRefused) {
    showWithSource();
    for (const char* name :
         {"/new/report.txt", "/new/report", "/new.docx/report", "/new/report.", "/new/report.docm"}) {
        save(name);
        EXPECT_EQ(journalled(), QStringList{"refuse txtInvalidFileFormatOutput"}) << name;
        EXPECT_EQ(records.job.strOutputFile, name) << "the record holds the refused name";
        EXPECT_EQ(text("txtfilepathOutput"), "/out/report.docx");
        EXPECT_EQ(caption("lblOutputFormatDoc"), ".docx");
        EXPECT_EQ(records.settings.intOutputFormat, 2);
    }
}

TEST_F(MainWindowOutput, WithoutAWordProcessorOnlyRtfIsSaved) {
    wordInstalled = 0;
    showWithSource();
    save("/new/report.v2.docx");
    ASSERT_EQ(messageBox.messages.size(), 1u);
    EXPECT_EQ(messageBox.messages[0].icon, UserMessages::Icon::Information);
    EXPECT_EQ(messageBox.messages[0].text, "MS Word not installed. Only rtf format allowed.");
    EXPECT_EQ(messageBox.messages[0].title, "Tavrelion-PDF to Word Converter");
    EXPECT_EQ(records.job.strOutputFile, "/new/report.v2.rtf");
    EXPECT_EQ(text("txtfilepathOutput"), "/new/report.v2.rtf");
    EXPECT_EQ(records.settings.intOutputFormat, 1);
    save("/new/REPORT.RTF");
    EXPECT_EQ(messageBox.messages.size(), 1u) << "RTF in any letter case needs no message";
    EXPECT_EQ(caption("lblOutputFormatDoc"), ".RTF");
    EXPECT_EQ(records.settings.intOutputFormat, 1);
}

TEST_F(MainWindowOutput, WithoutASourceTheSavedNameIsNotShown) {
    for (const bool isHomeKnown : {false, true}) {
        show();
        records.flags.blnHomeFolderKnown = isHomeKnown;
        records.job.strOutputFile = "/out/old.docx";
        child("cmdBrowseOutput").setEnabled(true);
        save("/new/report.docx");
        EXPECT_EQ(text("txtfilepathOutput"), isHomeKnown ? "/new/report.docx" : "");
        EXPECT_EQ(records.job.strOutputFile, "/new/report.docx");
    }
}

TEST_F(MainWindowOutput, TheSavedNameIsWhatRuns) {
    showWithSource();
    save("/new/other.rtf");
    click("lblConvert");
    EXPECT_EQ(records.job.strOutputFile, "/new/other.rtf");
    EXPECT_EQ(records.settings.intOutputFormat, 1);
    EXPECT_EQ(records.settings.strRecentFolder, "/new");
}

} // namespace
} // namespace tavrelion::tests
