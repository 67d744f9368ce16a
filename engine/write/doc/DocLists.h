#pragma once

#include "document/Document.h"
#include "write/doc/DocFonts.h"

#include <string>

namespace orvane::write::doc {

/// The lists of a file and what paragraphs refer to them by, as the table stream has them.
struct DocLists {
    std::string lists;      ///< PlfLst
    std::string levels;     ///< of the lists, right behind them
    std::string references; ///< PlfLfo
};

/// Source: [MS-DOC] 2.9.192 (PlfLst), 2.9.147 (LSTF), 2.9.148 (LVL), 2.9.191 (PlfLfo).
DocLists makeLists(const document::Document& document, DocFonts& fonts);

} // namespace orvane::write::doc
