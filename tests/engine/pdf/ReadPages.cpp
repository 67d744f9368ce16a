#include "ReadPages.h"

#include "pdf/TextString.h"

namespace orvane::pdf {

std::string textOf(const PageContent& page) {
    std::string text;
    for (const Glyph& glyph : page.glyphs)
        text += toUtf8(glyph.unicode);
    return text;
}

std::string visibleTextOf(const PageContent& page) {
    std::string text;
    for (const Glyph& glyph : page.glyphs)
        if (glyph.visibility == Visibility::Visible)
            text += toUtf8(glyph.unicode);
    return text;
}

} // namespace orvane::pdf
