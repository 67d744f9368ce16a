#include "layout/text/ClusterBuilder.h"

#include "layout/text/ActualText.h"
#include "layout/text/Characters.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace orvane::layout {
namespace {

constexpr char32_t kUnknownCharacter = 0xFFFD;

const pdf::Font& fontOf(const pdf::PageContent& page, const pdf::Glyph& glyph) {
    static const pdf::Font kNone;
    return glyph.font < page.fonts.size() ? page.fonts[glyph.font] : kNone;
}

double roundedTo(double value, double step) {
    return std::round(value / step) * step;
}

Look lookOf(const pdf::Font& font, const pdf::Glyph& glyph, const SelectedGlyph& selected,
            const TextParameters::Clusters& limits) {
    Look look;
    look.font = glyph.font;
    look.size = roundedTo(glyph.fontSize, limits.sizeStep);
    // Hidden text has whatever colour came to hand.
    look.color = selected.sight == GlyphSight::Recognised ? kBlack : selected.edge.value_or(glyph.color);
    look.isBold = font.isBold || font.weight >= limits.boldWeight || selected.isBold;
    look.isItalic = font.isItalic;
    look.isOutlined = glyph.isOutlined || selected.edge;
    look.isInvisible = selected.sight == GlyphSight::Recognised;
    look.isClippedAway = selected.sight == GlyphSight::ClippedAway;
    look.horizontalScale = roundedTo(glyph.horizontalScale, limits.scaleStep);
    return look;
}

/// The line on which a glyph is seen to stand. Fonts of large signs hang sums and brackets below their origin; they
/// stand about the axis of their line all the same.
double seenBaseline(const pdf::Glyph& glyph, const TextParameters::Clusters& limits) {
    const bool hangs = !glyph.ink.isEmpty() && glyph.ink.top > glyph.origin.y - limits.hangingRise * glyph.fontSize &&
                       glyph.ink.bottom > glyph.origin.y + limits.hangingDepth * glyph.fontSize;
    return hangs ? glyph.ink.centerY() + limits.axisHeight * glyph.fontSize : glyph.origin.y;
}

/// Where a glyph stands in its frame. In vertical writing the line's middle takes the place of the baseline.
void placeCluster(Cluster& cluster, const TextFrame& frame, const pdf::Font& font, const pdf::Glyph& glyph,
                  const TextParameters::Clusters& limits) {
    if (frame.isVertical) {
        const Rect box = frame.boxFromPage(glyph.box);
        cluster.start = box.left;
        cluster.end = box.right;
        cluster.baseline = (box.top + box.bottom) / 2;
        cluster.ascent = cluster.descent = glyph.fontSize / 2;
    } else {
        const TextFrame::Position position = frame.fromPage({glyph.origin.x, seenBaseline(glyph, limits)});
        cluster.start = position.along;
        cluster.end = position.along + glyph.advance;
        cluster.baseline = position.across;
        cluster.ascent = font.ascent * glyph.fontSize;
        cluster.descent = font.descent * glyph.fontSize;
    }
    cluster.size = glyph.fontSize;
    cluster.spaceWidth = font.spaceWidth * glyph.fontSize * glyph.horizontalScale;
}

std::u32string textOf(const pdf::Glyph& glyph) {
    return glyph.unicode.empty() ? std::u32string{kUnknownCharacter} : normalizeGlyphText(glyph.unicode);
}

Cluster makeCluster(const pdf::PageContent& page, const SelectedGlyph& selected, std::uint32_t frameIndex,
                    const TextFrame& frame, const TextParameters::Clusters& limits) {
    const pdf::Glyph& glyph = page.glyphs[selected.index];
    const pdf::Font& font = fontOf(page, glyph);
    Cluster cluster;
    cluster.text = textOf(glyph);
    cluster.frame = frameIndex;
    cluster.glyph = selected.index;
    cluster.mark = glyph.mark;
    cluster.look = lookOf(font, glyph, selected, limits);
    placeCluster(cluster, frame, font, glyph, limits);
    return cluster;
}

bool isMarkOnly(const std::u32string& text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char32_t c) { return isCombiningMark(c); });
}

