#include "pdf/TrueTypeGlyph.h"

#include "pdf/BigEndian.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include FT_OUTLINE_H

namespace orvane::pdf {
namespace {

constexpr double kCurveError = 0.5;  ///< units; how far a curve may be off the one it stands for
constexpr int kMostPieces = 16;      ///< quadratic curves that one cubic is cut into
constexpr int kFarthest = 16000;     ///< units; coordinates and their differences have 16 bits
constexpr std::size_t kMost = 32000; ///< points; likewise

struct OutlinePoint {
    int x = 0;
    int y = 0;
    bool isOnCurve = true;

    bool isAt(const OutlinePoint& other) const { return x == other.x && y == other.y; }
};
using Contour = std::vector<OutlinePoint>;

struct Position {
    double x = 0;
    double y = 0;
};

Position between(Position a, Position b, double share) {
    return {a.x + (b.x - a.x) * share, a.y + (b.y - a.y) * share};
}

/// Collects an outline as contours of points on quadratic curves.
class ContourCollector {
public:
    explicit ContourCollector(double scale)
        : m_scale(scale) {}

    void moveTo(const FT_Vector& to) {
        m_contours.emplace_back();
        add(scaled(to), true);
    }
    void lineTo(const FT_Vector& to) { add(scaled(to), true); }
    void conicTo(const FT_Vector& control, const FT_Vector& to) {
        add(scaled(control), false);
        add(scaled(to), true);
    }
    /// Cuts the cubic into pieces short enough that a quadratic with the same tangents stands for each.
    void cubicTo(const FT_Vector& one, const FT_Vector& two, const FT_Vector& to) {
        Position a = m_pen, b = scaled(one), c = scaled(two);
        const Position d = scaled(to);
        // Source: the farthest distance between a cubic and the quadratic nearest to it is this share of its third
        // difference, and falls with the third power of the number of pieces.
        const double difference = std::hypot(d.x - 3 * c.x + 3 * b.x - a.x, d.y - 3 * c.y + 3 * b.y - a.y);
        const double error = difference * std::sqrt(3.0) / 36;
        const int pieces = std::clamp(static_cast<int>(std::ceil(std::cbrt(error / kCurveError))), 1, kMostPieces);
        for (int left = pieces; left > 0; --left) {
            const double share = 1.0 / left;
            const Position ab = between(a, b, share), bc = between(b, c, share), cd = between(c, d, share);
            const Position abc = between(ab, bc, share), bcd = between(bc, cd, share);
            const Position end = between(abc, bcd, share);
            add({(3 * (ab.x + abc.x) - a.x - end.x) / 4, (3 * (ab.y + abc.y) - a.y - end.y) / 4}, false);
            add(end, true);
            a = end;
            b = bcd;
            c = cd;
        }
    }

    /// Without points that say nothing. `isReversed`: the other way round, as TrueType fills on the right.
    std::vector<Contour> take(bool isReversed) {
        for (Contour& contour : m_contours) {
            while (contour.size() > 1 && contour.back().isOnCurve && contour.back().isAt(contour.front()))
                contour.pop_back();
            if (isReversed) // the first point stays where it is, as it is one on the curve
                std::reverse(contour.begin() + 1, contour.end());
        }
        std::erase_if(m_contours, [](const Contour& contour) { return contour.size() < 3; });
        return std::move(m_contours);
    }

private:
    Position scaled(const FT_Vector& point) const {
        return {static_cast<double>(point.x) * m_scale, static_cast<double>(point.y) * m_scale};
    }
    void add(Position position, bool isOnCurve) {
        if (m_contours.empty())
            m_contours.emplace_back();
        if (isOnCurve)
            m_pen = position;
        // Out of reach of any glyph that is shown; cut off so that the numbers hold it, and refused later.
        const auto whole = [](double value) {
            return static_cast<int>(std::lround(std::clamp(value, -1.0 - kFarthest, 1.0 + kFarthest)));
        };
        m_contours.back().push_back({whole(position.x), whole(position.y), isOnCurve});
    }

