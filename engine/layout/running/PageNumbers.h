#pragma once

#include "layout/running/EdgeRows.h"

#include <optional>
#include <vector>

namespace orvane::layout {

/// The page number that is printed on a page.
struct PageNumber {
    int value = 0;
    document::NumberFormat format = document::NumberFormat::Decimal;

    bool operator==(const PageNumber&) const = default;
};

/// A number in a running head that a word processor counts by itself.
struct RunningField {
    document::FieldCode code = document::FieldCode::Page;
    Rect box; ///< of the one span that shows it
};

/// Reads the page numbers from the rows that are running heads; nullopt for a page that shows none.
std::vector<std::optional<PageNumber>> readPageNumbers(const std::vector<EdgeRows>& tops,
                                                       const std::vector<EdgeRows>& bottoms);

/// Gives rows back to the text that were taken for a number which counts with the pages, but is not their number: that
/// of a note, or of a table's row.
void leaveOtherNumbers(std::vector<EdgeRows>& edges, const std::vector<std::optional<PageNumber>>& numbers);

/// Takes the row next to those taken where it is nothing but the number that the page must have by those before and
/// after it: the first page of a chapter often has no more. `numbers` get what is found.
void takeLoneNumbers(std::vector<EdgeRows>& edges, std::vector<std::optional<PageNumber>>& numbers);

/// Makes each page number, and each number of pages, in the rows taken a span of its own. Another number than that of
/// the pages stays text behind the page number, as word processors would write theirs.
/// Requires: `rows` are of that page, whose lines have not been moved since.
std::vector<RunningField> cutOutNumbers(PageText& page, const EdgeRows& rows, const std::optional<PageNumber>& number,
                                        int pageCount);

} // namespace orvane::layout
