#pragma once

#include "layout/text/PageText.h"

#include <string>

namespace orvane::layout {

/// The page as readable text, one item a line: what the first stages saw.
std::string dump(const PageText& page);

/// One line of text: "Plain {b i:bold italic} →... 12" with looks in braces and tabs as arrows followed by their
/// leader.
std::string dump(const Line& line);

} // namespace orvane::layout
