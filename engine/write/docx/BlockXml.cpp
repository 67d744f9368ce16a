#include "write/docx/BlockXml.h"

#include "write/docx/FieldXml.h"
#include "write/docx/ParagraphXml.h"
#include "write/docx/TableXml.h"

namespace orvane::write::docx {
namespace {

using namespace document;

class BlockWriter : public BlockSink {
public:
    explicit BlockWriter(Story& story)
        : m_story(story)
        , m_look(story.state.styles.defaultStyle().run) {}

    void paragraph(const Paragraph& paragraph, const ParagraphLoad& load) override {
        writeParagraph(m_story, paragraph, load);
    }
    void thinParagraph(const ParagraphLoad& load) override { writeThinParagraph(m_story, load); }
    void table(const Table& table) override { writeTable(m_story, table); }
    void contentsStart(const TableOfContents& contents) override {
        writeFieldStart(m_story.xml, fieldInstruction(contents), m_look, m_look);
    }
    void contentsEnd() override { writeFieldEnd(m_story.xml, m_look, m_look); }

private:
    Story& m_story;
    const RunProperties& m_look; ///< of a table of contents' field
};

} // namespace

void writeBlocks(Story& story, const std::vector<Block>& blocks, const BlockFlow& flow) {
    BlockWriter writer(story);
    flowBlocks(blocks, flow, writer);
}

} // namespace orvane::write::docx
