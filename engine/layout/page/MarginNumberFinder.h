#pragma once

#include "layout/page/PageParameters.h"
#include "layout/text/PageText.h"

#include <cmath>
#include <limits>
#include <optional>
#include <vector>

namespace orvane::layout {

/// A number that begins a line or is all of it; in the other margin one that ends a line.
struct MarginNumber {
    std::size_t line = 0; ///< index into the page's lines
    int value = 0;
    double textStart = std::numeric_limits<double>::infinity(); ///< where the text beside it begins
    bool goesOn = false;                                        ///< that text, in lower case

    bool hasText() const { return std::isfinite(textStart); }
};

/// The numbers of one page, from the top down.
struct NumberColumn {
    std::vector<MarginNumber> numbers;
    std::vector<MarginNumber> facing; ///< in the other margin, for the second column of the text
    int step = 1;
    double right = 0;      ///< where they end
    double rowsOfStep = 0; ///< share of the lines between two numbers, if they count by more than one, that have text
};

/// The numbers that stand below each other in the left margin of a page beside the lines of its text and count evenly,
/// with those in the right margin that count on or show the same. Nothing when they are few.
std::optional<NumberColumn> findMarginNumbers(const PageText& page, const PageParameters::LineNumbering& limits);

} // namespace orvane::layout
