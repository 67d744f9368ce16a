#pragma once

#include "layout/text/TextDraft.h"
#include "layout/text/TextParameters.h"

#include <vector>

namespace orvane::layout {

/// A stretch of a row without wide gaps.
struct RowRun {
    std::size_t first = 0; ///< index of its first cluster
    std::size_t last = 0;  ///< one past the end
    double start = 0;
    double end = 0;
    bool isLabel = false; ///< looks like a list label: "1.", "(a)", a bullet
    bool followsLeader = false;
    bool isTabbed = false; ///< the gap before it is wider than blanks are in its row
    bool isWalled = false; ///< a rule or the edge of a ground stands in the gap before it
};

/// Tells which wide gaps of rows are gutters: a vertical rule stands in them, or rows above and below leave the same
/// strip empty.
class GutterFinder {
public:
    /// Requires: `rows` are sorted by frame and baseline, and outlive this.
    GutterFinder(const std::vector<TextRow>& rows, const std::vector<TextFrame>& frames, const std::vector<Rule>& rules,
                 const std::vector<Ground>& grounds, const TextParameters& parameters);

    const std::vector<RowRun>& runsOf(std::size_t row) const { return m_runs[row]; }
    /// Whether the gap before run `run` of row `row` is a gutter.
    bool isGutter(std::size_t row, std::size_t run) const;

private:
    enum class Testimony { For, Against, LeftOnly, RightOnly, Silent };

    enum class WallKind { Rule, EdgeOfGround };
    struct Wall {
        double position = 0; ///< along the rows
        double from = 0;     ///< across them
        double to = 0;
        WallKind kind = WallKind::Rule;
    };

    std::vector<RowRun> cutRuns(const TextRow& row) const;
    /// Adds the runs of clusters [first, end), between which no rule or edge of a ground stands.
    void cutCell(const TextRow& row, std::size_t first, std::size_t end, std::vector<RowRun>& runs) const;
    bool hasWallBetween(const TextRow& row, double left, double right) const;
    Testimony ask(std::size_t witness, const TextRow& row, const RowRun& left, const RowRun& right) const;
    /// Rows that speak for the gap, walking away from it in one direction until one speaks against it.
    void gather(std::size_t row, const RowRun& left, const RowRun& right, int step, int& forIt, int& leftOnly,
                int& rightOnly) const;

    const std::vector<TextRow>& m_rows;
    const TextParameters::Gutters& m_limits;
    std::vector<std::vector<RowRun>> m_runs;
    std::vector<std::vector<Wall>> m_wallsOfFrame; ///< sorted by position
};

} // namespace orvane::layout
