#pragma once

#include "layout/page/PageParameters.h"
#include "layout/text/PageText.h"

namespace orvane::layout {

/// Turns a page back that lies on its side, so that its text runs level; its width and height change places.
void turnUpright(PageText& page, const PageParameters::TurnedText& limits);

} // namespace orvane::layout
