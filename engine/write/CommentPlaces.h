#pragma once

#include "base/Diagnostic.h"
#include "document/Document.h"

#include <cstddef>
#include <vector>

namespace orvane::write {

/// Where a reference to a comment stands, as the formats see it.
enum class CommentPlace {
    Body,
    TextBox,   ///< which cannot hold comments; they stand beside it
    Elsewhere, ///< headers, footers, notes and comments, where there are none
};

/// Whether the comment is written at this reference. Each is written once, at its first reference in the body; those of
/// text boxes are put off into `displaced`, those elsewhere are left out and told of.
/// `isWritten` has one entry for each of Document::comments.
bool admitComment(const document::CommentReference& reference, CommentPlace place, std::vector<bool>& isWritten,
                  std::vector<std::size_t>& displaced, Diagnostics& diagnostics);

} // namespace orvane::write