/// How far inside `base` the mark stands, in points; negative outside it.
double depthInside(const Cluster& base, const Cluster& mark) {
    const double position = mark.width() > 0.1 * mark.size ? mark.center() : mark.start;
    return std::min(position - base.start, base.end - position);
}

bool canCarry(const Cluster& base, const Cluster& mark, const TextParameters::Clusters& limits) {
    return base.frame == mark.frame && !base.text.empty() && !isBlank(base.text) && !isMarkOnly(base.text) &&
           std::abs(base.baseline - mark.baseline) <= limits.markRise * base.size &&
           depthInside(base, mark) >= -limits.markReach * base.size;
}

/// Joins marks to the letter before or after them in paint order, whichever they stand on.
class MarkJoiner {
public:
    MarkJoiner(std::vector<Cluster>& clusters, const TextParameters::Clusters& limits)
        : m_clusters(clusters)
        , m_limits(limits) {}

    void join() {
        for (std::size_t i = 0; i < m_clusters.size(); ++i) {
            const Cluster& cluster = m_clusters[i];
            if (isMarkOnly(cluster.text))
                joinMark(i);
            else if (cluster.text.size() == 1 && combiningAccent(cluster.text.front()) != 0)
                joinAccent(i);
        }
        std::erase_if(m_clusters, [](const Cluster& cluster) { return cluster.text.empty(); });
    }

private:
    /// The nearest cluster in paint order that still has a text; null at the ends.
    Cluster* before(std::size_t i) {
        for (std::size_t steps = 1; steps <= m_limits.mostMarks && steps <= i; ++steps)
            if (!m_clusters[i - steps].text.empty())
                return &m_clusters[i - steps];
        return nullptr;
    }
    /// The nearest one that is no mark itself.
    Cluster* after(std::size_t i) {
        for (std::size_t steps = 1; steps <= m_limits.mostMarks && i + steps < m_clusters.size(); ++steps)
            if (!isMarkOnly(m_clusters[i + steps].text))
                return &m_clusters[i + steps];
        return nullptr;
    }

    void joinMark(std::size_t i) {
        Cluster& mark = m_clusters[i];
        Cluster* left = before(i);
        Cluster* right = after(i);
        if (left && !canCarry(*left, mark, m_limits))
            left = nullptr;
        if (right && !canCarry(*right, mark, m_limits))
            right = nullptr;
        // Right-to-left text is painted from its end, so that a mark comes before its letter.
        if (left && right && isRightToLeftLetter(right->text.front()))
            left = nullptr;
        if (left && right) {
            const bool isDeeperRight =
                depthInside(*right, mark) > depthInside(*left, mark) + m_limits.markTie * mark.size;
            (isDeeperRight ? left : right) = nullptr;
        }
        Cluster* base = left ? left : right;
        if (!base)
            return;
        for (const char32_t c : mark.text)
            base->text = compose(base->text, c);
        mark.text.clear();
    }

    /// A spacing accent painted over a letter, the way some typesetters make accented letters.
    void joinAccent(std::size_t i) {
        Cluster& accent = m_clusters[i];
        for (Cluster* base : {after(i), before(i)}) {
            if (!base || base->text.size() != 1 || !isLetter(base->text.front()) || base->frame != accent.frame ||
                std::abs(base->baseline - accent.baseline) > m_limits.markRise * base->size)
                continue;
            const double shared = overlap(base->start, base->end, accent.start, accent.end);
            if (shared < m_limits.accentOverlap * std::min(base->width(), accent.width()))
                continue;
            // A dotless i with an accent is the accented i.
            const char32_t letter = base->text.front() == 0x131   ? U'i'
                                    : base->text.front() == 0x237 ? U'j'
                                                                  : base->text.front();
            const std::u32string composed = compose(std::u32string{letter}, combiningAccent(accent.text.front()));
            if (composed.size() != 1)
                continue;
            base->text = composed;
            accent.text.clear();
            return;
        }
    }

