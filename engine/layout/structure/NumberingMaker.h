#pragma once

#include "layout/LayoutParameters.h"
#include "layout/structure/DocumentDraft.h"
#include "layout/structure/ListGroups.h"

namespace orvane::layout {

/// Adds a numbering for the group to the draft, with the labels and indents that most of its items have, and puts the
/// items into it.
void makeNumbering(DocumentDraft& draft, const ListGroup& group, const LayoutParameters& parameters);

} // namespace orvane::layout
