#include "app/support/MainFixture.h"
#include "ui/form/OptionButton.h"

#include <QCheckBox>

namespace tavrelion::tests {
namespace {

/// How the window comes up and is rebuilt from the records each time it comes back.
class MainWindowActivation : public MainWindow {
protected:
    void startWith(const QString& commandLine) {
        records.flags.strCommandLine = commandLine;
        show();
    }
};

TEST_F(MainWindowActivation, ShowsTheJobOfTheRecords) {
    records.job.strSourcePDF = "/in/report.pdf";
    records.job.strFileSizeText = "1  KB";
    records.job.strPageRange = "4-6";
    records.settings.intConvertFrom = 1;
    records.settings.intLauchMs = 1;
    records.flags.intWordOpened = 1;
    show();
    EXPECT_EQ(text("txtfilepath"), "/in/report.pdf");
    EXPECT_EQ(text("txtFileBrowsePath"), "/in/report.pdf");
    EXPECT_EQ(child("txtFileBrowsePath").toolTip(), "/in/report.pdf");
    EXPECT_EQ(text("txtFileSize"), "1  KB");
    EXPECT_EQ(text("txtFrom"), "4-6");
    EXPECT_EQ(text("txtfilepathOutput"), "/out/report.docx");
    EXPECT_EQ(records.job.strOutputFile, "/out/report.docx");
    EXPECT_EQ(caption("lblOutputFormatDoc"), ".docx");
    EXPECT_TRUE(child("cmdBrowseOutput").isEnabled());
    EXPECT_TRUE(child<QCheckBox>("chkOpenDocEditing").isChecked());
    EXPECT_EQ(records.flags.intWordOpened, 0);
    EXPECT_FALSE(child("txtfilepath").isVisible()) << "it is what the commands read, not what the user sees";
    records.job.strSourcePDF = "/in/next.pdf";
    records.settings.intOutputFormat = 1;
    records.settings.intLauchMs = 0;
    showAgain();
    EXPECT_EQ(text("txtfilepath"), "/in/next.pdf");
    EXPECT_EQ(text("txtfilepathOutput"), "/out/next.rtf");
    EXPECT_EQ(caption("lblOutputFormatDoc"), ".rtf");
    EXPECT_FALSE(child<QCheckBox>("chkOpenDocEditing").isChecked());
}

TEST_F(MainWindowActivation, WithAnEmptyStoreHasPageOneAndNoOutput) {
    show();
    EXPECT_EQ(records.job.strPageRange, "1");
    EXPECT_EQ(text("txtFrom"), "1");
    EXPECT_EQ(text("txtfilepathOutput"), "");
    EXPECT_EQ(records.job.strOutputFile, "");
    EXPECT_EQ(caption("lblOutputFormatDoc"), "");
    EXPECT_FALSE(child("cmdBrowseOutput").isEnabled());
    EXPECT_TRUE(child("lblPlzBrowse").isVisible());
    EXPECT_TRUE(child("cmdBrowse").isEnabled());
}

TEST_F(MainWindowActivation, OneBlankAsSourceIsNone) {
    records.job.strSourcePDF = " ";
    records.queue.lngSelectedBound = 3;
    show();
    EXPECT_EQ(text("txtfilepathOutput"), " ");
    EXPECT_FALSE(child("cmdBrowseOutput").isEnabled());
    EXPECT_FALSE(child("lblBatchInProcess").isVisible());
}

TEST_F(MainWindowActivation, WithAKnownHomeFolderTheOutputOfTheRecordsStands) {
    const struct {
        const char* output;
        const char* shown;
        const char* why;
    } rows[] = {{"/else/x.DOC", "/else/x.DOC", "a document"},
                {"/else/x.docx", "/else/x.docx", "a document"},
                {"/else/", "/else/report.docx", "a folder gets the name"},
                {"/else", "/elsereport.docx", "directly behind it"},
                {"", "report.docx", "even behind nothing"}};
    records.flags.blnHomeFolderKnown = true;
    for (const auto& row : rows) {
        records.job.strSourcePDF = "/in/report.pdf";
        records.job.strOutputFile = row.output;
        window().hide();
        show();
        EXPECT_EQ(text("txtfilepathOutput"), row.shown) << row.why;
        EXPECT_EQ(records.job.strOutputFile, row.shown) << row.why;
    }
    EXPECT_EQ(caption("lblOutputFormatDoc"), ".docx");
}

TEST_F(MainWindowActivation, TheLoadingWindowStartsFromTheHomeFolder) {
    records.job.strSourcePDF = "/in/report.pdf";
    records.job.strOutputFile = "/as/it/was.doc";
    window().load();
    EXPECT_EQ(text("txtfilepathOutput"), homePath("report.rtf"));
    EXPECT_EQ(records.job.strOutputFile, "/as/it/was.doc");
    EXPECT_EQ(records.job.strOutputShown, ".docx");
}

TEST_F(MainWindowActivation, TheLoadingWindowWithAKnownHomeFolderShowsTheOutputOfTheRecords) {
    records.flags.blnHomeFolderKnown = true;
    records.job.strOutputFile = "/as/it/was.doc";
    window().load();
    EXPECT_EQ(text("txtfilepathOutput"), "/as/it/was.doc");
}

TEST_F(MainWindowActivation, TheLoadingWindowEnablesByTheWizard) {
    const struct {
        std::int16_t useWiz;
        const char* source;
        bool output;
        bool list;
    } rows[] = {{0, "/in/report.pdf", false, false}, {1, "/in/report.pdf", true, true}, {1, "", false, true}};
    for (const auto& row : rows) {
        records.settings.intUseWiz = row.useWiz;
        records.job.strSourcePDF = row.source;
        const auto form = registry.obtain<frmMain>(mainPorts());
        form->load();
        EXPECT_EQ(form->findChild<QWidget*>("cmdBrowseOutput")->isEnabled(), row.output);
        EXPECT_EQ(form->findChild<QWidget*>("chkFromTo")->isEnabled(), row.list);
        registry.dispose();
    }
}

TEST_F(MainWindowActivation, TheLoadingWindowClearsTheStopFlagOnlyForACommandLine) {
    records.flags.blnCloseRequested = true;
    records.flags.strCommandLine = "abcd";
    window().load();
    EXPECT_TRUE(records.flags.blnCloseRequested);
    registry.dispose();
    records.flags.strCommandLine = "a.pdf";
    registry.obtain<frmMain>(mainPorts())->load();
    EXPECT_FALSE(records.flags.blnCloseRequested);
}

TEST_F(MainWindowActivation, ThePageOptionsFollowTheRecords) {
    show();
    auto& all = child<OptionButton>("chkAllPages");
    auto& list = child<OptionButton>("chkFromTo");
    records.settings.intConvertFrom = 0;
    showAgain();
    EXPECT_TRUE(all.value());
    EXPECT_FALSE(list.value());
    EXPECT_TRUE(list.isEnabled());
    EXPECT_FALSE(child("lblFrom").isEnabled());
    EXPECT_FALSE(child("txtFrom").isEnabled());
    records.settings.intConvertFrom = 1;
    showAgain();
    EXPECT_FALSE(all.value());
    EXPECT_TRUE(list.value());
    EXPECT_TRUE(list.isEnabled());
    EXPECT_TRUE(child("txtFrom").isEnabled());
    records.settings.intConvertFrom = 5;
    showAgain();
    EXPECT_FALSE(all.value());
    EXPECT_TRUE(list.value());
    EXPECT_TRUE(list.isEnabled());
    EXPECT_TRUE(child("lblFrom").isEnabled());
    EXPECT_FALSE(child("txtFrom").isEnabled());
}

TEST_F(MainWindowActivation, TheFormatCaptionEndsInOneColonInEveryLanguage) {
    for (std::int16_t language = 0; language < kLanguageCount; ++language) {
        records.settings.intLanguageID = language;
        window().hide();
        show();
        const QString shown = caption("lblOutputformat");
        EXPECT_TRUE(shown.endsWith(':')) << shown.toStdString();
        EXPECT_EQ(shown.count(':'), 1) << shown.toStdString();
        EXPECT_GT(shown.size(), 3);
        EXPECT_EQ(caption("cmdBrowseOutput").remove('&'), caption("cmdBrowse").remove('&'));
    }
}

TEST_F(MainWindowActivation, TheBannerNeedsAFileAndABatch) {
    const struct {
        const char* source;
        std::int32_t bound;
        bool isBatch;
    } rows[] = {{"/in/a.pdf", 1, true},
                {"/in/a.pdf", 4, true},
                {"/in/a.pdf", 0, false},
                {"/in/a.pdf", -1, false},
                {"", 4, false}};
    for (const auto& row : rows) {
        records.job.strSourcePDF = row.source;
        records.queue.lngSelectedBound = row.bound;
        window().hide();
        show();
        EXPECT_EQ(child("lblBatchInProcess").isVisible(), row.isBatch) << row.source << ' ' << row.bound;
        EXPECT_EQ(child("lblPlzBrowse").isVisible(), !row.isBatch) << row.source << ' ' << row.bound;
    }
}

TEST_F(MainWindowActivation, ABarePathRunsAtOnceWhateverTheWizardSetting) {
    records.settings.intUseWiz = 1;
    records.flags.blnCloseRequested = true;
    startWith("/in/report.pdf");
    EXPECT_EQ(journalled(), QStringList{"frmProgress"});
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(records.settings.intUseWiz, 0) << "and it stays so";
    EXPECT_EQ(records.flags.intRunKind, 1);
    EXPECT_EQ(records.job.strSourcePDF, "/in/report.pdf");
    EXPECT_EQ(records.job.strOutputFile, "/out/report.docx");
    EXPECT_EQ(records.job.intOpenDocEditing, 1) << "a direct run opens its document";
    EXPECT_EQ(records.flags.strCommandLine, "");
    EXPECT_TRUE(child("cmdBrowseOutput").isEnabled()) << "the window is brought in line though it is hidden";
    showAgain();
    EXPECT_EQ(journalled(), QStringList()) << "it is acted on once";
    EXPECT_EQ(text("txtfilepath"), "/in/report.pdf") << "and the file is still shown";
}

TEST_F(MainWindowActivation, ModeTwoRunsTheWizard) {
    startWith("/in/report.pdf~!~2");
    EXPECT_EQ(journalled(), QStringList{"frmLayout"});
    EXPECT_EQ(records.settings.intUseWiz, 1);
    EXPECT_EQ(records.job.strSourcePDF, "/in/report.pdf");
}

TEST_F(MainWindowActivation, QuotesGoWithoutAModeAndStayWithOne) {
    startWith("\"/in/my report.pdf\"");
    EXPECT_EQ(journalled(), QStringList{"frmProgress"});
    EXPECT_EQ(records.job.strSourcePDF, "/in/my report.pdf");
    records.flags.blnCloseRequested = false;
    records.job.strSourcePDF = "of before";
    records.flags.strCommandLine = "\"/in/my report.pdf\"~!~2";
    showAgain();
    EXPECT_EQ(journalled(), QStringList()) << "the quote at the end keeps it from being a PDF";
    EXPECT_EQ(text("txtfilepath"), "\"/in/my report.pdf\"");
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(records.flags.strCommandLine, "");
}

TEST_F(MainWindowActivation, ACancelledWizardKeepsTheFileFromRunning) {
    records.flags.intWizardCancelled = 1;
    startWith("/in/report.pdf~!~2");
    EXPECT_EQ(journalled(), QStringList());
    EXPECT_EQ(text("txtfilepath"), "/in/report.pdf");
    EXPECT_EQ(text("txtfilepathOutput"), "/out/report.docx");
    EXPECT_TRUE(window().isVisible());
}

TEST_F(MainWindowActivation, OtherFilesAreRefusedAndEndTheProgram) {
    const char* const kDocument = "Please open document in MS Word and click <Create PDF> Plug-in, \n"
                                  "if you want to convert this document in PDF.";
    const char* const kOther = "Sorry! Tavrelion does not support the requested file format.";
    const struct {
        const char* line;
        const char* message;
    } rows[] = {{"/in/letter.doc", kDocument}, {"/in/letter.DOCX", kDocument},  {"\"/in/letter.rtf\"", kDocument},
                {"/in/picture.png", kOther},   {"\"/in/letter.docx\"", kOther}, {"a.pdf~!~", kOther}};
    for (const auto& row : rows) {
        FormRegistry forms;
        messageBox.messages.clear();
        records.flags.strCommandLine = row.line;
        forms.obtain<frmMain>(mainPorts())->showForm();
        ASSERT_EQ(messageBox.messages.size(), 1u) << row.line;
        EXPECT_EQ(messageBox.messages[0].text, row.message) << row.line;
        EXPECT_EQ(messageBox.messages[0].icon, UserMessages::Icon::Information);
        EXPECT_EQ(messageBox.messages[0].title, "Tavrelion-PDF to Word Converter");
        EXPECT_TRUE(forms.hasProgramEnded());
        EXPECT_FALSE(journalled().contains("frmProgress"));
        forms.dispose();
    }
}

TEST_F(MainWindowActivation, AShortCommandLineIsIgnoredButNeverCleared) {
    startWith("abcd");
    EXPECT_EQ(journalled(), QStringList());
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(records.flags.strCommandLine, "abcd");
}

TEST_F(MainWindowActivation, AClosingProgramActsOnNoCommandLine) {
    show();
    records.flags.blnCloseRequested = true;
    records.flags.strCommandLine = "/in/report.pdf";
    showAgain();
    EXPECT_EQ(journalled(), QStringList());
    EXPECT_EQ(records.flags.strCommandLine, "/in/report.pdf");
}

} // namespace
} // namespace tavrelion::tests
