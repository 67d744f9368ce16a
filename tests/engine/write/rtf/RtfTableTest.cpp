#include "DocumentBuilder.h"
#include "WrittenRtf.h"

#include <gmock/gmock.h>

namespace orvane::tests {
namespace {

using namespace document;
using testing::HasSubstr;
using testing::Not;

Table tableOf(std::vector<TableRow> rows, std::vector<Twips> widths) {
    Table table;
    table.rows = std::move(rows);
    table.columnWidths = std::move(widths);
    return table;
}

TEST(RtfTable, TellsWhereItsCellsEnd) {
    Table table = tableOf({{Twips(300), true, true, false, {cell("a"), cell("b", 1)}}}, {Twips(1000), Twips(2000)});
    table.indent = Twips(50);
    const WrittenRtf rtf(documentOf({{table}}));
    EXPECT_THAT(rtf.between("\\trowd", "\\trleft"),
                HasSubstr("\\ltrrow\\trgaph0\\trrh-300\\trhdr\\trkeep\\trftsWidth3\\trwWidth3000"));
    EXPECT_TRUE(rtf.has("\\clwWidth1000\\cellx1050"));
    EXPECT_TRUE(rtf.has("\\clwWidth2000\\cellx3050"));
    EXPECT_THAT(rtf.body(), HasSubstr("\\intbl\\itap1"));
    EXPECT_EQ(rtf.count("\\cell}"), 2u);
    EXPECT_EQ(rtf.count("\\row\n"), 1u);
}

TEST(RtfTable, RepeatsCellsThatReachDown) {
    TableCell tall = cell("tall");
    tall.rowSpan = 2;
    const Table table =
        tableOf({{{}, false, false, true, {tall, cell("a", 1)}}, {{}, false, false, true, {cell("b", 1)}}},
                {Twips(1000), Twips(1000)});
    const WrittenRtf rtf(documentOf({{table}}));
    EXPECT_EQ(rtf.count("\\clvmgf"), 1u);
    EXPECT_EQ(rtf.count("\\clvmrg"), 1u);
    EXPECT_EQ(rtf.count("tall"), 1u);
    EXPECT_EQ(rtf.count("\\cell}"), 4u);
}

TEST(RtfTable, FillsColumnsThatARowLeavesFree) {
    const Table table = tableOf({{{}, false, false, true, {cell("a"), cell("b", 1), cell("c", 2)}},
                                 {{}, false, false, true, {cell("only", 1)}}},
                                {Twips(1000), Twips(1000), Twips(1000)});
    EXPECT_EQ(WrittenRtf(documentOf({{table}})).count("\\cellx1000"), 2u);
}

TEST(RtfTable, HasTheLookOfEachCell) {
    TableCell one = cell("a");
    one.borders.top = {BorderKind::Double, EighthPoints(8), {255, 0, 0}, 0};
    one.shading = Color{0, 255, 0};
    one.alignment = CellAlignment::Bottom;
    one.direction = TextDirection::Upwards;
    one.marginLeft = Twips(11);
    one.marginTop = Twips(22);
    EXPECT_THAT(WrittenRtf(documentOf({{tableOf({{{}, false, false, true, {one}}}, {Twips(1000)})}})).body(),
                HasSubstr("\\clvertalb\\cltxbtlr\\clbrdrt\\brdrdb\\brdrw20\\brdrcf1\\clcbpat2\\clpadt11\\clpadft3"
                          "\\clpadl22\\clpadfl3"));
}

TEST(RtfTable, DefinesTheRowsOfInnerTablesAfterTheirCells) {
    TableCell outer = cell("outer");
    outer.blocks.push_back({tableOf({{{}, false, false, true, {cell("inner")}}}, {Twips(500)})});
    const std::string body =
        WrittenRtf(documentOf({{tableOf({{{}, false, false, true, {outer}}}, {Twips(1000)})}})).body();
    EXPECT_THAT(body, HasSubstr("\\itap2"));
    EXPECT_THAT(body, HasSubstr("{inner}{\\nestcell}"));
    EXPECT_THAT(body, HasSubstr("{\\*\\nesttableprops\\trowd"));
    EXPECT_THAT(body, HasSubstr("\\nestrow}{\\nonesttables\\par}"));
}

TEST(RtfTable, HasColumnsFromTheRightWhereReadingStartsThere) {
    Table table = tableOf({{{}, false, false, true, {cell("a")}}}, {Twips(1000)});
    table.isRightToLeft = true;
    table.rows[0].cells[0].marginLeft = Twips(7);
    table.rows[0].cells[0].borders.left.kind = BorderKind::Single;
    const std::string body = WrittenRtf(documentOf({{table}})).body();
    EXPECT_THAT(body, HasSubstr("\\rtlrow"));
    EXPECT_THAT(body, HasSubstr("\\clbrdrr\\brdrs"));
    EXPECT_THAT(body, HasSubstr("\\clpadr7"));
}

} // namespace
} // namespace orvane::tests
