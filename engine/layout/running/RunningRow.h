#pragma once

#include "layout/running/RunningParameters.h"
#include "layout/text/PageText.h"

#include <optional>
#include <string>
#include <vector>

namespace orvane::layout {

enum class PageEdge : unsigned char { Top, Bottom };

/// A number in a row, and the word it is a part of.
struct RowNumber {
    int value = 0;
    document::NumberFormat format = document::NumberFormat::Decimal;
    std::size_t line = 0; ///< index into PageText::lines
    std::size_t word = 0; ///< index into the line's words
    std::size_t from = 0; ///< characters of the word's text
    std::size_t length = 0;
    double left = 0; ///< of the word
    double right = 0;
    bool standsAlone = false; ///< nothing but it, and signs around it, between two gaps of the row
    bool isRepeated = false;  ///< a page nearby has the same number in its place
};

/// The lines of a page on one baseline, as what may repeat on the next page.
struct RunningRow {
    std::vector<std::size_t> lines; ///< indices into PageText::lines
    Rect box;
    double baseline = 0;
    double fontSize = 0;
    double fromEdge = 0;  ///< its near side's distance from the page's edge, points
    std::string skeleton; ///< its text with '#' for each number, without blanks, which are not as sure as letters
    std::vector<RowNumber> numbers;
};

/// How far its far side is from the page's edge, points.
inline double endOf(const RunningRow& row) {
    return row.fromEdge + row.box.height();
}

/// The rows of the page from that edge inwards, as far as running heads may reach.
std::vector<RunningRow> rowsFromEdge(const PageText& page, PageEdge edge,
                                     const RunningParameters::RunningHeads& parameters);

/// How two rows of different pages agree.
enum class RowMatch : unsigned char {
    None,
    Text,   ///< they read the same, numbers that count the pages aside
    Number, ///< the text differs, but both have the page number in the same place
};

/// Compares a row with one that stands `pages` pages later.
RowMatch matchRows(const RunningRow& row, const RunningRow& later, int pages,
                   const RunningParameters::RunningHeads& parameters);

/// Indices into both rows' numbers of those that count the pages.
std::vector<std::size_t> countingNumbers(const RunningRow& row, const RunningRow& later, int pages);

} // namespace orvane::layout
