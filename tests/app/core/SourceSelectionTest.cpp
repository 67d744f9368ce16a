#include "core/SourceSelection.h"

#include "app/support/RunFixture.h"

namespace tavrelion::tests {
namespace {

class SourceSelection : public RunFixture {
protected:
    SourceSelection() {
        records.job.strSourcePDF = "/in/old.pdf";
        records.queue.strOutputFiles = {"old"};
        records.queue.intCurrentIndex = 4;
    }
    Selection take(const QStringList& parts) { return takeSelection(records, files, parts.join(QChar(u'\0'))); }
    void add(const QStringList& paths) { files.files.insert(paths.begin(), paths.end()); }

    BatchQueue& queue = records.queue;
};

TEST_F(SourceSelection, OfOneFileHoldsItsPath) {
    add({"/in/a.pdf"});
    EXPECT_EQ(take({"/in/a.pdf"}), Selection::Taken);
    EXPECT_EQ(queue.strSelectedFiles, QStringList{"/in/a.pdf"});
    EXPECT_EQ(queue.lngSelectedBound, 0);
    EXPECT_EQ(queue.strCurrentFile, "/in/a.pdf");
    EXPECT_EQ(records.job.strSourcePDF, "/in/a.pdf");
    EXPECT_EQ(queue.strOutputFiles, QStringList{QString()});
    EXPECT_EQ(queue.strFileStatus, QStringList{QString()});
    EXPECT_EQ(queue.intCurrentIndex, -1);
}

TEST_F(SourceSelection, OfSeveralHoldsTheFolderAndTheNamesAndShowsTheLast) {
    add({"/in/b.pdf"});
    EXPECT_EQ(take({"/in", "c.pdf", "A.PDF", "b.pdf"}), Selection::Taken);
    EXPECT_EQ(queue.strSelectedFiles, (QStringList{"/in", "c.pdf", "A.PDF", "b.pdf"})) << "nothing is sorted";
    EXPECT_EQ(queue.lngSelectedBound, 3);
    EXPECT_EQ(queue.strCurrentFile, "/in/b.pdf");
    EXPECT_EQ(queue.strOutputFiles, QStringList(4));
    EXPECT_EQ(queue.strFileStatus, QStringList(4));
}

TEST_F(SourceSelection, TakesTheExtensionInAnyLetterCase) {
    for (const char* name : {"/in/report.PDF", "/in/report.Pdf", "/in/report.pdf"}) {
        add({name});
        EXPECT_EQ(take({name}), Selection::Taken) << name;
    }
    add({"/in/report.pdf.txt"});
    EXPECT_EQ(take({"/in/report.pdf.txt"}), Selection::NotPdf);
}

TEST_F(SourceSelection, ThatIsRefusedStaysInTheQueue) {
    add({"/in/e.pdf"});
    EXPECT_EQ(take({"/in", "a.pdf", "b.pdf", "c.txt", "d.pdf", "e.pdf"}), Selection::NotPdf);
    EXPECT_EQ(queue.lngSelectedBound, 5);
    EXPECT_EQ(queue.strCurrentFile, "/in/c.txt") << "the file that was refused";
    EXPECT_EQ(records.job.strSourcePDF, "/in/old.pdf");
    EXPECT_EQ(queue.intCurrentIndex, -1);
}

TEST_F(SourceSelection, OfNothingOrAMissingFileStopsSilently) {
    EXPECT_EQ(take({}), Selection::Nothing);
    EXPECT_EQ(queue.lngSelectedBound, -1);
    EXPECT_EQ(take({"/in/gone.pdf"}), Selection::Nothing);
    EXPECT_EQ(queue.strSelectedFiles, QStringList{"/in/gone.pdf"}) << "the new selection is in the queue";
    EXPECT_EQ(records.job.strSourcePDF, "/in/old.pdf");
}

TEST_F(SourceSelection, InARootFolderShowsOneSeparator) {
    add({"/b.pdf"});
    EXPECT_EQ(take({"/", "a.pdf", "b.pdf"}), Selection::Taken);
    EXPECT_EQ(queue.strCurrentFile, "/b.pdf");
    EXPECT_EQ(take({"/", "a.txt", "b.pdf"}), Selection::NotPdf);
    EXPECT_EQ(queue.strCurrentFile, "//a.txt") << "the test of the names always adds one";
}

TEST_F(SourceSelection, RemembersTheFirstFileEverAsTheRecentFolder) {
    add({"/in/a.pdf", "/in/b.pdf"});
    take({"/in/a.pdf"});
    EXPECT_EQ(records.settings.strRecentFolder, "/in/a.pdf");
    take({"/in/b.pdf"});
    EXPECT_EQ(records.settings.strRecentFolder, "/in/a.pdf");
}

TEST(DialogText, NamesOneFileOrAFolderAndItsFiles) {
    const QChar nul(u'\0');
    EXPECT_EQ(dialogText({"/in/a.pdf"}, 4096), "/in/a.pdf");
    EXPECT_EQ(dialogText({"/in/b.pdf", "/in/a.pdf"}, 4096), QString("/in") + nul + "b.pdf" + nul + "a.pdf");
    EXPECT_EQ(dialogText({"/b.pdf", "/a.pdf"}, 4096), QString("/") + nul + "b.pdf" + nul + "a.pdf");
    EXPECT_EQ(dialogText({}, 4096), std::nullopt);
    EXPECT_EQ(dialogText({"/in/a.pdf", "/other/b.pdf"}, 4096), std::nullopt) << "the form has one folder";
}

TEST(DialogText, ThatIsTooLongIsNone) {
    const QString path = "/in/" + QString(4088, 'a') + ".pdf";
    EXPECT_EQ(path.size(), 4096);
    EXPECT_EQ(dialogText({path}, 4096), path);
    EXPECT_EQ(dialogText({path.chopped(4) + "b.pdf"}, 4096), std::nullopt);
}

} // namespace
} // namespace tavrelion::tests
