#pragma once

#include "document/Document.h"

#include <string>
#include <vector>

namespace orvane::document {

/// The text of the runs, one after the other; what is no run says nothing.
std::string plainText(const std::vector<Inline>& inlines);

} // namespace orvane::document
