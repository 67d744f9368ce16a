#include "core/ListRows.h"
#include "app/support/RunFixture.h"
#include "core/BatchFollowUp.h"

namespace tavrelion::tests {
namespace {

class ListRows : public RunFixture {
protected:
    ListRows() {
        records.queue.strSelectedFiles = {"/in", "one.pdf", "two.pdf"};
        records.queue.lngSelectedBound = 2;
        records.settings.intOutputPath = 2;
    }
    /// A row as text: name, source, destination, status and icon.
    QString row(std::size_t index) const {
        const auto& [cells, icon] = view.rows.at(index);
        return QStringList{cells.flName, cells.source, cells.detination, cells.status, QString::number(icon)}.join('|');
    }
};

TEST_F(ListRows, AStatusOfARowThatIsNotThereIsIgnored) {
    run::UpdateListRow(run(), 1, "Converting", 1);
    EXPECT_TRUE(view.rows.empty());
    EXPECT_EQ(errorLog(), "");
}

TEST_F(ListRows, AStatusChangesTheFourthColumnAndTheIcon) {
    run::AddToListView(run(), 1, "a.pdf", "/in/a.pdf", "/out/a.docx", "Converting");
    EXPECT_EQ(row(0), "a.pdf|/in/a.pdf|/out/a.docx|Converting|1");
    run::UpdateListRow(run(), 1, "Cancelled", 3);
    EXPECT_EQ(row(0), "a.pdf|/in/a.pdf|/out/a.docx|Cancelled|3");
}

TEST_F(ListRows, ARowGoesInAtItsIndex) {
    run::AddToListView(run(), 1, "b.pdf", {}, {}, {});
    run::AddToListView(run(), 1, "a.pdf", {}, {}, {});
    EXPECT_EQ(view.rows[0].cells.flName, "a.pdf");
    EXPECT_THROW(run::AddToListView(run(), 4, "c.pdf", {}, {}, {}), std::out_of_range);
}

TEST_F(ListRows, TheWholeSelectionStandsInTheOrderOfWork) {
    run::AddCompleteListView(run());
    ASSERT_EQ(view.rows.size(), 2u);
    EXPECT_EQ(row(0), "two.pdf|/in/two.pdf|/in/two.docx||1");
    EXPECT_EQ(row(1), "one.pdf|/in/one.pdf|/in/one.docx||1");
    EXPECT_FALSE(run().strListFilled.isEmpty());
}

TEST_F(ListRows, ASingleFileIsOneRow) {
    records.queue.strSelectedFiles = {"/in/report.pdf"};
    records.queue.lngSelectedBound = 0;
    records.settings.intOutputPath = 0;
    records.settings.strRecentOutputFolder = "/recent";
    run::AddCompleteListView(run());
    ASSERT_EQ(view.rows.size(), 1u);
    EXPECT_EQ(row(0), "report.pdf|/in/report.pdf|/recent/report.docx||1");
}

TEST_F(ListRows, OneTargetForAllStandsInEachRow) {
    records.settings.intOutputPath = 1;
    run::AddCompleteListView(run());
    EXPECT_EQ(view.rows[0].cells.detination, "/out/report.docx");
    EXPECT_EQ(view.rows[1].cells.detination, "/out/report.docx");
}

TEST_F(ListRows, AnImageRunsDestinationIsItsFolder) {
    records.flags.intRunKind = run_kind::kExtractImages;
    records.job.strImageFolder = "/pictures";
    run::AddCompleteListView(run());
    EXPECT_EQ(view.rows[0].cells.detination, "/pictures");
}

TEST_F(ListRows, WithoutASelectionThereAreNone) {
    records.queue.lngSelectedBound = -1;
    run::AddCompleteListView(run());
    EXPECT_TRUE(view.rows.empty());
}

TEST_F(ListRows, StayEmptyInEveryRun) {
    FakeDocumentShell shell;
    BatchFollowUp batch(shell);
    batch.UpdateListRow(run(), 1, "Converting", 1);
    batch.ShowCompleted(run(), RunFollowUp::Offer::Allowed);
    EXPECT_TRUE(view.rows.empty());
}

} // namespace
} // namespace tavrelion::tests
