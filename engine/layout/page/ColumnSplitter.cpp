#include "layout/page/ColumnSplitter.h"

#include "layout/page/ColumnGutter.h"
#include "layout/page/GutterReach.h"
#include "layout/page/RowJoiner.h"
#include "layout/page/TextBesideTable.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <optional>

namespace orvane::layout {
namespace {

using Kind = PagePart::Kind;

/// Cuts a line at `x`; nothing when all its words are on one side.
std::optional<std::pair<Line, Line>> cutLine(const Line& line, double x) {
    std::pair<Line, Line> halves{line, line};
    halves.first.words.clear();
    halves.second.words.clear();
    for (const Word& word : line.words)
        (word.box.centerX() < x ? halves.first : halves.second).words.push_back(word);
    if (halves.first.words.empty() || halves.second.words.empty())
        return std::nullopt;
    for (Line* half : {&halves.first, &halves.second}) {
        half->words.front().gapBefore = Gap::None;
        half->words.front().leaderBefore = document::TabLeader::None;
        measureAnew(*half);
    }
    return halves;
}

/// Adds a part; one of the same kind as its parent gives its children instead: three columns are found as two, one of
/// which is two.
void addPart(PagePart& parent, PagePart child) {
    if (child.kind == parent.kind)
        std::move(child.parts.begin(), child.parts.end(), std::back_inserter(parent.parts));
    else
        parent.parts.push_back(std::move(child));
}

struct Rows {
    double top = 1e9;
    double bottom = -1e9;
    std::size_t lines = 0;

    void add(const Rect& box) {
        top = std::min(top, box.top);
        bottom = std::max(bottom, box.bottom);
        ++lines;
    }
};

void addRows(const PagePart& part, Rows& rows) {
    for (const Line& line : part.lines)
        rows.add(line.box);
    for (const PagePart& child : part.parts)
        addRows(child, rows);
}

/// Where a column is columns itself for the most part, under or over something that leads across them.
std::optional<Rows> rowsOfColumnsWithin(const PagePart& column) {
    if (column.kind != Kind::Slices)
        return std::nullopt;
    Rows all;
    addRows(column, all);
    for (const PagePart& slice : column.parts) {
        Rows rows;
        addRows(slice, rows);
        if (slice.kind == Kind::Columns && 2 * rows.lines > all.lines)
            return rows;
    }
    return std::nullopt;
}

/// The height without text between the lines that end above `y` and those that begin below it.
double blankAt(std::span<const Line> lines, double y) {
    double above = -1e9, below = 1e9;
    for (const Line& line : lines)
        if (line.box.centerY() < y)
            above = std::max(above, line.box.bottom);
        else
            below = std::min(below, line.box.top);
    return below - above;
}

class ColumnSplitter {
public:
    ColumnSplitter(const PageWalls& walls, const LayoutParameters& parameters)
        : m_walls(walls)
        , m_parameters(parameters) {}

    /// All that stands over the page's width: columns of text, or where there are none those of text beside a table.
    PagePart splitPage(std::vector<Line> lines) const {
        if (!m_walls.strips.empty())
            return splitStrips(std::move(lines));
        PagePart page = split(lines);
        if (page.kind == Kind::Lines)
            if (const auto beside = findTextBesideTable(lines, m_walls.tables, m_parameters.regions))
                return splitBeside(*beside, std::move(lines));
        return page;
    }

private:
    PagePart split(std::vector<Line> lines, int depth = 0) const {
        std::optional<ColumnGutter> gutter;
        if (depth < m_parameters.regions.maximumDepth)
            gutter = findColumnGutter(lines, m_walls.all, m_parameters.regions);
        if (!gutter)
            return leaf(std::move(lines));
        extendOverNeighbours(*gutter, lines, m_parameters.regions);
        Pieces pieces = sortLines(lines, *gutter);
        // Words of uneven height may weigh for a gutter that their lines lie beside.
        if (pieces.left.empty() || pieces.right.empty())
            return leaf(std::move(lines));
        std::optional<PagePart> heads = takeHeads(*gutter, pieces, lines, depth);
        PagePart columns = splitSides(pieces, depth);
        if (!heads && narrowToColumnsWithin(*gutter, columns, lines)) {
            pieces = sortLines(lines, *gutter);
            columns = splitSides(pieces, depth);
        }
        if (pieces.above.empty() && pieces.below.empty() && !heads)
            return columns;
        PagePart slices{.kind = Kind::Slices};
        if (!pieces.above.empty())
            addPart(slices, split(std::move(pieces.above), depth + 1));
        if (heads)
            addPart(slices, std::move(*heads));
        addPart(slices, std::move(columns));
        if (!pieces.below.empty())
            addPart(slices, split(std::move(pieces.below), depth + 1));
        return slices;
    }

