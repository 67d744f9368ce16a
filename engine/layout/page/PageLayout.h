#pragma once

#include "layout/text/PageText.h"

#include <variant>
#include <vector>

/// One page put in order: blocks in reading order within bands of columns.
namespace orvane::layout {

struct ColumnSpan {
    double left = 0;
    double right = 0;
};

/// Lines that form one paragraph on this page.
struct ParagraphDraft {
    std::vector<Line> lines;
    Rect box;
    document::Alignment alignment = document::Alignment::Start;
    double indentStart = 0; ///< of the lines after the first, from the column's start edge; points
    double indentEnd = 0;
    double firstLine = 0;        ///< relative to indentStart; negative: hanging
    double leading = 0;          ///< baseline to baseline; of a single line what its font wants
    bool startsParagraph = true; ///< false: goes on from the column or page before
    bool endsParagraph = true;   ///< false: its last line is full and the text goes on in the next column or page
    std::vector<std::size_t> hardBreaks;    ///< indices of lines that the author ended by hand
    std::size_t linesBelow = 0;             ///< of a frame: so many of its lines are below its foot, where none is seen
    bool isFloating = false;                ///< stands beside the flow of the page: a stamp along its edge
    std::vector<std::size_t> wrappingLines; ///< in a frame without room behind them: those that end in a divided word
    document::Borders borders;              ///< what is drawn around it
    std::optional<Color> shading;
    std::optional<document::DropCapKind> dropCap; ///< how that of its first line stands
    std::optional<ColumnSpan> shadedSpan;         ///< from where to where its shading goes, if not from edge to edge
    std::optional<double> ownEnd; ///< x at which its ragged lines were set to end, short of the column's; page space
    bool isBoxApart = false;      ///< its box is not to be drawn as one with that of the paragraph before it
};

struct PageBlock;

struct CellDraft {
    int row = 0;
    int column = 0;
    int rowSpan = 1;
    int columnSpan = 1;
    Rect box;
    document::Borders borders;
    std::optional<Color> shading;
    document::CellAlignment alignment = document::CellAlignment::Top;
    document::TextDirection direction = document::TextDirection::Horizontal;
    std::vector<PageBlock> blocks; ///< their positions stay in page space
};

/// A table on this page. The cells tile the grid without holes or overlaps.
struct TableDraft {
    Rect box;
    std::vector<double> columnEdges; ///< x, ascending; one more than there are columns
    std::vector<double> rowEdges;    ///< y, ascending; one more than there are rows
    std::vector<CellDraft> cells;    ///< by row, then column
    int headerRows = 0;
    bool isRuled = false;       ///< found by its rules, not by aligned words
    bool isRightToLeft = false; ///< its rows are read from the right; columns are counted from the left all the same
};

/// A picture or drawing in its place in the reading order.
struct FigureDraft {
    Figure figure;
    bool isInline = false;   ///< stands alone between paragraphs, or within a line; else it floats beside the text
    bool isOverlaid = false; ///< floats over another figure or over text, which make no way for it
};

struct PageBlock {
    std::variant<ParagraphDraft, TableDraft, FigureDraft> value;
    int band = 0;   ///< index into PageLayout::bands
    int column = 0; ///< within the band
};

/// A slice of the page from top to bottom in which the columns are the same.
struct Band {
    double top = 0;
    double bottom = 0;
    std::vector<ColumnSpan> columns; ///< in reading order
    bool hasSeparator = false;       ///< a vertical rule between columns
};

/// One page in reading order. Running heads are not among the blocks.
struct PageLayout {
    int number = 0;
    double width = 0;
    double height = 0;
    std::vector<pdf::Font> fonts;
    std::vector<Formula> formulas;
    std::vector<pdf::Link> links;
    std::vector<pdf::Annotation> annotations;
    std::vector<pdf::FormField> fields;
    std::vector<pdf::Mark> marks;
    std::vector<Band> bands;
    std::vector<PageBlock> blocks;
    std::vector<Rule> freeRules; ///< that are neither of a table nor of words
    std::vector<Ground> freeGrounds;
};

} // namespace orvane::layout
