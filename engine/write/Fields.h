#pragma once

#include "document/Document.h"

#include <string>

namespace orvane::write {

/// What makes a field's result anew, in the words of word processors.
/// Source: ECMA-376 part 1, 17.16.5.
std::string fieldInstruction(const document::Field& field);
std::string fieldInstruction(const document::TableOfContents& contents);

} // namespace orvane::write
