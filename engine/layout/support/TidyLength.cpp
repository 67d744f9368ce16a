#include "layout/support/TidyLength.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace orvane::layout {
namespace {

/// The multiple of `step` within the range that is nearest to `preferred`.
std::optional<double> roundNumber(double lowest, double highest, double preferred, double step) {
    const double first = std::ceil(lowest / step) * step;
    const double last = std::floor(highest / step) * step;
    if (first > last)
        return std::nullopt;
    return std::clamp(std::round(preferred / step) * step, first, last);
}

constexpr double kInch = 72, kCentimetre = 72 / 2.54;

} // namespace

double nearTidyLength(double length, double tolerance) {
    for (const double step : {kInch / 4, kCentimetre / 4})
        if (const double tidy = std::round(length / step) * step; std::abs(tidy - length) <= tolerance)
            return tidy;
    return length;
}

std::optional<double> tidyLengthWithin(double lowest, double highest, double preferred) {
    if (preferred >= lowest && preferred <= highest)
        return preferred;
    for (const double step : {kInch, kCentimetre, kInch / 2, kCentimetre / 2, kInch / 4})
        if (const auto tidy = roundNumber(lowest, highest, preferred, step); tidy && *tidy >= 0)
            return *tidy;
    return std::nullopt;
}

double tidyLength(double lowest, double highest, double preferred, double slack) {
    return tidyLengthWithin(lowest, highest, preferred).value_or(lowest + std::min(slack, (highest - lowest) / 2));
}

} // namespace orvane::layout
