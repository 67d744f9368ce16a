#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvane::layout {

/// The characters without blanks: the cells of a comb part them, and lines end between them.
std::u32string lettersOf(std::string_view text);

/// A field's value, cut where what is seen of it begins and ends.
struct ShownValue {
    std::string before;
    std::string shown;
    std::string after;
};

/// Where the text stands in the value, but for blanks: at its start rather than its end, and there rather than within.
/// None where it does not.
std::optional<ShownValue> findShown(std::string_view value, std::string_view seen);

} // namespace orvane::layout
