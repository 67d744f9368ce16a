#pragma once

#include "base/Diagnostic.h"
#include "base/PictureStore.h"
#include "document/Document.h"

#include <filesystem>

/// What of the document model this writer puts into the file: [x] whole, [-] in part, [ ] not.
///
///   [x] characters: fonts by script, size, weight, slant, colour, ground, underline, spacing, width, raise, language
///   [x] every character of Unicode, with a fallback for readers that only know the ANSI code page
///   [x] paragraphs: alignment, indents, spacing, tabs, borders, ground, outline level, keeping together, direction
///   [x] styles, complete; paragraphs repeat them, as the format asks
///   [x] lists of nine levels, with their labels as text for readers that do not count
///   [x] tables: spans, borders a side, ground, margins, heights, repeated head, direction, tables within tables
///   [-] tables of more than 63 columns: the last column takes in the rest; tables more than ten deep: paragraphs
///   [x] sections: page, margins, columns of any widths, page numbers, headers and footers for first and even pages
///   [-] pages of more than 22 inches are cut to that
///   [x] the colour of the paper
///   [x] pictures in the line and floating: cut, turned, mirrored, alternate text; as they are, not compressed again
///   [-] a picture that is shown several times stands in the file as often; the format has no way to share it
///   [x] drawings: lines, boxes, paths with curves, groups, opacity
///   [-] wavy and thick lines of drawings are plain ones
///   [x] text boxes with text, tables and pictures in the line; floating objects in them stand beside them
///   [-] notes in text boxes, headers and notes become paragraphs there; the format has them in the body only
///   [-] comments in headers, footers and notes are left out
///   [x] links, bookmarks, page fields, table of contents
///   [x] footnotes, endnotes, with marks of their own or counted; comments
///   [-] formulas are pictures
///   [-] form fields: text, check box, choice of up to 25; dates are text fields
///   [ ] fonts that the document brings along
///   [ ] origins (pages and rectangles of the source)
namespace orvane::write {

/// Writes `document` in the Rich Text Format. Memory holds some kilobytes of the file, whatever its size.
/// Errors: Failure(TargetUnwritable) when the file cannot be made or the disk is full.
/// Source: RTF 1.9.1.
void writeRtf(const document::Document& document, const PictureStore& pictures, const std::filesystem::path& target,
              Diagnostics& diagnostics);

} // namespace orvane::write
