#include "layout/assembly/LineTightener.h"

#include "layout/assembly/BlockPlace.h"
#include "layout/assembly/TableReach.h"
#include "layout/support/Tally.h"

#include <limits>
#include <map>
#include <set>

namespace orvane::layout {
namespace {

using document::StyleId;

/// A paragraph whose line spacing was given to it, and how far its line may reach.
struct GivenSpacing {
    AssembledBlock* block = nullptr;
    double floor = std::numeric_limits<double>::infinity();
    double ceiling = -std::numeric_limits<double>::infinity();
    double slack = 0; ///< what the line may reach beyond them; none in cells, for rows grow by it, one after the other
};

bool isGiven(const AssembledBlock& block) {
    return block.draftParagraph() && !block.hasOwnLineSpacing;
}

/// Lines of an exact height have most of it above their letters, those of a multiple below.
bool isExact(const AssembledBlock& block) {
    return block.paragraph()->properties.lineSpacing.rule == document::LineSpacingRule::Exact;
}

class LineTightener {
public:
    LineTightener(std::vector<BlockFlow>& flows, const AssemblyContext& context)
        : m_flows(flows)
        , m_context(context) {
        for (BlockFlow& flow : flows) {
            readPairs(flow.blocks);
            forEachBlock(flow.blocks, flow.kind, [this](AssembledBlock& block, FlowKind) { readCells(block); });
        }
    }

    void run(std::vector<document::Style>& styles) {
        const std::set<StyleId> tooHigh = stylesTooHigh();
        for (document::Style& style : styles)
            if (tooHigh.contains(style.id))
                style.paragraph.lineSpacing = {};
        for (BlockFlow& flow : m_flows)
            forEachBlock(flow.blocks, flow.kind, [&](AssembledBlock& block, FlowKind) {
                if (isGiven(block) && tooHigh.contains(block.paragraph()->style))
                    setSingle(block);
            });
        for (const GivenSpacing& given : m_given)
            if (isTooHigh(given))
                setSingle(*given.block);
        for (BlockFlow& flow : m_flows) {
            closeUp(flow.blocks);
            forEachBlock(flow.blocks, flow.kind, [this](AssembledBlock& block, FlowKind) { fitIntoRows(block); });
        }
        for (document::Style& style : styles)
            if (m_closedUp.contains(style.id))
                followParagraphs(style);
    }

private:
    void readPairs(std::vector<AssembledBlock>& blocks) {
        forEachPair(blocks, [this](AssembledBlock& upper, AssembledBlock& lower) {
            const double slack = m_context.parameters.spacing.sameGap;
            if (isGiven(upper))
                m_given.push_back({.block = &upper, .floor = lower.top, .slack = slack});
            if (isGiven(lower) && isExact(lower))
                m_given.push_back({.block = &lower, .ceiling = upper.bottom, .slack = slack});
        });
    }

    /// The first lines of cells reach up to the cells' tops, the last ones down to their ends.
    void readCells(AssembledBlock& block) {
        for (std::size_t i = 0; i < block.cells.size(); ++i) {
            std::vector<AssembledBlock>& inside = block.cells[i];
            const CellDraft& cell = cellOf(block, i);
            if (inside.empty() || cell.direction != document::TextDirection::Horizontal)
                continue;
            if (isGiven(inside.back()) && inside.back().lastPage == inside.front().draft->page)
                m_given.push_back({.block = &inside.back(), .floor = cell.box.bottom});
            if (isGiven(inside.front()) && isExact(inside.front()))
                m_given.push_back({.block = &inside.front(), .ceiling = cell.box.top});
        }
    }

    static const CellDraft& cellOf(const AssembledBlock& table, std::size_t i) {
        return std::get<DraftTable>(table.draft->value).cells[i].cell;
    }

    static bool isTooHigh(const GivenSpacing& given) {
        return given.block->bottom > given.floor + given.slack || given.block->top < given.ceiling - given.slack;
    }

    void setSingle(AssembledBlock& block) const {
        block.paragraph()->properties.lineSpacing = {};
        measureLines(block, m_context);
    }

