#include "app/support/MainFixture.h"

#include <QMenu>

namespace tavrelion::tests {
namespace {

/// The menu behind the arrow beside the convert command.
class MainWindowMenu : public MainWindow {
protected:
    MainWindowMenu() { records.flags.blnCloseRequested = true; }
    ~MainWindowMenu() override { menu().close(); }

    QMenu& menu() { return *window().findChild<QMenu*>(); }
    QAction& entry(const char* name) { return *window().findChild<QAction*>(name); }
    void showWithSource(const QString& path = "/in/report.pdf") {
        show();
        browse(path);
        journal.clear();
    }
};

TEST_F(MainWindowMenu, HasItsEntriesInEveryLanguage) {
    show();
    QStringList names;
    for (const QAction* action : menu().actions())
        names << action->objectName();
    EXPECT_EQ(names, (QStringList{"mnuconvwiz", "mnusaveDoc", "mnuSaveRTF", "mnusep1", "mnuExtimgWiz"}));
    EXPECT_EQ(entry("mnusaveDoc").text(), "Save as &DOC");
    records.settings.intLanguageID = 3;
    showAgain();
    EXPECT_EQ(entry("mnusaveDoc").text(), "Als &DOC speichern");
    EXPECT_TRUE(caption("lblExtimgWiz").remove('&').startsWith("Bilder")) << caption("lblExtimgWiz").toStdString();
}

TEST_F(MainWindowMenu, OpensWhateverItsEntriesAreAndEnablesThemForAPdfInSmallLetters) {
    const struct {
        const char* path;
        bool enabled;
    } rows[] = {{"", false},
                {"   ", false},
                {"/in/REPORT.PDF", false},
                {"/in/report.Pdf", false},
                {"/in/report.txt", false},
                {"/in/report.pdf", true}};
    show();
    for (const auto& row : rows) {
        setText("txtfilepath", row.path);
        click("imgDropDown");
        EXPECT_TRUE(menu().isVisible()) << row.path;
        for (const char* name : {"mnuconvwiz", "mnusaveDoc", "mnuSaveRTF", "mnuExtimgWiz"})
            EXPECT_EQ(entry(name).isEnabled(), row.enabled) << name << " for " << row.path;
        menu().close();
    }
}

TEST_F(MainWindowMenu, OpensBelowTheArrowAndByTheKeyboard) {
    show();
    window().move(400, 100);
    QTest::keyClick(&child("imgDropDown"), Qt::Key_Down);
    EXPECT_TRUE(menu().isVisible());
    const QPoint arrow = child("imgDropDown").mapToGlobal(QPoint());
    EXPECT_EQ(menu().pos(), QPoint(arrow.x() - 153, arrow.y() + child("imgDropDown").height() + 6));
}

TEST_F(MainWindowMenu, ConvertUsingWizardStartsAtTheOutputPage) {
    const struct {
        std::int16_t format;
        const char* output;
    } rows[] = {{0, "/out/report.doc"}, {1, "/out/report.rtf"}, {2, "/out/report.rtf"}};
    for (const auto& row : rows) {
        records.settings.intOutputFormat = row.format;
        records.settings.intLauchMs = 1;
        showWithSource();
        languages.applicationFolder = "/nowhere"; // neither the language files nor the pages are checked
        setText("txtFrom", "1,,2");
        entry("mnuconvwiz").trigger();
        languages.applicationFolder = TAVRELION_PROGRAM_FOLDER;
        EXPECT_EQ(journalled(), QStringList{"frmOutputOptions"});
        EXPECT_FALSE(window().isVisible());
        EXPECT_FALSE(records.flags.blnCloseRequested);
        EXPECT_EQ(records.job.strOutputFile, row.output) << "the menu knows no DOCX";
        EXPECT_EQ(records.job.strFileSizeText, "12.5  KB");
        EXPECT_EQ(records.job.intOpenDocEditing, 1);
    }
}

TEST_F(MainWindowMenu, ConvertUsingWizardDoesNothingForCapitals) {
    showWithSource("/in/REPORT.PDF");
    entry("mnuconvwiz").trigger();
    EXPECT_EQ(journalled(), QStringList());
    EXPECT_TRUE(window().isVisible());
    EXPECT_FALSE(records.flags.blnCloseRequested);
}

TEST_F(MainWindowMenu, ExtractUsingWizardNeedsAnyFile) {
    show();
    entry("mnuExtimgWiz").trigger();
    EXPECT_EQ(journalled(), QStringList());
    EXPECT_FALSE(records.flags.blnCloseRequested);
    setText("txtfilepath", "/in/report.txt");
    setText("txtFileSize", "1  KB");
    entry("mnuExtimgWiz").trigger();
    EXPECT_EQ(journalled(), QStringList{"frmImageFormatOutput"});
    EXPECT_EQ(records.job.strSourcePDF, "/in/report.txt");
    EXPECT_EQ(records.job.strFileSizeText, "1  KB");
    EXPECT_FALSE(window().isVisible());
}

TEST_F(MainWindowMenu, SaveAsGoesBesideTheSourceAndTheFormatStays) {
    const struct {
        const char* entry;
        const char* output;
        std::int16_t format;
    } rows[] = {{"mnusaveDoc", "/in/report.doc", 0}, {"mnuSaveRTF", "/in/report.rtf", 1}};
    for (const auto& row : rows) {
        showWithSource();
        records.job.strPageRange = "of before";
        setText("txtFrom", "4");
        records.flags.blnCloseRequested = true;
        entry(row.entry).trigger();
        EXPECT_EQ(journalled(), QStringList{"frmProgress until its end"});
        EXPECT_TRUE(window().isVisible()) << "the window is not hidden";
        EXPECT_FALSE(records.flags.blnCloseRequested);
        EXPECT_EQ(records.flags.intRunKind, 1);
        EXPECT_EQ(records.job.strSourcePDF, "/in/report.pdf");
        EXPECT_EQ(records.job.strOutputFile, row.output);
        EXPECT_EQ(records.settings.intOutputFormat, row.format);
        EXPECT_EQ(records.job.strPageRange, "of before") << "no page range is taken";
    }
}

TEST_F(MainWindowMenu, SaveAsWithoutAFileOnlyClearsTheStopFlag) {
    show();
    entry("mnusaveDoc").trigger();
    EXPECT_EQ(journalled(), QStringList());
    EXPECT_FALSE(records.flags.blnCloseRequested);
    EXPECT_EQ(records.settings.intOutputFormat, 2);
}

} // namespace
} // namespace tavrelion::tests
