#pragma once

#include "layout/paragraphs/CompoundWords.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_set>

namespace orvane::layout {

/// What becomes of the end of a line when the next line's text is put behind it.
enum class LineJoin : std::uint8_t {
    Blank,      ///< a blank between the two
    Nothing,    ///< put together as they are
    DropHyphen, ///< the hyphen was only for the line's end
};

/// What stands between East Asian characters and the letters of other scripts beside them.
enum class ScriptBoundary : std::uint8_t { Joined, Blank };

/// Where the hyphens at the ends of lines come from.
enum class HyphenSource : std::uint8_t {
    Divided, ///< words are divided there
    Typed,   ///< they were typed, and lines end behind them
};

/// Decides how the last word of a line meets the first word of the next. `vocabulary` are words that stand whole
/// somewhere in the document, lower case (DocumentContext::vocabulary), `compounds` what they show of compounds.
LineJoin resolveLineEnd(std::string_view lastWord, std::string_view nextWord,
                        const std::unordered_set<std::string>& vocabulary,
                        ScriptBoundary boundary = ScriptBoundary::Joined, HyphenSource source = HyphenSource::Divided,
                        const CompoundWords& compounds = {});

} // namespace orvane::layout