    double m_scale;
    Position m_pen;
    std::vector<Contour> m_contours;
};

ContourCollector& collector(void* user) {
    return *static_cast<ContourCollector*>(user);
}

std::vector<Contour> contoursOf(FT_Outline& outline, double scale) {
    FT_Outline_Funcs functions{};
    functions.move_to = [](const FT_Vector* to, void* user) { return collector(user).moveTo(*to), 0; };
    functions.line_to = [](const FT_Vector* to, void* user) { return collector(user).lineTo(*to), 0; };
    functions.conic_to = [](const FT_Vector* control, const FT_Vector* to, void* user) {
        return collector(user).conicTo(*control, *to), 0;
    };
    functions.cubic_to = [](const FT_Vector* one, const FT_Vector* two, const FT_Vector* to, void* user) {
        return collector(user).cubicTo(*one, *two, *to), 0;
    };
    ContourCollector contours(scale);
    if (FT_Outline_Decompose(&outline, &functions, &contours) != 0)
        return {};
    return contours.take(FT_Outline_Get_Orientation(&outline) == FT_ORIENTATION_POSTSCRIPT);
}

/// The flags of points. Source: OpenType, table "glyf", simple glyphs.
enum PointFlag : unsigned { OnCurve = 0x01, ShortX = 0x02, ShortY = 0x04, SameX = 0x10, SameY = 0x20 };

/// How one coordinate's step is put down; `isShort` and `isSame` are its two flags.
unsigned putStep(BigEndian& bytes, int step, unsigned isShort, unsigned isSame) {
    if (step == 0)
        return isSame;
    if (std::abs(step) > 0xFF) {
        bytes.i16(step);
        return 0;
    }
    bytes.u8(static_cast<unsigned>(std::abs(step)));
    return step > 0 ? isShort | isSame : isShort;
}

TrueTypeGlyph glyphOf(const std::vector<Contour>& contours) {
    TrueTypeGlyph glyph;
    BigEndian ends, flags, xs, ys;
    OutlinePoint last;
    for (const Contour& contour : contours) {
        for (const OutlinePoint& point : contour) {
            glyph.left = glyph.points == 0 ? point.x : std::min(glyph.left, point.x);
            glyph.right = glyph.points == 0 ? point.x : std::max(glyph.right, point.x);
            glyph.bottom = glyph.points == 0 ? point.y : std::min(glyph.bottom, point.y);
            glyph.top = glyph.points == 0 ? point.y : std::max(glyph.top, point.y);
            const unsigned x = putStep(xs, point.x - last.x, ShortX, SameX);
            const unsigned y = putStep(ys, point.y - last.y, ShortY, SameY);
            flags.u8((point.isOnCurve ? OnCurve : 0U) | x | y);
            last = point;
            ++glyph.points;
        }
        ends.u16(glyph.points - 1);
    }
    glyph.contours = static_cast<unsigned>(contours.size());
    if (glyph.points == 0)
        return glyph;
    BigEndian data;
    data.u16(glyph.contours);
    for (const int edge : {glyph.left, glyph.bottom, glyph.right, glyph.top})
        data.i16(edge);
    data.text(ends.bytes());
    data.u16(0); // instructions
    data.text(flags.bytes());
    data.text(xs.bytes());
    data.text(ys.bytes());
    data.zeros(data.size() % 2);
    glyph.data = data.bytes();
    return glyph;
}

bool isWithinReach(const std::vector<Contour>& contours) {
    std::size_t points = 0;
    for (const Contour& contour : contours) {
        points += contour.size();
        for (const OutlinePoint& point : contour)
            if (std::abs(point.x) > kFarthest || std::abs(point.y) > kFarthest)
                return false;
    }
    return points <= kMost;
}

} // namespace

std::optional<TrueTypeGlyph> trueTypeGlyph(const FontProgram& program, std::uint32_t glyph, int unitsPerEm) {
    const FT_Face face = program.face();
    if (!face || face->units_per_EM == 0 || FT_Load_Glyph(face, glyph, FT_LOAD_NO_SCALE) != 0 ||
        face->glyph->format != FT_GLYPH_FORMAT_OUTLINE)
        return std::nullopt;
    const std::vector<Contour> contours =
        contoursOf(face->glyph->outline, static_cast<double>(unitsPerEm) / face->units_per_EM);
    if (!isWithinReach(contours))
        return std::nullopt;
    return glyphOf(contours);
}

} // namespace orvane::pdf
