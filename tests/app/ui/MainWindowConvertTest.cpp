#include "app/support/LanguageFolder.h"
#include "app/support/MainFixture.h"
#include "ui/form/OptionButton.h"

#include <QCheckBox>

namespace tavrelion::tests {
namespace {

/// The commands that hand a job over.
class MainWindowCommand : public MainWindow {
protected:
    MainWindowCommand() {
        records.settings.intLauchMs = 2;
        records.flags.blnCloseRequested = true;
    }
    void showWithSource() {
        show();
        browse("/in/report.pdf");
        journal.clear();
    }
    void chooseList(const QString& range) {
        child<OptionButton>("chkFromTo").setValue(true);
        setText("txtFrom", range);
    }
    /// Takes the language files away; what is told about it goes to the journal.
    void breakLanguages() {
        languages.applicationFolder = "/nowhere";
        languages.tellLoadFailure = [this](const QString& text) { journal << text.section('\n', 0, 0); };
    }
};

TEST_F(MainWindowCommand, ConvertHandsTheJobToTheRun) {
    for (const char* command : {"imgConvert", "lblConvert"}) {
        showWithSource();
        records.job.intUseFromTo = 7;
        click(command);
        EXPECT_EQ(journalled(), QStringList{"frmProgress"}) << command;
        EXPECT_FALSE(window().isVisible());
        EXPECT_FALSE(records.flags.blnCloseRequested);
        EXPECT_EQ(records.flags.intRunKind, 1);
        EXPECT_EQ(records.job.strSourcePDF, "/in/report.pdf");
        EXPECT_EQ(records.job.strOutputFile, "/out/report.docx");
        EXPECT_EQ(records.job.strOutputShown, ".docx");
        EXPECT_EQ(records.job.strFileSizeText, "12.5  KB");
        EXPECT_EQ(records.job.strPageRange, "1");
        EXPECT_EQ(records.job.intUseFromTo, -1) << "all pages";
        EXPECT_EQ(records.job.intOpenDocEditing, 1);
        EXPECT_EQ(records.settings.strRecentFolder, "/out") << "the folder of the output";
    }
}

TEST_F(MainWindowCommand, ConvertWithTheWizardShowsItsFirstPage) {
    records.settings.intUseWiz = 1;
    showWithSource();
    records.flags.intRunKind = 0;
    click("lblConvert");
    EXPECT_EQ(journalled(), QStringList{"frmLayout"});
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(records.flags.intRunKind, 0) << "it is set at the wizard's end";
}

TEST_F(MainWindowCommand, WithoutTheTickNothingIsOpenedNowOrLater) {
    showWithSource();
    child<QCheckBox>("chkOpenDocEditing").setChecked(false);
    click("lblConvert");
    EXPECT_EQ(records.job.intOpenDocEditing, 0);
    EXPECT_EQ(records.settings.intLauchMs, 0);
}

TEST_F(MainWindowCommand, ChecksInOneOrder) {
    // Each row has the faults of the rows below it too, and tells of the first alone.
    show();
    chooseList("0,,");
    breakLanguages();
    click("lblConvert");
    EXPECT_EQ(journalled().value(0).left(16), "Failed to load <") << "the language files before all";
    EXPECT_TRUE(window().isVisible());
    EXPECT_TRUE(records.flags.blnCloseRequested);
    languages.applicationFolder = TAVRELION_PROGRAM_FOLDER;
    click("lblConvert");
    EXPECT_EQ(journalled(), QStringList{"message"}) << "the page range before the file";
    EXPECT_TRUE(records.flags.blnCloseRequested);
    setText("txtFrom", "");
    click("lblConvert");
    EXPECT_EQ(journalled(), QStringList{"refuse txtSelectPDFFile"}) << "the file before the empty range";
    EXPECT_FALSE(records.flags.blnCloseRequested);
    setText("txtfilepath", "/in/report.txt");
    records.job.strSourcePDF = "of before";
    click("lblConvert");
    EXPECT_EQ(journalled(), QStringList()) << "a file of another kind is dropped silently";
    EXPECT_EQ(records.job.strSourcePDF, "of before");
    setText("txtfilepath", "/in/report.pdf");
    click("lblConvert");
    EXPECT_EQ(journalled(), QStringList{"refuse txtIncompleteRange"});
    EXPECT_EQ(records.job.strSourcePDF, "/in/report.pdf") << "written already, but nothing is started";
    EXPECT_TRUE(window().isVisible());
    setText("txtFrom", "2");
    click("lblConvert");
    EXPECT_EQ(journalled(), QStringList{"frmProgress"});
}

TEST_F(MainWindowCommand, WithNoFileAndAnInvalidRangeOnlyTheRangeIsReported) {
    show();
    chooseList("1,,2");
    click("lblConvert");
    EXPECT_EQ(journalled(), QStringList{"refuse pages lblpgformat"});
}

TEST_F(MainWindowCommand, ConvertTakesCapitalsInTheExtension) {
    show();
    browse("/in/REPORT.PDF");
    journal.clear();
    click("lblConvert");
    EXPECT_EQ(journalled(), QStringList{"frmProgress"});
    EXPECT_EQ(records.job.strOutputFile, "/out/REPORT.docx");
}

TEST_F(MainWindowCommand, WhatTheOutputBoxShowsRunsUnchecked) {
    showWithSource();
    setText("txtfilepathOutput", "/odd/place.anything");
    click("lblConvert");
    EXPECT_EQ(records.job.strOutputFile, "/odd/place.anything");
}

TEST_F(MainWindowCommand, TheFormatOfTheRunComesFromTheLabel) {
    const struct {
        const char* label;
        std::int16_t format;
    } rows[] = {{".docx", 2}, {".DOCX", 2}, {".doc", 0}, {".Doc", 0}, {".rtf", 1}, {"docx", 1}, {"", 1}};
    for (const auto& row : rows) {
        showWithSource();
        child<QLabel>("lblOutputFormatDoc").setText(row.label);
        click("lblConvert");
        EXPECT_EQ(records.settings.intOutputFormat, row.format) << row.label;
        EXPECT_EQ(records.job.strOutputShown, row.label);
    }
}

TEST_F(MainWindowCommand, RemembersTheFolderOfTheOutput) {
    const struct {
        const char* output;
        const char* recent;
        const char* why;
    } rows[] = {{"/out/deep/report.docx", "/out/deep", "a folder"},
                {"/report.docx", "/", "the root"},
                {"/a/report.docx", "/a/", "shorter than three characters"},
                {"/ab/report.docx", "/ab", "three are enough"},
                {"report.docx", "of before", "no folder at all"}};
    for (const auto& row : rows) {
        showWithSource();
        setText("txtfilepathOutput", row.output);
        records.settings.strRecentFolder = "of before";
        click("lblConvert");
        EXPECT_EQ(records.settings.strRecentFolder, row.recent) << row.why;
    }
}

TEST_F(MainWindowCommand, TheChoiceOfPagesIsStored) {
    showWithSource();
    records.settings.intPromptPageRange = 3;
    chooseList("2-4");
    click("lblConvert");
    EXPECT_EQ(records.settings.intConvertFrom, 1);
    EXPECT_EQ(records.settings.intPromptPageRange, 3);
    EXPECT_EQ(records.job.intUseFromTo, 0);
    EXPECT_EQ(records.job.strPageRange, "2-4");
    show();
    child<OptionButton>("chkAllPages").setValue(true);
    click("lblConvert");
    EXPECT_EQ(records.settings.intConvertFrom, 0);
    EXPECT_EQ(records.settings.intPromptPageRange, 0);
    EXPECT_EQ(records.job.intUseFromTo, -1);
}

TEST_F(MainWindowCommand, ExtractHandsOverToItsWizard) {
    for (const char* command : {"imgExtractImages", "lblExtimgWiz"}) {
        showWithSource();
        chooseList(" 2-4 ");
        click(command);
        EXPECT_EQ(journalled(), QStringList{"frmImageFormatOutput"}) << command;
        EXPECT_FALSE(window().isVisible());
        EXPECT_FALSE(records.flags.blnCloseRequested);
        EXPECT_EQ(records.job.strImageFormat, "<same>");
        EXPECT_EQ(records.job.strPageRange, "2-4");
        EXPECT_EQ(nextWindows.strExtractPages, "2-4");
        EXPECT_EQ(nextWindows.intExtractFromTo, 1);
        EXPECT_EQ(nextWindows.imagePages, NextWindows::ImagePages::List);
        EXPECT_EQ(records.job.strImageFolder, "/out/");
    }
}

TEST_F(MainWindowCommand, ExtractWithAllPagesKeepsTheRange) {
    showWithSource();
    records.job.strPageRange = "7-9";
    click("lblExtimgWiz");
    EXPECT_EQ(nextWindows.imagePages, NextWindows::ImagePages::All);
    EXPECT_EQ(nextWindows.intExtractFromTo, 0);
    EXPECT_EQ(nextWindows.strExtractPages, "7-9");
    EXPECT_EQ(records.settings.intConvertFrom, 0);
}

TEST_F(MainWindowCommand, ExtractTakesTheFolderFromTheOutputBox) {
    const struct {
        const char* output;
        const char* folder;
    } rows[] = {{"/out/report.DOC", "/out/"},
                {"/out/report.rtf", "/out/"},
                {"/out/report.docx", "/out/"},
                {"/out/pictures", "/out/pictures"},
                {"/out.docx/pictures", "/out.docx/pictures"},
                {"report.docx", ""}};
    for (const auto& row : rows) {
        showWithSource();
        setText("txtfilepathOutput", row.output);
        click("lblExtimgWiz");
        EXPECT_EQ(records.job.strImageFolder, row.folder) << row.output;
    }
}

TEST_F(MainWindowCommand, ExtractChecksInTheSameOrderButNoExtensionAndNoEmptyRange) {
    show();
    chooseList("1,,2");
    breakLanguages();
    click("lblExtimgWiz");
    EXPECT_EQ(journalled().value(0).left(16), "Failed to load <");
    languages.applicationFolder = TAVRELION_PROGRAM_FOLDER;
    click("lblExtimgWiz");
    EXPECT_EQ(journalled(), QStringList{"refuse pages lblpgformat"});
    EXPECT_TRUE(records.flags.blnCloseRequested);
    setText("txtFrom", "");
    records.job.strPageRange = "older";
    click("lblExtimgWiz");
    EXPECT_EQ(journalled(), QStringList{"refuse txtSelectPDFFile"});
    EXPECT_TRUE(window().isVisible());
    setText("txtfilepath", "/in/report.txt");
    click("lblExtimgWiz");
    EXPECT_EQ(journalled(), QStringList{"frmImageFormatOutput"});
    EXPECT_EQ(records.job.strPageRange, "");
}

TEST_F(MainWindowCommand, AFailingExtractionIsLoggedAndEnds) {
    showWithSource();
    nextWindows.failsToShow = true;
    click("lblExtimgWiz");
    EXPECT_TRUE(window().isVisible());
    EXPECT_TRUE(errorLog().contains("Form Name: frmMain, Module Name: imgExtractImages_Click"))
        << errorLog().toStdString();
}

} // namespace
} // namespace tavrelion::tests
