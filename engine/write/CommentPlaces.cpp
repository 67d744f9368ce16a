#include "write/CommentPlaces.h"

namespace orvane::write {

bool admitComment(const document::CommentReference& reference, CommentPlace place, std::vector<bool>& isWritten,
                  std::vector<std::size_t>& displaced, Diagnostics& diagnostics) {
    if (reference.comment >= isWritten.size() || isWritten[reference.comment])
        return false;
    switch (place) {
    case CommentPlace::Body:
        isWritten[reference.comment] = true;
        return true;
    case CommentPlace::TextBox:
        displaced.push_back(reference.comment);
        return false;
    case CommentPlace::Elsewhere:
        break;
    }
    diagnostics.add(DiagnosticKind::StructureIgnored, 0,
                    "a comment in a header, a footer, a note or a comment was left out");
    return false;
}

} // namespace orvane::write
