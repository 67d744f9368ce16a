#pragma once

#include "pdf/PageContent.h"

#include <string>

namespace orvane::pdf {

/// A page as readable text, one thing a line, for tests and for finding out why a document comes out wrong. Glyphs that
/// follow each other in one look are joined into a line.
std::string dumpPage(const PageContent& page);

} // namespace orvane::pdf