    /// Lines of one style, each a paragraph, that stand closer than even single spacing allows: their fonts' lines are
    /// lower than thought, or their height was set.
    void closeUp(std::vector<AssembledBlock>& blocks) {
        forEachPair(blocks, [this](AssembledBlock& upper, AssembledBlock& lower) {
            if (!upper.draftParagraph() || !lower.draftParagraph() ||
                upper.paragraph()->style != lower.paragraph()->style ||
                upper.bottom - lower.top <= m_context.parameters.spacing.sameGap)
                return;
            const Line& last = upper.draftParagraph()->lastLine();
            const double distance = lower.draftParagraph()->firstLine().baseline - last.baseline;
            if (distance < last.fontSize)
                return; // beside each other rather
            for (AssembledBlock* block : {&upper, &lower})
                if (isGiven(*block) && !isExact(*block))
                    setExact(*block, distance);
        });
    }

    /// A line alone in a cell that is lower than the line of its font: the cell shows how high the line was. Fonts that
    /// stand in for others, for letters that these do not have, do not make lines higher everywhere.
    void fitIntoRows(AssembledBlock& block) const {
        for (std::size_t i = 0; i < block.cells.size(); ++i) {
            const CellDraft& cell = cellOf(block, i);
            if (block.cells[i].size() != 1 || cell.direction != document::TextDirection::Horizontal)
                continue;
            AssembledBlock& text = block.cells[i].front();
            if (!isGiven(text) || isExact(text) || text.lastTop != text.top)
                continue;
            const double room = cell.box.height() - reachOf(cell.borders.top) - reachOf(cell.borders.bottom);
            if (room >= text.draftParagraph()->firstLine().fontSize &&
                text.bottom - text.top > room + m_context.parameters.tableCells.lineSlack)
                setHeight(text, room);
        }
    }

    void setExact(AssembledBlock& block, double height) {
        if (block.bottom - block.lastTop <= height)
            return;
        m_closedUp.insert(block.paragraph()->style);
        setHeight(block, height);
    }

    void setHeight(AssembledBlock& block, double height) const {
        block.paragraph()->properties.lineSpacing = {document::LineSpacingRule::Exact, 1.0, twipsFromPoints(height)};
        measureLines(block, m_context);
    }

    /// What most paragraphs of a style have belongs to the style.
    void followParagraphs(document::Style& style) {
        Tally<document::LineSpacing> spacings;
        double count = 0;
        for (BlockFlow& flow : m_flows)
            forEachBlock(flow.blocks, flow.kind, [&](AssembledBlock& block, FlowKind) {
                if (!block.draftParagraph() || block.paragraph()->style != style.id)
                    return;
                spacings.add(block.paragraph()->properties.lineSpacing);
                ++count;
            });
        const document::LineSpacing* usual = spacings.heaviest();
        if (usual && 2 * spacings.weightOf(*usual) > count)
            style.paragraph.lineSpacing = *usual;
    }

    /// Styles that have their spacing from another one, and whose lines mostly have no room for it.
    std::set<StyleId> stylesTooHigh() const {
        std::map<StyleId, int> surplus; // lines without room less those with
        for (const GivenSpacing& given : m_given)
            surplus[given.block->paragraph()->style] += isTooHigh(given) ? 1 : -1;
        for (BlockFlow& flow : m_flows)
            forEachBlock(flow.blocks, flow.kind, [&](AssembledBlock& block, FlowKind) {
                if (block.paragraph() && block.hasOwnLineSpacing)
                    surplus.erase(block.paragraph()->style);
            });
        std::set<StyleId> styles;
        for (const auto& [style, count] : surplus)
            if (count > 0)
                styles.insert(style);
        return styles;
    }

    std::vector<BlockFlow>& m_flows;
    const AssemblyContext& m_context;
    std::vector<GivenSpacing> m_given;
    std::set<StyleId> m_closedUp; ///< styles of paragraphs whose lines were
};

} // namespace

void tightenLines(std::vector<BlockFlow>& flows, std::vector<document::Style>& styles, const AssemblyContext& context) {
    LineTightener(flows, context).run(styles);
}

} // namespace orvane::layout
