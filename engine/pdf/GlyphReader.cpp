#include "pdf/GlyphReader.h"

#include "pdf/FontReader.h"
#include "pdf/PageSpace.h"

#include <cmath>
#include <numbers>

#include <GfxFont.h>
#include <GfxState.h>

namespace orvane::pdf {
namespace {

constexpr double kDegrees = 180.0 / std::numbers::pi;

/// How text space lies on the page: unit vectors of the baseline and of what is up, and the sizes along both.
struct TextFrame {
    Point along;        ///< direction of the baseline
    Point up;           ///< at right angles to it, towards the top of the letters
    double size = 0;    ///< of the em at right angles to the baseline, points
    double stretch = 1; ///< of the em along the baseline against `size`
    double slant = 0;   ///< tangent of the letters' lean to the right
};

TextFrame textFrameOf(const GfxState& state, const Matrix& c) {
    const double* t = state.getTextMat();
    const double size = state.getFontSize();
    const Point along{(c.a * t[0] + c.c * t[1]) * size * state.getHorizScaling(),
                      (c.b * t[0] + c.d * t[1]) * size * state.getHorizScaling()};
    const Point up{(c.a * t[2] + c.c * t[3]) * size, (c.b * t[2] + c.d * t[3]) * size};

    TextFrame frame;
    const double length = std::hypot(along.x, along.y);
    const double height = std::hypot(up.x, up.y);
    if (length > 0)
        frame.along = {along.x / length, along.y / length};
    else
        frame.along = {1, 0};
    const double cross = frame.along.x * up.y - frame.along.y * up.x; // negative where up is up: y grows downwards
    frame.up = cross <= 0 ? Point{frame.along.y, -frame.along.x} : Point{-frame.along.y, frame.along.x};
    frame.size = std::abs(cross);
    // A matrix that flattens the letters leaves no height to measure by.
    if (frame.size < height * 1e-3)
        frame.size = std::max(height, length);
    frame.stretch = frame.size > 0 ? length / frame.size : 1;
    frame.slant = frame.size > 0 ? (frame.along.x * up.x + frame.along.y * up.y) / frame.size : 0;
    return frame;
}

double angleOf(Point direction) {
    double angle = std::atan2(direction.y, direction.x) * kDegrees;
    // Writers turn pages by rounded sines; what is a hair off upright is upright.
    const double quarter = std::round(angle / 90) * 90;
    if (std::abs(angle - quarter) < 0.05)
        angle = quarter;
    return angle < 0 ? angle + 360 : angle == 360 ? 0 : angle;
}

Rect boxAround(Point origin, Point alongVector, Point upVector, double from, double to) {
    const Point corners[4] = {
        {origin.x + upVector.x * from, origin.y + upVector.y * from},
        {origin.x + upVector.x * to, origin.y + upVector.y * to},
        {origin.x + alongVector.x + upVector.x * from, origin.y + alongVector.y + upVector.y * from},
        {origin.x + alongVector.x + upVector.x * to, origin.y + alongVector.y + upVector.y * to}};
    Rect box{corners[0].x, corners[0].y, corners[0].x, corners[0].y};
    for (const Point& p : corners)
        box = {std::min(box.left, p.x), std::min(box.top, p.y), std::max(box.right, p.x), std::max(box.bottom, p.y)};
    return box;
}

constexpr double kDotReach = 0.2;     ///< ems above the baseline; of dots of leaders and underscores
constexpr double kLetterReach = 0.78; ///< likewise; of letters without accents

/// How far above the baseline the ink of a character can reach, in ems: the rest of its box is empty.
double reachAboveBaseline(const std::u32string& text, double ascent) {
    constexpr std::u32string_view kMarksOnBaseline = U".,_\u2024\u2025\u2026";
    if (text.empty())
        return ascent;
    if (text.find_first_not_of(kMarksOnBaseline) == std::u32string::npos)
        return std::min(kDotReach, ascent);
    const bool isPlain = std::all_of(text.begin(), text.end(), [](char32_t c) { return c < 0x80; });
    return isPlain ? std::min(kLetterReach, ascent) : ascent;
}

/// Displacement on the page without character and word spacing. Source: ISO 32000-1, 9.4.4.
Point ownAdvance(const GfxState& state, const ShownCharacter& character, bool isVertical) {
    double spacing = state.getCharSpace();
    if (character.byteCount == 1 && character.code == ' ')
        spacing += state.getWordSpace();
    double spacingX = 0;
    double spacingY = 0;
    if (isVertical)
        state.textTransformDelta(0, spacing, &spacingX, &spacingY);
    else
        state.textTransformDelta(spacing * state.getHorizScaling(), 0, &spacingX, &spacingY);
    const Matrix& m = character.toPage;
    const double dx = character.dx - spacingX;
    const double dy = character.dy - spacingY;
    return {m.a * dx + m.c * dy, m.b * dx + m.d * dy};
}

constexpr double kLeastSeen = 0.01; ///< opacity below which nothing is seen

/// Fill and stroke as the text rendering mode tells. Source: ISO 32000-1, 9.3.6.
void setPaint(Glyph& glyph, const GfxState& state) {
    const int mode = state.getRender() & 3;
    GfxRGB fill;
    GfxRGB stroke;
    state.getFillRGB(&fill);
    state.getStrokeRGB(&stroke);
    glyph.isOutlined = mode == 1;
    glyph.isFakeBold = mode == 2 && fill == stroke;
    const double opacity = glyph.isOutlined ? state.getStrokeOpacity() : state.getFillOpacity();
    glyph.color = onWhite(toColor(glyph.isOutlined ? stroke : fill), opacity);
    if (mode == 2 && !glyph.isFakeBold && state.getStrokeOpacity() >= kLeastSeen)
        glyph.edge = onWhite(toColor(stroke), state.getStrokeOpacity());
    if (mode == 3 || opacity < kLeastSeen)
        glyph.visibility = Visibility::Invisible;
}

} // namespace

// Letters outside these sizes (points) are a slip of the writer's: no page is as large, no eye as sharp.
constexpr double kLeastSize = 0.01;
constexpr double kGreatestSize = 20000;

std::uint32_t GlyphReader::fontIndex(const std::shared_ptr<GfxFont>& font, bool isSlanted) {
    const FontKey key{font.get(), isSlanted};
    const auto [entry, isNew] = m_fontIndices.try_emplace(key, static_cast<std::uint32_t>(m_page.fonts.size()));
    if (isNew) {
        m_sources.push_back(font);
        Font facts = readFont(*font, m_xref);
        facts.isItalic |= isSlanted;
        m_page.fonts.push_back(std::move(facts));
        m_ems.push_back(emOf(*font));
        m_hasSpaceWidth.push_back(false);
    }
    return entry->second;
}

void GlyphReader::noteSpaceWidth(const Glyph& glyph) {
    if (m_hasSpaceWidth[glyph.font] || glyph.unicode != U" " || glyph.fontSize <= 0 || glyph.horizontalScale <= 0)
        return;
    const double width = glyph.advance / (glyph.fontSize * glyph.horizontalScale);
    // Some writers make blanks of no width and place words by hand.
    if (width < 0.05 || width > 1.5)
        return;
    m_page.fonts[glyph.font].spaceWidth = width;
    m_hasSpaceWidth[glyph.font] = true;
}

double GlyphReader::reachInLine(const Glyph& glyph, double ascent) const {
    constexpr double kSameBaseline = 0.1;
    const bool goesOn =
        !m_page.glyphs.empty() && std::abs(m_page.glyphs.back().origin.y - glyph.origin.y) <= kSameBaseline;
    if (goesOn && m_page.glyphs.back().visibility == Visibility::Visible)
        return ascent;
    const double reach = reachAboveBaseline(glyph.unicode, ascent);
    return goesOn && m_page.glyphs.back().visibility == Visibility::ClippedAway ? std::min(kLetterReach, reach) : reach;
}

void GlyphReader::read(const GfxState& state, const ShownCharacter& character, std::int32_t mark,
                       std::uint32_t paintOrder) {
    const std::shared_ptr<GfxFont>& font = state.getFont();
    if (!font)
        return;
    // Tangent of a lean that makes a slanted face of an upright one; writers use 12 to 20 degrees.
    constexpr double kLeastSlant = 0.1;
    TextFrame frame = textFrameOf(state, character.toPage);
    const bool isSlanted = frame.slant > kLeastSlant;
    if (!m_isFontKnown || isSlanted != m_wasSlanted) {
        m_font = fontIndex(font, isSlanted);
        m_isFontKnown = true;
        m_wasSlanted = isSlanted;
    }
    frame.size *= m_ems[m_font];
    if (!(frame.size > kLeastSize && frame.size < kGreatestSize))
        return;
    const Font& facts = m_page.fonts[m_font];

    Glyph glyph;
    glyph.font = m_font;
    glyph.charCode = character.code;
    glyph.mark = mark;
    glyph.paintOrder = paintOrder;
    glyph.unicode.assign(character.unicode, character.unicode + character.unicodeLength);
    glyph.fontSize = frame.size;
    glyph.horizontalScale = frame.stretch;
    glyph.angle = angleOf(frame.along);
    glyph.origin = character.toPage.apply({character.x, character.y});
    const Point advance = ownAdvance(state, character, facts.isVertical);
    glyph.advance = std::hypot(advance.x, advance.y);
    Rect inked; // what of the box can bear ink
    if (facts.isVertical) {
        const Point half{frame.along.x * frame.size / 2, frame.along.y * frame.size / 2};
        inked = glyph.box =
            boxAround({glyph.origin.x - half.x, glyph.origin.y - half.y}, {half.x * 2, half.y * 2}, advance, 0, 1);
    } else {
        const auto boxUpTo = [&](double reach) {
            return boxAround(glyph.origin, advance, frame.up, -facts.descent * frame.size, reach * frame.size);
        };
        glyph.box = boxUpTo(facts.ascent);
        inked = boxUpTo(reachInLine(glyph, facts.ascent));
    }
    if (!std::isfinite(glyph.box.left + glyph.box.right + glyph.box.top + glyph.box.bottom))
        return;
    glyph.visibility = visibilityOf(inked, clipBox(state), m_page);
    setPaint(glyph, state);
    noteSpaceWidth(glyph);
    m_page.glyphs.push_back(std::move(glyph));
}

} // namespace orvane::pdf
