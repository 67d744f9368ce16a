#include "layout/truepage/Backdrop.h"

#include "layout/assembly/FigureAssembler.h"
#include "layout/graphics/RuleShapes.h"
#include "layout/text/RuleBox.h"

#include <algorithm>
#include <utility>
#include <variant>

namespace orvane::layout {
namespace {

using document::Shape;

/// Something painted, with its place in the order of painting.
struct Painted {
    std::uint32_t order = 0;
    std::variant<const Figure*, const Rule*, const Ground*> item;
};

std::vector<Painted> paintedOf(const PageText& page) {
    std::vector<Painted> painted;
    for (const Figure& figure : page.figures)
        painted.push_back({figure.paintOrder, &figure});
    for (const Rule& rule : page.rules)
        if (!rule.isUsed)
            painted.push_back({rule.paintOrder, &rule});
    for (const Ground& ground : page.grounds)
        if (!ground.isUsed)
            painted.push_back({ground.paintOrder, &ground});
    std::stable_sort(painted.begin(), painted.end(),
                     [](const Painted& a, const Painted& b) { return a.order < b.order; });
    return painted;
}

/// Collects shapes that are painted one after the other and makes one drawing of them.
class DrawingMaker {
public:
    void add(const Rule& rule) {
        for (Shape& shape : shapesOf(rule))
            add(boxOf(rule), std::move(shape), rule.paintOrder);
    }
    void add(const Ground& ground) { add(ground.box, shapeOf(ground), ground.paintOrder); }

    bool isEmpty() const { return m_shapes.empty(); }

    document::Figure finish(int page) {
        document::Figure figure;
        figure.origin = {page, m_box};
        figure.placement.x = emuFromPoints(m_box.left);
        figure.placement.y = emuFromPoints(m_box.top);
        figure.placement.zOrder = m_order;
        figure.placement.wrapping = document::Wrapping::BehindText;
        figure.content = drawingOf(std::exchange(m_shapes, {}), m_box);
        m_box = {};
        return figure;
    }

private:
    void add(const Rect& box, Shape shape, std::uint32_t order) {
        if (isEmpty())
            m_order = static_cast<int>(order);
        m_box = m_box.united(box);
        m_shapes.push_back(std::move(shape));
    }

    std::vector<Shape> m_shapes;
    Rect m_box;
    int m_order = 0;
};

} // namespace

std::vector<document::Figure> backdropOf(const PageText& page) {
    std::vector<document::Figure> backdrop;
    DrawingMaker drawing;
    const auto finishDrawing = [&] {
        if (!drawing.isEmpty())
            backdrop.push_back(drawing.finish(page.number));
    };
    for (const Painted& painted : paintedOf(page)) {
        if (const auto* figure = std::get_if<const Figure*>(&painted.item)) {
            finishDrawing();
            if ((*figure)->picture.value == 0 && !(*figure)->drawing)
                continue;
            backdrop.push_back(floatingFigure(**figure, page.number));
            backdrop.back().placement.wrapping =
                (*figure)->isForeground ? document::Wrapping::None : document::Wrapping::BehindText;
        } else if (const auto* rule = std::get_if<const Rule*>(&painted.item)) {
            drawing.add(**rule);
        } else {
            drawing.add(*std::get<const Ground*>(painted.item));
        }
    }
    finishDrawing();
    return backdrop;
}

} // namespace orvane::layout
