#pragma once

#include "layout/text/PageText.h"

#include <cstddef>

namespace orvane::layout {

/// Makes characters `from` to `to` of one of the word's spans a span of its own and returns its index; what stands
/// before and behind them stays, each a span. Requires: from < to, both within the span.
std::size_t partSpan(Word& word, std::size_t span, std::size_t from, std::size_t to);

} // namespace orvane::layout
