#include "write/docx/FontTablePart.h"

#include "write/FontKinds.h"
#include "write/docx/EmbeddedFontParts.h"
#include "write/docx/XmlPart.h"

namespace orvane::write::docx {
namespace {

const char* nameOf(FontKind kind) {
    switch (kind) {
    case FontKind::Unknown:
        return "auto";
    case FontKind::Roman:
        return "roman";
    case FontKind::Swiss:
        return "swiss";
    case FontKind::Modern:
        return "modern";
    case FontKind::Script:
        return "script";
    }
    return "auto";
}

} // namespace

void collectFonts(DocumentState& state, const document::RunProperties& properties) {
    for (const std::string* name :
         {&properties.fontFamily, &properties.eastAsianFontFamily, &properties.complexFontFamily})
        if (!name->empty() && !state.fontFamilies.contains(*name))
            state.fontFamilies.insert(*name);
}

void addFontTablePart(DocumentState& state, Relationships& relationships) {
    XmlPart part("word/fontTable.xml", "fontTable");
    startRoot(part.xml(), "w:fonts");
    for (const std::string& name : state.fontFamilies) {
        const XmlElement font(part.xml(), "w:font", {{"w:name", name}});
        const FontKind kind = fontKindOf(name);
        if (isSymbolFont(name))
            part.xml().leaf("w:charset", {{"w:val", "02"}});
        part.xml().leaf("w:family", {{"w:val", nameOf(kind)}});
        part.xml().leaf("w:pitch", {{"w:val", kind == FontKind::Modern ? "fixed" : "variable"}});
        embedFonts(state.document, name, part.xml(), part.relationships(), state.package);
    }
    part.xml().end();
    part.addTo(state.package);
    relationships.add("fontTable", "fontTable.xml");
}

} // namespace orvane::write::docx
