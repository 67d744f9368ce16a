#pragma once

#include "layout/structure/NoteFinder.h"

namespace orvane::layout {

/// Tells footnotes and endnotes apart. Notes on pages behind their references are endnotes; so are those with Roman
/// numerals that end the text, as word processors count endnotes so. `lastTextPage` is the last page with text that is
/// no note.
void settleNoteKinds(std::vector<FoundNote>& notes, std::size_t lastTextPage);

} // namespace orvane::layout
