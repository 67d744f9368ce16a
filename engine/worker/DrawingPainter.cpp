#include "worker/DrawingPainter.h"

#include "worker/BoxPainter.h"

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

class DrawingPainter {
public:
    explicit DrawingPainter(const Drawing& drawing)
        : m_drawing(drawing)
        , m_scale(scaleOf(drawing)) {}

    PictureData paint() {
        for (const Shape& shape : m_drawing.shapes) {
            if (shape.fill) {
                m_boxes.push_back(boxOf(shape));
                m_boxes.back().color = *shape.fill;
            }
            if (shape.line && shape.line->kind != BorderKind::None)
                addLine(shape);
        }
        return paintBoxes(pixels(m_drawing.width), pixels(m_drawing.height), m_boxes);
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

    PaintedBox boxOf(const Shape& shape) const {
        return {scaled(shape.x), scaled(shape.y), scaled(shape.x + shape.width), scaled(shape.y + shape.height), {},
                shape.opacity};
    }

    /// A line along the middle of its box, in strokes as word processors draw them.
    void addLine(const Shape& shape) {
        const PaintedBox box = boxOf(shape);
        const double width = std::max(1.0, scaled(shape.line->width)); // no line is too thin to be seen
        const bool isLevel = shape.width >= shape.height;
        const double from = isLevel ? box.left : box.top, to = isLevel ? box.right : box.bottom;
        const double middle = isLevel ? (box.top + box.bottom) / 2 : (box.left + box.right) / 2;
        const auto [on, off] = dashOf(shape.line->kind, width, to - from);
        for (double at = from; at < to; at += on + off) {
            const double end = std::min(at + on, to);
            m_boxes.push_back({isLevel ? at : middle - width / 2, isLevel ? middle - width / 2 : at,
                               isLevel ? end : middle + width / 2, isLevel ? middle + width / 2 : end,
                               shape.line->color, shape.opacity});
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
    std::vector<PaintedBox> m_boxes;
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
