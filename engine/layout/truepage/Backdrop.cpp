#include "layout/truepage/Backdrop.h"

#include "layout/assembly/FigureAssembler.h"

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

Rect boxOf(const Rule& rule) {
    const double half = rule.width / 2;
    if (rule.direction == RuleDirection::Horizontal)
        return {rule.from, rule.position - half, rule.to, rule.position + half};
    return {rule.position - half, rule.from, rule.position + half, rule.to};
}

/// The single lines that the rule is made of: the two of a double one.
std::vector<Rule> linesOf(const Rule& rule) {
    if (rule.kind != document::BorderKind::Double || rule.lineWidth <= 0)
        return {rule};
    std::vector<Rule> lines(2, rule);
    const double offset = (rule.width - rule.lineWidth) / 2;
    for (Rule& line : lines) {
        line.kind = document::BorderKind::Single;
        line.width = rule.lineWidth;
    }
    lines.front().position -= offset;
    lines.back().position += offset;
    return lines;
}

Shape::Segment segment(Shape::Verb verb, Emu x = {}, Emu y = {}) {
    return {verb, {x, y}};
}

/// A shape of the size of `box`, without an outline.
Shape shapeAt(const Rect& box) {
    Shape shape;
    shape.x = emuFromPoints(box.left);
    shape.y = emuFromPoints(box.top);
    shape.width = emuFromPoints(box.width());
    shape.height = emuFromPoints(box.height());
    return shape;
}

Shape filledShape(const Rect& box, Color color, double opacity) {
    Shape shape = shapeAt(box);
    shape.segments = {segment(Shape::Verb::Move), segment(Shape::Verb::Line, shape.width),
                      segment(Shape::Verb::Line, shape.width, shape.height),
                      segment(Shape::Verb::Line, {}, shape.height), segment(Shape::Verb::Close)};
    shape.fill = color;
    shape.opacity = opacity;
    return shape;
}

/// A stroke along the middle of the box.
Shape strokedShape(const Rule& rule, const Rect& box) {
    Shape shape = shapeAt(box);
    const bool isLevel = rule.direction == RuleDirection::Horizontal;
    const Emu middle(isLevel ? shape.height.value / 2 : shape.width.value / 2);
    shape.segments = {isLevel ? segment(Shape::Verb::Move, {}, middle) : segment(Shape::Verb::Move, middle),
                      isLevel ? segment(Shape::Verb::Line, shape.width, middle)
                              : segment(Shape::Verb::Line, middle, shape.height)};
    shape.line = document::ShapeLine{rule.color, emuFromPoints(rule.width), rule.kind};
    return shape;
}

/// Collects shapes that are painted one after the other and makes one drawing of them.
class DrawingMaker {
public:
    void add(const Rule& rule) {
        for (const Rule& line : linesOf(rule)) {
            const Rect box = boxOf(line);
            // Screens keep thin strokes visible and show thin boxes fainter: each looks right only as it was painted.
            const bool isBox = line.paint == RulePaint::Filled && line.kind == document::BorderKind::Single;
            add(box, isBox ? filledShape(box, line.color, 1) : strokedShape(line, box), line.paintOrder);
        }
    }
    void add(const Ground& ground) {
        add(ground.box, filledShape(ground.box, ground.color, ground.opacity), ground.paintOrder);
    }

    bool isEmpty() const { return m_drawing.shapes.empty(); }

    document::Figure finish(int page) {
        for (Shape& shape : m_drawing.shapes) {
            shape.x = shape.x - emuFromPoints(m_box.left);
            shape.y = shape.y - emuFromPoints(m_box.top);
        }
        m_drawing.width = emuFromPoints(m_box.width());
        m_drawing.height = emuFromPoints(m_box.height());
        document::Figure figure;
        figure.origin = {page, m_box};
        figure.placement.x = emuFromPoints(m_box.left);
        figure.placement.y = emuFromPoints(m_box.top);
        figure.placement.zOrder = m_order;
        figure.content = std::exchange(m_drawing, {});
        m_box = {};
        return figure;
    }

private:
    void add(const Rect& box, Shape shape, std::uint32_t order) {
        if (isEmpty())
            m_order = static_cast<int>(order);
        m_box = m_box.united(box);
        m_drawing.shapes.push_back(std::move(shape));
    }

    document::Drawing m_drawing;
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
            if ((*figure)->picture.value != 0 || (*figure)->drawing)
                backdrop.push_back(floatingFigure(**figure, page.number));
        } else if (const auto* rule = std::get_if<const Rule*>(&painted.item)) {
            drawing.add(**rule);
        } else {
            drawing.add(*std::get<const Ground*>(painted.item));
        }
    }
    finishDrawing();
    for (document::Figure& figure : backdrop)
        figure.placement.wrapping = document::Wrapping::BehindText;
    return backdrop;
}

} // namespace orvane::layout
