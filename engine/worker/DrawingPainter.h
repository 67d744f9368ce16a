#pragma once

#include "base/PictureStore.h"
#include "document/Document.h"

namespace orvane::worker {

/// Makes pictures of the drawings that are better off as such, see document::Drawing::isPictureAtBest. What lies
/// between their boxes and lines stays transparent.
void paintDrawings(document::Document& document, PictureStore& pictures);

} // namespace orvane::worker
