#pragma once

#include <QString>

#include <cstdint>

/// A first and a last page in two boxes, as two windows ask for them. The boxes take digits only.

/// Values of ConversionJob::intUseFromTo. Any other than kGiven counts as kNotGiven, too.
namespace page_numbers {
inline constexpr std::int16_t kGiven = 0;
inline constexpr std::int16_t kNotGiven = -1;
} // namespace page_numbers

/// What is wrong with the pair; the values are named for the controls that hold the refusals.
enum class PageNumberFault { None, IncompleteRange, IncorrectRange, PageRangeZero };

/// An empty box is judged first, then the order, then a number 0.
PageNumberFault checkPageNumbers(const QString& from, const QString& to);

/// The control of frmErrorOkOnly that holds the refusal. Requires: a fault.
QString refusalOf(PageNumberFault fault);

/// The number of a box; a text that does not start with digits is 0. Errors: throws std::overflow_error above 32767.
std::int16_t pageNumberOf(const QString& text);

/// The key filter of the boxes: `keyCode` becomes 0 for everything but digits and backspace.
void filterPageNumberKey(int& keyCode);
