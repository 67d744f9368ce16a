#include "pdf/PageDump.h"

#include "pdf/TextString.h"

#include <cmath>

#include <fmt/format.h>

namespace orvane::pdf {
namespace {

const char* nameOf(Visibility visibility) {
    switch (visibility) {
    case Visibility::Visible:
        return "";
    case Visibility::Invisible:
        return " invisible";
    case Visibility::OffPage:
        return " off-page";
    case Visibility::ClippedAway:
        return " clipped-away";
    case Visibility::HiddenLayer:
        return " hidden-layer";
    case Visibility::Replaced:
        return " replaced";
    }
    return "";
}

const char* nameOf(AnnotationKind kind) {
    switch (kind) {
    case AnnotationKind::Text:
        return "text";
    case AnnotationKind::FreeText:
        return "free-text";
    case AnnotationKind::Highlight:
        return "highlight";
    case AnnotationKind::Underline:
        return "underline";
    case AnnotationKind::StrikeOut:
        return "strike-out";
    case AnnotationKind::Squiggly:
        return "squiggly";
    case AnnotationKind::Stamp:
        return "stamp";
    case AnnotationKind::Ink:
        return "ink";
    case AnnotationKind::Shape:
        return "shape";
    case AnnotationKind::FileAttachment:
        return "file-attachment";
    case AnnotationKind::Other:
        break;
    }
    return "other";
}

const char* nameOf(FieldKind kind) {
    switch (kind) {
    case FieldKind::Text:
        return "text";
    case FieldKind::CheckBox:
        return "check-box";
    case FieldKind::RadioButton:
        return "radio-button";
    case FieldKind::ComboBox:
        return "combo-box";
    case FieldKind::ListBox:
        return "list-box";
    case FieldKind::PushButton:
        return "push-button";
    case FieldKind::Signature:
        break;
    }
    return "signature";
}

std::string textOf(const Rect& box) {
    return fmt::format("[{:.1f} {:.1f} {:.1f} {:.1f}]", box.left, box.top, box.right, box.bottom);
}

std::string markOf(std::int32_t mark) {
    return mark < 0 ? std::string() : fmt::format(" mark {}", mark);
}

void dumpFont(std::string& out, std::size_t index, const Font& font) {
    out += fmt::format("font {} {} weight {}{}{}{}{}{}{}{} ascent {:.3f} descent {:.3f} space {:.3f}\n", index,
                       font.name, font.weight, font.isBold ? " bold" : "", font.isItalic ? " italic" : "",
                       font.isFixedPitch ? " fixed" : "", font.isSerif ? " serif" : "",
                       font.isVertical ? " vertical" : "", font.isEmbedded ? " embedded" : "",
                       font.isType3 ? " type3" : "", font.ascent, font.descent, font.spaceWidth);
}

void dumpMark(std::string& out, std::size_t index, const Mark& mark) {
    out += fmt::format("mark {} {}", index, mark.tag);
    if (mark.mcid >= 0)
        out += fmt::format(" mcid {}", mark.mcid);
    if (mark.parent >= 0)
        out += fmt::format(" in {}", mark.parent);
    if (!mark.actualText.empty())
        out += fmt::format(" actual \"{}\"", mark.actualText);
    if (!mark.alternateText.empty())
        out += fmt::format(" alternate \"{}\"", mark.alternateText);
    if (!mark.language.empty())
        out += fmt::format(" language {}", mark.language);
    out += mark.isArtifact ? " artifact\n" : "\n";
}

bool isOfOneLook(const Glyph& a, const Glyph& b) {
    return a.font == b.font && a.color == b.color && a.edge == b.edge && a.isOutlined == b.isOutlined &&
           a.isFakeBold == b.isFakeBold && a.isUnicodeGuessed == b.isUnicodeGuessed && a.visibility == b.visibility &&
           a.mark == b.mark && std::abs(a.fontSize - b.fontSize) < 0.01 && std::abs(a.angle - b.angle) < 0.01 &&
           std::abs(a.horizontalScale - b.horizontalScale) < 0.001;
}

bool isOnOneBaseline(const Glyph& a, const Glyph& b) {
    const double radians = a.angle / 180 * 3.14159265358979;
    const double dx = b.origin.x - a.origin.x;
    const double dy = b.origin.y - a.origin.y;
    return std::abs(dy * std::cos(radians) - dx * std::sin(radians)) < 0.01 * std::max(1.0, a.fontSize);
}

/// One line a run of glyphs of one look on one baseline.
void dumpGlyphs(std::string& out, const std::vector<Glyph>& glyphs) {
    for (std::size_t first = 0; first < glyphs.size();) {
        std::u32string text;
        Rect box;
        std::size_t next = first;
        while (next < glyphs.size() && isOfOneLook(glyphs[first], glyphs[next]) &&
               isOnOneBaseline(glyphs[first], glyphs[next])) {
            text += glyphs[next].unicode.empty() ? std::u32string(1, U'\uFFFD') : glyphs[next].unicode;
            box = box.united(glyphs[next].box);
            ++next;
        }
        const Glyph& glyph = glyphs[first];
        out += fmt::format("text \"{}\" at {:.2f},{:.2f} size {:.2f} font {} {}", toUtf8(text), glyph.origin.x,
                           glyph.origin.y, glyph.fontSize, glyph.font, textOf(box));
        if (std::abs(glyph.horizontalScale - 1) > 0.001)
            out += fmt::format(" scale {:.3f}", glyph.horizontalScale);
        if (glyph.angle != 0)
            out += fmt::format(" angle {:.1f}", glyph.angle);
        if (glyph.color != kBlack)
            out += fmt::format(" #{}", toHex(glyph.color));
        if (glyph.edge)
            out += fmt::format(" edge #{}", toHex(*glyph.edge));
        out += fmt::format("{}{}{}{}{}\n", glyph.isOutlined ? " outlined" : "", glyph.isFakeBold ? " fake-bold" : "",
                           glyph.isUnicodeGuessed ? " guessed" : "", nameOf(glyph.visibility), markOf(glyph.mark));
        first = next;
    }
}

std::string textOf(const PathSegment& segment) {
    switch (segment.verb) {
    case PathVerb::Move:
        return fmt::format("M {:.1f},{:.1f}", segment.to.x, segment.to.y);
    case PathVerb::Line:
        return fmt::format("L {:.1f},{:.1f}", segment.to.x, segment.to.y);
    case PathVerb::Curve:
        return fmt::format("C {:.1f},{:.1f} {:.1f},{:.1f} {:.1f},{:.1f}", segment.control1.x, segment.control1.y,
                           segment.control2.x, segment.control2.y, segment.to.x, segment.to.y);
    case PathVerb::Close:
        break;
    }
    return "Z";
}

void dumpPath(std::string& out, const Path& path) {
    constexpr std::size_t kMostSegments = 12;
    out += fmt::format("path {}", textOf(path.box));
    if (path.fill)
        out += fmt::format(" fill #{}{}{}{}", toHex(path.fill->color), path.fill->isEvenOdd ? " even-odd" : "",
                           path.fill->isPattern ? " pattern" : "",
                           path.fill->opacity < 1 ? fmt::format(" opacity {:.2f}", path.fill->opacity) : "");
    if (path.stroke) {
        out += fmt::format(" stroke #{} width {:.2f}", toHex(path.stroke->color), path.stroke->width);
        for (const double length : path.stroke->dash)
            out += fmt::format(" dash {:.1f}", length);
        if (path.stroke->opacity < 1)
            out += fmt::format(" opacity {:.2f}", path.stroke->opacity);
    }
    out += fmt::format("{}{}:", nameOf(path.visibility), markOf(path.mark));
    for (std::size_t i = 0; i < path.segments.size() && i < kMostSegments; ++i)
        out += fmt::format(" {}", textOf(path.segments[i]));
    if (path.segments.size() > kMostSegments)
        out += fmt::format(" and {} more", path.segments.size() - kMostSegments);
    out += "\n";
}

void dumpPicture(std::string& out, const Picture& picture) {
    out += fmt::format("picture {} {}x{} id {} object {}", textOf(picture.box), picture.pixelWidth, picture.pixelHeight,
                       picture.id.value, picture.objectNumber);
    if (picture.matrix.b != 0 || picture.matrix.c != 0 || picture.matrix.a < 0 || picture.matrix.d < 0)
        out += fmt::format(" matrix [{:.2f} {:.2f} {:.2f} {:.2f}]", picture.matrix.a, picture.matrix.b,
                           picture.matrix.c, picture.matrix.d);
    if (!picture.clip.contains(picture.box))
        out += fmt::format(" clip {}", textOf(picture.clip));
    if (picture.opacity < 1)
        out += fmt::format(" opacity {:.2f}", picture.opacity);
    out +=
        fmt::format("{}{}{}\n", picture.isStencil ? " stencil" : "", nameOf(picture.visibility), markOf(picture.mark));
}

void dumpLink(std::string& out, const Link& link) {
    out += "link";
    for (const Rect& box : link.boxes)
        out += fmt::format(" {}", textOf(box));
    if (!link.uri.empty())
        out += fmt::format(" {}", link.uri);
    if (link.destination) {
        out += fmt::format(" page {}", link.destination->page);
        if (link.destination->top)
            out += fmt::format(" top {:.1f}", *link.destination->top);
    }
    out += "\n";
}

void dumpField(std::string& out, const FormField& field) {
    out +=
        fmt::format("field {} {} \"{}\" value \"{}\"", nameOf(field.kind), textOf(field.box), field.name, field.value);
    for (const std::string& choice : field.choices)
        out += fmt::format(" choice \"{}\"", choice);
    out += fmt::format("{}{}{}\n", field.isOn ? " on" : "", field.isMultiline ? " multiline" : "",
                       field.isReadOnly ? " read-only" : "");
}

} // namespace

std::string dumpPage(const PageContent& page) {
    std::string out =
        fmt::format("page {} {:.1f}x{:.1f} rotation {}\n", page.number, page.width, page.height, page.rotation);
    for (std::size_t i = 0; i < page.fonts.size(); ++i)
        dumpFont(out, i, page.fonts[i]);
    for (std::size_t i = 0; i < page.marks.size(); ++i)
        dumpMark(out, i, page.marks[i]);
    dumpGlyphs(out, page.glyphs);
    for (const Path& path : page.paths)
        dumpPath(out, path);
    for (const Picture& picture : page.pictures)
        dumpPicture(out, picture);
    for (const Link& link : page.links)
        dumpLink(out, link);
    for (const Annotation& annotation : page.annotations)
        out += fmt::format("annotation {} {} \"{}\" by \"{}\" {}\n", nameOf(annotation.kind), textOf(annotation.box),
                           annotation.contents, annotation.author, annotation.date);
    for (const FormField& field : page.fields)
        dumpField(out, field);
    return out;
}

} // namespace orvane::pdf
