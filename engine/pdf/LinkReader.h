#pragma once

#include "base/Diagnostic.h"
#include "pdf/PageContent.h"

#include <optional>
#include <vector>

class LinkAction;
class PDFDoc;
class Page;

namespace orvane::pdf {

/// Where an action of the file leads: an address, a place in this document, or neither.
struct ActionTarget {
    std::string uri;
    std::optional<Destination> destination;
};

ActionTarget targetOf(const ::LinkAction* action, ::PDFDoc& document);

/// The links of a page. Targets that do not exist are told to `diagnostics`.
std::vector<Link> readLinks(::Page& page, ::PDFDoc& document, Diagnostics& diagnostics);

} // namespace orvane::pdf
