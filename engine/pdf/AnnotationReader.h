#pragma once

#include "pdf/PageContent.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

class Page;

namespace orvane::pdf {

/// The paint orders of what an annotation paints: from one on, below the other.
struct PaintRange {
    std::uint32_t from = 0;
    std::uint32_t to = 0;
};
/// By the annotation's place among all of the page.
using PaintRanges = std::map<std::size_t, PaintRange>;

/// The page's annotations that are neither links, form fields nor the pop-ups of others. Hidden ones are left out.
std::vector<Annotation> readAnnotations(::Page& page, const PaintRanges& painted);

} // namespace orvane::pdf
