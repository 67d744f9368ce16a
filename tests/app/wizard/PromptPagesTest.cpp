#include "PageFixture.h"

#include "core/PageNumberPair.h"
#include "ui/dialogs/frmPromptPages.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace tavrelion::tests {
namespace {

class PromptForPages : public PageFixture {
protected:
    PromptForPages() { window->showForm(); }
    OptionButton& choice(const char* name) { return *window->findChild<OptionButton*>(name); }
    QLineEdit& box(const char* name) { return *window->findChild<QLineEdit*>(name); }
    void ok(const QString& from, const QString& to) {
        choice("chkFromTo").setValue(true);
        box("txtFrom").setText(from);
        box("txtTo").setText(to);
        press();
    }
    void press() { QTest::mouseClick(window->findChild<QPushButton*>("cmdOK"), Qt::LeftButton); }

    std::shared_ptr<frmPromptPages> window =
        registry.obtain<frmPromptPages>(PromptPagesPorts{records, languages, refusals, messageBox});
};

TEST_F(PromptForPages, RefusesPairsThatAreNoRange) {
    struct Row {
        const char* from;
        const char* to;
        const char* message;
    };
    for (const Row& row :
         {Row{"5", "3", "txtIncorrectRange"}, Row{"0", "3", "txtPageRangeZero"}, Row{"", "3", "txtIncompleteRange"},
          Row{"5", "", "txtIncompleteRange"}, Row{"", "", "txtIncompleteRange"}}) {
        refusals.refused.clear();
        ok(row.from, row.to);
        EXPECT_EQ(refusals.refused, QStringList{row.message}) << row.from << " to " << row.to;
        EXPECT_TRUE(window->isLoaded());
        EXPECT_EQ(records.job.intPageFrom, 0);
    }
}

TEST_F(PromptForPages, StoresAPairAndCloses) {
    records.job.intUseFromTo = -1;
    ok("3", "3");
    EXPECT_EQ(records.job.intUseFromTo, 0);
    EXPECT_EQ(records.job.intPageFrom, 3);
    EXPECT_EQ(records.job.intPageTo, 3);
    EXPECT_FALSE(window->isLoaded());
}

TEST_F(PromptForPages, AllPagesEmptyTheBoxes) {
    choice("chkFromTo").setValue(true);
    box("txtFrom").setText("3");
    choice("chkAllPages").setValue(true);
    EXPECT_EQ(box("txtFrom").text(), "");
    EXPECT_FALSE(box("txtFrom").isEnabled());
    EXPECT_FALSE(box("txtTo").isEnabled());
    press();
    EXPECT_EQ(records.job.intUseFromTo, -1);
    EXPECT_FALSE(window->isLoaded());
}

TEST_F(PromptForPages, WithNeitherOptionOnlyCloses) {
    const auto before = fields();
    press();
    EXPECT_EQ(fields(), before);
    EXPECT_FALSE(window->isLoaded());
}

TEST_F(PromptForPages, TakesDigitsOnlySoThatAListCannotBeTyped) {
    choice("chkFromTo").setValue(true);
    QTest::keyClicks(&box("txtFrom"), "1,2-3x");
    EXPECT_EQ(box("txtFrom").text(), "123");
    QTest::keyClick(&box("txtFrom"), Qt::Key_Backspace);
    EXPECT_EQ(box("txtFrom").text(), "12");
}

TEST_F(PromptForPages, ANumberThatNoFieldHoldsIsToldAndTheWindowStays) {
    ok("1", "32768");
    ASSERT_EQ(messageBox.messages.size(), 1u);
    EXPECT_EQ(messageBox.messages[0].icon, UserMessages::Icon::Critical);
    EXPECT_TRUE(window->isLoaded());
    EXPECT_EQ(records.job.intPageFrom, 0);
    ok("1", "32767");
    EXPECT_EQ(records.job.intPageTo, 32767);
}

TEST_F(PromptForPages, ItsBoxesCanBeSwitchedFromOutside) {
    window->disablePageBoxes();
    EXPECT_FALSE(box("txtTo").isEnabled());
    window->enablePageBoxes();
    EXPECT_TRUE(box("txtFrom").isEnabled());
}

TEST(PageNumbers, OfABoxAreItsLeadingDigits) {
    EXPECT_EQ(pageNumberOf("0012"), 12);
    EXPECT_EQ(pageNumberOf(" 7x9"), 7);
    EXPECT_EQ(pageNumberOf("x"), 0);
    EXPECT_THROW(pageNumberOf("99999999999999999999"), std::overflow_error);
}

} // namespace
} // namespace tavrelion::tests
