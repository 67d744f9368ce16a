#pragma once

#include <string>
#include <string_view>

namespace orvane::write {

/// A bookmark's name as a word processor takes it: letters, digits and underscores, not a digit first, at most 40
/// characters.
std::string bookmarkName(std::string_view name);

/// An address as a relationship's target takes it: what may not stand in one is written as %XX. Empty for one that word
/// processors refuse a whole document for.
/// Source: RFC 3986, 2 and 3.
std::string linkAddress(std::string_view uri);

} // namespace orvane::write
