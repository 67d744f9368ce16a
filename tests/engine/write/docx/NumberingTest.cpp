#include "DocumentBuilder.h"
#include "WrittenDocument.h"

#include <gtest/gtest.h>

namespace orvane::tests {
namespace {

using namespace document;

NumberingLevel level(const char* label, NumberFormat format = NumberFormat::Decimal) {
    NumberingLevel result;
    result.text = label;
    result.format = format;
    result.indentStart = Twips(720);
    result.firstLine = Twips(-360);
    return result;
}

std::string numbering(std::vector<Numbering> numberings, const char* xpath) {
    Document document = documentOf("a");
    document.numberings = std::move(numberings);
    return WrittenDocument(document).select("word/numbering.xml", xpath);
}

TEST(Numbering, WritesALevel) {
    NumberingLevel legal = level("%1.%2", NumberFormat::UpperRoman);
    legal.start = 4;
    legal.alignment = Alignment::End;
    legal.isLegal = true;
    EXPECT_EQ(numbering({{{level("%1."), legal}}}, "//w:lvl[2]"),
              normalXml("<w:lvl w:ilvl='1'><w:start w:val='4'/><w:numFmt w:val='upperRoman'/><w:isLgl/>"
                        "<w:lvlText w:val='%1.%2'/><w:lvlJc w:val='right'/>"
                        "<w:pPr><w:ind w:left='720' w:hanging='360'/></w:pPr></w:lvl>"));
}

TEST(Numbering, SaysAllOfALabelsLookForItTakesThatOfItsParagraphElse) {
    NumberingLevel bullet = level("\u2022", NumberFormat::Bullet);
    bullet.run = RunProperties{};
    bullet.run->fontFamily = "Symbol";
    const std::string look = numbering({{{bullet}}}, "//w:lvl/w:rPr/*");
    for (const char* part : {"<w:rFonts w:ascii=\"Symbol\"", "<w:b w:val=\"0\"", "<w:i w:val=\"0\"",
                             "<w:color w:val=\"000000\"", "<w:sz w:val=\"22\"", "<w:u w:val=\"none\""})
        EXPECT_NE(look.find(part), std::string::npos) << part;
}

TEST(Numbering, SetsABlankAfterALabelThatDoesNotHang) {
    NumberingLevel flush = level("%1.");
    flush.firstLine = Twips(0);
    EXPECT_EQ(numbering({{{flush}}}, "//w:suff"), normalXml("<w:suff w:val='space'/>"));
}

TEST(Numbering, SetsATabulatorWithItsStopAfterALabelWhoseTextStandsApart) {
    NumberingLevel flush = level("%1.");
    flush.firstLine = Twips(0);
    flush.textStart = Twips(1134);
    EXPECT_EQ(numbering({{{flush}}}, "//w:suff"), "");
    EXPECT_EQ(numbering({{{flush}}}, "//w:lvl/w:pPr/w:tabs"),
              normalXml("<w:tabs><w:tab w:val='num' w:pos='1134'/></w:tabs>"));
}

TEST(Numbering, SharesADefinitionAmongEqualListsAndStartsEachAnew) {
    NumberingLevel second = level("%2)");
    second.start = 3;
    const Numbering list{{level("%1."), second}};
    const Numbering other{{level("\u2013", NumberFormat::Bullet)}};
    const std::vector<Numbering> all = {list, other, list};
    EXPECT_EQ(numbering(all, "//w:abstractNum/@w:abstractNumId"), "0\n1\n");
    EXPECT_EQ(numbering(all, "//w:num"),
              normalXml("<w:num w:numId='1'><w:abstractNumId w:val='0'/></w:num>"
                        "<w:num w:numId='2'><w:abstractNumId w:val='1'/></w:num>"
                        "<w:num w:numId='3'><w:abstractNumId w:val='0'/>"
                        "<w:lvlOverride w:ilvl='0'><w:startOverride w:val='1'/></w:lvlOverride>"
                        "<w:lvlOverride w:ilvl='1'><w:startOverride w:val='3'/></w:lvlOverride></w:num>"));
}

TEST(Numbering, KeepsToTheNineLevelsThatThereAre) {
    Numbering deep;
    deep.levels.assign(12, level("%1."));
    EXPECT_EQ(numbering({deep}, "//w:lvl[last()]/@w:ilvl"), "8\n");
    Document document = documentOf(paragraph("a"));
    std::get<Paragraph>(document.sections[0].blocks[0].value).list = {0, 11};
    document.numberings = {deep};
    EXPECT_EQ(WrittenDocument(document).body("//w:ilvl/@w:val"), "8\n");
}

} // namespace
} // namespace orvane::tests
