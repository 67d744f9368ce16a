#include "write/docx/BlockXml.h"

#include "write/docx/FieldXml.h"
#include "write/docx/ParagraphXml.h"
#include "write/docx/TableXml.h"

#include <utility>

namespace orvane::write::docx {
namespace {

using namespace document;

bool isFloat(const Block& block) {
    return std::holds_alternative<Figure>(block.value) || std::holds_alternative<Frame>(block.value);
}

class BlockWriter {
public:
    BlockWriter(Story& story, const std::vector<Block>& blocks, const BlockFlow& flow)
        : m_story(story)
        , m_blocks(blocks)
        , m_flow(flow) {
        m_load.writeLead = flow.writeLead;
        while (m_solidCount > 0 && isFloat(blocks[m_solidCount - 1]))
            --m_solidCount;
    }

    void write() {
        for (std::size_t i = 0; i < m_solidCount; ++i) {
            if (isFloat(m_blocks[i]))
                m_load.floats.push_back(&m_blocks[i]);
            else if (const auto* table = std::get_if<Table>(&m_blocks[i].value))
                writeOne(*table);
            else if (const auto* contents = std::get_if<TableOfContents>(&m_blocks[i].value))
                writeOne(*contents, i + 1 == m_solidCount);
            else
                writeOne(std::get<Paragraph>(m_blocks[i].value), i + 1 == m_solidCount);
        }
        if (!m_isEndWritten)
            writeThinParagraph(m_story, takeLastLoad());
    }

private:
    void writeOne(const Table& table) {
        // Tables that touch are one table to a reader, and a table anchors nothing.
        if (m_isAfterTable || !m_load.floats.empty() || m_load.writeLead)
            writeThinParagraph(m_story, takeLoad());
        writeTable(m_story, table);
        m_isAfterTable = true;
    }

    /// A field that begins in the first entry and ends in the last.
    void writeOne(const TableOfContents& contents, bool isLast) {
        const RunProperties& look = m_story.state.styles.defaultStyle().run;
        for (std::size_t i = 0; i < contents.entries.size(); ++i) {
            const bool isLastEntry = i + 1 == contents.entries.size();
            if (i == 0)
                m_load.writeLead = [&, before = m_load.writeLead] {
                    if (before)
                        before();
                    writeFieldStart(m_story.xml, fieldInstruction(contents), look, look);
                };
            if (isLastEntry)
                m_load.writeTail = [&] { writeFieldEnd(m_story.xml, look, look); };
            writeOne(contents.entries[i], isLast && isLastEntry);
        }
    }

    void writeOne(const Paragraph& paragraph, bool isLast) {
        writeParagraph(m_story, paragraph, isLast ? takeLastLoad() : takeLoad());
        m_isAfterTable = false;
    }

    ParagraphLoad takeLoad() { return std::exchange(m_load, {}); }

    /// The load of the last paragraph: the section's end, and the floating objects that no paragraph follows.
    ParagraphLoad takeLastLoad() {
        for (std::size_t i = m_solidCount; i < m_blocks.size(); ++i)
            m_load.floats.push_back(&m_blocks[i]);
        m_load.endedSection = m_flow.endedSection;
        m_isEndWritten = true;
        return takeLoad();
    }

    Story& m_story;
    const std::vector<Block>& m_blocks;
    const BlockFlow& m_flow;
    ParagraphLoad m_load;                       ///< what the next paragraph carries
    std::size_t m_solidCount = m_blocks.size(); ///< blocks up to the last that does not float
    bool m_isAfterTable = false;
    bool m_isEndWritten = false;
};

} // namespace

void writeBlocks(Story& story, const std::vector<Block>& blocks, const BlockFlow& flow) {
    BlockWriter(story, blocks, flow).write();
}

} // namespace orvane::write::docx
