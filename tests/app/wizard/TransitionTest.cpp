#include "PageFixture.h"

#include "ui/extract/frmImageFormatOutput.h"

#include <QFile>
#include <QPushButton>

#include <ostream>

namespace tavrelion::tests {
namespace {

using Changes = QMap<QString, QString>;

/// One way from page to page: the button that is pressed, what stands on the page, and what becomes of the records.
struct Transition {
    const char* from;
    const char* button;
    std::int16_t intReconstMode; ///< when the page is shown
    QMap<QString, QString> page; ///< options by "on", boxes by their text, as the user leaves them
    const char* target;
    Changes stored; ///< every field that differs afterwards
    const char* why;
};

void PrintTo(const Transition& row, std::ostream* out) {
    *out << row.from << '.' << row.button << ": " << row.why;
}

const Changes kMark{{"intWizardCancelled", "1"}};

Changes marked(Changes changes) {
    changes.insert(kMark);
    return changes;
}

const Changes kPlain{{"intReconstMode", "2"}, {"strLayoutCaption", "Words only, without formatting."}};
const Changes kOutput{
    {"strOutputFile", "/out/other.rtf"}, {"strRecentFolder", "/out/other.rtf"}, {"intUseFromTo", "-1"}};
const QMap<QString, QString> kOther{{"txtfilepath", "/out/other.rtf"}};

Changes with(Changes changes, const Changes& more) {
    changes.insert(more);
    return changes;
}

const std::vector<Transition> kTransitions{
    {"frmOutputOptions", "cmdBack", 3, kOther, "frmMain", {}, "stores nothing and leaves the mark"},
    {"frmOutputOptions", "cmdCancel", 3, kOther, "frmMain", kMark, "stores nothing"},
    {"frmOutputOptions", "cmdNext", 3, kOther, "frmLayout", with(kOutput, {{"intOutputFormat", "0"}}), "with format"},
    {"frmOutputOptions", "cmdLast", 3, kOther, "frmOutputSummary", kOutput, "without the format"},
    {"frmLayout", "cmdBack", 3, {{"lblPlainText", "on"}}, "frmMain", marked(kPlain), "leads out of the wizard"},
    {"frmLayout", "cmdCancel", 3, {{"lblPlainText", "on"}}, "frmMain", kMark, "drops the choice"},
    {"frmLayout",
     "cmdNext",
     3,
     {{"lblPlainText", "on"}},
     "frmImageRecovery",
     with(kPlain, {{"intRecoverImg", "0"}}),
     "and the next page's load forces its answer in this mode"},
    {"frmLayout", "cmdLast", 3, {{"lblPlainText", "on"}}, "frmOutputSummary", kPlain, "stores the same"},
    {"frmImageRecovery", "cmdBack", 3, {{"optRemImg", "on"}}, "frmLayout", {{"intRecoverImg", "0"}}, "stores"},
    {"frmImageRecovery", "cmdCancel", 3, {{"optRemImg", "on"}}, "frmMain", kMark, "puts the treatment back"},
    {"frmImageRecovery", "cmdNext", 1, {}, "frmPageRange", {{"intRecoverImg", "0"}}, "mode 1 skips the spacing"},
    {"frmImageRecovery", "cmdNext", 2, {}, "frmPageRange", {{"intRecoverImg", "0"}}, "mode 2 skips the spacing"},
    {"frmImageRecovery", "cmdNext", 0, {{"optRemImg", "on"}}, "frmCharSpacing", {{"intRecoverImg", "0"}}, "mode 0"},
    {"frmImageRecovery", "cmdNext", 3, {{"optRemImg", "on"}}, "frmCharSpacing", {{"intRecoverImg", "0"}}, "mode 3"},
    {"frmImageRecovery", "cmdNext", 4, {{"optRemImg", "on"}}, "frmCharSpacing", {}, "mode 4 drops the choice"},
    {"frmImageRecovery", "cmdLast", 3, {{"optRemImg", "on"}}, "frmOutputSummary", {{"intRecoverImg", "0"}}, "stores"},
    {"frmCharSpacing", "cmdBack", 3, {{"optCharSpaceYes", "on"}}, "frmImageRecovery", {}, "stores nothing"},
    {"frmCharSpacing", "cmdCancel", 3, {{"optCharSpaceYes", "on"}}, "frmMain", kMark, "stores nothing"},
    {"frmCharSpacing",
     "cmdNext",
     3,
     {{"optCharSpaceYes", "on"}},
     "frmPageRange",
     {{"intCharSpac", "0"}, {"strCharSpacing", "Keep character spacing"}},
     "stores the spacing and its caption"},
    {"frmCharSpacing",
     "cmdLast",
     3,
     {{"optCharSpaceYes", "on"}},
     "frmOutputSummary",
     {{"intCharSpac", "0"}, {"strCharSpacing", "Keep character spacing"}},
     "stores the same"},
    {"frmPageRange",
     "cmdBack",
     1,
     {{"chkFromTo", "on"}, {"txtFrom", "1-"}},
     "frmImageRecovery",
     {{"strPageRange", "1-"}, {"intConvertFrom", "1"}, {"intRecoverImg", "0"}},
     "without a check; mode 1"},
    {"frmPageRange",
     "cmdBack",
     2,
     {{"txtFrom", "1-"}},
     "frmImageRecovery",
     {{"strPageRange", "1-"}, {"intRecoverImg", "0"}},
     "without a check; mode 2"},
    {"frmPageRange",
     "cmdBack",
     3,
     {{"chkFromTo", "on"}, {"txtFrom", "1-"}},
     "frmCharSpacing",
     {{"strPageRange", "1-"}, {"intConvertFrom", "1"}},
     "without a check"},
    {"frmPageRange", "cmdCancel", 3, {{"txtFrom", "5"}}, "frmMain", kMark, "stores nothing"},
    {"frmPageRange",
     "cmdNext",
     3,
     {{"chkFromTo", "on"}, {"txtFrom", " 2-3 "}},
     "frmOutputSummary",
     {{"strPageRange", " 2-3 "}, {"intConvertFrom", "1"}},
     "as typed, blanks included"},
    {"frmPageRange",
     "cmdLast",
     3,
     {{"chkFromTo", "on"}, {"txtFrom", "2"}},
     "frmOutputSummary",
     {{"strPageRange", "2"}, {"intConvertFrom", "1"}},
     "the same"},
    {"frmOutputSummary", "cmdBack", 3, {}, "frmPageRange", {}, "however the page was reached"},
    {"frmOutputSummary", "cmdFinish", 3, {}, "frmProgress", {{"intRunKind", "1"}}, "starts the run"},
    {"frmImageFormatOutput",
     "cmdCancel",
     3,
     {},
     "frmMain",
     {{"strImageFormat", "Same as in the source"}},
     "without the mark"},
    {"frmImageFormatOutput",
     "cmdNext",
     3,
     {{"txtFileBrowsePath", "/pictures"}},
     "frmFinishExtractImages",
     {{"strImageFormat", "Same as in the source"}, {"strImageFolder", "/pictures"}},
     "format and folder"},
    {"frmImageFormatOutput",
     "cmdLast",
     3,
     {{"txtFileBrowsePath", "/pictures"}},
     "frmFinishExtractImages",
     {{"strImageFormat", "Same as in the source"}, {"strImageFolder", "/pictures"}},
     "the same"},
    {"frmFinishExtractImages", "cmdBack", 3, {}, "frmImageFormatOutput", {}, "the folder is read back"},
    {"frmFinishExtractImages", "cmdCancel", 3, {}, "frmMain", kMark, "stores nothing"},
    {"frmFinishExtractImages", "cmdFinish", 3, {}, "frmProgress", {{"intRunKind", "2"}}, "starts the run"},
};

class Transitions : public PageFixture {
protected:
    Transitions() {
        records.flags.strCommandLine = "/in/report.pdf"; // so that the cancel mark shows
        records.settings.intLauchMs = 0;
        records.settings.intOutputFormat = 2;
        records.job.strOutputShown = ".doc";
    }
    void fill(const Transition& row) {
        for (auto entry = row.page.begin(); entry != row.page.end(); ++entry)
            if (entry.value() == "on")
                option(row.from, entry.key()).setValue(true);
        for (auto entry = row.page.begin(); entry != row.page.end(); ++entry)
            if (entry.value() != "on")
                setText(row.from, entry.key(), entry.value());
    }
    static Changes changesBetween(const Changes& before, const Changes& after) {
        Changes changes;
        for (auto field = after.begin(); field != after.end(); ++field)
            if (before.value(field.key()) != field.value())
                changes.insert(field.key(), field.value());
        return changes;
    }
    static std::string told(const Changes& changes) {
        QStringList lines;
        for (auto change = changes.begin(); change != changes.end(); ++change)
            lines << change.key() + '=' + change.value();
        return lines.join("; ").toStdString();
    }
};

class EveryTransition : public Transitions, public testing::WithParamInterface<Transition> {};

TEST_P(EveryTransition, LeadsToItsPageAndStoresWhatItShould) {
    const Transition& row = GetParam();
    records.settings.intReconstMode = row.intReconstMode;
    const auto before = fields();
    show(row.from);
    fill(row);
    click(row.from, row.button);
    EXPECT_EQ(shownWindows(), QStringList{row.target}) << row.why;
    EXPECT_EQ(told(changesBetween(before, fields())), told(row.stored)) << row.why;
    EXPECT_TRUE(refusals.refused.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Table, EveryTransition, testing::ValuesIn(kTransitions), [](const auto& tested) {
    return std::string(tested.param.from) + '_' + tested.param.button + "_mode" +
           std::to_string(tested.param.intReconstMode);
});

TEST_F(Transitions, BackFromTheLayoutEndsAtTheMainWindowAfterTheLongRoadToo) {
    show("frmOutputOptions");
    click("frmOutputOptions", "cmdNext");
    click("frmLayout", "cmdBack");
    EXPECT_EQ(shownWindows(), QStringList{"frmMain"});
}

TEST_F(Transitions, LastThenBackLeadsToPagesThatTheUserNeverSaw) {
    for (const auto& [mode, expected] : {std::pair{1, "frmImageRecovery"}, std::pair{3, "frmCharSpacing"}}) {
        records.settings.intReconstMode = static_cast<std::int16_t>(mode);
        show("frmLayout");
        click("frmLayout", "cmdLast");
        click("frmOutputSummary", "cmdBack");
        EXPECT_EQ(shownWindows(), QStringList{"frmPageRange"});
        click("frmPageRange", "cmdBack");
        EXPECT_EQ(shownWindows(), QStringList{expected});
        hide(expected);
    }
}

TEST_F(Transitions, CancelWithoutACommandLineLeavesTheMarkAlone) {
    records.flags.strCommandLine.clear();
    for (const char* window : {"frmOutputOptions", "frmLayout", "frmImageRecovery", "frmCharSpacing", "frmPageRange",
                               "frmFinishExtractImages"}) {
        show(window);
        click(window, "cmdCancel");
        EXPECT_EQ(records.flags.intWizardCancelled, 0) << window;
    }
    records.flags.intWizardCancelled = 1;
    show("frmLayout");
    click("frmLayout", "cmdCancel");
    EXPECT_EQ(records.flags.intWizardCancelled, 1);
}

TEST_F(Transitions, PagesPassOverAMainWindowThatFailsToComeUp) {
    mainWindow.whenShown = [] { throw std::runtime_error("the main window is gone"); };
    for (const auto& [window, button] :
         {std::pair{"frmLayout", "cmdBack"}, std::pair{"frmLayout", "cmdCancel"},
          std::pair{"frmCharSpacing", "cmdCancel"}, std::pair{"frmImageFormatOutput", "cmdCancel"},
          std::pair{"frmFinishExtractImages", "cmdCancel"}}) {
        show(window);
        EXPECT_NO_THROW(control<QPushButton>(window, button).click()) << window << '.' << button;
        EXPECT_FALSE(form(window)->isVisible()) << window << '.' << button << ": the next statement runs";
    }
}

TEST_F(Transitions, WithoutProtectionTheErrorOfTheMainWindowIsThePlatforms) {
    mainWindow.whenShown = [] { throw std::runtime_error("the main window is gone"); };
    for (const auto& [window, button] :
         {std::pair{"frmOutputOptions", "cmdBack"}, std::pair{"frmOutputOptions", "cmdCancel"},
          std::pair{"frmImageRecovery", "cmdCancel"}, std::pair{"frmPageRange", "cmdCancel"}}) {
        show(window);
        EXPECT_THROW(control<QPushButton>(window, button).click(), std::runtime_error) << window << '.' << button;
        EXPECT_TRUE(form(window)->isVisible()) << window << '.' << button;
    }
}

TEST_F(Transitions, TheButtonsWithoutBehaviourAreDisabled) {
    show("frmImageFormatOutput");
    EXPECT_FALSE(control("frmImageFormatOutput", "cmdBack").isEnabled());
    show("frmFinishExtractImages");
    EXPECT_FALSE(control("frmFinishExtractImages", "cmdNext").isEnabled());
    EXPECT_EQ(form("frmOutputSummary")->findChild<QWidget*>("cmdCancel"), nullptr);
}

TEST_F(Transitions, NothingButFinishOfTheSummaryWritesTheSettingsFile) {
    const QString file = path("docval.temp");
    for (const Transition& row : kTransitions) {
        if (QString(row.button) == "cmdFinish" && QString(row.from) == "frmOutputSummary")
            continue;
        show(row.from);
        click(row.from, row.button);
        EXPECT_FALSE(QFile::exists(file)) << row.from << ' ' << row.button;
        for (const QString& window : shownWindows())
            if (window != "frmMain" && window != "frmProgress")
                hide(window);
    }
    show("frmOutputSummary");
    click("frmOutputSummary", "cmdFinish");
    EXPECT_TRUE(QFile::exists(file));
}

TEST_F(Transitions, ThePageShowsBeforeTheOldOneHides) {
    // Only the Finish buttons hide first: the run may bring the main window back while it starts.
    bool wasHiddenAtStart = false;
    whenRunStarts = [&] { wasHiddenAtStart = !form("frmOutputSummary")->isVisible(); };
    show("frmOutputSummary");
    click("frmOutputSummary", "cmdFinish");
    EXPECT_TRUE(wasHiddenAtStart);
}

TEST_F(Transitions, PagesStayLoadedAndAreLoadedOnce) {
    show("frmLayout");
    const auto first = form("frmLayout");
    click("frmLayout", "cmdCancel");
    show("frmLayout");
    EXPECT_EQ(form("frmLayout"), first);
    EXPECT_TRUE(first->isLoaded());
}

} // namespace
} // namespace tavrelion::tests
