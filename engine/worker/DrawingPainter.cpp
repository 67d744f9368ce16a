#include "worker/DrawingPainter.h"

#include "base/PngEncoder.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace orvane::worker {
namespace {

using namespace document;

// Dots per inch, and what a poster may have: as for other drawings that are painted.
constexpr double kResolution = 200;
constexpr double kMaxPixels = 16e6;
constexpr double kEmuAnInch = 914400;

/// A box in pixels.
struct PixelBox {
    double left = 0, top = 0, right = 0, bottom = 0;
};

/// How much of the pixel from `at` to `at + 1` lies between `from` and `to`.
double share(int at, double from, double to) {
    return std::clamp(std::min(to, at + 1.0) - std::max(from, double(at)), 0.0, 1.0);
}

/// Red, green, blue and opacity of each pixel.
class Canvas {
public:
    Canvas(int width, int height)
        : m_width(width)
        , m_height(height)
        , m_pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4) {}

    /// Paints the box, its edges as faint as it covers their pixels.
    void fill(const PixelBox& box, Color color, double opacity) {
        const int right = std::min(m_width, static_cast<int>(std::ceil(box.right)));
        const int bottom = std::min(m_height, static_cast<int>(std::ceil(box.bottom)));
        for (int y = std::max(0, static_cast<int>(std::floor(box.top))); y < bottom; ++y) {
            const double down = share(y, box.top, box.bottom) * opacity;
            for (int x = std::max(0, static_cast<int>(std::floor(box.left))); x < right; ++x)
                blend(x, y, color, down * share(x, box.left, box.right));
        }
    }

    PictureData encode() const {
        PngEncoder png(m_width, m_height, PngPixels::RgbAlpha8);
        for (int y = 0; y < m_height; ++y)
            png.writeRow(&m_pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) * 4]);
        return png.finish();
    }

private:
    void blend(int x, int y, Color color, double opacity) {
        std::uint8_t* pixel =
            &m_pixels[(static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) + static_cast<std::size_t>(x)) *
                      4];
        const double below = pixel[3] / 255.0 * (1 - opacity);
        const double all = below + opacity;
        if (all <= 0)
            return;
        const auto mixed = [&](std::uint8_t under, std::uint8_t over) {
            return static_cast<std::uint8_t>(std::lround((under * below + over * opacity) / all));
        };
        pixel[0] = mixed(pixel[0], color.red);
        pixel[1] = mixed(pixel[1], color.green);
        pixel[2] = mixed(pixel[2], color.blue);
        pixel[3] = static_cast<std::uint8_t>(std::lround(all * 255));
    }

    int m_width;
    int m_height;
    std::vector<std::uint8_t> m_pixels;
};

class DrawingPainter {
public:
    explicit DrawingPainter(const Drawing& drawing)
        : m_drawing(drawing)
        , m_scale(scaleOf(drawing))
        , m_canvas(pixels(drawing.width), pixels(drawing.height)) {}

    PictureData paint() {
        for (const Shape& shape : m_drawing.shapes) {
            if (shape.fill)
                m_canvas.fill(boxOf(shape), *shape.fill, shape.opacity);
            if (shape.line && shape.line->kind != BorderKind::None)
                paintLine(shape);
        }
        return m_canvas.encode();
    }

private:
    static double scaleOf(const Drawing& drawing) {
        const double area = static_cast<double>(drawing.width.value) * static_cast<double>(drawing.height.value);
        return std::min(kResolution / kEmuAnInch, std::sqrt(kMaxPixels / std::max(1.0, area)));
    }
    int pixels(Emu length) const {
        return std::max(1, static_cast<int>(std::lround(static_cast<double>(length.value) * m_scale)));
    }
    double scaled(Emu length) const { return static_cast<double>(length.value) * m_scale; }

    PixelBox boxOf(const Shape& shape) const {
        return {scaled(shape.x), scaled(shape.y), scaled(shape.x + shape.width), scaled(shape.y + shape.height)};
    }

    /// A line along the middle of its box, in strokes as word processors draw them.
    void paintLine(const Shape& shape) {
        const PixelBox box = boxOf(shape);
        const double width = std::max(1.0, scaled(shape.line->width)); // no line is too thin to be seen
        const bool isLevel = shape.width >= shape.height;
        const double from = isLevel ? box.left : box.top, to = isLevel ? box.right : box.bottom;
        const double middle = isLevel ? (box.top + box.bottom) / 2 : (box.left + box.right) / 2;
        const auto [on, off] = dashOf(shape.line->kind, width, to - from);
        for (double at = from; at < to; at += on + off) {
            const double end = std::min(at + on, to);
            const PixelBox stroke = isLevel ? PixelBox{at, middle - width / 2, end, middle + width / 2}
                                            : PixelBox{middle - width / 2, at, middle + width / 2, end};
            m_canvas.fill(stroke, shape.line->color, shape.opacity);
        }
    }

    /// The lengths of a stroke and of the gap behind it.
    static std::pair<double, double> dashOf(BorderKind kind, double width, double length) {
        if (kind == BorderKind::Dotted)
            return {width, width};
        if (kind == BorderKind::Dashed)
            return {4 * width, 3 * width};
        return {std::max(length, 1.0), 0};
    }

    const Drawing& m_drawing;
    double m_scale; ///< pixels an EMU
    Canvas m_canvas;
};

void paintIn(std::vector<Block>& blocks, PictureStore& pictures) {
    for (Block& block : blocks) {
        auto* figure = std::get_if<Figure>(&block.value);
        const auto* drawing = figure ? std::get_if<Drawing>(&figure->content) : nullptr;
        if (!drawing || !drawing->isPictureAtBest)
            continue;
        Picture picture;
        picture.id = pictures.add(DrawingPainter(*drawing).paint());
        picture.width = drawing->width;
        picture.height = drawing->height;
        picture.alternateText = drawing->alternateText;
        picture.origin = figure->origin;
        figure->content = std::move(picture);
    }
}

void paintIn(RunningText& text, PictureStore& pictures) {
    for (auto* blocks : {&text.standard, &text.firstPage, &text.evenPages})
        if (*blocks)
            paintIn(**blocks, pictures);
}

} // namespace

void paintDrawings(Document& document, PictureStore& pictures) {
    for (Section& section : document.sections) {
        paintIn(section.blocks, pictures);
        paintIn(section.header, pictures);
        paintIn(section.footer, pictures);
    }
}

} // namespace orvane::worker
