#include "DocumentBuilder.h"
#include "WrittenDocument.h"

#include <gtest/gtest.h>

namespace orvane::tests {
namespace {

using namespace document;

/// The properties that a run of these characters gets in a paragraph of the style "Normal" with plain properties.
std::string runProperties(const RunProperties& properties, const std::string& characters = "a") {
    return WrittenDocument(documentOf(characters, properties)).body("//w:r/w:rPr/*");
}

TEST(RunXml, WritesNothingForWhatTheStyleSays) {
    const WrittenDocument written(documentOf("plain"));
    EXPECT_EQ(written.body("//w:p"), normalXml("<w:p><w:r><w:t>plain</w:t></w:r></w:p>"));
}

TEST(RunXml, WritesEachPropertyThatDiffers) {
    struct Row {
        const char* xml;
        void (*set)(RunProperties&);
    };
    const Row rows[] = {
        {"<w:b/>", [](RunProperties& p) { p.isBold = true; }},
        {"<w:i/>", [](RunProperties& p) { p.isItalic = true; }},
        {"<w:caps/>", [](RunProperties& p) { p.isAllCaps = true; }},
        {"<w:smallCaps/>", [](RunProperties& p) { p.isSmallCaps = true; }},
        {"<w:strike/>", [](RunProperties& p) { p.isStruck = true; }},
        {"<w:outline/>", [](RunProperties& p) { p.isOutlined = true; }},
        {"<w:vanish/>", [](RunProperties& p) { p.isHidden = true; }},
        {"<w:color w:val='0078D4'/>",
         [](RunProperties& p) {
             p.color = {0x00, 0x78, 0xD4};
         }},
        {"<w:spacing w:val='-5'/>", [](RunProperties& p) { p.characterSpacing = Twips(-5); }},
        {"<w:w w:val='90'/>", [](RunProperties& p) { p.widthPercent = 90; }},
        {"<w:position w:val='-6'/>", [](RunProperties& p) { p.raise = Twips(-60); }},
        {"<w:sz w:val='17'/>", [](RunProperties& p) { p.size = HalfPoints(17); }},
        {"<w:highlight w:val='yellow'/>",
         [](RunProperties& p) {
             p.highlight = Color{0xFF, 0xFF, 0};
         }},
        {"<w:shd w:val='clear' w:color='auto' w:fill='FFF2CC'/>",
         [](RunProperties& p) {
             p.highlight = Color{0xFF, 0xF2, 0xCC};
         }},
        {"<w:u w:val='wave'/>", [](RunProperties& p) { p.underline = UnderlineKind::Wavy; }},
        {"<w:vertAlign w:val='superscript'/>",
         [](RunProperties& p) { p.verticalPosition = VerticalPosition::Superscript; }},
        {"<w:lang w:val='fr-FR'/>", [](RunProperties& p) { p.language = "fr-FR"; }},
        {"<w:lang w:eastAsia='ja-JP'/>", [](RunProperties& p) { p.language = "ja-JP"; }},
        {"<w:lang w:bidi='he'/>", [](RunProperties& p) { p.language = "he"; }},
        {"<w:rFonts w:ascii='Arial' w:hAnsi='Arial' w:eastAsia='Arial' w:cs='Arial'/>",
         [](RunProperties& p) { p.fontFamily = "Arial"; }},
        {"<w:rFonts w:eastAsia='SimSun'/>", [](RunProperties& p) { p.eastAsianFontFamily = "SimSun"; }},
        {"<w:rFonts w:hint='eastAsia'/>", [](RunProperties& p) { p.isEastAsian = true; }},
    };
    for (const Row& row : rows) {
        RunProperties properties;
        row.set(properties);
        EXPECT_EQ(runProperties(properties), normalXml(row.xml));
    }
}

TEST(RunXml, TakesAwayWhatTheStyleHasAndTheRunHasNot) {
    Document document = documentOf("plain");
    RunProperties& style = document.styles[0].run;
    style.isBold = true;
    style.underline = UnderlineKind::Single;
    style.highlight = Color{0xFF, 0xFF, 0};
    style.color = {0xFF, 0, 0};
    style.verticalPosition = VerticalPosition::Subscript;
    EXPECT_EQ(WrittenDocument(document).body("//w:r/w:rPr/*"),
              normalXml("<w:b w:val='0'/><w:color w:val='000000'/><w:highlight w:val='none'/><w:u w:val='none'/>"
                        "<w:vertAlign w:val='baseline'/>"));
}

TEST(RunXml, GivesComplexScriptsTheirOwnSizeWeightAndSlant) {
    RunProperties properties;
    properties.isBold = properties.isItalic = true;
    properties.size = HalfPoints(30);
    EXPECT_EQ(runProperties(properties, "\u05E9\u05DC\u05D5\u05DD"),
              normalXml("<w:b/><w:bCs/><w:i/><w:iCs/><w:sz w:val='30'/><w:szCs w:val='30'/>"));
}

TEST(RunXml, MarksTextThatRunsFromRightToLeft) {
    RunProperties properties;
    properties.isRightToLeft = true;
    EXPECT_EQ(runProperties(properties, "123"), normalXml("<w:rtl/>"));
}

TEST(RunXml, JoinsCharactersOfEqualPropertiesIntoOneRun) {
    RunProperties bold;
    bold.isBold = true;
    const WrittenDocument written(documentOf(paragraph({text("a"), text("b"), {Tab{}}, {Break{}}, text("c", bold)})));
    EXPECT_EQ(written.body("//w:p"), normalXml("<w:p><w:r><w:t>a</w:t><w:t>b</w:t><w:tab/><w:br/></w:r>"
                                               "<w:r><w:rPr><w:b/></w:rPr><w:t>c</w:t></w:r></w:p>"));
}

TEST(RunXml, WritesCharactersThatAreElements) {
    const WrittenDocument written(documentOf("a\tb\nc\u00ADd\u2011e\u2028f"));
    EXPECT_EQ(written.body("//w:r/*"),
              normalXml("<w:t>a</w:t><w:tab/><w:t>b</w:t><w:br/><w:t>c</w:t><w:softHyphen/><w:t>d</w:t>"
                        "<w:noBreakHyphen/><w:t>e</w:t><w:br/><w:t>f</w:t>"));
}

TEST(RunXml, KeepsBlanksAtTheEdges) {
    for (const char* characters : {" a", "a ", "a  b", " "}) {
        const WrittenDocument written(documentOf(characters));
        EXPECT_NE(
            written.part("word/document.xml").find(std::string("<w:t xml:space=\"preserve\">") + characters + "<"),
            std::string::npos)
            << characters;
    }
}

TEST(RunXml, WritesBreaksOfEachKind) {
    const WrittenDocument written(
        documentOf(paragraph({{Break{BreakKind::Line}}, {Break{BreakKind::Column}}, {Break{BreakKind::Page}}})));
    EXPECT_EQ(written.body("//w:r/*"), normalXml("<w:br/><w:br w:type='column'/><w:br w:type='page'/>"));
}

TEST(RunXml, LeavesOutWhatXmlCannotHold) {
    const WrittenDocument written(documentOf(std::string("a\x01") + "b\xED\xA0\x80" + "c\xFF<&>\uFFFE"));
    EXPECT_EQ(written.body("//w:t/text()"), "ab\uFFFD\uFFFD\uFFFDc\uFFFD&lt;&amp;&gt;");
}

} // namespace
} // namespace orvane::tests
