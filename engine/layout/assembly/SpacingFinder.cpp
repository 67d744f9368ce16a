#include "layout/assembly/SpacingFinder.h"

#include "layout/assembly/BlockPlace.h"
#include "layout/assembly/CellRoom.h"
#include "layout/assembly/ColumnFlow.h"
#include "layout/assembly/KeepRelease.h"
#include "layout/assembly/LineTightener.h"
#include "layout/assembly/PageStarts.h"
#include "layout/assembly/TableSpacers.h"
#include "layout/support/Tally.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>

namespace orvane::layout {
namespace {

using document::Paragraph;
using document::ParagraphProperties;
using document::Style;
using document::StyleId;

/// The space between two blocks that stand one below the other. Units: points.
struct BlockGap {
    AssembledBlock* upper = nullptr;
    AssembledBlock* lower = nullptr;
    double points = 0; ///< below 0 where lines are lower than thought
};

std::vector<BlockGap> measureGaps(BlockFlow& flow) {
    std::vector<BlockGap> gaps;
    forEachPair(flow.blocks, [&gaps](AssembledBlock& upper, AssembledBlock& lower) {
        gaps.push_back({&upper, &lower, lower.top - upper.bottom});
    });
    if (flow.kind != FlowKind::Body)
        return gaps;
    // What follows columns stands below the longest. Word counts the space behind each, LibreOffice that behind the
    // last one from the end of the longest.
    for (std::size_t i = 0; i < flow.blocks.size(); ++i) {
        AssembledBlock& lower = flow.blocks[i];
        const std::vector<ColumnFoot> columns = columnsAbove(flow.blocks, i);
        if (columns.empty())
            continue;
        double bottom = 0;
        for (const ColumnFoot& column : columns)
            bottom = std::max(bottom, column.last->bottom);
        std::erase_if(gaps, [&lower](const BlockGap& gap) { return gap.lower == &lower; });
        for (const ColumnFoot& column : columns)
            if (column.isEnd)
                gaps.push_back({column.last, &lower, lower.top - bottom});
    }
    return gaps;
}

/// Heights of lines are rounded, so that there seems to be a bit between them.
Twips spaceOf(double gap, const AssemblyParameters::Spacing& limits) {
    return twipsFromPoints(gap > limits.roundedLine ? gap : 0);
}

/// Finds the spaces that belong to the styles.
class StyleSpacing {
public:
    StyleSpacing(const std::vector<BlockGap>& gaps, const AssemblyParameters::Spacing& limits)
        : m_gaps(gaps)
        , m_limits(limits) {}

    void set(std::vector<Style>& styles) {
        for (Style& style : styles)
            setAfter(style);
        for (Style& style : styles)
            setBefore(style, styles);
    }

private:
    enum class Neighbour { Same, Other };

    /// The most frequent gap behind (or before) paragraphs of a style.
    std::optional<double> usualGap(const StyleId& upper, const StyleId& lower, Neighbour neighbour) const {
        std::vector<double> values;
        for (const BlockGap& gap : m_gaps) {
            const Paragraph* first = gap.upper->paragraph();
            const Paragraph* second = gap.lower->paragraph();
            if (gap.points > m_limits.largestGap)
                continue;
            if (!first || !second || (!upper.empty() && first->style != upper) ||
                (!lower.empty() && second->style != lower) ||
                (first->style == second->style) != (neighbour == Neighbour::Same))
                continue;
            values.push_back(gap.points);
        }
        const auto usual = mostFrequent(values, m_limits.sameGap);
        if (!usual)
            return std::nullopt;
        const auto agreeing = std::count_if(values.begin(), values.end(),
                                            [&](double value) { return std::abs(value - *usual) <= m_limits.sameGap; });
        return static_cast<double>(agreeing) >= m_limits.usualShare * static_cast<double>(values.size()) ? usual
                                                                                                         : std::nullopt;
    }

    void setAfter(Style& style) const {
        const auto same = usualGap(style.id, style.id, Neighbour::Same);
        const auto other = usualGap(style.id, {}, Neighbour::Other);
        // Items of a list stand close, and there is space behind the list.
        const bool isContextual =
            style.id == "ListParagraph" && same && other && *same<m_limits.sameGap&& * other> m_limits.sameGap;
        const bool isHead = style.paragraph.outlineLevel > 0;
        const auto after = isContextual || isHead || !same ? other : same;
        style.paragraph.isContextualSpacing = isContextual;
        style.paragraph.spaceAfter = spaceOf(after.value_or(0), m_limits);
    }

    /// Space before is what the paragraphs above do not leave anyway.
    void setBefore(Style& style, const std::vector<Style>& styles) const {
        if (style.id == "Normal")
            return;
        const auto before = usualGap({}, style.id, Neighbour::Other);
        const double body = pointsFromTwips(styles.front().paragraph.spaceAfter);
        if (before && *before > body + m_limits.sameGap)
            style.paragraph.spaceBefore = twipsFromPoints(*before);
    }

