#pragma once

#include <optional>
#include <string>

namespace orvane::pdf {

/// A file whose end is lost, and with it the way to its pages, gets a trailer, and where needed a catalog and a page
/// tree of all pages that are found; nothing when no page is found.
std::optional<std::string> withRebuiltCatalog(std::string file);

} // namespace orvane::pdf
