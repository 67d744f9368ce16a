#include "layout/page/PageMap.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace orvane::layout {
namespace {

/// `outer` after `inner`.
Matrix composed(const Matrix& outer, const Matrix& inner) {
    return {outer.a * inner.a + outer.c * inner.b,           outer.b * inner.a + outer.d * inner.b,
            outer.a * inner.c + outer.c * inner.d,           outer.b * inner.c + outer.d * inner.d,
            outer.a * inner.e + outer.c * inner.f + outer.e, outer.b * inner.e + outer.d * inner.f + outer.f};
}

class PageMapper {
public:
    explicit PageMapper(const Matrix& map)
        : m_map(map)
        , m_degrees(std::round(std::atan2(map.b, map.a) * 180 / std::numbers::pi)) {}

    void run(PageText& page) const {
        for (std::vector<Line>* lines : {&page.lines, &page.clippedLines})
            for (Line& line : *lines)
                mapLine(line);
        for (Rule& rule : page.rules)
            mapRule(rule);
        for (Ground& ground : page.grounds) {
            mapBox(ground.box);
            if (ground.gradient)
                ground.gradient->angle = turned(ground.gradient->angle);
        }
        for (Figure& figure : page.figures)
            mapFigure(figure);
        for (Formula& formula : page.formulas) {
            mapBox(formula.box);
            for (Line& line : formula.lines)
                mapLine(line);
        }
        for (pdf::Link& link : page.links)
            mapBoxes(link.boxes);
        for (pdf::Annotation& annotation : page.annotations) {
            mapBox(annotation.box);
            mapBoxes(annotation.quads);
        }
        for (pdf::FormField& field : page.fields)
            mapBox(field.box);
    }

private:
    bool isTurn() const { return m_degrees != 0; }
    double turned(double degrees) const { return std::fmod(degrees + m_degrees + 360, 360); }
    void mapBox(Rect& box) const { box = m_map.applyToBox(box); }
    void mapBoxes(std::vector<Rect>& boxes) const {
        for (Rect& box : boxes)
            mapBox(box);
    }

    /// The y of a level baseline, the x of an upright one; of a slanted one the y of its start.
    static bool isUpright(const Line& line) { return line.isVertical != (std::abs(std::fmod(line.angle, 180)) == 90); }

    double mapBaseline(double baseline, const Rect& box, bool wasUpright, bool isUpright) const {
        const Point point = m_map.apply(wasUpright ? Point{baseline, box.top} : Point{box.left, baseline});
        return isUpright ? point.x : point.y;
    }

    void mapLine(Line& line) const {
        const bool wasUpright = isUpright(line);
        line.angle = turned(line.angle);
        const bool isNowUpright = isUpright(line);
        line.baseline = mapBaseline(line.baseline, line.box, wasUpright, isNowUpright);
        mapBox(line.box);
        for (Word& word : line.words) {
            mapBox(word.box);
            for (Span& span : word.spans) {
                span.baseline = mapBaseline(span.baseline, span.box, wasUpright, isNowUpright);
                mapBox(span.box);
            }
        }
    }

    void mapRule(Rule& rule) const {
        const bool wasLevel = rule.direction == RuleDirection::Horizontal;
        Rect box = wasLevel ? Rect{rule.from, rule.position, rule.to, rule.position}
                            : Rect{rule.position, rule.from, rule.position, rule.to};
        mapBox(box);
        const bool isLevel = wasLevel == (std::fmod(m_degrees, 180) == 0);
        rule.direction = isLevel ? RuleDirection::Horizontal : RuleDirection::Vertical;
        rule.position = isLevel ? box.top : box.left;
        rule.from = isLevel ? box.left : box.top;
        rule.to = isLevel ? box.right : box.bottom;
    }

    void mapFigure(Figure& figure) const {
        // What was painted as it is seen is turned as a whole.
        if (isTurn() && std::exchange(figure.needsPainting, false))
            figure.matrix = {figure.box.width(), 0, 0, figure.box.height(), figure.box.left, figure.box.top};
        figure.matrix = composed(m_map, figure.matrix);
        mapBox(figure.box);
        for (Line& line : figure.labels)
            mapLine(line);
        if (isTurn() && figure.drawing)
            turnDrawing(*figure.drawing);
    }

    void turnDrawing(document::Drawing& drawing) const {
        const Matrix turn =
            turnWithin(static_cast<double>(drawing.width.value), static_cast<double>(drawing.height.value));
        for (document::Shape& shape : drawing.shapes)
            turnShape(shape, turn);
        turnSize(drawing.width, drawing.height);
    }

    void turnShape(document::Shape& shape, const Matrix& turn) const {
        const auto number = [](Emu value) { return static_cast<double>(value.value); };
        const auto emu = [](double value) { return Emu(std::llround(value)); };
        const Rect box = turn.applyToBox(
            {number(shape.x), number(shape.y), number(shape.x + shape.width), number(shape.y + shape.height)});
        const Matrix within = turnWithin(number(shape.width), number(shape.height));
        for (document::Shape::Segment& segment : shape.segments)
            for (std::size_t i = 0; i + 1 < segment.xy.size(); i += 2) {
                const Point point = within.apply({number(segment.xy[i]), number(segment.xy[i + 1])});
                segment.xy[i] = emu(point.x);
                segment.xy[i + 1] = emu(point.y);
            }
        shape.x = emu(box.left);
        shape.y = emu(box.top);
        turnSize(shape.width, shape.height);
        if (shape.gradient)
            shape.gradient->angle = turned(shape.gradient->angle);
    }

    void turnSize(Emu& width, Emu& height) const {
        if (std::fmod(m_degrees, 180) != 0)
            std::swap(width, height);
    }

    /// The turn of a box of that size whose top left corner stays at the origin.
    Matrix turnWithin(double width, double height) const {
        Matrix turn{m_map.a, m_map.b, m_map.c, m_map.d, 0, 0};
        const Rect box = turn.applyToBox({0, 0, width, height});
        turn.e = -box.left;
        turn.f = -box.top;
        return turn;
    }

    const Matrix& m_map;
    double m_degrees; ///< clockwise
};

} // namespace

void mapPage(PageText& page, const Matrix& map) {
    PageMapper(map).run(page);
}

} // namespace orvane::layout
