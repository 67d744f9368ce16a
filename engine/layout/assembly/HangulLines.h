#pragma once

#include "layout/assembly/AssemblyParameters.h"
#include "layout/structure/DocumentDraft.h"

#include <string>

namespace orvane::layout {

/// Korean has blanks between words, yet lines may end within a word. True when the document paints blanks behind the
/// lines that end between words, so that one without a blank ends within a word.
bool paintsEndsOfHangul(const DocumentDraft& draft, const AssemblyParameters::HangulLines& parameters);

/// Whether a line's last word and the next line's first may be one Korean word: a single syllable on either side is
/// seldom a word, while longer ones may be words whose blank the document left out.
bool isCutInHangul(const std::string& last, const std::string& next);

} // namespace orvane::layout
