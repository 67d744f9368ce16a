#include "pdf/PageSpace.h"

#include <algorithm>
#include <cmath>

#include <GfxState.h>
#include <PDFDoc.h>
#include <Page.h>

namespace orvane::pdf {
namespace {

constexpr double kPointsPerInch = 72.0;

bool isQuarterTurned(const ::Page& page) {
    return page.getRotate() == 90 || page.getRotate() == 270;
}

double userUnitOf(::Page& page) {
    const ::Object dictionary = page.getDoc()->getXRef()->fetch(page.getRef());
    if (!dictionary.isDict())
        return 1;
    const ::Object unit = dictionary.dictLookup("UserUnit");
    const double size = unit.isNum() ? unit.getNum() : 1;
    return std::isfinite(size) && size > 0 && size <= 1000 ? size : 1;
}

Rect boxAt(double pointsAUnit, ::Page& page) {
    const double width = std::abs(page.getCropWidth()) * pointsAUnit;
    const double height = std::abs(page.getCropHeight()) * pointsAUnit;
    return isQuarterTurned(page) ? Rect{0, 0, height, width} : Rect{0, 0, width, height};
}

} // namespace

Matrix currentMatrix(const GfxState& state) {
    const double* m = state.getCTM();
    return {m[0], m[1], m[2], m[3], m[4], m[5]};
}

Rect clipBox(const GfxState& state) {
    Rect box;
    state.getClipBBox(&box.left, &box.top, &box.right, &box.bottom);
    return box;
}

Visibility visibilityOf(const Rect& box, const Rect& clip, const PageContent& page) {
    // Lines have no area, so the test is made with a hair of width.
    constexpr double kHair = 0.01;
    const Rect touched = box.inflated(kHair);
    if (!touched.intersects({0, 0, page.width, page.height}))
        return Visibility::OffPage;
    return touched.intersects(clip) ? Visibility::Visible : Visibility::ClippedAway;
}

Color toColor(const GfxRGB& color) {
    return {colToByte(color.r), colToByte(color.g), colToByte(color.b)};
}

Color onWhite(Color color, double opacity) {
    const double share = std::clamp(opacity, 0.0, 1.0);
    const auto mixed = [&](std::uint8_t channel) {
        return static_cast<std::uint8_t>(std::lround(channel * share + 255 * (1 - share)));
    };
    return {mixed(color.red), mixed(color.green), mixed(color.blue)};
}

double scaleOf(::Page& page) {
    constexpr double kLargestPaper = 22 * kPointsPerInch;
    const double unit = userUnitOf(page);
    const double longer = std::max(std::abs(page.getCropWidth()), std::abs(page.getCropHeight()));
    return longer * unit > kLargestPaper ? kLargestPaper / longer : unit;
}

Matrix defaultMatrix(::Page& page) {
    const double dpi = kPointsPerInch * scaleOf(page);
    double m[6];
    page.getDefaultCTM(m, dpi, dpi, 0, false, true);
    return {m[0], m[1], m[2], m[3], m[4], m[5]};
}

Rect pageBox(::Page& page) {
    return boxAt(scaleOf(page), page);
}

Rect paperBox(::Page& page) {
    return boxAt(userUnitOf(page), page);
}

} // namespace orvane::pdf
