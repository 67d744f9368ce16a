#include "layout/text/GlyphFilter.h"

#include "layout/support/CoverageGrid.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace orvane::layout {
namespace {

using pdf::Visibility;

bool saysTheSame(const pdf::Glyph& a, const pdf::Glyph& b) {
    return a.unicode.empty() ? b.unicode.empty() && a.charCode == b.charCode && a.font == b.font
                             : a.unicode == b.unicode;
}

/// Finds glyphs that were painted before at nearly the same place.
class DuplicateFinder {
public:
    explicit DuplicateFinder(const TextParameters::Glyphs& limits)
        : m_limits(limits) {}

    /// The earlier selected glyph that `glyph` repeats, as an index into the selection; -1 for none.
    int find(const pdf::PageContent& page, const std::vector<SelectedGlyph>& selection, const pdf::Glyph& glyph) const {
        const double reach = reachOf(glyph);
        if (reach <= 0)
            return -1;
        for (const long column : {columnOf(glyph.origin.x - reach), columnOf(glyph.origin.x + reach)})
            for (const long row : {rowOf(glyph.origin.y - reach), rowOf(glyph.origin.y + reach)}) {
                const auto [first, last] = m_cells.equal_range(keyOf(column, row));
                for (auto entry = first; entry != last; ++entry)
                    if (repeats(page.glyphs[selection[entry->second].index], glyph, reach))
                        return static_cast<int>(entry->second);
            }
        return -1;
    }
    void add(const pdf::Glyph& glyph, std::size_t position) {
        m_cells.emplace(keyOf(columnOf(glyph.origin.x), rowOf(glyph.origin.y)), position);
    }

private:
    /// How far apart two glyphs may stand to be one; less for narrow ones, of which two may stand side by side ("ll").
    double reachOf(const pdf::Glyph& glyph) const {
        // Glyphs that say nothing may be strokes that are put together with much overlap.
        const double byAdvance = glyph.advance > 0 && !glyph.unicode.empty()
                                     ? m_limits.duplicateAdvanceShare * glyph.advance
                                     : m_limits.duplicateMarkDistance * glyph.fontSize;
        return std::min({m_limits.duplicateDistance * glyph.fontSize, byAdvance, kCell});
    }
    static bool repeats(const pdf::Glyph& earlier, const pdf::Glyph& later, double reach) {
        return std::hypot(earlier.origin.x - later.origin.x, earlier.origin.y - later.origin.y) <= reach &&
               saysTheSame(earlier, later) && std::abs(earlier.angle - later.angle) < 1 &&
               std::abs(earlier.fontSize - later.fontSize) <= 0.1 * later.fontSize;
    }
    static long columnOf(double x) { return static_cast<long>(std::floor(x / kCell)); }
    static long rowOf(double y) { return static_cast<long>(std::floor(y / kCell)); }
    static std::size_t keyOf(long column, long row) {
        return static_cast<std::size_t>(row) * 1000003u + static_cast<std::size_t>(column);
    }

    static constexpr double kCell = 8; ///< points; reach is kept below it, so four cells are enough to look into

    const TextParameters::Glyphs& m_limits;
    std::unordered_multimap<std::size_t, std::size_t> m_cells;
};

CoverageGrid coverByPictures(const pdf::PageContent& page, const TextParameters::Glyphs& limits) {
    CoverageGrid grid(page.width, page.height, limits.coverCell);
    for (const pdf::Picture& picture : page.pictures) {
        const Rect seen = picture.box.intersected(picture.clip);
        if (picture.visibility == Visibility::Visible && !seen.isEmpty())
            grid.cover(seen);
    }
    return grid;
}

Point middleOf(const pdf::Glyph& glyph) {
    return {glyph.box.centerX(), glyph.box.centerY()};
}

/// For each glyph whether it can be seen: painted visibly, and by no picture painted over.
std::vector<bool> findSeen(const pdf::PageContent& page, const TextParameters::Glyphs& limits) {
    std::vector<const pdf::Picture*> opaque;
    for (const pdf::Picture& picture : page.pictures)
        if (picture.isOpaque && picture.visibility == Visibility::Visible)
            opaque.push_back(&picture);
    std::stable_sort(opaque.begin(), opaque.end(),
                     [](const pdf::Picture* a, const pdf::Picture* b) { return a->paintOrder < b->paintOrder; });
    // From the top of the page's paint downwards, so that only pictures above a glyph are there when it comes.
    CoverageGrid above(page.width, page.height, limits.coverCell);
    std::vector<bool> isSeen(page.glyphs.size());
    for (std::size_t i = page.glyphs.size(); i-- > 0;) {
        const pdf::Glyph& glyph = page.glyphs[i];
        for (; !opaque.empty() && opaque.back()->paintOrder > glyph.paintOrder; opaque.pop_back())
            above.cover(opaque.back()->box.intersected(opaque.back()->clip));
        isSeen[i] = glyph.visibility == Visibility::Visible && !above.isCovered(middleOf(glyph));
    }
    return isSeen;
}

CoverageGrid coverByVisibleText(const pdf::PageContent& page, const std::vector<bool>& isSeen,
                                const TextParameters::Glyphs& limits) {
    CoverageGrid grid(page.width, page.height, limits.coverCell);
    for (std::size_t i = 0; i < page.glyphs.size(); ++i)
        if (isSeen[i])
            grid.cover(page.glyphs[i].box);
    return grid;
}

/// Two paintings of one glyph: what the second one tells about the first.
void mergeDuplicate(const pdf::PageContent& page, SelectedGlyph& kept, std::uint32_t later,
                    const TextParameters::Glyphs& limits) {
    const pdf::Glyph& first = page.glyphs[kept.index];
    const pdf::Glyph& second = page.glyphs[later];
    const double distance = std::hypot(first.origin.x - second.origin.x, first.origin.y - second.origin.y);
    const double size = second.fontSize;
    if (first.color == second.color && distance > limits.samePlaceDistance * size &&
        distance <= limits.fakeBoldDistance * size)
        kept.isBold = true;
    // What was painted last lies on top, a shadow below it.
    if (first.color != second.color) {
        kept.index = later;
        kept.edge = second.edge ? second.edge : first.color;
    }
}

bool isPale(Color color, const TextParameters::Glyphs& limits) {
    return std::min({color.red, color.green, color.blue}) >= limits.palest;
}

/// Where the page is not white: fills of a colour, and pictures.
CoverageGrid coverByGrounds(const pdf::PageContent& page, const TextParameters::Glyphs& limits) {
    CoverageGrid grid = coverByPictures(page, limits);
    for (const pdf::Path& path : page.paths) {
        const Rect seen = path.box.intersected(path.clip);
        if (path.fill && path.visibility == Visibility::Visible && !seen.isEmpty() && !isPale(path.fill->color, limits))
            grid.cover(seen);
    }
    return grid;
}

/// Letters filled like the paper are seen by their edges (outlined ones, and such as look raised or sunk), others by
/// what they are filled with.
void keepEdgesOfHollow(const pdf::PageContent& page, std::vector<SelectedGlyph>& glyphs,
                       const TextParameters::Glyphs& limits) {
    if (std::none_of(glyphs.begin(), glyphs.end(), [](const SelectedGlyph& glyph) { return glyph.edge.has_value(); }))
        return;
    const CoverageGrid grounds = coverByGrounds(page, limits);
    for (SelectedGlyph& selected : glyphs) {
        const pdf::Glyph& glyph = page.glyphs[selected.index];
        if (selected.edge &&
            (!isPale(glyph.color, limits) || isPale(*selected.edge, limits) || grounds.isCovered(middleOf(glyph))))
            selected.edge.reset();
    }
}

bool isWorthReading(const pdf::Glyph& glyph, const TextParameters::Glyphs& limits) {
    return glyph.fontSize >= limits.minimumSize && std::isfinite(glyph.origin.x) && std::isfinite(glyph.origin.y) &&
           std::isfinite(glyph.advance);
}

} // namespace

