#include "DocumentBuilder.h"
#include "WrittenDocument.h"

#include <gtest/gtest.h>

namespace orvane::tests {
namespace {

using namespace document;

Table smallTable() {
    Table table;
    table.columnWidths = {Twips(1000)};
    table.rows.resize(1);
    table.rows[0].cells.push_back(cell("cell"));
    return table;
}

Frame smallFrame(const std::string& characters) {
    Frame frame;
    frame.width = frame.height = Emu(100000);
    frame.blocks.push_back({paragraph(characters)});
    return frame;
}

/// The body's children: p for a paragraph, f for one that anchors something, t for a table, s for the section.
std::string outline(const WrittenDocument& written) {
    std::string letters;
    for (std::size_t i = 1; written.count("//w:body/*[" + std::to_string(i) + "]") > 0; ++i) {
        const std::string child = "//w:body/*[" + std::to_string(i) + "]";
        const bool hasFloat = written.count(child + "/w:r/mc:AlternateContent") > 0;
        letters += written.count(child + "/self::w:tbl") > 0      ? 't'
                   : written.count(child + "/self::w:sectPr") > 0 ? 's'
                   : hasFloat                                     ? 'f'
                                                                  : 'p';
    }
    return letters;
}

TEST(BlockXml, PutsAParagraphWhereTheFormatNeedsOne) {
    struct Row {
        std::vector<Block> blocks;
        const char* outline;
        const char* why;
    };
    const Row rows[] = {
        {{}, "ps", "a body has a paragraph"},
        {{{paragraph("a")}}, "ps", "one is enough"},
        {{{smallTable()}}, "tps", "a table is not the last"},
        {{{smallTable()}, {smallTable()}}, "tptps", "tables that touch become one"},
        {{{smallFrame("x")}, {paragraph("a")}}, "fs", "a frame is anchored in the paragraph after it"},
        {{{paragraph("a")}, {smallFrame("x")}}, "fs", "or in the last one, when none follows"},
        {{{paragraph("a")}, {smallFrame("x")}, {smallTable()}}, "pftps", "a table anchors nothing"},
        {{{smallTable()}, {smallFrame("x")}}, "tfs", "nor the table before it"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(outline(WrittenDocument(documentOf(row.blocks))), row.outline) << row.why;
}

TEST(BlockXml, MakesTheParagraphsOfItsOwnTooLowToBeSeen) {
    const WrittenDocument written(documentOf({{smallTable()}}));
    EXPECT_EQ(written.body("//w:body/w:p/w:pPr"),
              normalXml("<w:pPr><w:spacing w:line='20' w:lineRule='exact'/><w:rPr><w:sz w:val='2'/></w:rPr></w:pPr>"));
}

TEST(BlockXml, AnchorsAfterThePageBreakThatAParagraphBeginsWith) {
    const WrittenDocument written(
        documentOf({{paragraph("a")}, {smallFrame("x")}, {paragraph({{Break{BreakKind::Page}}, text("b")})}}));
    EXPECT_EQ(written.count("//w:p[2]/w:r[1]/w:br"), 1u);
    EXPECT_EQ(written.count("//w:p[2]/w:r[2]/mc:AlternateContent"), 1u);
    EXPECT_EQ(written.body("//w:p[2]/w:r[3]/w:t/text()"), "b");
}

TEST(BlockXml, AnchorsWhatFloatsInATextBoxBesideIt) {
    Frame outer = smallFrame("outer");
    outer.blocks.insert(outer.blocks.begin(), {smallFrame("inner")});
    const WrittenDocument written(documentOf({{outer}, {paragraph("a")}}));
    EXPECT_EQ(written.count("//w:txbxContent//w:txbxContent"), 0u);
    EXPECT_EQ(written.body("//w:body/w:p/w:r//w:txbxContent//w:t/text()"), "outerinner");
}

TEST(BlockXml, EndsCellsWithAParagraph) {
    Table outer = smallTable();
    outer.rows[0].cells[0].blocks = {{smallTable()}};
    const WrittenDocument written(documentOf({{outer}, {paragraph("a")}}));
    EXPECT_EQ(written.count("//w:tc/w:tbl"), 1u);
    EXPECT_EQ(written.count("//w:tc[not(*[last()][self::w:p])]"), 0u);
}

} // namespace
} // namespace orvane::tests
