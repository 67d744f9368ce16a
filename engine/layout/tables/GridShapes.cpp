#include "layout/tables/GridShapes.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <unordered_map>

namespace orvane::layout {
namespace {

/// One row of a shape: the columns [first, last) without a gap.
struct Run {
    int row = 0;
    int first = 0;
    int last = 0;
};

/// The shape's places as rectangles: rows of equal extent that follow each other are one.
std::vector<GridCell> cutIntoRectangles(const std::vector<Run>& runs) {
    std::vector<GridCell> cells;
    std::map<std::pair<int, int>, std::size_t> openByExtent;
    for (const Run& run : runs) {
        const auto open = openByExtent.find({run.first, run.last});
        if (open != openByExtent.end()) {
            GridCell& cell = cells[open->second];
            if (cell.row + cell.rowSpan == run.row) {
                ++cell.rowSpan;
                continue;
            }
        }
        openByExtent[{run.first, run.last}] = cells.size();
        cells.push_back({run.row, run.first, 1, run.last - run.first});
    }
    return cells;
}

} // namespace

std::vector<double> clusterPositions(std::vector<double> values, double snap) {
    std::sort(values.begin(), values.end());
    std::vector<double> positions;
    for (std::size_t first = 0; first < values.size();) {
        std::size_t last = first;
        double sum = 0;
        while (last < values.size() && values[last] <= values[first] + snap)
            sum += values[last++];
        positions.push_back(sum / static_cast<double>(last - first));
        first = last;
    }
    return positions;
}

std::size_t nearestIndex(const std::vector<double>& positions, double value) {
    const auto after = std::lower_bound(positions.begin(), positions.end(), value);
    if (after == positions.begin())
        return 0;
    if (after == positions.end() || value - *(after - 1) < *after - value)
        return static_cast<std::size_t>(after - positions.begin()) - 1;
    return static_cast<std::size_t>(after - positions.begin());
}

CutCells cutIntoCells(const std::vector<std::size_t>& ownerOfPlace, std::size_t columns) {
    std::unordered_map<std::size_t, std::vector<Run>> runsOfOwner;
    for (std::size_t place = 0; place < ownerOfPlace.size(); ++place) {
        const int row = static_cast<int>(place / columns);
        const int column = static_cast<int>(place % columns);
        std::vector<Run>& runs = runsOfOwner[ownerOfPlace[place]];
        if (!runs.empty() && runs.back().row == row && runs.back().last == column)
            ++runs.back().last;
        else
            runs.push_back({row, column, column + 1});
    }
    CutCells result;
    for (const auto& [owner, runs] : runsOfOwner) {
        const std::vector<GridCell> cells = cutIntoRectangles(runs);
        if (cells.size() > 1)
            result.forced += static_cast<int>(cells.size());
        result.cells.insert(result.cells.end(), cells.begin(), cells.end());
    }
    std::sort(result.cells.begin(), result.cells.end(), [](const GridCell& a, const GridCell& b) {
        return std::tie(a.row, a.column) < std::tie(b.row, b.column);
    });
    return result;
}

} // namespace orvane::layout
