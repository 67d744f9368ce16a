#pragma once

#include "layout/PageText.h"

#include <string>

namespace orvane::layout {

/// The page as readable text, one item a line: what the first stages saw.
std::string dump(const PageText& page);

/// One line of text with its words marked: `Left · Right|12` for instance, where · is a blank, → a tab and | a change
/// of look.
std::string dump(const Line& line);

} // namespace orvane::layout
