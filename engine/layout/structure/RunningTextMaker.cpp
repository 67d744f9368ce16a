#include "layout/structure/RunningTextMaker.h"

#include "layout/page/FreeDrawings.h"
#include "layout/page/PageLayouter.h"
#include "layout/paragraphs/ParagraphBorders.h"
#include "layout/structure/BlockExtent.h"
#include "layout/structure/DraftBuilder.h"
#include "layout/text/LineText.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace orvane::layout {
namespace {

/// The sides of a frame around the whole page part no columns.
bool hasColumnRules(const PageText& page, const RunningParameters::RunningHeads& limits) {
    return std::any_of(page.rules.begin(), page.rules.end(), [&](const Rule& rule) {
        return rule.direction == RuleDirection::Vertical && rule.to - rule.from < limits.frameShare * page.height;
    });
}

/// Makes one line of what stands on one baseline: in a running head gaps are tabulators, not columns.
void joinRows(PageText& page, const RunningParameters::RunningHeads& limits) {
    if (hasColumnRules(page, limits))
        return; // a table, whose cells part the lines
    std::stable_sort(page.lines.begin(), page.lines.end(),
                     [](const Line& a, const Line& b) { return a.baseline < b.baseline; });
    std::vector<Line> rows;
    for (Line& line : page.lines) {
        const bool isSameRow = !rows.empty() && rows.back().angle == 0 && line.angle == 0 &&
                               std::abs(rows.back().baseline - line.baseline) <= limits.sameRow * line.fontSize;
        if (!isSameRow) {
            rows.push_back(std::move(line));
            continue;
        }
        Line& row = rows.back();
        const bool isBehind = row.isRightToLeft ? line.box.right <= row.box.left : line.box.left >= row.box.right;
        std::vector<Word>& behind = isBehind ? line.words : row.words;
        behind.front().gapBefore = Gap::Tab;
        row.words.insert(isBehind ? row.words.end() : row.words.begin(), std::make_move_iterator(line.words.begin()),
                         std::make_move_iterator(line.words.end()));
        measureAnew(row);
    }
    page.lines = std::move(rows);
}

/// A picture that reaches farther into the page than running heads do takes no room in them: a header as tall as the
/// page would leave none for the text.
void floatTallFigures(PageLayout& page, PageEdge side, double reach) {
    for (PageBlock& block : page.blocks)
        if (auto* draft = std::get_if<FigureDraft>(&block.value)) {
            const Rect& box = draft->figure.box;
            const double depth = side == PageEdge::Top ? box.bottom : page.height - box.top;
            draft->isInline = draft->isInline && depth <= reach * page.height;
        }
}

/// Blocks are set within the column of the section that shows them, wherever other sections have theirs.
void setColumn(std::vector<DraftBlock>& blocks, const ColumnSpan& column) {
    for (DraftBlock& block : blocks)
        if (DraftParagraph* paragraph = block.paragraph())
            for (DraftPiece& piece : paragraph->pieces)
                piece.column = column;
        else
            block.textColumn = column;
}

/// The border of a paragraph towards the page's edge; null for other blocks.
document::Border* outerBorder(DraftBlock& block, PageEdge side) {
    DraftParagraph* paragraph = block.paragraph();
    if (!paragraph)
        return nullptr;
    return side == PageEdge::Top ? &paragraph->pieces.front().text.borders.top
                                 : &paragraph->pieces.back().text.borders.bottom;
}

/// How near the blocks come to the page's edge; infinite without blocks in the flow. Borders that would reach over it
/// come nearer to their text.
double distanceFromEdge(std::vector<DraftBlock>& blocks, const FontCatalog& fonts, PageEdge side, double pageHeight) {
    double distance = std::numeric_limits<double>::infinity();
    for (DraftBlock& block : blocks) {
        if (isFloating(block))
            continue;
        const BlockExtent extent = extentOf(block, fonts);
        const double room = side == PageEdge::Top ? extent.top : pageHeight - extent.bottom;
        double border = 0;
        if (document::Border* outer = outerBorder(block, side)) {
            const int excess = static_cast<int>(std::ceil(std::max(0.0, heightOf(*outer) - room)));
            outer->spacePoints = std::max(0, outer->spacePoints - excess);
            border = heightOf(*outer);
        }
        distance = std::min(distance, room - border);
    }
    return distance;
}

/// Sets the distance to that of the text that comes nearest to the edge.
void setDistance(Twips& target, DraftRunningText& text, const FontCatalog& fonts, PageEdge side, double pageHeight) {
    double distance = std::numeric_limits<double>::infinity();
    for (auto* blocks : {&text.standard, &text.evenPages, &text.firstPage})
        if (*blocks)
            distance = std::min(distance, distanceFromEdge(**blocks, fonts, side, pageHeight));
    if (std::isfinite(distance))
        target = twipsFromPoints(std::max(0.0, distance));
}

} // namespace

RunningTextMaker::Blocks RunningTextMaker::blocksOf(const std::optional<RunningHead>& head, PageEdge side,
                                                    const ColumnSpan& column) {
    if (!head)
        return std::nullopt;
    const std::string key =
        fmt::format("{} {:.0f} {:.0f} {:.0f} {:.0f} {}{}", static_cast<int>(side), head->content.width,
                    head->content.height, column.left, column.right, head->key, head->rules);
    if (const auto made = m_made.find(key); made != m_made.end())
        return made->second;
    PageText content = head->content;
    joinRows(content, m_parameters.runningHeads);
    PageLayout page = layoutPage(std::move(content), m_context, m_parameters, m_diagnostics);
    floatTallFigures(page, side, m_parameters.runningHeads.reach);
    findParagraphBorders(page, m_parameters.paragraphBorders);
    // A head is written once, however many pages show it.
    drawFreeRules(page, m_parameters.freeDrawings.shapesOfDocument, m_parameters);
    std::vector<DraftBlock> blocks = addPage(m_draft, std::move(page));
    setColumn(blocks, column);
    m_draft.fields.back() = head->fields;
    m_made.emplace(key, blocks);
    return blocks;
}

void RunningTextMaker::make(DraftSection& section, const RunningScheme& scheme, const ColumnSpan& column) {
    const auto header = [&](std::size_t page) { return blocksOf(m_heads[page].header, PageEdge::Top, column); };
    const auto footer = [&](std::size_t page) { return blocksOf(m_heads[page].footer, PageEdge::Bottom, column); };
    section.header.standard = header(scheme.standard);
    section.footer.standard = footer(scheme.standard);
    // Where one kind of page has its own heads, having none is a choice as well.
    if (scheme.even) {
        section.header.evenPages = header(*scheme.even).value_or(std::vector<DraftBlock>{});
        section.footer.evenPages = footer(*scheme.even).value_or(std::vector<DraftBlock>{});
    }
    if (scheme.hasOwnFirstPage) {
        section.header.firstPage = header(scheme.firstPage).value_or(std::vector<DraftBlock>{});
        section.footer.firstPage = footer(scheme.firstPage).value_or(std::vector<DraftBlock>{});
    }
    const FontCatalog fonts(m_draft, m_parameters);
    const double height = m_draft.pages[scheme.standard].height;
    setDistance(section.setup.headerDistance, section.header, fonts, PageEdge::Top, height);
    setDistance(section.setup.footerDistance, section.footer, fonts, PageEdge::Bottom, height);
}

} // namespace orvane::layout
