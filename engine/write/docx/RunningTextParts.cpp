#include "write/docx/RunningTextParts.h"

#include "write/docx/BlockXml.h"
#include "write/docx/DocumentState.h"
#include "write/docx/NotesPart.h"
#include "write/docx/XmlPart.h"

#include <algorithm>

#include <fmt/format.h>

namespace orvane::write::docx {
namespace {

using namespace document;

template<typename Write>
std::string xmlText(const Write& write) {
    std::string text;
    XmlWriter xml([&text](std::string_view piece) { text += piece; });
    write(xml);
    xml.finish();
    return text;
}

const std::vector<Block>* pointerTo(const std::optional<std::vector<Block>>& blocks) {
    return blocks ? &*blocks : nullptr;
}

} // namespace

RunningTextParts::RunningTextParts(const Document& document)
    : m_hasEvenPages(std::any_of(document.sections.begin(), document.sections.end(), [](const Section& section) {
        return section.header.evenPages || section.footer.evenPages;
    })) {}

void RunningTextParts::writeReferences(DocumentState& state, XmlWriter& xml, Relationships& relationships,
                                       const Section& section) {
    const bool hasFirstPage = section.header.firstPage || section.footer.firstPage;
    writeSide(state, xml, relationships, {"header", "w:hdr", "w:headerReference"}, section.header, hasFirstPage);
    writeSide(state, xml, relationships, {"footer", "w:ftr", "w:footerReference"}, section.footer, hasFirstPage);
}

void RunningTextParts::writeSide(DocumentState& state, XmlWriter& xml, Relationships& relationships, const Side& side,
                                 const RunningText& text, bool hasFirstPage) {
    // Where a page has no text of its own kind the standard one stands there too; the format would leave it empty.
    const Blocks* standard = pointerTo(text.standard);
    writeReference(state, xml, relationships, side, "default", standard);
    if (m_hasEvenPages)
        writeReference(state, xml, relationships, side, "even", text.evenPages ? pointerTo(text.evenPages) : standard);
    if (hasFirstPage)
        writeReference(state, xml, relationships, side, "first", text.firstPage ? pointerTo(text.firstPage) : standard);
}

void RunningTextParts::writeReference(DocumentState& state, XmlWriter& xml, Relationships& relationships,
                                      const Side& side, const char* pages, const Blocks* blocks) {
    std::string& current = m_current[{side.reference, pages}];
    // Without a reference the section before would go on: what it has ends with an empty one.
    static const Blocks kNothing;
    if (!blocks && current.empty())
        return;
    const std::string part = partOf(state, side, blocks ? *blocks : kNothing);
    if (part == current)
        return;
    current = part;
    xml.leaf(side.reference, {{"w:type", pages}, {"r:id", relationships.add(side.name, part)}});
}

std::string RunningTextParts::partOf(DocumentState& state, const Side& side, const Blocks& blocks) {
    Relationships relationships;
    const std::string content = xmlText([&](XmlWriter& xml) {
        Story story{state, xml, relationships, StoryKind::RunningText};
        startRoot(xml, side.root);
        writeBlocks(story, blocks);
        writeDisplacedNotes(story);
        xml.end();
    });
    const std::string targets = xmlText([&](XmlWriter& xml) { relationships.write(xml); });
    const auto [found, isNew] = m_names.try_emplace({content, targets});
    if (isNew) {
        found->second = fmt::format("{}{}.xml", side.name, m_names.size());
        XmlPart part("word/" + found->second, side.name);
        part.xml().raw(content);
        part.relationships() = std::move(relationships);
        part.addTo(state.package);
    }
    return found->second;
}

} // namespace orvane::write::docx
