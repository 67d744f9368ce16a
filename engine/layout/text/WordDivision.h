#pragma once

#include "layout/text/PageText.h"
#include "layout/text/TextParameters.h"

#include <string>
#include <unordered_set>
#include <vector>

namespace orvane::layout {

/// Whether a document's words are divided at the ends of lines.
enum class WordDivision : unsigned char {
    Never,     ///< hyphens there are those that were typed
    Sometimes, ///< by hand, or in a few places
    Always,    ///< wherever it makes the lines even, as programs do it
};

/// `vocabulary`: words that stand whole within a line, lower case.
WordDivision findDivision(const std::vector<PageText>& pages, const std::unordered_set<std::string>& vocabulary,
                          const TextParameters::Division& parameters);

} // namespace orvane::layout
