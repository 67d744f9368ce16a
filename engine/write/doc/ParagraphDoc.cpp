#include "write/doc/ParagraphDoc.h"

#include "write/ListLevels.h"
#include "write/ParagraphParts.h"
#include "write/doc/FloatDoc.h"
#include "write/doc/InlineDoc.h"
#include "write/doc/ParagraphPropertiesDoc.h"
#include "write/doc/RunDoc.h"

#include <algorithm>
#include <span>

namespace orvane::write::doc {
namespace {

using namespace document;

void addTablePlace(PropertyList& list, int depth) {
    if (depth > 0)
        list.add(sprm::kPFInTable, 1).add(sprm::kPItap, depth);
}

/// Source: [MS-DOC] 2.9.192 (PositionCodeOperand), 2.9.57 (DCS), 2.6.2 (sprmPWr).
void addDropCap(PropertyList& list, const DropCap& dropCap) {
    constexpr int kAtText = 2 << 4, kAtColumn = 0 << 6, kAtPage = 2 << 6, kAround = 2;
    constexpr int kDropped = 1, kInMargin = 2;
    const bool isInMargin = dropCap.kind == DropCapKind::InMargin;
    const int lines = std::clamp(dropCap.lines, 1, kMostDropCapLines);
    list.add(sprm::kPPc, kAtText | (isInMargin ? kAtPage : kAtColumn));
    list.add(sprm::kPWr, kAround);
    list.add(sprm::kPDxaFromText, dropCap.distance.value);
    list.add(sprm::kPDcs, (isInMargin ? kInMargin : kDropped) | lines << 3);
}

std::string propertiesOf(const Story& story, const Paragraph& paragraph, const Style& style) {
    const ListLevel level = findLevel(story.state.document, paragraph.list);
    PropertyList list;
    addTablePlace(list, story.tableDepth);
    if (level.properties)
        list.add(sprm::kPIlvl, level.place.level).add(sprm::kPIlfo, level.place.id);
    if (paragraph.dropCap)
        addDropCap(list, *paragraph.dropCap);
    addParagraphProperties(list, paragraph.properties, inheritedProperties(style, level));
    return Bytes().u16(story.state.styleNumbers.numberOf(style)).raw(list.bytes()).str();
}

std::string markOf(Story& story, const Paragraph& paragraph, const Style& style) {
    PropertyList list;
    addRunProperties(list, story.state.fonts, paragraph.markProperties, style.run);
    return list.bytes();
}

} // namespace

void writeParagraph(Story& story, const Paragraph& paragraph, const ParagraphLoad& load) {
    endParagraph(story, ParagraphEnd::Paragraph);
    for (const Block* block : load.floats)
        if (!floatsInFile(story, *block))
            writeFloat(story, *block);
    endParagraph(story, ParagraphEnd::Paragraph);
    const Style& style = story.state.styles.at(paragraph.style);
    const std::span<const Inline> inlines = paragraph.inlines;
    const std::size_t breaks = leadingBreaks(paragraph);
    // What is anchored before a break stays on the page before it.
    writeInlines(story, inlines.first(breaks), style.run);
    for (const Block* block : load.floats)
        if (floatsInFile(story, *block))
            writeAnchor(story, *block);
    if (load.writeLead)
        load.writeLead();
    writeInlines(story, inlines.subspan(breaks), style.run);
    if (load.writeTail)
        load.writeTail();
    story.open = OpenParagraph{propertiesOf(story, paragraph, style), markOf(story, paragraph, style)};
}

void endParagraph(Story& story, ParagraphEnd end) {
    if (!story.open)
        return;
    OpenParagraph open = std::move(*story.open);
    story.open.reset();
    char16_t mark = character::kParagraphEnd;
    if (end == ParagraphEnd::Section)
        mark = character::kPageBreak;
    if (end == ParagraphEnd::Cell && story.tableDepth == 1)
        mark = character::kCellEnd;
    if (end == ParagraphEnd::Cell && story.tableDepth > 1)
        open.properties += PropertyList().add(sprm::kPFInnerTableCell, 1).bytes();
    story.text.endParagraph(mark, open.mark, std::move(open.properties));
}

void writeRowEnd(Story& story, const std::string& rowProperties) {
    PropertyList list;
    addTablePlace(list, story.tableDepth);
    if (story.tableDepth == 1)
        list.add(sprm::kPFTtp, 1);
    else
        list.add(sprm::kPFInnerTableCell, 1).add(sprm::kPFInnerTtp, 1);
    const char16_t mark = story.tableDepth == 1 ? character::kCellEnd : character::kParagraphEnd;
    story.text.endParagraph(mark, {}, Bytes().u16(0).raw(list.bytes()).raw(rowProperties).str());
}

} // namespace orvane::write::doc
