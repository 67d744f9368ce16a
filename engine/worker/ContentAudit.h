#pragma once

#include "base/Diagnostic.h"
#include "document/Document.h"
#include "protocol/Message.h"
#include "worker/PageInventory.h"

#include <vector>

namespace orvane::worker {

/// What the document was to hold.
struct AuditScope {
    bool isWhole = true; ///< else it leaves out by promise what pages have beside their text, and is only counted
    bool hasPictures = true;
    bool hasControls = true; ///< signs of forms are controls; else they are pictures or drawings as they are printed
};

/// Compares, page by page, what was read with what stands in the document, and tells what did not make it: letters,
/// pictures, links, values of form fields. Gives the sums of both sides.
protocol::Counts auditContent(const std::vector<PageInventory>& pages, const document::Document& document,
                              const AuditScope& scope, Diagnostics& diagnostics);

} // namespace orvane::worker
