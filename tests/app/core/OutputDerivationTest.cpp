#include "core/OutputDerivation.h"

#include "core/Paths.h"

#include <gtest/gtest.h>

namespace tavrelion::tests {
namespace {

TEST(OutputDerivation, FollowsModeAndFormat) {
    const struct {
        const char* source;
        std::int16_t mode;
        std::int16_t format;
        FormatChoice choice;
        const char* folder;
        const char* expected;
        const char* why;
    } rows[] = {
        {"/in/X.PDF", 2, 0, FormatChoice::All, "/out", "/in/X.doc", "beside the source"},
        {"/in/X.pdf", 2, 1, FormatChoice::All, "/out", "/in/X.rtf", "beside the source"},
        {"/in/X.pdf", 2, 2, FormatChoice::All, "/out", "/in/X.docx", "beside the source"},
        {"/in.v2/a.b/X.pdf", 2, 0, FormatChoice::All, "/out", "/in.v2/a.b/X.doc", "dots in folders do not matter"},
        {"/in/a.b.c.pdf", 2, 0, FormatChoice::All, "/out", "/in/a.b.c.doc", "nor in the name"},
        {"/in/X.pdf", 0, 0, FormatChoice::All, "/out", "/out/X.doc", "into the recent folder"},
        {"/in/X.pdf", 0, 2, FormatChoice::All, "/out/", "/out/X.docx", "one separator where there is one"},
        {"/in/X.pdf", 0, 1, FormatChoice::All, "/", "/X.rtf", "the root"},
        {"X.pdf", 0, 1, FormatChoice::All, "/out", "/out/X.rtf", "a source without a folder"},
        {"/in/X.pdf", 1, 2, FormatChoice::All, "/out", "/as/it/was.doc", "any other mode leaves it"},
        {"/in/X.pdf", 7, 2, FormatChoice::All, "/out", "/as/it/was.doc", "any other mode leaves it"},
        {"/in/X.pdf", 2, 0, FormatChoice::DocOrRtf, "/out", "/in/X.doc", "the menu knows DOC"},
        {"/in/X.pdf", 2, 1, FormatChoice::DocOrRtf, "/out", "/in/X.rtf", "and RTF"},
        {"/in/X.pdf", 0, 2, FormatChoice::DocOrRtf, "/out", "/out/X.rtf", "but not DOCX"},
    };
    for (const auto& row : rows) {
        SharedRecords records;
        records.job.strSourcePDF = row.source;
        records.job.strOutputFile = "/as/it/was.doc";
        records.settings.intOutputPath = row.mode;
        records.settings.intOutputFormat = row.format;
        records.settings.strRecentOutputFolder = row.folder;
        QString strOutputName;
        DeriveOutputPath(records, strOutputName, row.choice);
        EXPECT_EQ(records.job.strOutputFile, row.expected) << row.source << ": " << row.why;
        EXPECT_EQ(strOutputName.isEmpty(), row.mode != 0) << "the bare name belongs to the recent folder";
    }
}

TEST(OutputDerivation, SavesBesideTheSourceWhateverTheMode) {
    SharedRecords records;
    records.job.strSourcePDF = "/in/X.pdf";
    records.settings.strRecentOutputFolder = "/out";
    EXPECT_EQ(outputBesideSource(records, 0), "/in/X.doc");
    EXPECT_EQ(outputBesideSource(records, 1), "/in/X.rtf");
}

TEST(OutputDerivation, ALoadingWindowShowsTheHomeFolder) {
    SharedRecords records;
    records.flags.strHomeFolder = "/home/ada";
    records.settings.strRecentOutputFolder = "/out";
    records.settings.intOutputFormat = 2;
    records.job.strSourcePDF = "/in/X.pdf";
    records.job.strOutputFile = "/as/it/was.doc";
    QString strOutputName;
    EXPECT_EQ(outputShownAtLoading(records, strOutputName), "/home/ada/X.rtf") << "it knows no DOCX";
    records.job.strSourcePDF = "/in/Y.pdf";
    EXPECT_EQ(outputShownAtLoading(records, strOutputName), "/home/ada/X.rtf") << "a name that stands stays";
    EXPECT_EQ(records.job.strOutputFile, "/as/it/was.doc");
    strOutputName.clear();
    records.settings.intOutputFormat = 0;
    EXPECT_EQ(outputShownAtLoading(records, strOutputName), "/home/ada/Y.doc");
}

TEST(OutputDerivation, AnActiveWindowShowsTheRecentFolderAndAlwaysASeparator) {
    const struct {
        const char* source;
        const char* folder;
        std::int16_t format;
        const char* expected;
    } rows[] = {
        {"/in/X.pdf", "/out", 2, "/out/X.docx"},
        {"/in/X.pdf", "/out", 1, "/out/X.rtf"},
        {"/in/X.pdf", "/out", 0, "/out/X.doc"},
        {"/in/X.pdf", "/out/", 2, "/out//X.docx"},
        {"/in/X.pdf", "/", 2, "//X.docx"},
        {" ", "/out", 2, "/out/ "},
        {"", "/out", 2, "/out/"},
    };
    for (const auto& row : rows) {
        SharedRecords records;
        records.job.strSourcePDF = row.source;
        records.settings.strRecentOutputFolder = row.folder;
        records.settings.intOutputFormat = row.format;
        QString strOutputName = "of before.doc";
        EXPECT_EQ(outputShownAtActivation(records, strOutputName), row.expected);
    }
}

TEST(OutputDerivation, AFolderGetsTheNameDirectlyBehindIt) {
    SharedRecords records;
    records.job.strSourcePDF = "/in/X.pdf";
    records.job.strOutputFile = "/app/";
    records.settings.intOutputFormat = 2;
    QString strOutputName;
    EXPECT_EQ(outputShownInItsFolder(records, strOutputName), "/app/X.docx");
    records.job.strOutputFile = "/app";
    EXPECT_EQ(outputShownInItsFolder(records, strOutputName), "/appX.docx");
}

TEST(OutputDerivation, KnowsDocumentsByTheTextFromTheLastDot) {
    const struct {
        const char* path;
        bool expected;
    } rows[] = {{"/a/x.doc", true},  {"/a/x.DOCX", true}, {"/a/x.Rtf", true},      {"/a/x", false},
                {"/a.doc/x", false}, {"", false},         {"/a/x.doc.txt", false}, {"/a/x.docm", false},
                {"/a/.docx", true},  {"/a.rtf", true}};
    for (const auto& row : rows)
        EXPECT_EQ(hasDocumentExtension(row.path), row.expected) << row.path;
}

TEST(Paths, CutsAtTheLastSeparatorAndDot) {
    EXPECT_EQ(nameOf("/a/b.c/d.pdf"), "d.pdf");
    EXPECT_EQ(nameOf("d.pdf"), "d.pdf");
    EXPECT_EQ(folderOf("/a/b/d.pdf"), "/a/b");
    EXPECT_EQ(folderOf("/d.pdf"), "");
    EXPECT_ANY_THROW(folderOf("d.pdf"));
    EXPECT_EQ(extensionIn("/a/d.tar.gz"), ".gz");
    EXPECT_EQ(extensionIn("/a.b/d"), ".b/d");
    EXPECT_EQ(extensionIn("/a/d"), "/a/d");
    EXPECT_EQ(withoutExtension("/a/d.PDF"), "/a/d");
    EXPECT_EQ(withoutExtension("abcdefg"), "abc") << "four characters, whatever they are";
    EXPECT_EQ(withoutExtension("abc"), "");
}

TEST(OutputDerivation, GivesAPathTheExtensionOfAnotherFormatWhereverTheOldOneStands) {
    struct Row {
        const char* path;
        std::int16_t format;
        const char* result;
        const char* why;
    };
    for (const Row& row : {Row{"/out/a.doc", 2, "/out/a.docx", "DOCX"}, Row{"/out/a.DOC", 2, "/out/a.docx", "capitals"},
                           Row{"/out/a.rtf", 2, "/out/a.docx", "from RTF"}, Row{"/out/a.docx", 1, "/out/a.rtf", "RTF"},
                           Row{"/out/a.doc", 1, "/out/a.rtf", "RTF"}, Row{"/out/a.docx", 0, "/out/a.doc", "DOC"},
                           Row{"/out/a.rtf", 0, "/out/a.doc", "DOC"}, Row{"/out/a.doc", 0, "/out/a.doc", "is one"},
                           Row{"/my.doc/a.doc", 1, "/my.rtf/a.rtf", "throughout the path"},
                           Row{"/my.doc/a.DOC", 1, "/my.doc/a.rtf", "in its own letter case"},
                           Row{"/out/a.txt", 2, "/out/a.txt", "another extension"}, Row{"/out/", 1, "/out/", "none"}})
        EXPECT_EQ(withFormat(row.path, row.format), row.result) << row.path << ": " << row.why;
}

} // namespace
} // namespace tavrelion::tests
