#include "DocumentBuilder.h"
#include "WrittenDocument.h"

#include "support/docx/DocxCheck.h"

#include <gmock/gmock.h>

namespace orvane::tests {
namespace {

using namespace document;

TableCell spanning(const char* characters, int column, int columnSpan, int rowSpan) {
    TableCell result = cell(characters, column);
    result.columnSpan = columnSpan;
    result.rowSpan = rowSpan;
    return result;
}

/// A table of columns of 1000 twips with one row for each list of cells.
Table tableOf(int columns, std::vector<std::vector<TableCell>> rows) {
    Table table;
    table.columnWidths.assign(static_cast<std::size_t>(columns), Twips(1000));
    for (std::vector<TableCell>& cells : rows) {
        TableRow row;
        row.cells = std::move(cells);
        table.rows.push_back(std::move(row));
    }
    return table;
}

WrittenDocument writtenTable(const Table& table) {
    return WrittenDocument(documentOf({{table}, {paragraph("after")}}));
}

TEST(TableXml, FixesTheGridSoThatWidthsHold) {
    Table table = tableOf(2, {{cell("a", 0), cell("b", 1)}});
    table.columnWidths[1] = Twips(2500);
    table.indent = Twips(-50);
    const WrittenDocument written(documentOf({{table}, {paragraph("after")}}));
    EXPECT_EQ(written.body("//w:tblPr/w:tblW|//w:tblPr/w:tblInd|//w:tblPr/w:tblLayout"),
              normalXml("<w:tblW w:w='3500' w:type='dxa'/><w:tblInd w:w='-50' w:type='dxa'/>"
                        "<w:tblLayout w:type='fixed'/>"));
    EXPECT_EQ(written.body("//w:gridCol/@w:w"), "1000\n2500\n");
    EXPECT_EQ(written.body("//w:tcW/@w:w"), "1000\n2500\n");
}

TEST(TableXml, RepeatsCellsThatReachIntoLaterRows) {
    const Table table = tableOf(3, {{spanning("a", 0, 2, 2), cell("b", 2)}, {cell("c", 2)}});
    const WrittenDocument written(documentOf({{table}, {paragraph("after")}}));
    EXPECT_EQ(written.body("//w:tr[1]/w:tc[1]/w:tcPr"),
              normalXml("<w:tcPr><w:tcW w:w='2000' w:type='dxa'/><w:gridSpan w:val='2'/><w:vMerge w:val='restart'/>"
                        "</w:tcPr>"));
    EXPECT_EQ(written.body("//w:tr[2]/w:tc[1]/w:tcPr"),
              normalXml("<w:tcPr><w:tcW w:w='2000' w:type='dxa'/><w:gridSpan w:val='2'/><w:vMerge/></w:tcPr>"));
    EXPECT_EQ(written.body("//w:tr[2]//w:t/text()"), "c");
}

TEST(TableXml, LeavesColumnsFreeAtTheSidesAndFillsThemWithin) {
    const Table table = tableOf(5, {{cell("a", 1), cell("b", 3)}});
    const WrittenDocument written(documentOf({{table}, {paragraph("after")}}));
    EXPECT_EQ(written.body("//w:trPr/*"), normalXml("<w:gridBefore w:val='1'/><w:wBefore w:w='1000' w:type='dxa'/>"
                                                    "<w:gridAfter w:val='1'/><w:wAfter w:w='1000' w:type='dxa'/>"));
    EXPECT_EQ(written.count("//w:tc"), 3u);
}

// What layout should not make, but a reader of the file has to survive.
TEST(TableXml, MakesASoundGridOfCellsThatDoNotFit) {
    struct Row {
        Table table;
        const char* text;
        const char* why;
    };
    const Row rows[] = {
        {tableOf(2, {{spanning("a", 0, 9, 1)}}), "a", "a span over the edge"},
        {tableOf(2, {{spanning("a", 1, 1, 9)}, {cell("b", 0)}}), "ab", "a span beyond the last row"},
        {tableOf(2, {{cell("a", 0), cell("b", 0), cell("c", 0)}}), "abc", "three cells in one column"},
        {tableOf(2, {{spanning("a", 1, 1, 2)}, {spanning("b", 0, 2, 1)}}), "ab", "spans that cross"},
        {tableOf(2, {{cell("a", 0)}, {}}), "a", "a row without cells"},
        {tableOf(0, {{cell("a", 0), cell("b", 4)}}), "ab", "a table without a grid"},
        {tableOf(2, {{spanning("a", 0, 2, 2)}, {cell("b", 1)}}), "ab", "a cell where another reaches from above"},
        {tableOf(2, {{spanning("a", 0, -1, 0)}}), "a", "spans of nothing"},
    };
    for (const Row& row : rows) {
        const WrittenDocument written(documentOf({{row.table}, {paragraph("")}}));
        EXPECT_THAT(faultsOfDocx(written.file()), testing::IsEmpty()) << row.why;
        EXPECT_EQ(written.body("//w:t/text()"), row.text) << row.why;
    }
}

TEST(TableXml, TakesColumnsBeyondTheLastThatIsAllowedIntoIt) {
    std::vector<TableCell> cells;
    for (int column = 0; column < 80; ++column)
        cells.push_back(cell("x", column));
    const WrittenDocument written(documentOf({{tableOf(80, {cells})}, {paragraph("after")}}));
    EXPECT_EQ(written.count("//w:gridCol"), 63u);
    EXPECT_EQ(written.count("//w:tc//w:t[text()='x']"), 80u);
    EXPECT_THAT(faultsOfDocx(written.file()), testing::IsEmpty());
    ASSERT_EQ(written.diagnostics().entries().size(), 1u);
    EXPECT_EQ(written.diagnostics().entries()[0].kind, DiagnosticKind::FormatLimitReached);
}

TEST(TableXml, WritesHowRowsStand) {
    Table table = tableOf(1, {{cell("a")}, {cell("b")}, {cell("c")}, {cell("d")}});
    table.rows[0].isHeader = true;
    table.rows[1].height = Twips(400);
    table.rows[1].isExactHeight = true;
    table.rows[2].height = Twips(300);
    table.rows[2].mayBreakAcrossPages = false;
    table.rows[3].isHeader = true;
    const WrittenDocument written(documentOf({{table}, {paragraph("after")}}));
    EXPECT_EQ(written.body("//w:tr[1]/w:trPr/*"), normalXml("<w:tblHeader/>"));
    EXPECT_EQ(written.body("//w:tr[2]/w:trPr/*"), normalXml("<w:trHeight w:val='400' w:hRule='exact'/>"));
    EXPECT_EQ(written.body("//w:tr[3]/w:trPr/*"),
              normalXml("<w:cantSplit/><w:trHeight w:val='300' w:hRule='atLeast'/>"));
    EXPECT_EQ(written.body("//w:tr[4]/w:trPr/*"), "") << "only the first rows can be repeated";
}

TEST(TableXml, WritesHowCellsLook) {
    TableCell look = cell("a");
    look.borders.top = {BorderKind::Single, EighthPoints(8), {0xFF, 0, 0}, 0};
    look.shading = Color{0xDD, 0xDD, 0xDD};
    look.alignment = CellAlignment::Center;
    look.direction = TextDirection::Upwards;
    const WrittenDocument written = writtenTable(tableOf(1, {{look}}));
    EXPECT_EQ(written.body("//w:tcPr/*"),
              normalXml("<w:tcW w:w='1000' w:type='dxa'/>"
                        "<w:tcBorders><w:top w:val='single' w:sz='8' w:space='0' w:color='FF0000'/>"
                        "<w:left w:val='nil'/><w:bottom w:val='nil'/><w:right w:val='nil'/></w:tcBorders>"
                        "<w:shd w:val='clear' w:color='auto' w:fill='DDDDDD'/>"
                        "<w:textDirection w:val='btLr'/><w:vAlign w:val='center'/>"));
}

TEST(TableXml, SaysMarginsOnceForTheTableAndAgainWhereTheyDiffer) {
    Table table = tableOf(2, {{cell("a", 0), cell("b", 1)}});
    table.rows[0].cells[0].marginLeft = Twips(80);
    table.rows[0].cells[1].marginTop = Twips(20);
    const WrittenDocument written = writtenTable(table);
    EXPECT_EQ(written.body("//w:tblCellMar/*/@w:w"), "0\n80\n0\n0\n");
    EXPECT_EQ(written.body("//w:tc[1]//w:tcMar"), "");
    EXPECT_EQ(written.body("//w:tc[2]//w:tcMar/*/@w:w"), "20\n0\n0\n0\n");
}

TEST(TableXml, MirrorsSidesInTablesThatRunFromRightToLeft) {
    TableCell first = cell("a");
    first.borders.right.kind = BorderKind::Thick;
    first.marginRight = Twips(70);
    Table table = tableOf(1, {{first}});
    table.isRightToLeft = true;
    const WrittenDocument written = writtenTable(table);
    EXPECT_EQ(written.body("//w:tcBorders/w:left/@w:val"), "thick\n");
    EXPECT_EQ(written.body("//w:tblCellMar/w:left/@w:w"), "70\n");
    EXPECT_EQ(written.count("//w:tblPr/w:bidiVisual"), 1u);
}

TEST(TableXml, SaysThatATableRunsFromLeftToRightWhereItsTextDoesNot) {
    Table table = tableOf(1, {{cell("a")}});
    EXPECT_EQ(writtenTable(table).count("//w:tblPr/w:bidiVisual"), 0u);
    std::get<Paragraph>(table.rows[0].cells[0].blocks[0].value).properties.isRightToLeft = true;
    EXPECT_EQ(writtenTable(table).body("//w:tblPr/w:bidiVisual"), normalXml("<w:bidiVisual w:val='0'/>"));
}

TEST(TableXml, PlacesTheTable) {
    for (const auto& [alignment, word] : {std::pair{Alignment::Center, "center\n"}, {Alignment::End, "right\n"}}) {
        Table table = tableOf(1, {{cell("a")}});
        table.alignment = alignment;
        const WrittenDocument written = writtenTable(table);
        EXPECT_EQ(written.body("//w:tblPr/w:jc/@w:val"), word);
        EXPECT_EQ(written.count("//w:tblInd"), 0u);
    }
}

TEST(TableXml, WritesNothingOfATableWithoutRows) {
    EXPECT_EQ(writtenTable(Table{}).count("//w:tbl"), 0u);
}

} // namespace
} // namespace orvane::tests
