#pragma once

#include "layout/LayoutParameters.h"
#include "layout/page/RegionFinder.h"

#include <span>
#include <vector>

namespace orvane::layout {

/// Something that is no line of running text but has a place among them: a table, a figure, turned text.
struct PageObject {
    Rect box;
    std::size_t index = 0; ///< the caller's
    std::uint32_t paintOrder = 0;
};

/// Where an object comes in the reading order.
struct ObjectPlace {
    std::size_t object = 0;     ///< index into the objects given
    std::size_t region = 0;     ///< index into PageRegions::regions; their number when there are none
    std::size_t beforeLine = 0; ///< of the region; its number of lines for behind the last
    bool standsAlone = true;    ///< no line of its column beside it, and nothing taller
};

/// Finds each object's place among the regions' lines: in the column it stands in or nearest to, before the first line
/// below its top (beside it, when text flows around it). In the result's order: by region, line, then position and
/// order of painting.
std::vector<ObjectPlace> placeObjects(std::span<const PageObject> objects, const PageRegions& page,
                                      const LayoutParameters& parameters);

} // namespace orvane::layout
