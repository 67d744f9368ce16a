#pragma once

#include "pdf/PageContent.h"

#include <optional>
#include <vector>

namespace orvane::layout {

/// A straight piece of a path.
struct PathLine {
    Point from;
    Point to;
};

/// One subpath of a painted path, flattened to what the layout asks about.
struct Subpath {
    std::vector<PathLine> lines; ///< its straight pieces, a closing one included where the path is closed or filled
    bool hasCurves = false;
    bool isClosed = false;
    Rect box;
    std::optional<Rect> rectangle; ///< when it is an upright rectangle, its corners perhaps rounded, and nothing else
};

/// The area that lines go around, square points. Requires: they are closed and do not cross each other.
double areaWithin(const std::vector<PathLine>& lines);

/// Takes a path apart. `straightness` says how far, in points, the ends of a line may be off to count as level or
/// plumb.
std::vector<Subpath> takeApart(const pdf::Path& path, double straightness);

} // namespace orvane::layout
