#include "layout/inspect/SvgCanvas.h"

#include <fmt/format.h>

namespace orvane::layout {
namespace {

std::string escaped(std::string_view text) {
    std::string out;
    for (const char c : text) {
        switch (c) {
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        case '&':
            out += "&amp;";
            break;
        default:
            // Control characters may not stand in XML at all.
            out += static_cast<unsigned char>(c) < 0x20 ? ' ' : c;
        }
    }
    return out;
}

} // namespace

SvgCanvas::SvgCanvas(double width, double height)
    : m_width(width)
    , m_height(height) {}

void SvgCanvas::box(const Rect& box, std::string_view color, double tint, double strokeWidth) {
    m_body += fmt::format(
        "<rect x=\"{:.2f}\" y=\"{:.2f}\" width=\"{:.2f}\" height=\"{:.2f}\" fill=\"{}\" fill-opacity=\"{:.2f}\" "
        "stroke=\"{}\" stroke-width=\"{:.2f}\"/>\n",
        box.left, box.top, std::max(0.0, box.width()), std::max(0.0, box.height()), color, tint, color, strokeWidth);
}

void SvgCanvas::line(Point from, Point to, std::string_view color, double width) {
    m_body +=
        fmt::format("<path d=\"M{:.2f} {:.2f}L{:.2f} {:.2f}\" stroke=\"{}\" stroke-width=\"{:.2f}\" fill=\"none\"/>\n",
                    from.x, from.y, to.x, to.y, color, width);
}

void SvgCanvas::label(Point at, std::string_view text, std::string_view color) {
    const double size = 6;
    m_body += fmt::format("<rect x=\"{:.2f}\" y=\"{:.2f}\" width=\"{:.2f}\" height=\"{:.2f}\" fill=\"white\" "
                          "fill-opacity=\"0.8\"/>\n",
                          at.x, at.y, 0.6 * size * static_cast<double>(text.size()), 1.1 * size);
    m_body += fmt::format(
        "<text x=\"{:.2f}\" y=\"{:.2f}\" font-size=\"{}\" font-family=\"monospace\" fill=\"{}\">{}</text>\n", at.x,
        at.y + 0.9 * size, size, color, escaped(text));
}

void SvgCanvas::text(const Rect& box, double baseline, double size, double angle, std::string_view text) {
    if (box.isEmpty() || text.empty())
        return;
    const bool isLevel = angle == 0;
    const Point at = isLevel ? Point{box.left, baseline} : Point{box.left, box.bottom};
    m_body += fmt::format("<text x=\"{:.2f}\" y=\"{:.2f}\" font-size=\"{:.2f}\" fill=\"#777\"", at.x, at.y, size);
    if (isLevel)
        m_body += fmt::format(" textLength=\"{:.2f}\" lengthAdjust=\"spacingAndGlyphs\"", box.width());
    else
        m_body += fmt::format(" transform=\"rotate({:.1f} {:.2f} {:.2f})\"", angle, at.x, at.y);
    m_body += fmt::format(">{}</text>\n", escaped(text));
}

std::string SvgCanvas::finish() const {
    return fmt::format(
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"{0:.2f}pt\" height=\"{1:.2f}pt\" "
        "viewBox=\"0 0 {0:.2f} {1:.2f}\">\n<rect width=\"100%\" height=\"100%\" fill=\"white\"/>\n{2}</svg>\n",
        m_width, m_height, m_body);
}

} // namespace orvane::layout
