#pragma once

#include "base/PictureStore.h"
#include "document/Document.h"

namespace orvane::tests {

/// A document that has one of everything, over several sections.
document::Document sampleDocument(PictureStore& pictures);

} // namespace orvane::tests
