#include "app/support/RunFixture.h"
#include "core/CommandLineJob.h"

#include <QDir>

namespace tavrelion::tests {
namespace {

class CommandLine : public testing::Test {
protected:
    SharedRecords records;
    CommandLineJob take(const QString& text) {
        records.flags.strCommandLine = text;
        return takeCommandLineJob(records);
    }
};

TEST_F(CommandLine, APdfBecomesTheJobWithTheDocumentBesideIt) {
    records.settings.intOutputFormat = 2;
    records.flags.blnCloseRequested = true;
    EXPECT_EQ(take("/in/my report.PDF"), CommandLineJob::Ready);
    EXPECT_EQ(records.job.strSourcePDF, "/in/my report.PDF");
    EXPECT_EQ(records.job.strOutputFile, "/in/my report.docx");
    EXPECT_EQ(records.job.strOutputShown, ".docx");
    EXPECT_EQ(records.flags.intRunKind, run_kind::kConvert);
    EXPECT_FALSE(records.flags.blnCloseRequested);
    EXPECT_EQ(records.queue.strSelectedFiles, QStringList{"/in/my report.PDF"});
    EXPECT_EQ(records.queue.lngSelectedBound, 0);
    EXPECT_EQ(records.queue.intCurrentIndex, -1);
    EXPECT_EQ(records.flags.strCommandLine, "") << "it is acted on once";
}

TEST_F(CommandLine, TheExtensionFollowsTheFormat) {
    const std::map<std::int16_t, QString> extensions{{0, ".doc"}, {1, ".rtf"}, {2, ".docx"}};
    for (const auto& [format, extension] : extensions) {
        records.settings.intOutputFormat = format;
        take("/in/a.pdf");
        EXPECT_EQ(records.job.strOutputFile, "/in/a" + extension);
    }
}

TEST_F(CommandLine, ARelativeNameIsOneOfTheCurrentFolder) {
    take("\"a.pdf\"");
    EXPECT_EQ(records.job.strSourcePDF, QDir::current().absoluteFilePath("a.pdf"));
}

TEST_F(CommandLine, NothingAndOtherFilesAreNoJob) {
    EXPECT_EQ(take("  "), CommandLineJob::None);
    EXPECT_EQ(take("/in/letter.doc"), CommandLineJob::NotAPdf);
    EXPECT_EQ(records.job.strSourcePDF, "");
}

} // namespace
} // namespace tavrelion::tests
