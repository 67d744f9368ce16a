#include "pdf/FaceLook.h"

#include "pdf/FontName.h"

#include <cmath>

#include <GfxFont.h>

namespace orvane::pdf {
namespace {

constexpr double kBoldSerifStem = 0.105; ///< em; Times has 0.08 and 0.14, Computer Modern 0.066 and 0.114
constexpr double kBoldSansStem = 0.125;  ///< em; Helvetica has 0.084 and 0.14
constexpr double kPlainShare = 0.8;      ///< of these; thinner stems are of no bold face
constexpr double kItalicSlant = 0.09;    ///< a lean of five degrees
constexpr int kBoldWeight = 700;
constexpr int kPlainWeight = 400;

void takeForm(Font& font, const LetterForm& form) {
    const double boldStem = form.hasSerifs ? kBoldSerifStem : kBoldSansStem;
    font.isSerif = form.hasSerifs;
    // Some writers flag every face as bold; the name of a bold one would say so.
    if (font.isBold && !styleFromFontName(font.name).weight && form.stem > 0 && form.stem < kPlainShare * boldStem) {
        font.isBold = false;
        font.weight = kPlainWeight;
    }
    if (!isMadeUpFontName(font.name))
        return;
    if (!font.isBold && form.stem >= boldStem) {
        font.isBold = true;
        font.weight = kBoldWeight;
    }
    font.isItalic = font.isItalic || form.slant >= kItalicSlant;
}

} // namespace

void FaceLook::apply(PageContent& page, const std::vector<std::shared_ptr<GfxFont>>& sources) {
    for (std::size_t i = 0; i < sources.size(); ++i) {
        Font& font = page.fonts[i];
        // Letters of one width stand on feet whether they are of a face with serifs or not.
        if (!font.isEmbedded || font.isType3 || font.isFixedPitch)
            continue;
        if (const auto form = look(*sources[i], font.objectNumber))
            takeForm(font, *form);
    }
}

std::optional<LetterForm> FaceLook::look(GfxFont& source, int objectNumber) {
    if (const auto seen = m_seen.find(objectNumber); objectNumber > 0 && seen != m_seen.end())
        return seen->second;
    std::optional<LetterForm> form;
    if (const auto bytes = source.readEmbFontFile(&m_xref); bytes && !bytes->empty())
        form = letterFormOf(FontProgram(*bytes));
    m_seen[objectNumber] = form;
    return form;
}

} // namespace orvane::pdf
