#pragma once

#include "read/doc/WordFile.h"

#include <string>

namespace orvane::read::doc {

/// The shapes of floating objects: a record a line, those within it below. Source: [MS-ODRAW] 2.2, [MS-DOC] 2.9.172.
std::string dumpShapes(const WordFile& file);
/// The pictures of the data stream that stand in lines. Source: [MS-DOC] 2.9.190 (PICFAndOfficeArtData).
std::string dumpPictures(const WordFile& file);

} // namespace orvane::read::doc
