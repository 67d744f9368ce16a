#include "core/CommandLine.h"

#include "support/TemporaryFolder.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace tavrelion::tests {
namespace {

TEST(CommandLine, JudgesTheFileByTheEndOfTheLine) {
    using Kind = CommandLineFile;
    const struct {
        const char* line;
        Kind expected;
        const char* why;
    } rows[] = {
        {"/in/report.pdf", Kind::Pdf, "a bare path"},
        {"/in/REPORT.PDF", Kind::Pdf, "any letter case"},
        {"a.pdf", Kind::Pdf, "the shortest"},
        {"\"/in/my report.pdf\"", Kind::Pdf, "quotes are still there"},
        {"/in/report.pdf~!~1", Kind::Pdf, "with a mode"},
        {"/in/report.pdf~!~2", Kind::Pdf, "with a mode"},
        {"\"/in/report.pdf\"~!~", Kind::Pdf, "an empty mode behind quotes"},
        {"\"/in/report.pdf\"~!~2", Kind::Pdf, "quotes and a mode"},
        {"\"/in/report.pdf\"~!~12", Kind::Other, "the reach ends before it"},
        {"/in/report.pdf~!~12", Kind::Pdf, "a mode of two characters is still in reach"},
        {"/in/report.pdf~!~123", Kind::Other, "beyond the reach"},
        {"/in/report.doc", Kind::WordDocument, "a document"},
        {"/in/report.DOC", Kind::WordDocument, "in capitals"},
        {"/in/report.docx", Kind::WordDocument, "a document"},
        {"/in/report.DOCX", Kind::WordDocument, "in capitals"},
        {"/in/report.rtf", Kind::WordDocument, "a document"},
        {"/in/report.RTF", Kind::WordDocument, "in capitals"},
        {"/in/report.Doc", Kind::Other, "mixed case is not looked for"},
        {"\"/in/report.doc\"", Kind::WordDocument, "five characters reach over a quote"},
        {"\"/in/report.rtf\"", Kind::WordDocument, "five characters reach over a quote"},
        {"\"/in/report.docx\"", Kind::Other, "but not to the dot of .docx"},
        {"/in/report.doc~!~1", Kind::Other, "documents are not looked for behind a mode"},
        {"/in/picture.png", Kind::Other, "no type of ours"},
        {"/in/report.pdf.txt", Kind::Other, "the end counts"},
        {"/in/report", Kind::Other, "no extension"},
        {"a.pdf~!~", Kind::Other, "a mode, and fewer than nine characters"},
        {"pdf~!~1", Kind::Other, "a mode, and fewer than nine characters"},
        {"a.pdf~!~1", Kind::Pdf, "nine characters are enough"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(static_cast<int>(fileOnCommandLine(row.line)), static_cast<int>(row.expected))
            << row.line << ": " << row.why;
}

TEST(CommandLine, IsPendingFromFiveCharactersUnlessTheProgramCloses) {
    RunFlags flags;
    for (const char* line : {"", "a", ".pdf", "x.tx"}) {
        flags.strCommandLine = line;
        EXPECT_FALSE(isCommandLinePending(flags)) << line;
    }
    flags.strCommandLine = "a.pdf";
    EXPECT_TRUE(isCommandLinePending(flags));
    flags.blnCloseRequested = true;
    EXPECT_FALSE(isCommandLinePending(flags));
}

TEST(CommandLine, IsTakenOnceWithItsMode) {
    const struct {
        const char* line;
        std::int16_t useWizBefore;
        const char* path;
        std::int16_t useWiz;
        std::int16_t directRun;
        const char* why;
    } rows[] = {
        {"/in/a.pdf", 1, "/in/a.pdf", 0, 1, "no mode is mode 1"},
        {"\"/in/my a.pdf\"", 1, "/in/my a.pdf", 0, 1, "and loses the quotes"},
        {"/in/\"my\" a.pdf", 1, "/in/my a.pdf", 0, 1, "all of them"},
        {"/in/a.pdf~!~1", 1, "/in/a.pdf", 0, 1, "direct"},
        {"/in/a.pdf~!~2", 0, "/in/a.pdf", 1, 0, "guided"},
        {"/in/a.pdf~!~3", 0, "/in/a.pdf", 0, 0, "as the settings have it"},
        {"/in/a.pdf~!~3", 1, "/in/a.pdf", 1, 0, "as the settings have it"},
        {"/in/a.pdf~!~", 1, "/in/a.pdf", 1, 0, "as the settings have it"},
        {"\"/in/a.pdf\"~!~2", 0, "\"/in/a.pdf\"", 1, 0, "a path with a mode keeps its quotes"},
        {"/in/a.pdf~!~2~!~/in/b.pdf", 0, "/in/a.pdf", 1, 0, "further elements are ignored"},
    };
    for (const auto& row : rows) {
        SharedRecords records;
        records.flags.strCommandLine = row.line;
        records.settings.intUseWiz = row.useWizBefore;
        records.queue.strFileStatus = {"of", "before"};
        std::int16_t intDirectRun = 0;
        takeCommandLine(records, intDirectRun);
        EXPECT_EQ(records.flags.strCommandLine, "");
        EXPECT_EQ(records.queue.strSelectedFiles, QStringList{row.path}) << row.why;
        EXPECT_EQ(records.queue.lngSelectedBound, 0);
        EXPECT_EQ(records.queue.strOutputFiles, QStringList{QString()});
        EXPECT_EQ(records.queue.strFileStatus, (QStringList{"of", "before"})) << "it is not touched here";
        EXPECT_EQ(records.queue.intCurrentIndex, -1);
        EXPECT_EQ(records.queue.strCurrentFile, row.path);
        EXPECT_EQ(records.job.strSourcePDF, row.path);
        EXPECT_EQ(records.settings.strRecentFolder, row.path);
        EXPECT_EQ(records.settings.intUseWiz, row.useWiz) << row.line << ": " << row.why;
        EXPECT_EQ(intDirectRun, row.directRun) << row.line << ": " << row.why;
    }
}

TEST(CommandLine, KeepsARecentFolderThatIsThere) {
    SharedRecords records;
    records.flags.strCommandLine = "/in/a.pdf";
    records.settings.strRecentFolder = "/recent";
    std::int16_t intDirectRun = 0;
    takeCommandLine(records, intDirectRun);
    EXPECT_EQ(records.settings.strRecentFolder, "/recent");
}

TEST(CommandLine, MakesARelativePdfAbsolute) {
    const orvane::tests::TemporaryFolder folder;
    const QString before = QDir::currentPath();
    QDir::setCurrent(QString::fromStdString(folder.path().string()));
    QFile file("my a.PDF");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const QString absolute = QDir::current().absoluteFilePath("my a.PDF");
    EXPECT_EQ(commandLineOf({"my a.PDF"}), absolute);
    EXPECT_EQ(commandLineOf({"my a.PDF~!~2"}), absolute + "~!~2");
    EXPECT_EQ(commandLineOf({"missing.pdf"}), "missing.pdf") << "there is no such file to stay the same";
    EXPECT_EQ(commandLineOf({"/in/a.pdf"}), "/in/a.pdf");
    EXPECT_EQ(commandLineOf({"one", "two.pdf"}), "one two.pdf");
    EXPECT_EQ(commandLineOf({}), "");
    QDir::setCurrent(before);
}

} // namespace
} // namespace tavrelion::tests
