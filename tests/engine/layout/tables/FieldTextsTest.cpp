#include "layout/tables/FieldTexts.h"

#include "engine/layout/TextBuilder.h"

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
