#include "layout/text/FrameFinder.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

namespace orvane::layout {
namespace {

double normalizedAngle(double angle) {
    const double turned = std::fmod(angle, 360.0);
    return turned < 0 ? turned + 360 : turned;
}

/// The direction without what a skewed scan adds to it; 0 to 359.
double plainDirection(double angle, double tolerance) {
    const double quarter = std::round(angle / 90) * 90;
    const double plain = std::abs(angle - quarter) <= tolerance ? quarter : std::round(angle);
    return normalizedAngle(plain);
}

double skewOf(double angle, double direction) {
    return std::remainder(angle - direction, 360.0);
}

double median(std::vector<double>& values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

FrameSelection findFrames(const pdf::PageContent& page, const GlyphSelection& selection,
                          const TextParameters& parameters, Diagnostics&) {
    const TextParameters::Frames& limits = parameters.frames;
    FrameSelection result;
    std::map<std::pair<bool, double>, std::uint32_t> known;
    std::vector<std::vector<double>> skews;
    result.frameOfGlyph.reserve(selection.glyphs.size());
    for (const SelectedGlyph& selected : selection.glyphs) {
        const pdf::Glyph& glyph = page.glyphs[selected.index];
        const bool isVertical = glyph.font < page.fonts.size() && page.fonts[glyph.font].isVertical;
        const double direction = plainDirection(glyph.angle, limits.skewTolerance);
        const auto [entry, isNew] =
            known.try_emplace({isVertical, direction}, static_cast<std::uint32_t>(result.frames.size()));
        if (isNew) {
            result.frames.push_back({direction, 0, isVertical});
            skews.emplace_back();
        }
        skews[entry->second].push_back(skewOf(glyph.angle, direction));
        result.frameOfGlyph.push_back(entry->second);
    }
    for (std::size_t i = 0; i < result.frames.size(); ++i) {
        const double skew = median(skews[i]);
        result.frames[i].skew = std::abs(skew) < limits.smallestSkew ? 0 : skew;
    }
    return result;
}

} // namespace orvane::layout
