#pragma once

#include "base/Utf8.h"
#include "pdf/PageContent.h"

#include <cmath>
#include <optional>
#include <string>
#include <string_view>

/// Pages as a PDF's reader would hand them over, made by hand.
namespace orvane::pdf::tests {

/// How blanks come about in a made text.
enum class Blanks { Painted, Skipped };

struct TextOptions {
    std::uint32_t font = 0;
    Color color = kBlack;
    double angle = 0;            ///< degrees clockwise
    double characterSpacing = 0; ///< points, after every character
    double wordSpacing = 0;      ///< points, after every blank
    Blanks blanks = Blanks::Painted;
    Visibility visibility = Visibility::Visible;
    int mark = -1;
    std::optional<Color> edge{};
};

/// Makes a page. Advances are those of a plain proportional face, near enough to tell narrow letters from broad ones.
class PageContentBuilder {
public:
    explicit PageContentBuilder(double width = 595, double height = 842) {
        m_page.number = 1;
        m_page.width = width;
        m_page.height = height;
        Font plain;
        plain.name = "Plain";
        font(std::move(plain));
    }

    std::uint32_t font(Font font) {
        m_page.fonts.push_back(std::move(font));
        return static_cast<std::uint32_t>(m_page.fonts.size() - 1);
    }

    int mark(Mark mark) {
        m_page.marks.push_back(std::move(mark));
        return static_cast<int>(m_page.marks.size() - 1);
    }

    /// Sets `text` (UTF-8) from (x, y) on, y being the baseline; returns where the next character would begin, along
    /// the baseline.
    double text(double x, double y, std::string_view text, double size, const TextOptions& options = {}) {
        double along = 0;
        for (const char32_t c : utf32FromUtf8(text)) {
            const double advance = advanceOf(c) * size;
            if (c != U' ' || options.blanks == Blanks::Painted)
                glyph(x, y, along, std::u32string{c}, advance, size, options);
            along += advance + options.characterSpacing + (c == U' ' ? options.wordSpacing : 0);
        }
        return options.angle == 0 ? x + along : along;
    }

    /// One glyph that says `unicode`, `advance` points wide.
    void glyph(double x, double y, std::u32string unicode, double advance, double size,
               const TextOptions& options = {}) {
        glyph(x, y, 0, std::move(unicode), advance, size, options);
    }

    /// Where a text of this size set from x on would end.
    static double widthOf(std::string_view text, double size) {
        double width = 0;
        for (const char32_t c : utf32FromUtf8(text))
            width += advanceOf(c) * size;
        return width;
    }

    void line(Point from, Point to, double width = 0.5, Color color = kBlack, std::vector<double> dash = {}) {
        Path& path = newPath();
        path.segments = {{PathVerb::Move, {}, {}, from}, {PathVerb::Line, {}, {}, to}};
        path.stroke = StrokeStyle{color, width, std::move(dash), 1};
        path.box = {std::min(from.x, to.x), std::min(from.y, to.y), std::max(from.x, to.x), std::max(from.y, to.y)};
    }
    void horizontalRule(double left, double right, double y, double width = 0.5) { line({left, y}, {right, y}, width); }
    void verticalRule(double x, double top, double bottom, double width = 0.5) { line({x, top}, {x, bottom}, width); }

    void filledRectangle(const Rect& box, Color color) {
        rectangle(box).fill = FillStyle{color, false, false, 1, nullptr};
    }
    void strokedRectangle(const Rect& box, double width = 0.5) {
        rectangle(box).stroke = StrokeStyle{kBlack, width, {}, 1};
    }

    /// The paint order of what comes next.
    std::uint32_t paintOrder() const { return m_paintOrder; }

    /// Makes an annotation of what was painted from `paintedFrom` on.
    void annotation(AnnotationKind kind, std::uint32_t paintedFrom, std::string contents = {}) {
        Annotation& annotation = m_page.annotations.emplace_back();
        annotation.kind = kind;
        annotation.contents = std::move(contents);
        annotation.number = m_page.annotations.size() - 1;
        annotation.paintedFrom = paintedFrom;
        annotation.paintedTo = m_paintOrder;
    }

