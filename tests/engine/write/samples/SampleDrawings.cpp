#include "SampleDrawings.h"

#include "SampleStyles.h"

namespace orvane::tests {
namespace {

using namespace document;

Emu points(double value) {
    return emuFromPoints(value);
}

Shape shape(std::vector<Shape::Segment> segments, double width, double height) {
    Shape result;
    result.width = points(width);
    result.height = points(height);
    result.segments = std::move(segments);
    return result;
}

Shape::Segment to(Shape::Verb verb, std::initializer_list<double> xy) {
    Shape::Segment segment{verb, {}};
    std::size_t i = 0;
    for (const double value : xy)
        segment.xy[i++] = points(value);
    return segment;
}

} // namespace

Figure boxAndDrop() {
    using Verb = Shape::Verb;
    Shape box = shape({to(Verb::Move, {0, 0}), to(Verb::Line, {80, 0}), to(Verb::Line, {80, 50}),
                       to(Verb::Line, {0, 50}), to(Verb::Close, {})},
                      80, 50);
    box.fill = kPale;
    box.line = ShapeLine{kBlue, points(2), BorderKind::Dashed};
    Shape drop = shape({to(Verb::Move, {0, 20}), to(Verb::Curve, {0, 0, 40, 0, 40, 20}), to(Verb::Line, {20, 50}),
                        to(Verb::Close, {})},
                       40, 50);
    drop.x = points(60);
    drop.y = points(10);
    drop.fill = Color{0xC0, 0x00, 0x00};
    drop.opacity = 0.5;
    Figure figure{Drawing{points(100), points(60), {box, drop}, "A box and a drop"}, {}, {}};
    figure.placement = {HorizontalAnchor::Margin,
                        VerticalAnchor::Margin,
                        points(0),
                        points(560),
                        Wrapping::TopAndBottom,
                        {},
                        {},
                        {},
                        {},
                        2,
                        {}};
    return figure;
}

Figure slopedLine() {
    using Verb = Shape::Verb;
    Shape rule = shape({to(Verb::Move, {0, 40}), to(Verb::Line, {120, 0})}, 120, 40);
    rule.line = ShapeLine{Color{0x70, 0xAD, 0x47}, points(3), BorderKind::Single};
    Figure figure{Drawing{points(120), points(40), {rule}, ""}, {}, {}};
    figure.placement = {HorizontalAnchor::Page,
                        VerticalAnchor::Page,
                        points(380),
                        points(700),
                        Wrapping::BehindText,
                        {},
                        {},
                        {},
                        {},
                        3,
                        {}};
    return figure;
}

} // namespace orvane::tests
