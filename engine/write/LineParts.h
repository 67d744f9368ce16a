#pragma once

namespace orvane::write {

/// A multiple of a line's height in 240ths of it, for the formats whose readers cut it down to whole percents
/// (LibreOffice does with DOC and RTF). Where the next 240th makes the percent that the multiple is nearest to it is
/// taken: a page of lines that are each a percent too low ends a line early.
int lineParts(double multiple);

} // namespace orvane::write
