#pragma once

#include "base/Diagnostic.h"
#include "base/PictureStore.h"
#include "document/Document.h"

#include <filesystem>

/// What of the document model this writer puts into the file: [x] whole, [-] in part, [ ] not.
///
///   [x] characters: fonts by script, size, weight, slant, colour, ground, underline, spacing, width, raise, language
///   [x] paragraphs: alignment, indents, spacing, tabs, borders, ground, outline level, keeping together, direction
///   [x] styles, each as its difference against the one below
///   [x] lists of nine levels
///   [x] tables: spans, borders a side, ground, margins, heights, repeated head, direction, tables within tables
///   [-] tables of more than 63 columns: the last column takes in the rest; tables more than ten deep: paragraphs
///   [x] sections: page, margins, columns of any widths, page numbers, headers and footers for first and even pages
///   [-] pages of more than 22 inches are cut to that
///   [ ] the colour of the paper
///   [x] pictures in the line: cut, turned, mirrored, alternate text; as they are, not compressed again
///   [x] floating pictures and drawings over the body, headers and footers: lines, boxes, paths with curves, groups,
///   opacity [x] text boxes over them, with text, tables and pictures in the line; floating objects in them stand
///   beside them
///   [-] what floats in notes and comments is part of their text
///   [ ] drawings, and pictures behind the text, in notes and comments
///   [x] comments, with their authors and dates
///   [-] comments in headers, footers and notes are left out
///   [-] notes in headers and notes become paragraphs there; the format has them in the body only
///   [x] links, bookmarks, page fields, table of contents
///   [x] footnotes, endnotes, with marks of their own or counted
///   [-] formulas are pictures
///   [x] form fields: text, check box, list; dates are text fields
///   [ ] fonts that the document brings along
///   [ ] origins (pages and rectangles of the source)
namespace orvane::write {

/// Writes `document` as a binary document of word processors, 97 to 2003.
/// Errors: Failure(TargetUnwritable) when the file cannot be made or the disk is full.
/// Source: [MS-DOC], [MS-CFB], [MS-ODRAW], [MS-OLEPS].
void writeDoc(const document::Document& document, const PictureStore& pictures, const std::filesystem::path& target,
              Diagnostics& diagnostics);

} // namespace orvane::write
