#pragma once

#include "base/Geometry.h"
#include "document/Document.h"

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace orvane::worker {

/// What of a page of the source stands in the document.
struct WrittenPage {
    std::size_t letters = 0;     ///< letters and digits; what word processors write (labels, marks of notes) among them
    std::size_t noteLetters = 0; ///< those of notes that start here, left out above
    int numbersEvery = 0;        ///< so many lines have one number in the margin; 0 for none
    std::string text;            ///< all of it without blanks, UTF-8
    std::vector<Rect> figures;   ///< pictures and drawings; page space
    std::size_t innerLinks = 0;  ///< that lead to places of the document; the marks of notes among them
};

/// The document as its pages' contents.
struct WrittenContent {
    std::size_t characters = 0; ///< without blanks; heads and feet once
    std::size_t pictures = 0;
    std::size_t links = 0;
    std::map<int, WrittenPage> pages;   ///< by number, 1-based
    std::vector<Rect> runningFigures;   ///< of heads and feet, which stand on many pages
    std::set<std::string> addresses;    ///< that links lead to
    std::set<std::string> checkedNames; ///< of check boxes and radio buttons that are on
};

/// Pages of the source by their numbers, both included.
struct PageSpan {
    int first = 0;
    int last = 0;
};

/// Sorts what stands in the document by the pages it came from, which are `source`. Heads and feet stand on each page
/// of their section.
WrittenContent contentOf(const document::Document& document, const PageSpan& source);

} // namespace orvane::worker
