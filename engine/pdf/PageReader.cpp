#include "pdf/PageReader.h"

#include "pdf/PageSpace.h"

#include <GfxFont.h>
#include <GfxState.h>
#include <Object.h>
#include <PDFDoc.h>

namespace orvane::pdf {
namespace {

Rect boxOnPage(const GfxState& state, const double* box) {
    return currentMatrix(state).applyToBox({box[0], box[1], box[2], box[3]});
}

} // namespace

PageReader::PageReader(const PageReading& reading)
    : m_reading(reading)
    , m_marks(reading.page.marks)
    , m_glyphs(reading.page, *reading.document.getXRef())
    , m_paths(reading.page)
    , m_pictures(reading.page, reading.pictures, reading.diagnostics)
    , m_textClip(reading.page)
    , m_transparency(reading.page) {}

void PageReader::saveState(GfxState*) {
    m_paths.saveState();
    m_textClip.saveState();
    m_transparency.saveState();
}

void PageReader::restoreState(GfxState*) {
    m_paths.restoreState();
    m_textClip.restoreState();
    m_transparency.restoreState();
    m_glyphs.forgetFont();
}

void PageReader::beginString(GfxState* state, const GooString*) {
    m_stringMatrix = currentMatrix(*state);
}

void PageReader::drawChar(GfxState* state, double x, double y, double dx, double dy, double, double, CharCode code,
                          int byteCount, const Unicode* unicode, int unicodeLength) {
    const std::size_t before = m_reading.page.glyphs.size();
    m_glyphs.read(*state, {x, y, dx, dy, code, byteCount, unicode, unicodeLength, m_stringMatrix}, m_marks.current(),
                  m_paintOrder++);
    const bool clips = (state->getRender() & 4) != 0;
    if (clips && m_reading.page.glyphs.size() > before)
        m_textClip.addLastGlyph();
}

bool PageReader::beginType3Char(GfxState* state, double x, double y, double, double, CharCode code,
                                const Unicode* unicode, int unicodeLength) {
    // A glyph that says nothing and is larger than letters are is a drawing: it is painted by its procedure.
    constexpr double kLargestLetter = 36;
    const Rect onPage = boxOnPage(*state, state->getFont()->getFontBBox());
    if (unicodeLength == 0 && onPage.height() > kLargestLetter && onPage.width() > kLargestLetter)
        return false;
    // The displacement that comes with the call is in the glyph's own space; the one that drawChar() gets is made here.
    const auto& font = static_cast<const Gfx8BitFont&>(*state->getFont());
    const double spacing = state->getCharSpace() + (code == ' ' ? state->getWordSpace() : 0);
    const double width = font.getWidth(static_cast<unsigned char>(code)) * state->getFontSize() + spacing;
    double dx = 0;
    double dy = 0;
    state->textTransformDelta(width * state->getHorizScaling(), 0, &dx, &dy);
    drawChar(state, x, y, dx, dy, 0, 0, code, 1, unicode, unicodeLength);
    return true;
}

void PageReader::stroke(GfxState* state) {
    if (m_textClip.isActive()) {
        m_textClip.paint();
        return;
    }
    m_paths.stroke(*state, m_marks.current(), m_paintOrder++);
    m_transparency.coverLastPath();
}

void PageReader::fill(GfxState& state, FillRule rule) {
    if (m_textClip.isActive()) {
        GfxRGB color;
        state.getFillRGB(&color);
        m_textClip.paint(toColor(color));
        return;
    }
    m_paths.fill(state, rule, m_marks.current(), m_paintOrder++);
    m_transparency.coverLastPath();
}

void PageReader::beginTransparencyGroup(GfxState*, const double*, GfxColorSpace*, bool, bool, bool isForSoftMask) {
    m_transparency.beginGroup(isForSoftMask ? TransparencyReader::GroupKind::SoftMask
                                            : TransparencyReader::GroupKind::Painted);
}

void PageReader::paintTransparencyGroup(GfxState* state, const double*) {
    m_transparency.paintGroup(state->getFillOpacity());
}

void PageReader::setSoftMask(GfxState* state, const double* box, bool useAlpha, Function*, GfxColor*) {
    m_transparency.setMask(useAlpha ? TransparencyReader::MaskKind::Alpha : TransparencyReader::MaskKind::Luminosity,
                           boxOnPage(*state, box));
}

} // namespace orvane::pdf