GlyphSelection filterGlyphs(const pdf::PageContent& page, const TextParameters& parameters, Diagnostics&) {
    const TextParameters::Glyphs& limits = parameters.glyphs;
    const CoverageGrid pictures = coverByPictures(page, limits);
    const std::vector<bool> isSeen = findSeen(page, limits);
    const CoverageGrid visibleText = coverByVisibleText(page, isSeen, limits);

    GlyphSelection selection;
    DuplicateFinder duplicates(limits);
    std::size_t seen = 0, recognised = 0;
    for (std::uint32_t i = 0; i < page.glyphs.size(); ++i) {
        const pdf::Glyph& glyph = page.glyphs[i];
        const Point middle = middleOf(glyph);
        const bool isHidden =
            glyph.visibility == Visibility::Invisible || (glyph.visibility == Visibility::Visible && !isSeen[i]);
        const bool isRecognised = isHidden && pictures.isCovered(middle) && !visibleText.isCovered(middle);
        if ((glyph.visibility != Visibility::Visible && !isRecognised) || !isWorthReading(glyph, limits))
            continue;
        ++(isRecognised ? recognised : seen);
        const int earlier = duplicates.find(page, selection.glyphs, glyph);
        if (earlier >= 0) {
            mergeDuplicate(page, selection.glyphs[static_cast<std::size_t>(earlier)], i, limits);
            continue;
        }
        duplicates.add(glyph, selection.glyphs.size());
        selection.glyphs.push_back(
            {i, isRecognised ? GlyphSight::Recognised : GlyphSight::Seen, glyph.isFakeBold, glyph.edge});
    }
    keepEdgesOfHollow(page, selection.glyphs, limits);
    // A stamp or a line about where the scan comes from is written on many.
    const bool isTextHidden = static_cast<double>(seen) <= limits.stampShare * static_cast<double>(recognised);
    const bool isCovered = pictures.coveredShare({0, 0, page.width, page.height}) >= limits.scannedPageShare;
    selection.isScanned = isTextHidden && (recognised > 0 || isCovered);
    return selection;
}

GlyphSelection clippedGlyphs(const pdf::PageContent& page, const GlyphSelection& seen,
                             const TextParameters& parameters) {
    const auto isClipped = [](const pdf::Glyph& glyph) { return glyph.visibility == Visibility::ClippedAway; };
    GlyphSelection selection;
    if (std::none_of(page.glyphs.begin(), page.glyphs.end(), isClipped))
        return selection;
    DuplicateFinder ofSeen(parameters.glyphs), ofClipped(parameters.glyphs);
    for (std::size_t i = 0; i < seen.glyphs.size(); ++i)
        ofSeen.add(page.glyphs[seen.glyphs[i].index], i);
    for (std::uint32_t i = 0; i < page.glyphs.size(); ++i) {
        const pdf::Glyph& glyph = page.glyphs[i];
        if (!isClipped(glyph) || !isWorthReading(glyph, parameters.glyphs) ||
            ofSeen.find(page, seen.glyphs, glyph) >= 0 || ofClipped.find(page, selection.glyphs, glyph) >= 0)
            continue;
        ofClipped.add(glyph, selection.glyphs.size());
        selection.glyphs.push_back({i, GlyphSight::ClippedAway, glyph.isFakeBold});
    }
    return selection;
}

} // namespace orvane::layout