    const std::vector<BlockGap>& m_gaps;
    const AssemblyParameters::Spacing& m_limits;
};

void takeStyleSpacing(std::vector<BlockFlow>& flows, const std::vector<Style>& styles) {
    std::map<StyleId, const ParagraphProperties*> formats;
    for (const Style& style : styles)
        formats.emplace(style.id, &style.paragraph);
    for (BlockFlow& flow : flows) {
        forEachBlock(flow.blocks, flow.kind, [&](AssembledBlock& block, FlowKind) {
            Paragraph* paragraph = block.paragraph();
            if (!paragraph || !formats.contains(paragraph->style))
                return;
            const ParagraphProperties& format = *formats[paragraph->style];
            paragraph->properties.spaceBefore = format.spaceBefore;
            paragraph->properties.spaceAfter = format.spaceAfter;
            paragraph->properties.isContextualSpacing = format.isContextualSpacing;
        });
    }
}

/// Whether the paragraph leaves its space away towards the other, which stands above or below it.
bool leavesSpaceTo(const Paragraph& paragraph, const Paragraph& other) {
    return paragraph.style == other.style && paragraph.properties.isContextualSpacing;
}

/// The space between the two as their properties have it: each leaves its own away, and the greater one counts.
Twips givenGap(const Paragraph& upper, const Paragraph& lower) {
    const Twips after = leavesSpaceTo(upper, lower) ? Twips(0) : upper.properties.spaceAfter;
    const Twips before = leavesSpaceTo(lower, upper) ? Twips(0) : lower.properties.spaceBefore;
    return std::max(after, before);
}

/// Sets the gap on the two paragraphs where their styles give another one. `above` is the paragraph right above both,
/// null without one; its gap is set already.
void setParagraphGap(const Paragraph* above, Paragraph& upper, Paragraph& lower, Twips gap, Twips tolerance) {
    const Twips given = givenGap(upper, lower);
    if (std::abs(given.value - gap.value) <= tolerance.value)
        return;
    if (given > gap) {
        upper.properties.spaceAfter = std::min(upper.properties.spaceAfter, gap);
        lower.properties.spaceBefore = std::min(lower.properties.spaceBefore, gap);
        return;
    }
    upper.properties.spaceAfter = gap;
    if (!leavesSpaceTo(upper, lower))
        return;
    // The space before, which the style has for the head of the list, would count from now on too.
    if (above && leavesSpaceTo(upper, *above))
        upper.properties.spaceBefore = Twips(0);
    upper.properties.isContextualSpacing = false;
}

void setGap(const AssembledBlock* above, const BlockGap& gap, const AssemblyParameters::Spacing& limits) {
    Paragraph* upper = gap.upper->paragraph();
    Paragraph* lower = gap.lower->paragraph();
    const Twips space = spaceOf(gap.points, limits);
    if (upper && lower)
        setParagraphGap(above ? above->paragraph() : nullptr, *upper, *lower, space, twipsFromPoints(limits.sameGap));
    else if (upper)
        upper->properties.spaceAfter = space;
    else if (lower)
        lower->properties.spaceBefore = space;
}

void setGaps(const std::vector<BlockGap>& gaps, const AssemblyParameters::Spacing& limits) {
    const BlockGap* previous = nullptr;
    for (const BlockGap& gap : gaps) {
        setGap(previous && previous->lower == gap.upper ? previous->upper : nullptr, gap, limits);
        previous = &gap;
    }
}

/// The first line of a cell stands where its alignment puts it, and nothing follows the last.
void trimCells(AssembledBlock& block) {
    for (std::vector<AssembledBlock>& cell : block.cells) {
        if (cell.empty())
            continue;
        if (Paragraph* first = cell.front().paragraph())
            first->properties.spaceBefore = Twips(0);
        if (Paragraph* last = cell.back().paragraph())
            last->properties.spaceAfter = Twips(0);
    }
}

/// Headers and footers end with their last line.
void trimRunningText(BlockFlow& flow) {
    if (flow.kind != FlowKind::Header && flow.kind != FlowKind::Footer)
        return;
    for (auto block = flow.blocks.rbegin(); block != flow.blocks.rend(); ++block) {
        if (hasNoPlace(*block))
            continue;
        if (Paragraph* last = block->paragraph())
            last->properties.spaceAfter = Twips(0);
        return;
    }
}

} // namespace

void findSpacing(std::vector<BlockFlow>& flows, std::vector<Style>& styles, const AssemblyContext& context) {
    const AssemblyParameters::Spacing& limits = context.parameters.spacing;
    for (BlockFlow& flow : flows)
        forEachBlock(flow.blocks, flow.kind, [&](AssembledBlock& block, FlowKind) { measureLines(block, context); });
    tightenLines(flows, styles, context);
    std::vector<BlockGap> gaps;
    for (BlockFlow& flow : flows) {
        forEachBlock(flow.blocks, flow.kind,
                     [&](AssembledBlock& block, FlowKind) { fitCellRoom(block, context.parameters.tableCells); });
        const std::vector<BlockGap> own = measureGaps(flow);
        gaps.insert(gaps.end(), own.begin(), own.end());
    }
    StyleSpacing(gaps, limits).set(styles);
    takeStyleSpacing(flows, styles);
    for (BlockFlow& flow : flows)
        forEachBlock(flow.blocks, flow.kind, [](AssembledBlock& block, FlowKind) { trimCells(block); });
    setGaps(gaps, limits);
    for (BlockFlow& flow : flows) {
        trimRunningText(flow);
        forEachBlock(flow.blocks, flow.kind,
                     [&](AssembledBlock& block, FlowKind) { lowerCellTexts(block, context.parameters.tableCells); });
        spaceTablesApart(flow.blocks, context);
        if (flow.kind != FlowKind::Body)
            continue;
        setPageStarts(flow.blocks, context);
        setColumnStarts(flow.blocks, limits);
        releaseKeeps(flow.blocks);
    }
}

} // namespace orvane::layout
