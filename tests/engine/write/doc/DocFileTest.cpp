#include "DocumentBuilder.h"
#include "SampleDocument.h"
#include "TestPicture.h"
#include "WrittenDoc.h"

#include "base/Failure.h"
#include "write/doc/CompoundFile.h"

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>

namespace orvane::tests {
namespace {

using namespace document;
using testing::HasSubstr;

std::string bytesOf(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

TEST(CompoundFile, HoldsStreamsOfAllSizes) {
    const TemporaryFolder folder;
    const std::filesystem::path file = folder.path() / "a";
    write::doc::CompoundStream small(u"WordDocument");
    small.add("small");
    // Beyond what the head of the file can tell the places of: eight megabytes.
    write::doc::CompoundStream large(u"Data");
    large.add(std::string(8 << 20, 'x'));
    large.add("end");
    write::doc::writeCompoundFile(file, {small, large});
    const auto streams = readCompoundFile(file);
    EXPECT_EQ(streams.at(u"WordDocument"), "small" + std::string(4096 - 5, '\0'));
    EXPECT_EQ(streams.at(u"Data"), std::string(8 << 20, 'x') + "end");
    EXPECT_THROW(DocReader{file}, std::runtime_error) << "these are no documents";
}

TEST(DocFile, IsWholeForADocumentThatHasOneOfEverything) {
    const TemporaryFolder folder;
    PictureStore pictures(folder.path());
    const Document document = sampleDocument(pictures);
    const WrittenDoc doc(document, pictures);
    EXPECT_THAT(doc.dump(), HasSubstr("Tables"));
    EXPECT_TRUE(bytesOf(doc.file()) == bytesOf(WrittenDoc(document, pictures).file())) << "one document, one file";
}

TEST(DocFile, IsTheSameWhicheverPictureWasFoundFirst) {
    const auto bytesWith = [](int firstFound, int nextFound) {
        const TemporaryFolder folder;
        PictureStore pictures(folder.path());
        pictures.add(pngPicture(firstFound, 4, kBlack));
        pictures.add(pngPicture(nextFound, 4, kBlack));
        Picture inLine, floating;
        inLine.id = pictures.add(pngPicture(8, 4, kBlack));
        floating.id = pictures.add(pngPicture(16, 4, kBlack));
        const Document document = documentOf({{paragraph({{inLine}})}, {Figure{floating, {}, {}}}, {paragraph("a")}});
        return bytesOf(WrittenDoc(document, pictures).file());
    };
    EXPECT_TRUE(bytesWith(8, 16) == bytesWith(16, 8)) << "pages are read side by side, and chance tells the order";
}

TEST(DocFile, TellsWhatTheDocumentSaysOfItself) {
    Document document = documentOf("a");
    document.metadata.title = "A title";
    document.metadata.created = "1601-01-01T00:00:01Z";
    const WrittenDoc doc(document);
    const std::string& summary = doc.read().stream(u"\u0005SummaryInformation");
    EXPECT_THAT(summary, HasSubstr(std::string("\x1E\0\0\0\x8\0\0\0A title\0", 16)));
    EXPECT_THAT(summary, HasSubstr(std::string("\x40\0\0\0\x80\x96\x98\0\0\0\0\0", 12)));
}

TEST(DocFile, SpreadsLinesThatEndByHandOnlyWhereTheDocumentSaysSo) {
    // The edition of 97 reads the first place, later ones the others.
    const std::size_t places[] = {8, 84, 508};
    Document document = documentOf("a");
    const std::string plain = WrittenDoc(document).read().table(31);
    for (const std::size_t place : places)
        EXPECT_EQ(plain.substr(place, 2), std::string(2, '\0')) << place;
    document.spreadsBrokenLines = true;
    const std::string spread = WrittenDoc(document).read().table(31);
    for (const std::size_t place : places)
        EXPECT_EQ(spread.substr(place, 2), std::string("\0\x20", 2)) << place;
}

TEST(DocFile, DividesWordsWhereTheDocumentDoes) {
    Document document = documentOf("a");
    EXPECT_EQ(WrittenDoc(document).read().table(31)[5], '\0');
    document.dividesWords = true;
    EXPECT_EQ(WrittenDoc(document).read().table(31)[5], '\x18');
}

TEST(DocFile, KeepsTheLargerOfTwoSpacesBetweenParagraphs) {
    // The bit that says otherwise stands behind what the edition of 97 has; readers take it for set where it is
    // missing.
    const std::string properties = WrittenDoc(documentOf("a")).read().table(31);
    ASSERT_EQ(properties.size(), 594u);
    EXPECT_EQ(properties[512] & 0x04, 0);
}

TEST(DocFile, IsRefusedWhereNothingCanBeWritten) {
    const TemporaryFolder folder;
    const PictureStore pictures(folder.path());
    Diagnostics diagnostics;
    try {
        write::writeDoc(documentOf("a"), pictures, folder.path() / "missing" / "a.doc", diagnostics);
        FAIL() << "a folder that is missing was written to";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.code(), FailureCode::TargetUnwritable);
    }
}

TEST(DocFile, CountsNotesOnEachPage) {
    Document document = documentOf("a");
    EXPECT_EQ(WrittenDoc(document).read().table(31).substr(2, 2), std::string("\x4\0", 2));
    document.footnoteNumbering.count = CountStart::EachPage;
    const WrittenDoc doc(document);
    EXPECT_EQ(doc.read().table(31).substr(2, 2), std::string("\x6\0", 2)) << "for the document";
    EXPECT_THAT(bytesOf(doc.file()), HasSubstr(std::string("\x3C\x30\x2", 3))) << "and for its section";
}

TEST(DocFile, CountsNotesInTheSignsOfTheDocument) {
    Document document = documentOf("a");
    document.footnoteNumbering = {NumberFormat::LowerLetter, CountStart::EachSection};
    document.endnoteNumbering = {NumberFormat::Decimal, CountStart::Continuous};
    const WrittenDoc doc(document);
    const std::string properties = doc.read().table(31);
    EXPECT_EQ(properties.substr(2, 2), std::string("\x5\0", 2));
    EXPECT_EQ(properties.substr(492, 4), std::string("\x4\0\0\0", 4));
    EXPECT_THAT(bytesOf(doc.file()), HasSubstr(std::string("\x3C\x30\x1\x40\x50\x4\0\x42\x50\0\0", 11)));
}

TEST(DocFile, MirrorsMarginsAndNumbersLines) {
    Document document = documentOf("a");
    EXPECT_EQ(WrittenDoc(document).read().table(31)[6], 0);
    document.hasMirroredMargins = true;
    document.sections[0].lineNumbers = LineNumbers{5, 1, CountStart::EachSection, Twips(200)};
    const WrittenDoc doc(document);
    EXPECT_EQ(doc.read().table(31)[6], 1 << 5);
    EXPECT_EQ(doc.read().table(31)[0] & 1, 1) << "pages that face each other";
    EXPECT_THAT(bytesOf(doc.file()), HasSubstr(std::string("\x13\x30\x1\x15\x50\x5\0\x16\x90\xC8\0", 11)));
}

TEST(DocFile, IsWholeWithoutSectionsAndStyles) {
    EXPECT_EQ(WrittenDoc(Document{}).read().text(), "\\0d");
}

TEST(DocFile, HoldsNumbersBeyondWhatTheFormatTakes) {
    constexpr int kHuge = 2000000000;
    RunProperties look;
    look.size = HalfPoints(kHuge);
    Paragraph one = paragraph({text("a", look)});
    one.properties.indentStart = Twips(-kHuge);
    one.properties.borders.top = {BorderKind::Single, EighthPoints(kHuge), kBlack, kHuge};
    one.properties.tabs.assign(500, TabStop{Twips(kHuge)});
    Table table;
    table.columnWidths = {Twips(kHuge / 2)};
    table.rows.resize(1);
    table.rows[0].cells = {cell("x")};
    Document document = documentOf({{one}, {table}});
    document.sections[0].pageWidth = Twips(kHuge);
    const WrittenDoc doc(document);
    EXPECT_THAT(doc.dump(), HasSubstr("4a43=cc0c"));
    EXPECT_EQ(doc.diagnostics().entries().size(), 1u) << "the page was cut";
}

} // namespace
} // namespace orvane::tests
