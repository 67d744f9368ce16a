#include "layout/graphics/RuleShapes.h"

#include "layout/text/RuleBox.h"

#include <utility>

namespace orvane::layout {
namespace {

using document::Shape;

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

Shape filledShape(const Rect& box, Color color, double opacity) {
    Shape shape = shapeAt(box);
    shape.segments = {segment(Shape::Verb::Move), segment(Shape::Verb::Line, shape.width),
                      segment(Shape::Verb::Line, shape.width, shape.height),
                      segment(Shape::Verb::Line, {}, shape.height), segment(Shape::Verb::Close)};
    shape.fill = color;
    shape.opacity = opacity;
    return shape;
}

} // namespace

std::vector<Shape> shapesOf(const Rule& rule) {
    std::vector<Shape> shapes;
    for (const Rule& line : linesOf(rule)) {
        const Rect box = boxOf(line);
        // Screens keep thin strokes visible and show thin boxes fainter: each looks right only as it was painted.
        const bool isBox = line.paint == RulePaint::Filled && line.kind == document::BorderKind::Single;
        shapes.push_back(isBox ? filledShape(box, line.color, 1) : strokedShape(line, box));
    }
    return shapes;
}

Shape shapeOf(const Ground& ground) {
    Shape shape = filledShape(ground.box, ground.color, ground.opacity);
    shape.gradient = ground.gradient;
    return shape;
}

document::Drawing drawingOf(std::vector<Shape> shapes, const Rect& box) {
    document::Drawing drawing;
    drawing.width = emuFromPoints(box.width());
    drawing.height = emuFromPoints(box.height());
    for (Shape& shape : shapes) {
        shape.x = shape.x - emuFromPoints(box.left);
        shape.y = shape.y - emuFromPoints(box.top);
    }
    drawing.shapes = std::move(shapes);
    return drawing;
}

} // namespace orvane::layout
