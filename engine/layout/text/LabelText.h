#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvane::layout {

/// A text of at most `longest` characters that labels what follows: a bullet, or a short number or letter, in brackets
/// or with a point.
bool isLabelText(const std::u32string& text, std::size_t longest);

/// A bullet that is no punctuation mark, letter or sign of arithmetic in other places.
bool isListSign(const std::u32string& text);

/// Whether the text is a dash alone, of whatever length.
bool isDash(std::string_view text);

} // namespace orvane::layout
