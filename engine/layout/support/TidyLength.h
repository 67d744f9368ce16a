#pragma once

namespace orvane::layout {

/// A length between `lowest` and `highest` points that people type: `preferred` when it fits, else a round number of
/// centimetres or inches, else somewhat more than the lowest, by at most `slack`.
double tidyLength(double lowest, double highest, double preferred, double slack);

/// The round number of centimetres or inches that is at most `tolerance` points away; else the length itself.
double nearTidyLength(double length, double tolerance);

} // namespace orvane::layout
