#include "app/support/MainFixture.h"
#include "ui/form/OptionButton.h"

namespace tavrelion::tests {
namespace {

/// The page range of the main window, asked for by the convert command.
class MainWindowPages : public MainWindow {
protected:
    void showWithList(const QString& range) {
        show();
        browse("/in/report.pdf");
        child<OptionButton>("chkFromTo").setValue(true);
        setText("txtFrom", range);
        window().activateWindow();
        QApplication::processEvents();
        child("cmdBrowse").setFocus();
        journal.clear();
        messageBox.messages.clear();
    }
    bool hasFocus() {
        QApplication::processEvents();
        return child("txtFrom").hasFocus();
    }
};

TEST_F(MainWindowPages, ARefusalGivesItsMessageAndTheFocus) {
    const struct {
        const char* range;
        const char* journal;
        bool focus;
    } rows[] = {
        {"0", "message", true},
        {"3-0", "message", true},
        {",5", "message", true},
        {"1-3,", "refuse pages lblpgformat", true},
        {"1,,2", "refuse pages lblpgformat", true},
        {"1-,2", "refuse pages lblpgformat", true},
        {"1,-2", "refuse pages lblpgformat", true},
        {"1-2-3", "refuse pages lblpgformat", false},
        {"123456", "refuse pages lblpgnumber", true},
        {"5,100000-100001", "refuse pages lblpgnumber", true},
    };
    for (const auto& row : rows) {
        showWithList(row.range);
        child("txtFrom").setEnabled(false);
        records.flags.blnCloseRequested = true;
        records.job.strPageRange = "of before";
        click("lblConvert");
        EXPECT_EQ(journalled(), QStringList{row.journal}) << row.range << ": one message and nothing else";
        EXPECT_TRUE(child("txtFrom").isEnabled()) << row.range;
        EXPECT_EQ(hasFocus(), row.focus) << row.range;
        EXPECT_EQ(text("txtFrom"), row.range);
        EXPECT_EQ(records.job.strPageRange, "of before") << "no record has changed";
        EXPECT_TRUE(records.flags.blnCloseRequested);
        EXPECT_TRUE(window().isVisible());
    }
}

TEST_F(MainWindowPages, TheZeroMessageIsTheSystemsOwn) {
    showWithList("0");
    click("lblConvert");
    ASSERT_EQ(messageBox.messages.size(), 1u);
    EXPECT_EQ(messageBox.messages[0].icon, UserMessages::Icon::Information);
    EXPECT_EQ(messageBox.messages[0].text, "Page range must be a number greater than zero");
    EXPECT_EQ(messageBox.messages[0].title, "Tavrelion - PDF to Word Converter");
}

TEST_F(MainWindowPages, APassedRangeIsStoredTrimmedAndElseAsTyped) {
    for (const char* range : {"1-3,5", "5-3", "99999", "2,2,1-3", "100000-100001,5"}) {
        showWithList(QString("  ") + range + " ");
        click("lblConvert");
        EXPECT_EQ(journalled(), QStringList{"frmProgress"});
        EXPECT_EQ(records.job.strPageRange, range);
        EXPECT_EQ(records.settings.intConvertFrom, 1);
    }
}

TEST_F(MainWindowPages, WithAllPagesAnyTextPasses) {
    show();
    browse("/in/report.pdf");
    journal.clear();
    setText("txtFrom", "garbage,,");
    click("lblConvert");
    EXPECT_EQ(journalled(), QStringList{"frmProgress"});
    EXPECT_EQ(records.settings.intConvertFrom, 0);
}

TEST_F(MainWindowPages, BlanksPassAndBecomeAnEmptyRange) {
    showWithList("   ");
    click("lblConvert");
    EXPECT_EQ(journalled(), QStringList{"frmProgress"});
    EXPECT_EQ(records.job.strPageRange, "");
}

TEST_F(MainWindowPages, TheOptionsDecideAtOnce) {
    show();
    auto& all = child<OptionButton>("chkAllPages");
    auto& list = child<OptionButton>("chkFromTo");
    EXPECT_TRUE(all.value());
    EXPECT_FALSE(child("txtFrom").isEnabled());
    list.click();
    EXPECT_EQ(records.settings.intConvertFrom, 1);
    EXPECT_TRUE(child("txtFrom").isEnabled());
    EXPECT_TRUE(child("lblFrom").isEnabled());
    EXPECT_EQ(nextWindows.imagePages, NextWindows::ImagePages::List) << "the extraction wizard hears of it";
    setText("txtFrom", "4-6");
    all.click();
    EXPECT_EQ(records.settings.intConvertFrom, 0);
    EXPECT_FALSE(child("txtFrom").isEnabled());
    EXPECT_EQ(text("txtFrom"), "4-6") << "the text stays";
    list.click();
    click("lblAllPages");
    EXPECT_TRUE(all.value());
    EXPECT_EQ(records.settings.intConvertFrom, 0);
    EXPECT_FALSE(child("txtFrom").isEnabled());
}

TEST_F(MainWindowPages, TheBoxFiltersItsKeys) {
    showWithList({});
    QTest::keyClicks(&child("txtFrom"), ",-1-a ,3");
    EXPECT_EQ(text("txtFrom"), "1-3");
}

} // namespace
} // namespace tavrelion::tests