    /// A filled disk of four curves.
    void disk(Point center, double radius, Color color = kBlack) {
        constexpr double kBend = 0.5523; // control points of a quarter circle
        const auto at = [&](double dx, double dy) { return Point{center.x + dx * radius, center.y + dy * radius}; };
        Path& path = newPath();
        path.segments = {{PathVerb::Move, {}, {}, at(1, 0)},
                         {PathVerb::Curve, at(1, kBend), at(kBend, 1), at(0, 1)},
                         {PathVerb::Curve, at(-kBend, 1), at(-1, kBend), at(-1, 0)},
                         {PathVerb::Curve, at(-1, -kBend), at(-kBend, -1), at(0, -1)},
                         {PathVerb::Curve, at(kBend, -1), at(1, -kBend), at(1, 0)},
                         {PathVerb::Close, {}, {}, {}}};
        path.fill = FillStyle{color, false, false, 1, nullptr};
        path.box = {center.x - radius, center.y - radius, center.x + radius, center.y + radius};
    }

    Path& newPath() {
        Path& path = m_page.paths.emplace_back();
        path.clip = pageBox();
        path.paintOrder = m_paintOrder++;
        return path;
    }

    Picture& picture(const Rect& box) {
        Picture& picture = m_page.pictures.emplace_back();
        picture.matrix = {box.width(), 0, 0, box.height(), box.left, box.top};
        picture.box = box;
        picture.clip = pageBox();
        picture.id = PictureId{static_cast<std::uint32_t>(m_page.pictures.size())};
        picture.pixelWidth = static_cast<int>(box.width());
        picture.pixelHeight = static_cast<int>(box.height());
        picture.paintOrder = m_paintOrder++;
        return picture;
    }

    void link(const Rect& box, std::string uri) { m_page.links.push_back({{box}, std::move(uri), {}}); }

    PageContent& content() { return m_page; }
    const PageContent& content() const { return m_page; }

private:
    static double advanceOf(char32_t c) {
        static constexpr std::string_view kNarrow = "iljtf.,;:'!|()[]I ";
        static constexpr std::string_view kBroad = "mwMW@%";
        if (c >= 0x2E80 && c != 0xFEFF)
            return c >= 0xFB00 && c < 0xFF00 ? 0.5 : 1.0;
        if ((c >= 0x300 && c < 0x370) || (c >= 0x64B && c <= 0x652))
            return 0;
        if (c < 0x80 && kNarrow.find(static_cast<char>(c)) != std::string_view::npos)
            return c == U' ' ? 0.25 : 0.28;
        return c < 0x80 && kBroad.find(static_cast<char>(c)) != std::string_view::npos ? 0.85 : 0.55;
    }

    Rect pageBox() const { return {0, 0, m_page.width, m_page.height}; }

    Path& rectangle(const Rect& box) {
        Path& path = newPath();
        path.segments = {{PathVerb::Move, {}, {}, {box.left, box.top}},
                         {PathVerb::Line, {}, {}, {box.right, box.top}},
                         {PathVerb::Line, {}, {}, {box.right, box.bottom}},
                         {PathVerb::Line, {}, {}, {box.left, box.bottom}},
                         {PathVerb::Close, {}, {}, {}}};
        path.box = box;
        return path;
    }

    void glyph(double x, double y, double along, std::u32string unicode, double advance, double size,
               const TextOptions& options) {
        const double radians = options.angle * 3.14159265358979323846 / 180;
        const double cosine = std::cos(radians), sine = std::sin(radians);
        const Font& font = m_page.fonts[options.font];
        Glyph& glyph = m_page.glyphs.emplace_back();
        glyph.charCode = unicode.empty() ? 1 : static_cast<std::uint32_t>(unicode.front());
        glyph.unicode = std::move(unicode);
        glyph.origin = {x + along * cosine, y + along * sine};
        glyph.advance = advance;
        glyph.fontSize = size;
        glyph.angle = options.angle;
        glyph.font = options.font;
        glyph.color = options.color;
        glyph.visibility = options.visibility;
        glyph.mark = options.mark;
        glyph.edge = options.edge;
        glyph.paintOrder = m_paintOrder++;
        const Matrix toPage{cosine, sine, -sine, cosine, glyph.origin.x, glyph.origin.y};
        glyph.box = toPage.applyToBox({0, -font.ascent * size, advance, font.descent * size});
    }

    PageContent m_page;
    std::uint32_t m_paintOrder = 0;
};

} // namespace orvane::pdf::tests
