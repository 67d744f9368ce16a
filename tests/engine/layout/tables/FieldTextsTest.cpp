#include "layout/tables/FieldTexts.h"

#include "engine/layout/TextBuilder.h"
#include "layout/tables/TableFinder.h"

#include <gtest/gtest.h>

namespace orvane::layout::tests {
namespace {

/// A line whose first words, as many as `bold`, are bold.
Line fieldLine(const std::string& text, double left, double baseline, std::size_t bold) {
    Line line = makeLine(text, left, baseline);
    for (std::size_t i = 0; i < bold; ++i)
        for (Span& span : line.words[i].spans)
            span.look.isBold = true;
    return line;
}

bool isFieldLine(const Line& line) {
    return isField(pieceOf(line, 0, 0, line.words.size()), {line});
}

TEST(FieldTexts, AreBoldLabelsWithValues) {
    EXPECT_TRUE(isFieldLine(fieldLine("Duty station: Buffalo", 50, 70, 2)));
    EXPECT_FALSE(isFieldLine(fieldLine("Duty station: Buffalo", 50, 70, 0))) << "nothing sets the label apart";
    EXPECT_FALSE(isFieldLine(fieldLine("Duty station: Buffalo", 50, 70, 3))) << "a heading";
    EXPECT_FALSE(isFieldLine(fieldLine("Duty station:", 50, 70, 2))) << "no value";
    EXPECT_FALSE(isFieldLine(fieldLine("Duty station Buffalo", 50, 70, 2))) << "no colon";
}

TEST(FieldTexts, AreATableThoughOneColumnGoesOnAlone) {
    PageText page = makePage(1);
    page.fonts.front().spaceWidth = 0.5;
    page.lines = {fieldLine("Salary: 54494 to 84913 a year", 50, 70, 1),
                  fieldLine("Open: the first of January", 300, 70, 1),
                  makeLine("Rates are higher in larger towns", 50, 82),
                  fieldLine("Grade: GS-11", 50, 96, 1),
                  fieldLine("Place: in Lund or elsewhere", 300, 96, 1),
                  fieldLine("Duty: many places in the North", 300, 110, 1)};
    Diagnostics diagnostics;
    const std::vector<TableDraft> tables = findTables(page, {}, {}, diagnostics);
    ASSERT_EQ(tables.size(), 1U);
    EXPECT_EQ(tables.front().rowEdges.size(), 4U);
    EXPECT_EQ(tables.front().columnEdges.size(), 3U);
    EXPECT_TRUE(page.lines.empty());
}

TEST(FieldTexts, FillTwoColumns) {
    const std::vector<Line> lines{fieldLine("Grade: 07", 50, 70, 1), fieldLine("Open: July", 250, 70, 1),
                                  fieldLine("Salary: high", 50, 84, 1), fieldLine("Place: Buffalo", 250, 84, 1),
                                  makeLine("and rising", 50, 96)};
    std::vector<TextPiece> pieces;
    for (std::size_t i = 0; i < lines.size(); ++i)
        pieces.push_back(pieceOf(lines[i], i, 0, lines[i].words.size()));
    const TableParameters::Tables parameters;
    const std::vector<PieceRow> rows = groupIntoRows(pieces, parameters);
    EXPECT_TRUE(areFields(rows, {{150, 240}}, lines, parameters));
    EXPECT_FALSE(areFields(rows, {}, lines, parameters)) << "one column";
}

} // namespace
} // namespace orvane::layout::tests
