#include "DocumentBuilder.h"
#include "WrittenDoc.h"

#include <gmock/gmock.h>

namespace orvane::tests {
namespace {

using namespace document;
using testing::HasSubstr;
using testing::Not;

TEST(DocText, IsUnicode) {
    EXPECT_EQ(WrittenDoc(documentOf("a\u00E9\u4E2D\U0001F600")).read().text(), "a\\e9\\u4e2d\\ud83d\\ude00\\0d");
}

TEST(DocText, HasCharactersOfItsOwnForSome) {
    EXPECT_EQ(WrittenDoc(documentOf("a\tb\nc\r\nd\u00ADe\u2011f")).read().text(), "a\\09b\\0bc\\0bd\\1fe\\1ef\\0d");
}

TEST(DocText, LeavesOutControlCharacters) {
    EXPECT_EQ(WrittenDoc(documentOf(std::string("a\x01\x07\x13\x15\fb"))).read().text(), "ab\\0d");
}

TEST(DocRun, HasWhatDiffersFromTheStyle) {
    Document document = documentOf("");
    document.styles[0].run.isBold = true;
    RunProperties look = document.styles[0].run;
    look.isBold = false;
    look.isItalic = true;
    look.size = HalfPoints(40);
    look.color = {0x12, 0x34, 0x56};
    look.underline = UnderlineKind::Wavy;
    look.verticalPosition = VerticalPosition::Subscript;
    document.sections[0].blocks = {{paragraph({text("a", look), text("b", document.styles[0].run)})}};
    EXPECT_THAT(
        WrittenDoc(document).dump(),
        HasSubstr("0835=00 085c=00 0836=01 085d=01 4a43=2800 4a61=2800 6870=12345600 2a3e=0b 2a48=02 \"a\"\"b"));
}

TEST(DocRun, NamesFontsByNumber) {
    RunProperties look;
    look.fontFamily = "Carlito";
    look.eastAsianFontFamily = "Noto Sans CJK JP";
    const WrittenDoc doc(documentOf("a", look));
    EXPECT_THAT(doc.dump(), HasSubstr("4a4f=0100 4a51=0100 4a50=0200 4a5e=0100 \"a\""));
    EXPECT_EQ(doc.read().table(15).substr(0, 2), std::string("\3\0", 2)) << "the default font is the first of three";
}

TEST(DocRun, TellsFontsOfSignsApart) {
    RunProperties look;
    look.fontFamily = "Symbol";
    const std::string fonts = WrittenDoc(documentOf("\uF0B7", look)).read().table(15);
    // The entry of the font ends with its name; its set of signs stands 36 bytes before that.
    const std::size_t name = fonts.find(std::string("S\0y\0m\0b\0o\0l\0", 12));
    ASSERT_NE(name, std::string::npos);
    EXPECT_EQ(fonts.substr(name - 36, 1), "\2");
}

TEST(DocRun, MarksWithColoursThatMarkersHave) {
    RunProperties marked;
    marked.highlight = Color{255, 255, 0};
    RunProperties shaded;
    shaded.highlight = Color{1, 2, 3};
    const WrittenDoc doc(documentOf(paragraph({text("a", marked), text("b", shaded)})));
    EXPECT_THAT(doc.dump(), HasSubstr("2a0c=07 \"a\""));
    EXPECT_THAT(doc.dump(), HasSubstr("ca71=0a000000ff010203000000 \"b\""));
}

TEST(DocParagraph, HasHowItStands) {
    Paragraph one = paragraph("a");
    one.properties.alignment = Alignment::Justified;
    one.properties.indentStart = Twips(720);
    one.properties.firstLine = Twips(-360);
    one.properties.spaceAfter = Twips(120);
    one.properties.lineSpacing = {LineSpacingRule::Exact, 1, Twips(280)};
    one.properties.tabs = {{Twips(9000), TabAlignment::End, TabLeader::Dots}};
    one.properties.outlineLevel = 2;
    EXPECT_THAT(WrittenDoc(documentOf(one)).dump(),
                HasSubstr("0 2403=03 2461=03 840f=d002 845e=d002 8411=98fe 8460=98fe a414=7800 6412=e8fe0000 2640=01 "
                          "c60d=05000128230a "));
}

TEST(DocParagraph, HasADropCapInAFrameBeforeTheTextItBegins) {
    RunProperties large;
    large.size = HalfPoints(80);
    Paragraph one = paragraph({text("O", large), text("nce")});
    one.dropCap = DropCap{DropCapKind::Dropped, 3, Twips(720), Twips(40)};
    const WrittenDoc doc(documentOf(one));
    EXPECT_THAT(doc.dump(), HasSubstr("261b=20 2423=02 842f=2800 442c=1900 "));
    EXPECT_EQ(doc.read().text(), "O\\0dnce\\0d");
}

TEST(DocParagraph, HasMultiplesThatReadersMayCutDownToPercents) {
    Paragraph one = paragraph("a");
    one.properties.lineSpacing.multiple = 259 / 240.0;
    EXPECT_THAT(WrittenDoc(documentOf(one)).dump(), HasSubstr("6412=04010100"))
        << "260 parts of 240: 108 percent and not 107";
}

TEST(DocParagraph, EndsWithAMarkThatHasALookOfItsOwn) {
    RunProperties bold;
    bold.isBold = true;
    Paragraph one = paragraph({text("a", bold)});
    one.markProperties = bold;
    EXPECT_THAT(WrittenDoc(documentOf(one)).dump(), HasSubstr("0835=01 085c=01 \"a\"0835=01 085c=01 \"\\0d\""))
        << "a table may follow";
}

TEST(DocParagraph, MeansSidesOfThePageInItsOlderProperties) {
    Paragraph one = paragraph("a");
    one.properties.isRightToLeft = true;
    one.properties.indentStart = Twips(16);
    EXPECT_THAT(WrittenDoc(documentOf(one)).dump(), HasSubstr("2441=01 2403=02 2461=00 840e=1000 845e=1000 "));
}

TEST(DocParagraph, BelongsToItsList) {
    Document document = documentOf("");
    NumberingLevel level;
    level.text = "%1.";
    level.firstLine = Twips(-360);
    document.numberings = {{{level}}, {{level, level}}};
    Paragraph item = paragraph("item");
    item.list = ListReference{1, 1};
    document.sections[0].blocks = {{item}};
    const WrittenDoc doc(document);
    EXPECT_THAT(doc.dump(), HasSubstr("260a=01 460b=0200 "));
    EXPECT_EQ(doc.read().table(73).size(), 2u + 2 * 28) << "the levels stand behind it";
    EXPECT_EQ(doc.read().table(74).size(), 4u + 2 * 16 + 2 * 4);
}

TEST(DocParagraph, HasPagesOfPropertiesForLongTexts) {
    std::vector<Block> blocks;
    for (int i = 0; i < 500; ++i) {
        RunProperties look;
        look.size = HalfPoints(10 + i);
        Paragraph one = paragraph({text("a", look)});
        one.properties.spaceAfter = Twips(i + 1);
        blocks.push_back({one});
    }
    const std::string dump = WrittenDoc(documentOf(std::move(blocks))).dump();
    EXPECT_THAT(dump, HasSubstr("a414=0100 "));
    EXPECT_THAT(dump, HasSubstr("a414=f401 4a43=fd01 "));
}

TEST(DocStyle, HasTheNumberOfItsHeading) {
    Document document = documentOf("");
    for (const char* name : {"Quote", "heading 2"}) {
        Style style = document.styles[0];
        style.id = style.name = name;
        style.basedOn = "Normal";
        document.styles.push_back(style);
    }
    Paragraph quote = paragraph("q");
    quote.style = "Quote";
    Paragraph heading = paragraph("h");
    heading.style = "heading 2";
    document.sections[0].blocks = {{quote}, {heading}};
    EXPECT_EQ(WrittenDoc(document).dump(), "15 \"q\\0d\"\n2 \"h\\0d\"\n");
}

} // namespace
} // namespace orvane::tests
