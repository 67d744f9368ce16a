#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvane {

/// The pages a job takes, as ascending page numbers without repeats.
struct PageSelection {
    std::vector<int> pages;
    bool wasCut = false; ///< the range named pages beyond the document
};

/// Reads a page range such as "1-3,7" against a document: blanks are skipped, "9-3" means 3 to 9, an empty text means all pages,
/// and what lies beyond the document is cut off.
/// Errors: Failure(InvalidRequest) for a text that is no range, Failure(NoPageInRange) when no page is left.
PageSelection selectPages(std::string_view range, int pageCount);

} // namespace orvane
