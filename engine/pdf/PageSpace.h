#pragma once

#include "base/Color.h"
#include "base/Geometry.h"
#include "pdf/PageContent.h"

struct GfxRGB;
class GfxState;
class Page;

namespace orvane::pdf {

// Pages are read at 72 dots an inch with the origin at the top left, so the library's device space is page space.

/// The matrix from the graphics state's user space to page space.
Matrix currentMatrix(const GfxState& state);
/// The box of the clip path, within the page.
Rect clipBox(const GfxState& state);
/// How a thing of this box fares against the clip path and the page.
Visibility visibilityOf(const Rect& box, const Rect& clip, const PageContent& page);

Color toColor(const GfxRGB& color);
/// How a colour of this opacity looks on paper.
Color onWhite(Color color, double opacity);

/// The points of page space that a unit of user space takes: the page's UserUnit, or less where the page would be
/// larger than the paper that word processors have. Source: ISO 32000-1, 7.7.3.3 (UserUnit).
double scaleOf(::Page& page);
/// The matrix from a page's default user space to its page space.
Matrix defaultMatrix(::Page& page);
/// The page's size in page space, rotation applied.
Rect pageBox(::Page& page);
/// Likewise in points of the paper itself, however large it is.
Rect paperBox(::Page& page);

} // namespace orvane::pdf
