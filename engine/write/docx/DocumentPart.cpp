#include "write/docx/DocumentPart.h"

#include "write/docx/BlockXml.h"
#include "write/docx/CommentsPart.h"
#include "write/docx/FontTablePart.h"
#include "write/docx/NotesPart.h"
#include "write/docx/NumberingPart.h"
#include "write/docx/SectionXml.h"
#include "write/docx/SettingsPart.h"
#include "write/docx/StylesPart.h"
#include "write/docx/XmlPart.h"

namespace orvane::write::docx {
namespace {

using namespace document;

/// A section's properties stand in its last paragraph, those of the last section at the end of the body.
void writeSections(Story& story, const std::vector<Section>& sections) {
    for (std::size_t i = 0; i < sections.size(); ++i) {
        const bool isLast = i + 1 == sections.size();
        writeBlocks(story, sections[i].blocks, {{}, isLast ? nullptr : &sections[i]});
        if (isLast)
            writeSection(story.state, story.xml, story.relationships, sections[i]);
    }
}

} // namespace

void addDocumentPart(DocumentState& state) {
    XmlPart part("word/document.xml", "document.main");
    Story story{state, part.xml(), part.relationships()};
    startRoot(part.xml(), "w:document");
    if (const auto& color = state.document.pageColor)
        part.xml().leaf("w:background", {{"w:color", toHex(*color)}});
    part.xml().start("w:body");
    if (state.document.sections.empty())
        writeSections(story, {Section{}});
    else
        writeSections(story, state.document.sections);
    part.xml().end();
    part.xml().end();

    addNotesParts(state, part.relationships());
    addCommentsPart(state, part.relationships());
    addNumberingPart(state, part.relationships());
    addStylesPart(state, part.relationships());
    addSettingsPart(state, part.relationships());
    // Last: all parts above name fonts.
    addFontTablePart(state, part.relationships());
    part.addTo(state.package);
    state.package.relationships().add("officeDocument", "word/document.xml");
}

} // namespace orvane::write::docx
