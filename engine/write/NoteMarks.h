#pragma once

#include "document/Document.h"
#include "write/StyleIndex.h"

#include <string>

namespace orvane::write {

/// A note's mark where it is plain text.
std::string plainMark(const document::NoteReference& reference);

/// How characters of a note look by its first paragraph's style.
const document::RunProperties& noteBase(const StyleIndex& styles, const document::Note& note);

/// How the mark at the start of a note looks: as the note's first characters, raised.
document::RunProperties markLook(const StyleIndex& styles, const document::Note& note);

} // namespace orvane::write
