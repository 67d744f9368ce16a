#include "layout/assembly/LineTightener.h"

#include "layout/assembly/BlockPlace.h"

#include <map>
#include <set>

namespace orvane::layout {
namespace {

using document::StyleId;

/// A paragraph whose line spacing was given to it, and how far down its line may reach.
struct GivenSpacing {
    AssembledBlock* block = nullptr;
    double floor = 0;
};

bool isGiven(const AssembledBlock& block) {
    return block.draftParagraph() && !block.hasOwnLineSpacing;
}

class LineTightener {
public:
    LineTightener(std::vector<BlockFlow>& flows, const AssemblyContext& context)
        : m_flows(flows)
        , m_context(context) {
        for (BlockFlow& flow : flows) {
            readPairs(flow.blocks);
            readCells(flow.blocks);
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
    }

private:
    void readPairs(std::vector<AssembledBlock>& blocks) {
        forEachPair(blocks, [this](AssembledBlock& upper, AssembledBlock& lower) {
            if (isGiven(upper))
                m_given.push_back({&upper, lower.top});
        });
    }

    /// The last lines of cells reach down to the cells' ends.
    void readCells(std::vector<AssembledBlock>& blocks) {
        for (AssembledBlock& block : blocks) {
            for (std::size_t i = 0; i < block.cells.size(); ++i) {
                std::vector<AssembledBlock>& inside = block.cells[i];
                readCells(inside);
                const CellDraft& cell = std::get<DraftTable>(block.draft->value).cells[i].cell;
                const bool isUpright = cell.direction == document::TextDirection::Horizontal;
                if (!inside.empty() && isUpright && isGiven(inside.back()) &&
                    inside.back().lastPage == inside.front().draft->page)
                    m_given.push_back({&inside.back(), cell.box.bottom});
            }
        }
    }

    bool isTooHigh(const GivenSpacing& given) const {
        return given.block->bottom > given.floor + m_context.parameters.spacing.sameGap;
    }

    void setSingle(AssembledBlock& block) const {
        block.paragraph()->properties.lineSpacing = {};
        measureLines(block, m_context);
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
};

} // namespace

void tightenLines(std::vector<BlockFlow>& flows, std::vector<document::Style>& styles, const AssemblyContext& context) {
    LineTightener(flows, context).run(styles);
}

} // namespace orvane::layout
