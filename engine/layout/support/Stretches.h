#pragma once

#include <vector>

namespace orvane::layout {

/// From the first of some lines that follow each other to the last. Units: points.
struct Stretch {
    double from = 0;
    double to = 0;
};

/// The stretches of places that are no farther apart than `step`, from the first to the last.
std::vector<Stretch> stretchesOf(std::vector<double> places, double step);

/// Whether at least `fewest` spaces between the stretches of each lie within one of the other: what stands there side
/// by side has no rows in common. Requires: both are sorted.
bool runPastEachOther(const std::vector<Stretch>& some, const std::vector<Stretch>& others, int fewest);

} // namespace orvane::layout
