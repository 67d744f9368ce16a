#pragma once

#include <string>

namespace orvane::document {

/// Leads to a bookmark that stands somewhere in the document, or outside it.
struct LinkTarget {
    std::string uri;      ///< outside
    std::string bookmark; ///< inside

    bool operator==(const LinkTarget&) const = default;
};

} // namespace orvane::document
