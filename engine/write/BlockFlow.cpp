#include "write/BlockFlow.h"

#include "write/ParagraphParts.h"

#include <utility>

namespace orvane::write {
namespace {

using namespace document;

bool isFloat(const Block& block) {
    return std::holds_alternative<Figure>(block.value) || std::holds_alternative<Frame>(block.value);
}

class BlockOrder {
public:
    BlockOrder(const std::vector<Block>& blocks, const BlockFlow& flow, BlockSink& sink)
        : m_blocks(blocks)
        , m_flow(flow)
        , m_sink(sink) {
        m_load.writeLead = flow.writeLead;
        while (m_solidCount > 0 && isFloat(blocks[m_solidCount - 1]))
            --m_solidCount;
    }

    void run() {
        for (std::size_t i = 0; i < m_solidCount; ++i) {
            if (isFloat(m_blocks[i]))
                m_load.floats.push_back(&m_blocks[i]);
            else if (const auto* table = std::get_if<Table>(&m_blocks[i].value))
                give(*table);
            else if (const auto* contents = std::get_if<TableOfContents>(&m_blocks[i].value))
                give(*contents, i + 1 == m_solidCount);
            else
                give(std::get<Paragraph>(m_blocks[i].value), i + 1 == m_solidCount);
        }
        if (!m_isEndGiven)
            m_sink.thinParagraph(takeLastLoad());
    }

private:
    void give(const Table& table) {
        // Tables that touch are one table to a reader, and a table anchors nothing.
        if (m_isAfterTable || !m_load.floats.empty() || m_load.writeLead)
            m_sink.thinParagraph(takeLoad());
        m_sink.table(table);
        m_isAfterTable = true;
    }

    void give(const TableOfContents& contents, bool isLast) {
        for (std::size_t i = 0; i < contents.entries.size(); ++i) {
            const bool isLastEntry = i + 1 == contents.entries.size();
            if (i == 0)
                m_load.writeLead = [&, before = m_load.writeLead] {
                    if (before)
                        before();
                    m_sink.contentsStart(contents);
                };
            if (isLastEntry)
                m_load.writeTail = [this] { m_sink.contentsEnd(); };
            give(contents.entries[i], isLast && isLastEntry);
        }
    }

    void give(const Paragraph& paragraph, bool isLast) {
        if (paragraph.dropCap)
            giveParted(paragraph, isLast);
        else
            m_sink.paragraph(paragraph, isLast ? takeLastLoad() : takeLoad());
        m_isAfterTable = false;
    }

    /// What the paragraph carries is anchored in the part that is no frame, but a mark stands before the letters.
    void giveParted(const Paragraph& paragraph, bool isLast) {
        const DropCapParts parts = partDropCap(paragraph);
        if (parts.breaks)
            m_sink.paragraph(*parts.breaks, {});
        m_sink.paragraph(parts.capital, {{}, nullptr, std::exchange(m_load.writeLead, {}), {}});
        m_sink.paragraph(parts.rest, isLast ? takeLastLoad() : takeLoad());
    }

    ParagraphLoad takeLoad() { return std::exchange(m_load, {}); }

    /// The load of the last paragraph: the section's end, and the floating objects that no paragraph follows.
    ParagraphLoad takeLastLoad() {
        for (std::size_t i = m_solidCount; i < m_blocks.size(); ++i)
            m_load.floats.push_back(&m_blocks[i]);
        m_load.endedSection = m_flow.endedSection;
        m_isEndGiven = true;
        return takeLoad();
    }

    const std::vector<Block>& m_blocks;
    const BlockFlow& m_flow;
    BlockSink& m_sink;
    ParagraphLoad m_load;                       ///< what the next paragraph carries
    std::size_t m_solidCount = m_blocks.size(); ///< blocks up to the last that does not float
    bool m_isAfterTable = false;
    bool m_isEndGiven = false;
};

} // namespace

void flowBlocks(const std::vector<Block>& blocks, const BlockFlow& flow, BlockSink& sink) {
    BlockOrder(blocks, flow, sink).run();
}

} // namespace orvane::write
