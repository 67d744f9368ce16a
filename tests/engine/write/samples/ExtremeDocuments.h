#pragma once

#include "DocumentBuilder.h"

#include "base/PictureStore.h"

#include <chrono>

/// Documents at the edge of what a PDF can lead to.
namespace orvane::tests {

/// A table of `rows` by `columns` cells with a letter in each.
document::Table largeTable(int rows, int columns);

/// Tables within each other, that many; the words are "x" in each cell and "innermost" in the last.
document::Table nestedTables(int depth);

/// Paragraphs with pictures in the line, and floating ones before every third; two files shown in turns.
document::Document manyPictures(PictureStore& pictures, std::size_t count);

/// Text, names and addresses of what no format can hold: control characters, halves of surrogate pairs, bytes that are
/// no UTF-8. Between them stand the words "before", "within" and "behind".
document::Document awkwardText();

/// A paragraph and a page with lengths, sizes and levels that no format takes.
document::Document hugeNumbers();

/// What the longest of these may take to write, on a slow machine under load.
inline constexpr std::chrono::seconds kLongEnough{60};

/// How long `act` takes.
template<typename Act>
std::chrono::steady_clock::duration durationOf(Act act) {
    const auto start = std::chrono::steady_clock::now();
    act();
    return std::chrono::steady_clock::now() - start;
}

} // namespace orvane::tests
