#include "layout/tables/TightGaps.h"

#include "engine/layout/TextBuilder.h"

#include <gtest/gtest.h>

#include <ctime>

namespace orvane::layout::tests {
namespace {

/// Rows of one line each.
struct Rows {
    void add(const char* text, double left) {
        lines.push_back(makeLine(text, left, 12.0 * static_cast<double>(lines.size())));
        const std::size_t line = lines.size() - 1;
        const TextPiece piece = pieceOf(lines[line], line, 0, lines[line].words.size());
        rows.push_back({{piece}, piece.box, piece.baseline, piece.baseline, piece.fontSize});
    }
    std::vector<ColumnGap> cut() { return cutAtTightGaps(rows, lines, {}); }

    std::vector<Line> lines;
    std::vector<PieceRow> rows;
};

TEST(TightGaps, FindsTextsBehindNumbersOfDifferentLength) {
    Rows rows;
    rows.add("7 Lion", 62);
    rows.add("4711 Elephants", 47);
    rows.add("12 Mice and rats", 57);
    rows.add("850 Wild geese", 52);
    EXPECT_EQ(rows.cut().size(), 1u);
    for (const PieceRow& row : rows.rows)
        EXPECT_EQ(row.pieces.size(), 2u);
}

TEST(TightGaps, TakesLittleTimeForThousandsOfRowsWithWordsAtOnePlace) {
    Rows rows;
    for (int i = 0; i < 10000; ++i)
        rows.add("ab cd", 50);
    const std::clock_t start = std::clock();
    EXPECT_TRUE(rows.cut().empty());
    EXPECT_LT(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, 1);
}

} // namespace
} // namespace orvane::layout::tests
