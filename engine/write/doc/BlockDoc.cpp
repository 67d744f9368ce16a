#include "write/doc/BlockDoc.h"

#include "write/ParagraphParts.h"
#include "write/doc/FieldDoc.h"
#include "write/doc/ParagraphDoc.h"
#include "write/doc/TableDoc.h"

namespace orvane::write::doc {
namespace {

using namespace document;

class BlockWriter : public BlockSink {
public:
    explicit BlockWriter(Story& story)
        : m_story(story) {}

    void paragraph(const Paragraph& paragraph, const ParagraphLoad& load) override {
        writeParagraph(m_story, paragraph, load);
    }
    void thinParagraph(const ParagraphLoad& load) override {
        writeParagraph(m_story, write::thinParagraph(m_story.state.styles.defaultStyle(), load), load);
    }
    void table(const Table& table) override { writeTable(m_story, table); }
    void contentsStart(const TableOfContents& contents) override {
        startField(m_story, FieldKind::Contents, fieldInstruction(contents));
    }
    void contentsEnd() override { endField(m_story); }

private:
    Story& m_story;
};

} // namespace

void writeBlocks(Story& story, const std::vector<Block>& blocks, const BlockFlow& flow) {
    BlockWriter writer(story);
    flowBlocks(blocks, flow, writer);
}

} // namespace orvane::write::doc
