#pragma once

#include <string>

namespace orvane::write {

/// The first letters of an author's names, at most three.
std::string initialsOf(const std::string& author);

} // namespace orvane::write
