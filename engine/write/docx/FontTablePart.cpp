#include "write/docx/FontTablePart.h"

#include "write/docx/XmlPart.h"

#include <algorithm>

namespace orvane::write::docx {
namespace {

struct FontFamily {
    const char* family;
    const char* pitch;
};

bool nameHasOneOf(const std::string& name, std::initializer_list<std::string_view> words) {
    return std::any_of(words.begin(), words.end(),
                       [&](std::string_view word) { return name.find(word) != std::string::npos; });
}

/// What kind of letters a font has, judged by its name.
FontFamily familyOf(const std::string& name) {
    if (nameHasOneOf(name, {"Courier", "Mono", "Consolas", "Typewriter"}))
        return {"modern", "fixed"};
    if (nameHasOneOf(name, {"Sans"}))
        return {"swiss", "variable"};
    if (nameHasOneOf(name, {"Times", "Serif", "Roman", "Georgia", "Garamond", "Cambria", "Caladea", "Palatino",
                            "Bookman", "Century", "Minion", "Song", "Ming", "Mincho", "Batang"}))
        return {"roman", "variable"};
    if (nameHasOneOf(name, {"Script", "Hand", "Brush", "Chancery"}))
        return {"script", "variable"};
    if (nameHasOneOf(name, {"Arial", "Helvetica", "Calibri", "Carlito", "Verdana", "Tahoma", "Segoe", "Gothic"}))
        return {"swiss", "variable"};
    return {"auto", "variable"};
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
        const FontFamily family = familyOf(name);
        part.xml().leaf("w:family", {{"w:val", family.family}});
        part.xml().leaf("w:pitch", {{"w:val", family.pitch}});
    }
    part.xml().end();
    part.addTo(state.package);
    relationships.add("fontTable", "fontTable.xml");
}

} // namespace orvane::write::docx
