#include "DocumentBuilder.h"
#include "WrittenDocument.h"

#include "support/docx/DocxCheck.h"

#include <gmock/gmock.h>

namespace orvane::tests {
namespace {

using namespace document;

/// The properties that a paragraph gets whose style is given, the plain one unless told otherwise.
std::string paragraphProperties(const ParagraphProperties& properties, const ParagraphProperties& style = {}) {
    Document document = documentOf("a");
    document.styles[0].paragraph = style;
    std::get<Paragraph>(document.sections[0].blocks[0].value).properties = properties;
    return WrittenDocument(document).body("//w:p/w:pPr/*");
}

TEST(ParagraphXml, WritesEachPropertyThatDiffers) {
    struct Row {
        const char* xml;
        void (*set)(ParagraphProperties&);
    };
    const Row rows[] = {
        {"<w:keepNext/>", [](ParagraphProperties& p) { p.keepWithNext = true; }},
        {"<w:keepLines/>", [](ParagraphProperties& p) { p.keepLinesTogether = true; }},
        {"<w:pageBreakBefore/>", [](ParagraphProperties& p) { p.pageBreakBefore = true; }},
        {"<w:widowControl w:val='0'/>", [](ParagraphProperties& p) { p.hasWidowControl = false; }},
        {"<w:bidi/>", [](ParagraphProperties& p) { p.isRightToLeft = true; }},
        {"<w:contextualSpacing/>", [](ParagraphProperties& p) { p.isContextualSpacing = true; }},
        {"<w:jc w:val='center'/>", [](ParagraphProperties& p) { p.alignment = Alignment::Center; }},
        {"<w:jc w:val='right'/>", [](ParagraphProperties& p) { p.alignment = Alignment::End; }},
        {"<w:jc w:val='both'/>", [](ParagraphProperties& p) { p.alignment = Alignment::Justified; }},
        {"<w:jc w:val='distribute'/>", [](ParagraphProperties& p) { p.alignment = Alignment::Distributed; }},
        {"<w:outlineLvl w:val='0'/>", [](ParagraphProperties& p) { p.outlineLevel = 1; }},
        {"<w:shd w:val='clear' w:color='auto' w:fill='EEEEEE'/>",
         [](ParagraphProperties& p) {
             p.shading = Color{0xEE, 0xEE, 0xEE};
         }},
        {"<w:spacing w:before='120' w:after='80'/>",
         [](ParagraphProperties& p) {
             p.spaceBefore = Twips(120);
             p.spaceAfter = Twips(80);
         }},
        {"<w:spacing w:line='276' w:lineRule='auto'/>", [](ParagraphProperties& p) { p.lineSpacing.multiple = 1.15; }},
        {"<w:spacing w:line='290' w:lineRule='exact'/>",
         [](ParagraphProperties& p) {
             p.lineSpacing = {LineSpacingRule::Exact, 1, Twips(290)};
         }},
        {"<w:spacing w:line='290' w:lineRule='atLeast'/>",
         [](ParagraphProperties& p) {
             p.lineSpacing = {LineSpacingRule::AtLeast, 1, Twips(290)};
         }},
        {"<w:ind w:left='720' w:right='-100' w:hanging='360'/>",
         [](ParagraphProperties& p) {
             p.indentStart = Twips(720);
             p.indentEnd = Twips(-100);
             p.firstLine = Twips(-360);
         }},
        {"<w:ind w:left='0' w:right='100'/>", [](ParagraphProperties& p) { p.indentEnd = Twips(100); }},
        {"<w:ind w:firstLine='360'/>", [](ParagraphProperties& p) { p.firstLine = Twips(360); }},
        {"<w:pBdr><w:top w:val='double' w:sz='6' w:space='4' w:color='FF0000'/>"
         "<w:between w:val='dotted' w:sz='4' w:space='0' w:color='000000'/></w:pBdr>",
         [](ParagraphProperties& p) {
             p.borders.top = {BorderKind::Double, EighthPoints(6), {0xFF, 0, 0}, 4};
             p.betweenBorder.kind = BorderKind::Dotted;
         }},
        {"<w:tabs><w:tab w:val='decimal' w:pos='1000'/><w:tab w:val='right' w:leader='dot' w:pos='9000'/></w:tabs>",
         [](ParagraphProperties& p) {
             p.tabs = {{Twips(1000), TabAlignment::Decimal, TabLeader::None},
                       {Twips(9000), TabAlignment::End, TabLeader::Dots}};
         }},
    };
    for (const Row& row : rows) {
        ParagraphProperties properties;
        row.set(properties);
        EXPECT_EQ(paragraphProperties(properties), normalXml(row.xml));
    }
}

TEST(ParagraphXml, TakesAwayWhatTheStyleHasAndTheParagraphHasNot) {
    ParagraphProperties style;
    style.keepWithNext = true;
    style.borders.bottom.kind = BorderKind::Single;
    style.shading = kWhite;
    style.tabs = {{Twips(500)}, {Twips(900)}};
    style.firstLine = Twips(-300);
    style.outlineLevel = 2;
    ParagraphProperties properties;
    properties.tabs = {{Twips(900)}};
    EXPECT_EQ(paragraphProperties(properties, style),
              normalXml("<w:keepNext w:val='0'/><w:pBdr><w:bottom w:val='nil'/></w:pBdr>"
                        "<w:shd w:val='clear' w:color='auto' w:fill='auto'/>"
                        "<w:tabs><w:tab w:val='clear' w:pos='500'/></w:tabs><w:ind w:firstLine='0'/>"
                        "<w:outlineLvl w:val='9'/>"));
}

TEST(ParagraphXml, SaysNothingThatTheStyleSaysToo) {
    ParagraphProperties properties;
    properties.keepWithNext = true;
    properties.tabs = {{Twips(500)}};
    properties.lineSpacing = {LineSpacingRule::Exact, 1, Twips(290)};
    EXPECT_EQ(paragraphProperties(properties, properties), "");
}

TEST(ParagraphXml, NamesTheStyleUnlessItIsTheDefaultOrUnknown) {
    Document document = documentOf({{paragraph("a")}, {paragraph("b")}, {paragraph("c")}});
    document.styles.push_back({"Heading1", "heading 1", "Normal", "", {}, {}});
    std::size_t index = 0;
    for (const char* style : {"Normal", "Heading1", "Unknown"})
        std::get<Paragraph>(document.sections[0].blocks[index++].value).style = style;
    EXPECT_EQ(WrittenDocument(document).body("//w:p/w:pPr"), normalXml("<w:pPr><w:pStyle w:val='Heading1'/></w:pPr>"));
}

TEST(ParagraphXml, GivesAnEmptyParagraphItsHeight) {
    Paragraph empty;
    empty.markProperties.size = HalfPoints(40);
    EXPECT_EQ(WrittenDocument(documentOf(empty)).body("//w:p"),
              normalXml("<w:p><w:pPr><w:rPr><w:sz w:val='40'/></w:rPr></w:pPr></w:p>"));
}

TEST(ParagraphXml, PutsAListParagraphInItsListWithTheIndentsOfTheLevel) {
    Paragraph item = paragraph("item");
    item.list = {0, 1};
    item.properties.indentStart = Twips(900);
    item.properties.firstLine = Twips(-300);
    Document document = documentOf(item);
    NumberingLevel level;
    level.indentStart = Twips(900);
    level.firstLine = Twips(-200);
    document.numberings.push_back({{level, level}});
    EXPECT_EQ(WrittenDocument(document).body("//w:p/w:pPr/*"),
              normalXml("<w:numPr><w:ilvl w:val='1'/><w:numId w:val='1'/></w:numPr><w:ind w:hanging='300'/>"));
}

TEST(ParagraphXml, LeavesAParagraphOfNoListAsItIs) {
    Paragraph item = paragraph("item");
    item.list = {3, 0};
    EXPECT_EQ(WrittenDocument(documentOf(item)).body("//w:numPr"), "");
}

TEST(ParagraphXml, HasADropCapInAFrameBeforeTheTextItBegins) {
    RunProperties large;
    large.size = HalfPoints(80);
    Paragraph one = paragraph({text("O", large), text("nce upon a time")});
    one.properties.spaceAfter = Twips(120);
    one.dropCap = DropCap{DropCapKind::Dropped, 3, Twips(720), Twips(40)};
    const WrittenDocument written(documentOf(one));
    EXPECT_EQ(written.body("//w:p/w:pPr"),
              normalXml("<w:pPr><w:keepNext/><w:framePr w:dropCap='drop' w:lines='3' w:hSpace='40' w:wrap='around'"
                        " w:vAnchor='text' w:hAnchor='text'/><w:spacing w:line='720' w:lineRule='exact'/>"
                        "<w:rPr><w:sz w:val='80'/></w:rPr></w:pPr>"
                        "<w:pPr><w:spacing w:after='120'/></w:pPr>"));
    EXPECT_EQ(written.body("//w:p[1]/w:r/w:t/text()"), "O");
    EXPECT_EQ(written.body("//w:p[2]/w:r/w:t/text()"), "nce upon a time");
    EXPECT_THAT(faultsOfDocx(written.file()), testing::IsEmpty());
}

TEST(ParagraphXml, KeepsABreakOutOfTheFrameOfADropCap) {
    Paragraph one = paragraph({{Break{BreakKind::Column}}, text("O"), text("nce")});
    one.dropCap = DropCap{DropCapKind::InMargin, 2, Twips(480), {}};
    const WrittenDocument written(documentOf(one));
    EXPECT_EQ(written.body("//w:p[.//w:br]//w:framePr"), "");
    EXPECT_NE(written.body("//w:p[1]/w:r/w:br"), "");
    EXPECT_NE(written.body("//w:p[2]/w:pPr/w:framePr"), "");
    EXPECT_EQ(written.body("//w:p[4]"), "");
    EXPECT_NE(written.body("//w:framePr[@w:dropCap='margin'][@w:hAnchor='page']"), "");
}

} // namespace
} // namespace orvane::tests
