#pragma once

#include "read/doc/WordFile.h"

#include <string>

namespace orvane::read::doc {

/// The paragraphs of a part of the text, one a line with its style and properties, its runs below it.
std::string dumpText(const WordFile& file, TextPart part);

/// Text in quotes; characters that mean something else by their names: "one<tab>two<end>".
std::string quoted(std::u16string_view text);

} // namespace orvane::read::doc
