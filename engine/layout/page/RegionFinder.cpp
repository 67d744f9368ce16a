#include "layout/page/RegionFinder.h"

#include "layout/page/ColumnEdges.h"
#include "layout/text/Characters.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

/// Turns the tree of parts into the flat list of regions.
class Flattener {
public:
    Flattener(double pageWidth, const DocumentContext& context, const PageParameters::Regions& parameters)
        : m_pageWidth(pageWidth)
        , m_context(context)
        , m_parameters(parameters) {}

    PageRegions run(PagePart page) {
        if (page.kind == PagePart::Kind::Slices)
            for (PagePart& slice : page.parts)
                addBand(std::move(slice));
        else
            addBand(std::move(page));
        return std::move(m_result);
    }

private:
    void addBand(PagePart slice) {
        std::vector<PagePart> columns;
        if (slice.kind == PagePart::Kind::Columns)
            columns = std::move(slice.parts);
        else
            columns.push_back(std::move(slice));
        Band band;
        band.top = 1e9;
        const std::size_t first = m_result.regions.size();
        if (isRightToLeft(columns))
            std::reverse(columns.begin(), columns.end());
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const std::size_t firstOfColumn = m_result.regions.size();
            const Rect tables = columns[i].object;
            addRegions(std::move(columns[i]), static_cast<int>(i));
            const std::vector<Line> lines = linesOf(firstOfColumn);
            for (std::size_t r = firstOfColumn; r < m_result.regions.size(); ++r) {
                const Region& region = m_result.regions[r];
                band.top = std::min(band.top, region.box.top);
                band.bottom = std::max(band.bottom, region.box.bottom);
            }
            ColumnSpan span =
                lines.empty() ? ColumnSpan{tables.left, tables.right} : findColumnEdges(lines, m_parameters);
            if (!tables.isEmpty())
                span = {std::min(span.left, tables.left), std::max(span.right, tables.right)};
            band.columns.push_back(span);
        }
        if (band.columns.size() == 1) {
            widenToTextArea(band.columns[0]);
            // Where nearly all lines of the document end well before these do, they may be titles.
            if (band.columns[0].right > m_context.textArea.right + m_context.bodyFontSize)
                band.columns[0] = evenedAtMiddle(band.columns[0], linesOf(first), m_pageWidth, m_parameters);
            widenToOtherMargin(band.columns[0], linesOf(first));
        }
        const double blank = blankBeforeLast(band.columns);
        widenIntoGutters(band.columns);
        for (std::size_t r = first; r < m_result.regions.size(); ++r) {
            Region& region = m_result.regions[r];
            if (region.span.left <= region.span.right)
                continue;
            region.span = band.columns[static_cast<std::size_t>(region.column)];
            // The last column ends where the page's text does. Its lines were ended by hand all the same.
            const bool isLast = static_cast<std::size_t>(region.column) + 1 == band.columns.size();
            if (isLast && blank > region.span.right - region.span.left && startTogether(region.lines))
                region.span.right += blank;
        }
        m_result.bands.push_back(std::move(band));
    }

    void addRegions(PagePart part, int column) {
        if (part.kind != PagePart::Kind::Lines) {
            const std::size_t first = m_result.regions.size();
            for (PagePart& child : part.parts)
                addRegions(std::move(child), column);
            // Columns within a column keep their own edges; slices share those of the column.
            for (std::size_t r = first; part.kind == PagePart::Kind::Columns && r < m_result.regions.size(); ++r)
                m_result.regions[r].span = findColumnEdges(m_result.regions[r].lines, m_parameters);
            return;
        }
        Region region;
        region.band = static_cast<int>(m_result.bands.size());
        region.column = column;
        region.span = {1e9, -1e9};
        region.box = part.object;
        for (const Line& line : part.lines)
            region.box = region.box.united(line.box);
        region.lines = std::move(part.lines);
        m_result.regions.push_back(std::move(region));
    }

    /// The lines of the regions from `first` on.
    std::vector<Line> linesOf(std::size_t first) const {
        std::vector<Line> lines;
        for (std::size_t r = first; r < m_result.regions.size(); ++r)
            lines.insert(lines.end(), m_result.regions[r].lines.begin(), m_result.regions[r].lines.end());
        return lines;
    }

    /// A single column has the document's text edges, though this page's lines may all be short.
    void widenToTextArea(ColumnSpan& span) const {
        const Rect& area = m_context.textArea;
        if (area.isEmpty())
            return;
        span = {std::min(span.left, area.left), std::max(span.right, area.right)};
    }

    /// Nobody wraps lines at the edge of a column that is narrower than what is left blank beside it: they were ended
    /// by hand, and there was room up to the next column.
    void widenIntoGutters(std::vector<ColumnSpan>& columns) const {
        for (std::size_t i = 0; i + 1 < columns.size(); ++i) {
            ColumnSpan& column = columns[i];
            const double end = columns[i + 1].left - m_parameters.wideGutter * m_context.bodyFontSize;
            if (end - column.right > column.right - column.left)
                column.right = end;
        }
    }

    /// Nor at an edge that leaves about as much blank before a margin like the one at the start of the lines: lists of
    /// short texts, each of which was ended by hand.
    void widenToOtherMargin(ColumnSpan& span, const std::vector<Line>& lines) const {
        const double blank = m_pageWidth - span.right - span.left;
        if (blank >= m_parameters.handEndedBlank * (span.right - span.left) && !mayRunOn(lines, span))
            span.right = m_pageWidth - span.left;
    }

    /// Whether what most full lines say may go on in the next: in lower case, or in a script without capitals.
    static bool mayRunOn(const std::vector<Line>& lines, const ColumnSpan& span) {
        int full = 0;
        int goingOn = 0;
        for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
            const Line& next = lines[i + 1];
            const double room = span.right - lines[i].box.right;
            if (next.words.empty() || (!next.isRightToLeft && room >= next.words.front().box.width()))
                continue;
            const char32_t first = firstCharacterOf(next);
            ++full;
            goingOn += isLetter(first) && !isUpperCase(first);
        }
        return 2 * goingOn > full;
    }

    static double blankBeforeLast(const std::vector<ColumnSpan>& columns) {
        return columns.size() < 2 ? 0 : columns.back().left - columns[columns.size() - 2].right;
    }

    bool startTogether(const std::vector<Line>& lines) const {
        return std::all_of(lines.begin(), lines.end(), [&](const Line& line) {
            return std::abs(line.box.left - lines.front().box.left) <= m_parameters.sameMiddle * line.fontSize;
        });
    }

    /// Single words, such as addresses, run as the document does whatever their letters.
    bool isRightToLeft(std::span<const PagePart> columns) const {
        std::size_t lines = 0;
        std::size_t rightToLeft = 0;
        bool areWords = true;
        for (const PagePart& part : columns)
            for (const Line& line : part.lines) {
                ++lines;
                rightToLeft += line.isRightToLeft ? 1 : 0;
                areWords = areWords && line.words.size() == 1;
            }
        return lines == 0 || (areWords && rightToLeft == 0) ? m_context.isRightToLeft : 2 * rightToLeft > lines;
    }

    double m_pageWidth = 0;
    const DocumentContext& m_context;
    const PageParameters::Regions& m_parameters;
    PageRegions m_result;
};

} // namespace

PageRegions findRegions(std::vector<Line> lines, const PageWalls& walls, const DocumentContext& context,
                        const LayoutParameters& parameters) {
    if (lines.empty())
        return {};
    // By what is written on, not by the box, which a single large letter makes higher.
    std::stable_sort(lines.begin(), lines.end(), [](const Line& a, const Line& b) { return a.baseline < b.baseline; });
    return Flattener(walls.pageWidth, context, parameters.regions)
        .run(splitIntoColumns(std::move(lines), walls, parameters));
}

} // namespace orvane::layout
