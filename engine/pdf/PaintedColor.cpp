#include "pdf/PaintedColor.h"

#include <algorithm>
#include <cmath>

namespace orvane::pdf {
namespace {

/// A colour that is painted over bit by bit.
class PaintMixer {
public:
    PaintMixer(Color ground, const Rect& area)
        : m_red(ground.red)
        , m_green(ground.green)
        , m_blue(ground.blue)
        , m_area(area) {}

    void paint(Color color, double share) {
        share = std::clamp(share, 0.0, 1.0);
        m_red += (color.red - m_red) * share;
        m_green += (color.green - m_green) * share;
        m_blue += (color.blue - m_blue) * share;
    }
    double shareOf(const Rect& box) const { return box.intersected(m_area).area() / m_area.area(); }

    Color color() const {
        const auto byteOf = [](double value) {
            return static_cast<std::uint8_t>(std::lround(std::clamp(value, 0.0, 255.0)));
        };
        return {byteOf(m_red), byteOf(m_green), byteOf(m_blue)};
    }

private:
    double m_red;
    double m_green;
    double m_blue;
    Rect m_area;
};

void paintPath(const Path& path, const Rect& area, PaintMixer& mixer) {
    if (path.visibility != Visibility::Visible)
        return;
    if (path.fill)
        mixer.paint(path.fill->color, mixer.shareOf(path.box.intersected(path.clip)) * path.fill->opacity);
    if (path.stroke) {
        const double ink = (path.box.width() + path.box.height()) * std::max(path.stroke->width, 0.1);
        mixer.paint(path.stroke->color, ink / area.area() * path.stroke->opacity);
    }
}

} // namespace

Color meanPaintedColor(const PageContent& page, const PaintedRange& range, const Rect& area, Color ground) {
    if (area.isEmpty())
        return ground;
    constexpr Color kUnknownPicture{128, 128, 128};
    PaintMixer mixer(ground, area);
    std::size_t path = range.firstPath;
    std::size_t picture = range.firstPicture;
    while (path < page.paths.size() || picture < page.pictures.size()) {
        const bool isPathNext =
            picture >= page.pictures.size() ||
            (path < page.paths.size() && page.paths[path].paintOrder < page.pictures[picture].paintOrder);
        if (isPathNext) {
            paintPath(page.paths[path++], area, mixer);
        } else {
            const Picture& painted = page.pictures[picture++];
            mixer.paint(kUnknownPicture, mixer.shareOf(painted.box.intersected(painted.clip)) * painted.opacity);
        }
    }
    return mixer.color();
}

} // namespace orvane::pdf
