#pragma once

#include "layout/structure/DocumentDraft.h"

#include <string>
#include <string_view>

namespace orvane::layout {

/// The paragraph's words with a blank between them, whatever lay between them on the page.
std::string textOf(const DraftParagraph& paragraph);

/// What is left of a text for comparing: its letters and digits in lower case.
std::string comparable(std::string_view text);

/// Likewise without the number that a heading starts with: "2.1 Aims" -> "aims".
std::string comparableWithoutNumber(std::string_view text);

/// Characters of the paragraph, without blanks.
std::size_t letterCount(const DraftParagraph& paragraph);

} // namespace orvane::layout
