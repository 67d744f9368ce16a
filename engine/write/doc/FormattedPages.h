#pragma once

#include "write/doc/StoryText.h"

#include <functional>

namespace orvane::write::doc {

/// Pages of 512 bytes with the properties of a text, and the table that finds them.
struct FormattedPages {
    std::string pages;
    std::string index; ///< of the table stream
};

/// Where a text stands in the main stream.
struct TextPlace {
    std::uint32_t start = 0;     ///< its first byte; each character has two
    std::uint32_t firstPage = 0; ///< the number of the first page that is free for properties
};

/// Source: [MS-DOC] 2.9.33 (ChpxFkp), 2.8.5 (PlcBteChpx).
FormattedPages lookPages(const std::vector<FormattedRange>& looks, const TextPlace& place);

/// Stores properties that a page has no room for and tells where they stand in the data stream.
using StoreProperties = std::function<std::uint32_t(const std::string&)>;

/// Source: [MS-DOC] 2.9.175 (PapxFkp), 2.8.6 (PlcBtePapx), 2.6.2 (sprmPHugePapx).
FormattedPages paragraphPages(const std::vector<FormattedRange>& paragraphs, const TextPlace& place,
                              const StoreProperties& store);

} // namespace orvane::write::doc