    /// Text and table as columns, with what stands above and below them.
    PagePart splitBeside(const TextBesideTable& beside, std::vector<Line> lines) const {
        std::vector<Line> above, text, below;
        for (Line& line : lines)
            (line.box.centerY() < beside.top      ? above
             : line.box.centerY() > beside.bottom ? below
                                                  : text)
                .push_back(std::move(line));
        PagePart columns{.kind = Kind::Columns};
        columns.parts.push_back(leaf(std::move(text)));
        columns.parts.insert(beside.isTextLeft ? columns.parts.end() : columns.parts.begin(),
                             PagePart{.object = beside.table});
        PagePart slices{.kind = Kind::Slices};
        if (!above.empty())
            addPart(slices, splitPage(std::move(above)));
        addPart(slices, std::move(columns));
        if (!below.empty())
            addPart(slices, splitPage(std::move(below)));
        return slices;
    }

    /// The strips as columns, with what stands above and below them.
    PagePart splitStrips(std::vector<Line> lines) const {
        cutAtStrips(lines, m_walls.strips);
        PagePart columns{.kind = Kind::Columns};
        for (const ColumnStrip& strip : m_walls.strips) {
            const auto first = std::stable_partition(lines.begin(), lines.end(),
                                                     [&](const Line& line) { return !strip.holds(line.box); });
            PagePart column = split({first, lines.end()}, 1);
            lines.erase(first, lines.end());
            for (const Rect& table : m_walls.tables)
                if (strip.holds(table))
                    column.object = column.object.united(table);
            const bool isBlank = column.kind == Kind::Lines && column.lines.empty() && column.object.isEmpty();
            if (!isBlank)
                addPart(columns, std::move(column));
        }
        const auto below = std::stable_partition(lines.begin(), lines.end(), [&](const Line& line) {
            return line.box.centerY() < m_walls.strips.front().top;
        });
        PagePart slices{.kind = Kind::Slices};
        if (below != lines.begin())
            addPart(slices, split({lines.begin(), below}, 1));
        addPart(slices, std::move(columns));
        if (below != lines.end())
            addPart(slices, split({below, lines.end()}, 1));
        return slices;
    }

    struct Pieces {
        std::vector<Line> above, left, right, below;
    };

    PagePart splitSides(const Pieces& pieces, int depth) const {
        PagePart columns{.kind = Kind::Columns};
        addPart(columns, split(pieces.left, depth + 1));
        addPart(columns, split(pieces.right, depth + 1));
        return columns;
    }

    /// Takes the blocks that stand centred over the columns off these; they are columns of their own.
    std::optional<PagePart> takeHeads(ColumnGutter& gutter, Pieces& pieces, const std::vector<Line>& lines,
                                      int depth) const {
        const std::optional<double> end = findEndOfHeads(gutter, lines, m_parameters.regions);
        if (!end)
            return std::nullopt;
        ColumnGutter headGutter = gutter;
        headGutter.bottom = *end;
        gutter.top = *end;
        Pieces heads = sortLines(lines, headGutter);
        pieces = sortLines(lines, gutter);
        pieces.above = std::move(heads.above);
        return splitSides(heads, depth);
    }

    /// A title over two of three columns leaves a gutter beside it; the columns are three from where all of them begin.
    /// True when the gutter has become lower.
    bool narrowToColumnsWithin(ColumnGutter& gutter, const PagePart& columns, std::span<const Line> lines) const {
        const double blank = m_parameters.regions.sliceBlank * gutter.fontSize;
        bool isNarrowed = false;
        for (const PagePart& column : columns.parts) {
            const std::optional<Rows> rows = rowsOfColumnsWithin(column);
            if (!rows)
                continue;
            if (rows->top > gutter.top && blankAt(lines, rows->top) >= blank) {
                gutter.top = rows->top;
                isNarrowed = true;
            }
            if (rows->bottom < gutter.bottom && blankAt(lines, rows->bottom) >= blank) {
                gutter.bottom = rows->bottom;
                isNarrowed = true;
            }
        }
        return isNarrowed;
    }

    PagePart leaf(std::vector<Line> lines) const {
        return {.lines = joinRows(std::move(lines), m_parameters.paragraphs)};
    }

    static Pieces sortLines(const std::vector<Line>& lines, const ColumnGutter& gutter) {
        Pieces pieces;
        const double middle = (gutter.left + gutter.right) / 2;
        for (const Line& line : lines) {
            if (line.box.centerY() < gutter.top) {
                pieces.above.push_back(line);
            } else if (line.box.centerY() > gutter.bottom) {
                pieces.below.push_back(line);
            } else if (auto halves = cutLine(line, middle)) {
                pieces.left.push_back(std::move(halves->first));
                pieces.right.push_back(std::move(halves->second));
            } else {
                (line.box.centerX() < middle ? pieces.left : pieces.right).push_back(line);
            }
        }
        return pieces;
    }

    const PageWalls& m_walls;
    const LayoutParameters& m_parameters;
};

} // namespace

PagePart splitIntoColumns(std::vector<Line> lines, const PageWalls& walls, const LayoutParameters& parameters) {
    return ColumnSplitter(walls, parameters).splitPage(std::move(lines));
}

} // namespace orvane::layout