    std::vector<Cluster>& m_clusters;
    const TextParameters::Clusters& m_limits;
};

/// A glyph that the file does not tell the character of, or only by an encoding of signs.
bool isUnknown(const Cluster& cluster, const pdf::PageContent& page) {
    if (cluster.text.size() != 1)
        return false;
    const char32_t character = cluster.text.front();
    return character == kUnknownCharacter ||
           (page.glyphs[cluster.glyph].isUnicodeGuessed && !isLetter(character) && !isDigit(character));
}

/// The same sign, painted over the end of the one before: no text does that.
bool overlapsItsTwin(const Cluster& sign, const Cluster& twin, const TextParameters::Clusters& limits) {
    return sign.text == twin.text && sign.frame == twin.frame && !isLetter(sign.text.front()) &&
           !isDigit(sign.text.front()) && !isBlank(sign.text) &&
           overlap(sign.start, sign.end, twin.start, twin.end) > limits.touch * sign.size;
}

/// Unknown or overlapping signs between Arabic letters that touch them are the strokes by which a line was stretched:
/// they say nothing.
void dropStretching(std::vector<Cluster>& clusters, const pdf::PageContent& page,
                    const TextParameters::Clusters& limits) {
    // Of two strokes at nearly one place the later was left out as the earlier one's repetition, so a little is
    // missing.
    const double reach = 2 * limits.touch;
    const auto isJoined = [&](const Cluster& left, const Cluster& right) {
        return left.frame == right.frame && std::abs(left.baseline - right.baseline) <= limits.touch * left.size &&
               std::max(right.start - left.end, left.start - right.end) <= reach * left.size;
    };
    const auto isStroke = [&](std::size_t i) {
        return isUnknown(clusters[i], page) || overlapsItsTwin(clusters[i], clusters[i - 1], limits) ||
               (i + 1 < clusters.size() && overlapsItsTwin(clusters[i], clusters[i + 1], limits));
    };
    for (std::size_t i = 1; i + 1 < clusters.size(); ++i) {
        std::size_t last = i;
        while (last < clusters.size() && isStroke(last) && isJoined(clusters[last - 1], clusters[last]))
            ++last;
        if (last == i)
            continue;
        if (last < clusters.size() && isRightToLeftLetter(clusters[i - 1].text.front()) &&
            isRightToLeftLetter(clusters[last].text.front()) && isJoined(clusters[last - 1], clusters[last])) {
            clusters[i - 1].start = std::min(clusters[i - 1].start, clusters[last - 1].start);
            clusters[i - 1].end = std::max(clusters[i - 1].end, clusters[last - 1].end);
            for (std::size_t gone = i; gone < last; ++gone)
                clusters[gone].text.clear();
        }
        i = last;
    }
    std::erase_if(clusters, [](const Cluster& cluster) { return cluster.text.empty(); });
}

/// Joiners and other characters without a shape take no room, whatever glyph stands in for them.
void flattenShapeless(std::vector<Cluster>& clusters) {
    for (Cluster& cluster : clusters)
        if (std::all_of(cluster.text.begin(), cluster.text.end(), [](char32_t c) { return isShapeless(c); }))
            cluster.end = cluster.start;
}

} // namespace

std::vector<Cluster> buildClusters(const pdf::PageContent& page, const GlyphSelection& selection,
                                   const FrameSelection& frames, const TextParameters& parameters,
                                   Diagnostics& diagnostics) {
    std::vector<Cluster> clusters;
    clusters.reserve(selection.glyphs.size());
    for (std::size_t i = 0; i < selection.glyphs.size(); ++i) {
        const std::uint32_t frame = frames.frameOfGlyph[i];
        clusters.push_back(makeCluster(page, selection.glyphs[i], frame, frames.frames[frame], parameters.clusters));
    }
    applyActualTexts(clusters, page.marks, parameters, diagnostics);
    MarkJoiner(clusters, parameters.clusters).join();
    dropStretching(clusters, page, parameters.clusters);
    flattenShapeless(clusters);
    return clusters;
}

} // namespace orvane::layout
