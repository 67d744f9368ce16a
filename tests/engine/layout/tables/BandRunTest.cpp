#include "layout/tables/BandRun.h"

#include <gtest/gtest.h>

namespace orvane::layout::tests {
namespace {

/// A band with one row of pieces that reach from and to these places.
RuleBand bandOf(int row, const std::vector<std::pair<double, double>>& places) {
    const double top = 12.0 * row;
    RuleBand band{top, top + 12, {{{}, {}, top + 10, top + 10, 10}}};
    for (const auto& [left, right] : places) {
        const Rect box{left, top + 1, right, top + 11};
        band.rows.front().pieces.push_back({0, 0, 0, box, top + 10, 10});
        band.rows.front().box = band.rows.front().box.united(box);
    }
    return band;
}

/// Two columns, then two texts side by side that stand over the gap between these in part.
std::vector<RuleBand> bandsOf(int rows, int others) {
    std::vector<RuleBand> bands;
    for (int i = 0; i < rows; ++i)
        bands.push_back(bandOf(i, {{50, 150}, {250, 350}}));
    for (int i = rows; i < rows + others; ++i)
        bands.push_back(bandOf(i, {{50, 300}, {301, 350}}));
    return bands;
}

/// Where the columns of the rows first are none, one row after the other looked at.
std::size_t endOfColumns(const std::vector<RuleBand>& bands, const TableParameters::Tables& parameters) {
    std::vector<PieceRow> rows;
    for (std::size_t i = 0; i < bands.size(); ++i) {
        rows.push_back(bands[i].rows.front());
        if (static_cast<int>(i) >= parameters.maximumHeaderRows && findColumnGaps(rows, parameters).empty())
            return i;
    }
    return bands.size();
}

TEST(BandRun, EndsWithTheRowBehindWhichTheColumnsAreNone) {
    const TableParameters::Tables parameters;
    for (const int rows : {10, 60, 100, 150, 333, 400}) {
        const std::vector<RuleBand> bands = bandsOf(rows, 300);
        const std::size_t end = endOfColumns(bands, parameters);
        ASSERT_LT(end, bands.size());
        EXPECT_EQ(growRun(bands, 0, parameters).end, end) << rows << " rows";
    }
}

TEST(BandRun, TakesAllBandsOfOneTable) {
    for (const int rows : {10, 65, 100, 333})
        EXPECT_EQ(growRun(bandsOf(rows, 0), 0, {}).end, static_cast<std::size_t>(rows));
}

TEST(BandRun, EndsWithTheBandThatTextFollows) {
    std::vector<RuleBand> bands = bandsOf(300, 0);
    bands[210].isFollowed = true;
    EXPECT_EQ(growRun(bands, 0, {}).end, 211u);
}

} // namespace
} // namespace orvane::layout::tests
