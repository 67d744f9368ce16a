#pragma once

#include "document/Document.h"
#include "pdf/PageContent.h"
#include "protocol/Message.h"

namespace orvane::worker {

/// Adds what a page holds to what was read. Characters are counted without blanks; what nobody can see or find (outside
/// the page, clipped away, on a layer switched off) does not count.
void countRead(const pdf::PageContent& page, protocol::Counts& counts);

/// Counts what a document holds as written: characters without blanks, pictures, links. What repeats on each page
/// counts once.
void countWritten(const document::Document& document, protocol::Counts& counts);

} // namespace orvane::worker
