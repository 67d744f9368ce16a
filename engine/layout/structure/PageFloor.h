#pragma once

#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// Down to where the columns of a page's band could reach: to the end of the text area, or the page's notes, when
/// nothing stands below the band. Units: points.
double floorOf(const DocumentDraft& draft, std::size_t page, int band, const Rect& area);

/// Word processors let no single line of a paragraph stand alone on a page.
inline constexpr std::size_t kKeptLines = 2;

/// How many of a paragraph's lines have to find room for it to start on a page: word processors let neither its first
/// line stand alone nor its last.
std::size_t linesToStart(std::size_t lines);

/// Whether a page whose contents end at `bottom` is so empty that it was ended by hand, whatever comes on the next one.
bool isHalfEmpty(double bottom, double pageHeight);

} // namespace orvane::layout
