#pragma once

#include "layout/page/PageLayout.h"
#include "layout/running/PageNumbers.h"

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

/// The document between pages and document::Document: blocks in reading order over all pages, with what the stages
/// found out about them. Positions stay in the page space of the page they came from.
namespace orvane::layout {

/// What a paragraph is to the reader.
enum class ParagraphRole : std::uint8_t {
    Body,
    Title,
    Heading, ///< DraftParagraph::level tells which
    ListItem,
    Caption,
    ContentsHeading, ///< "Contents" over a table of contents
    ContentsEntry,   ///< DraftParagraph::level tells which
    NoteText,
};

/// The part of a paragraph that stands in one column of one page.
struct DraftPiece {
    std::size_t page = 0; ///< index into DocumentDraft::pages
    int band = 0;         ///< index into the page's bands
    int columnIndex = 0;  ///< within the band
    ColumnSpan column;    ///< in which it stands
    ParagraphDraft text;
};

struct DraftParagraph {
    std::vector<DraftPiece> pieces; ///< at least one, each with at least one line
    ParagraphRole role = ParagraphRole::Body;
    int level = 0; ///< 1 to 9 of headings and contents entries
    std::optional<document::ListReference> list;
    std::size_t labelWords = 0;         ///< words at its start that the list's numbering writes
    std::vector<std::string> bookmarks; ///< that stand at its start

    const Line& firstLine() const { return pieces.front().text.lines.front(); }
    const Line& lastLine() const { return pieces.back().text.lines.back(); }
};

struct DraftBlock;

struct DraftCell {
    CellDraft cell; ///< without its blocks
    std::vector<DraftBlock> blocks;
};

/// Where a part of a table stands that page breaks cut.
struct DraftTablePart {
    std::size_t page = 0; ///< index into DocumentDraft::pages
    Rect box;
    int firstRow = 0; ///< that starts there
};

struct DraftTable {
    TableDraft table; ///< without its cells
    std::vector<DraftCell> cells;
    std::vector<DraftTablePart> furtherParts; ///< on the pages after that of its block
    std::vector<int> cutRows;                 ///< rows with a page break within
    bool keepsRowsWhole = false;              ///< no page break may cut one
};

struct DraftBlock {
    std::variant<DraftParagraph, DraftTable, FigureDraft> value;
    std::size_t page = 0; ///< index into DocumentDraft::pages, where it starts
    int band = 0;         ///< index into the page's bands
    int column = 0;
    Rect box;                             ///< on that page
    std::vector<DraftBlock> labels;       ///< of a drawing: paragraphs that stand within it
    std::optional<ColumnSpan> textColumn; ///< of a table or figure: the column of its section, or the cell, around it
    bool startsPage = false;              ///< its author let it start a page
    bool startsColumn = false;            ///< likewise a column

    DraftParagraph* paragraph() { return std::get_if<DraftParagraph>(&value); }
    const DraftParagraph* paragraph() const { return std::get_if<DraftParagraph>(&value); }
};

/// What stands at the head or foot of a section's pages.
struct DraftRunningText {
    std::optional<std::vector<DraftBlock>> standard;
    std::optional<std::vector<DraftBlock>> firstPage;
    std::optional<std::vector<DraftBlock>> evenPages;
};

/// Where text starts on the pages of a section. Units: points, from the page's top.
struct PageTops {
    double margin = 0;
    std::size_t firstPage = 0;    ///< of the section; index
    std::optional<double> pushed; ///< on the pages after the first, whose header is too tall for the margin

    double of(std::size_t page) const { return pushed && page != firstPage ? *pushed : margin; }
};

/// Blocks on pages of one setup.
struct DraftSection {
    std::size_t firstBlock = 0; ///< index into DocumentDraft::blocks; it ends where the next one starts
    document::Section setup;    ///< without blocks and running text
    DraftRunningText header;
    DraftRunningText footer;
    PageTops tops;
    bool countsOtherwise = false; ///< the document's first, third, fifth page have even numbers in its way of counting
};

/// How the label of a list's level looks.
struct LabelLook {
    std::size_t page = 0; ///< index into DocumentDraft::pages
    Span span;
};

struct DraftNumbering {
    document::Numbering numbering;
    std::vector<std::optional<LabelLook>> labels; ///< for each level
};

struct DraftNote {
    document::NoteKind kind = document::NoteKind::Footnote;
    std::vector<DraftBlock> blocks; ///< on a page made of the note's lines
};

/// A place in the text that refers to a note.
struct DraftNoteReference {
    std::size_t page = 0;   ///< index into DocumentDraft::pages
    Rect box;               ///< of the span that shows the mark
    std::size_t note = 0;   ///< index into DocumentDraft::notes
    std::string mark;       ///< as the text shows it
    bool isCounted = false; ///< the word processor gives it by counting
};

/// What a reader noted at a place in the text.
struct DraftComment {
    std::size_t page = 0; ///< index into DocumentDraft::pages
    Rect box;             ///< of the span behind which it stands
    pdf::Annotation annotation;
};

struct DocumentDraft {
    std::vector<PageLayout>
        pages; ///< without their blocks; behind the document's own those made of running heads and notes
    std::vector<DraftBlock> blocks;
    std::vector<DraftNumbering> numberings;
    std::vector<DraftNote> notes;
    document::NoteNumbering footnoteNumbering;
    document::NoteNumbering endnoteNumbering{document::NumberFormat::LowerRoman, document::CountStart::Continuous};
    std::vector<DraftNoteReference> noteReferences;
    std::vector<DraftComment> comments; ///< by page
    std::vector<Rect> noteAreas;        ///< for each of the document's pages: the part that notes take, empty for none
    std::vector<DraftSection> sections; ///< at least one once SectionMaker has run
    std::vector<std::vector<RunningField>> fields;    ///< for each page; only those made of running heads have any
    std::optional<document::LineNumbers> lineNumbers; ///< that stood in the margins
    bool hasMirroredMargins = false; ///< its second, fourth, sixth page were moved to where the others have their text
};

} // namespace orvane::layout
