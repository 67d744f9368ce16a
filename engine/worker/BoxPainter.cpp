#include "worker/BoxPainter.h"

#include "base/PngEncoder.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numeric>

namespace orvane::worker {
namespace {

/// The share of light from below under which a pixel shows nothing of it: less than half a step of its colours.
constexpr double kUnseenLight = 1.0 / 1024;

/// How much of the pixel from `at` to `at + 1` lies between `from` and `to`.
double share(std::size_t at, double from, double to) {
    const auto start = static_cast<double>(at);
    return std::clamp(std::min(to, start + 1) - std::max(from, start), 0.0, 1.0);
}

/// A distance in pixels as a number of them, of at most `most`.
std::size_t pixelsTo(double distance, std::size_t most) {
    return static_cast<std::size_t>(std::clamp(distance, 0.0, static_cast<double>(most)));
}

std::uint8_t rounded(double value) {
    return static_cast<std::uint8_t>(value + 0.5);
}

/// Paints one row of pixels after the other: red, green, blue and opacity of each.
class RowPainter {
public:
    RowPainter(std::size_t width, const std::vector<PaintedBox>& boxes)
        : m_boxes(boxes)
        , m_pixels(4 * width)
        , m_light(width)
        , m_next(width + 1) {}

    /// `shown` are the boxes that meet the row, the lowest first.
    const std::uint8_t* paint(std::size_t y, const std::vector<std::size_t>& shown) {
        std::fill(m_pixels.begin(), m_pixels.end(), std::uint8_t{0});
        std::fill(m_light.begin(), m_light.end(), 1.0);
        std::iota(m_next.begin(), m_next.end(), std::size_t{0});
        m_runs.clear();
        for (auto box = shown.rbegin(); box != shown.rend(); ++box)
            findSeen(y, m_boxes[*box]);
        for (auto run = m_runs.rbegin(); run != m_runs.rend(); ++run)
            for (std::size_t x = run->from; x < run->to; ++x)
                blend(&m_pixels[4 * x], run->box->color, run->opacity * share(x, run->box->left, run->box->right));
        return m_pixels.data();
    }

private:
    /// Pixels [from, to) of a box that are seen.
    struct Run {
        const PaintedBox* box = nullptr;
        double opacity = 0;
        std::size_t from = 0;
        std::size_t to = 0;
    };

    /// The first pixel from `x` on through which light comes from below.
    std::size_t firstLit(std::size_t x) {
        while (m_next[x] != x)
            x = m_next[x] = m_next[m_next[x]];
        return x;
    }

    /// Adds the runs of a box that those above it leave, and takes the light from what is below.
    void findSeen(std::size_t y, const PaintedBox& box) {
        const double opacity = box.opacity * share(y, box.top, box.bottom);
        const std::size_t end = pixelsTo(std::ceil(box.right), m_light.size());
        const std::size_t first = m_runs.size();
        for (std::size_t x = firstLit(pixelsTo(std::floor(box.left), m_light.size())); x < end; x = firstLit(x + 1)) {
            if (m_runs.size() == first || m_runs.back().to != x)
                m_runs.push_back({&box, opacity, x, x});
            m_runs.back().to = x + 1;
            m_light[x] *= 1 - opacity * share(x, box.left, box.right);
            if (m_light[x] < kUnseenLight)
                m_next[x] = x + 1;
        }
    }

    static void blend(std::uint8_t* pixel, Color color, double opacity) {
        const double below = pixel[3] / 255.0 * (1 - opacity);
        const double all = below + opacity;
        if (all <= 0)
            return;
        const auto mixed = [&](std::uint8_t under, std::uint8_t over) {
            return rounded((under * below + over * opacity) / all);
        };
        pixel[0] = mixed(pixel[0], color.red);
        pixel[1] = mixed(pixel[1], color.green);
        pixel[2] = mixed(pixel[2], color.blue);
        pixel[3] = rounded(all * 255);
    }

    const std::vector<PaintedBox>& m_boxes;
    std::vector<std::uint8_t> m_pixels;
    std::vector<double> m_light;     ///< that comes through from below, by pixel
    std::vector<std::size_t> m_next; ///< itself while light comes through, else one farther on that may be the next
    std::vector<Run> m_runs;         ///< of the row, the uppermost first
};

} // namespace

PictureData paintBoxes(int width, int height, const std::vector<PaintedBox>& boxes) {
    const auto rows = static_cast<std::size_t>(height);
    std::vector<std::vector<std::size_t>> beginning(rows);
    for (std::size_t i = 0; i < boxes.size(); ++i)
        if (const std::size_t row = pixelsTo(std::floor(boxes[i].top), rows); row < rows && boxes[i].bottom > 0)
            beginning[row].push_back(i);
    PngEncoder png(width, height, PngPixels::RgbAlpha8);
    RowPainter painter(static_cast<std::size_t>(width), boxes);
    std::vector<std::size_t> shown;
    for (std::size_t y = 0; y < rows; ++y) {
        std::erase_if(shown, [&](std::size_t i) { return boxes[i].bottom <= static_cast<double>(y); });
        const auto old = static_cast<std::ptrdiff_t>(shown.size());
        shown.insert(shown.end(), beginning[y].begin(), beginning[y].end());
        std::inplace_merge(shown.begin(), shown.begin() + old, shown.end());
        png.writeRow(painter.paint(y, shown));
    }
    return png.finish();
}

} // namespace orvane::worker
