#pragma once

#include "layout/text/WordDivision.h"
#include "pdf/PdfDocument.h"

namespace orvane::layout {

/// Who decides what stands on which page.
enum class PageMaking : unsigned char {
    Author, ///< with pages that are full, or were ended by hand
    Program ///< that moves pictures and tables to the tops of pages, and leaves room where a part would stand alone
};

/// Typesetting programs say who they are, or divide words throughout.
PageMaking pageMakingOf(const pdf::Metadata& metadata, WordDivision division);

} // namespace orvane::layout
