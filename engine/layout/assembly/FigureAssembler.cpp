#include "layout/assembly/FigureAssembler.h"

#include "layout/assembly/BlockAssembler.h"
#include "layout/structure/BlockColumn.h"

#include <cmath>
#include <numbers>
#include <utility>

namespace orvane::layout {
namespace {

/// Sets the size, and the turns and mirrors that the picture's matrix does to it.
document::Picture pictureOf(const Figure& figure, int page) {
    document::Picture picture;
    picture.id = figure.picture;
    picture.crop = figure.crop;
    picture.alternateText = figure.alternateText;
    picture.origin = {page, figure.box};
    picture.width = emuFromPoints(figure.box.width());
    picture.height = emuFromPoints(figure.box.height());
    if (figure.needsPainting)
        return picture; // painted as it is seen
    const Matrix& m = figure.matrix;
    const double degrees = std::atan2(m.b, m.a) * 180 / std::numbers::pi;
    picture.isMirroredVertically = m.determinant() < 0;
    picture.rotation = std::round(degrees * 100) / 100;
    const bool isUpright = std::abs(picture.rotation) < 0.1;
    if (!isUpright) {
        // The size of a turned picture is that before turning.
        picture.width = emuFromPoints(std::hypot(m.a, m.b));
        picture.height = emuFromPoints(std::hypot(m.c, m.d));
    }
    return picture;
}

/// Where the link leads that lies over the picture. Of a link over other things too the picture is one.
std::optional<document::LinkTarget> linkOf(const Figure& figure, std::size_t page, const AssemblyContext& context) {
    constexpr double kMostOfIt = 0.5;
    const std::vector<pdf::Link>& links = context.draft.pages[page].links;
    for (std::size_t i = 0; i < links.size(); ++i)
        for (const Rect& box : links[i].boxes)
            if (figure.box.intersected(box).area() > kMostOfIt * figure.box.area())
                return context.links.target(page, static_cast<int>(i));
    return std::nullopt;
}

document::Alignment alignmentIn(const ColumnSpan& column, const Rect& box, double tolerance) {
    const double left = box.left - column.left, right = column.right - box.right;
    if (left > tolerance && std::abs(left - right) <= tolerance)
        return document::Alignment::Center;
    return left > tolerance && std::abs(right) <= tolerance ? document::Alignment::End : document::Alignment::Start;
}

document::Block paragraphWith(document::Picture picture, const DraftBlock& place, const AssemblyContext& context) {
    const ColumnSpan column = columnOf(place, context.draft);
    document::Paragraph paragraph;
    paragraph.origin = picture.origin;
    paragraph.properties.alignment = alignmentIn(column, place.box, context.parameters.figures.alignmentTolerance);
    // A picture may reach into the margins.
    if (paragraph.properties.alignment == document::Alignment::Start) {
        paragraph.properties.indentStart = twipsFromPoints(place.box.left - column.left);
        if (place.box.right > column.right)
            paragraph.properties.indentEnd =
                twipsFromPoints(column.right - place.box.right - context.parameters.pageSetup.roomSlack);
    }
    paragraph.markProperties.fontFamily = context.fonts.mainFamily(ScriptClass::Simple);
    paragraph.markProperties.size = kPictureMarkSize;
    if (std::optional<document::LinkTarget> link = std::exchange(picture.link, std::nullopt))
        paragraph.inlines.push_back({document::Link{std::move(*link), {{std::move(picture)}}}});
    else
        paragraph.inlines.push_back({std::move(picture)});
    return {std::move(paragraph)};
}

/// An empty paragraph of the figure's height.
document::Block paragraphUnder(const Figure& figure, int page, const AssemblyContext& context) {
    document::Paragraph paragraph;
    paragraph.origin = {page, figure.box};
    paragraph.properties.lineSpacing = {document::LineSpacingRule::Exact, 1.0, twipsFromPoints(figure.box.height())};
    paragraph.markProperties.fontFamily = context.fonts.mainFamily(ScriptClass::Simple);
    paragraph.markProperties.size = kPictureMarkSize;
    return {std::move(paragraph)};
}

void hangOnParagraph(document::Figure& figure, const ColumnSpan& column, const Rect& box) {
    figure.placement.horizontalAnchor = document::HorizontalAnchor::Column;
    figure.placement.verticalAnchor = document::VerticalAnchor::Paragraph;
    figure.placement.x = figure.placement.x - emuFromPoints(column.left);
    figure.placement.y = figure.placement.y - emuFromPoints(box.top);
    figure.placement.wrapping = document::Wrapping::None;
}

/// Names the side of its column at which a figure floats, if it stands there.
void nameSide(document::Placement& placement, const ColumnSpan& column, const Rect& box, double tolerance) {
    const document::Alignment alignment = alignmentIn(column, box, tolerance);
    if (alignment == document::Alignment::Center)
        placement.side = document::HorizontalSide::Center;
    else if (alignment == document::Alignment::End)
        placement.side = document::HorizontalSide::Right;
    else if (std::abs(box.left - column.left) <= tolerance)
        placement.side = document::HorizontalSide::Left;
    else
        return;
    placement.horizontalAnchor = document::HorizontalAnchor::Column;
    placement.x = placement.x - emuFromPoints(column.left);
}

} // namespace

document::Figure floatingFigure(const Figure& source, int page) {
    document::Picture picture = pictureOf(source, page);
    document::Figure figure;
    figure.origin = picture.origin;
    // A picture is placed as it stands before it is turned, about its middle.
    const Emu left = emuFromPoints(source.box.centerX()), top = emuFromPoints(source.box.centerY());
    figure.placement.x = Emu(left.value - picture.width.value / 2);
    figure.placement.y = Emu(top.value - picture.height.value / 2);
    figure.placement.zOrder = static_cast<int>(source.paintOrder);
    if (source.drawing) {
        figure.content = *source.drawing;
        std::get<document::Drawing>(figure.content).alternateText = source.alternateText;
    } else {
        figure.content = std::move(picture);
    }
    return figure;
}

AssembledBlock assembleFigure(const FigureDraft& draft, const DraftBlock& place, const AssemblyContext& context) {
    const int page = context.draft.pages[place.page].number;
    const std::optional<document::LinkTarget> link = linkOf(draft.figure, place.page, context);
    const bool isDrawn = draft.figure.drawing || !place.labels.empty();
    AssembledBlock assembled;
    assembled.labels = assembleBlocks(place.labels, context);
    if (draft.isInline && !isDrawn) {
        document::Picture picture = pictureOf(draft.figure, page);
        picture.link = link;
        assembled.block = paragraphWith(std::move(picture), place, context);
        return assembled;
    }
    document::Figure figure = floatingFigure(draft.figure, page);
    if (auto* picture = std::get_if<document::Picture>(&figure.content))
        picture->link = link;
    if (draft.isInline) {
        assembled.block = paragraphUnder(draft.figure, page, context);
        hangOnParagraph(figure, columnOf(place, context.draft), draft.figure.box);
        assembled.floats.push_back({std::move(figure)});
        return assembled;
    }
    if (draft.figure.isForeground || draft.isOverlaid)
        figure.placement.wrapping = document::Wrapping::None;
    else if (draft.figure.isBackground)
        figure.placement.wrapping = document::Wrapping::BehindText;
    if (context.document.isRightToLeft)
        nameSide(figure.placement, columnOf(place, context.draft), draft.figure.box,
                 context.parameters.figures.alignmentTolerance);
    assembled.block = {std::move(figure)};
    return assembled;
}

} // namespace orvane::layout
