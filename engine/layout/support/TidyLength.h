#pragma once

#include <optional>

namespace orvane::layout {

/// A length between `lowest` and `highest` points that people type: `preferred` when it fits, else a round number of
/// centimetres or inches; nullopt where none lies there.
std::optional<double> tidyLengthWithin(double lowest, double highest, double preferred);

/// Likewise, but where none lies there somewhat more than the lowest, by at most `slack`.
double tidyLength(double lowest, double highest, double preferred, double slack);

/// The round number of centimetres or inches that is at most `tolerance` points away; else the length itself.
double nearTidyLength(double length, double tolerance);

} // namespace orvane::layout
