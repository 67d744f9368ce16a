#include "pdf/LetterForm.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include FT_OUTLINE_H

namespace orvane::pdf {
namespace {

/// Letters whose stems run straight down to the baseline. Of small letters only those without an arch at its foot.
constexpr std::u32string_view kStemLetters = U"HIFTfhilmnr";

// Heights above the baseline, in em, at which letters are cut: through the feet, above them, below the small letters'
// arches.
constexpr double kFeet = 0.012;
constexpr double kAnkles = 0.12;
constexpr double kStems = 0.27;
constexpr double kFootWidth = 1.5; ///< of the stems' ink; feet this wide have serifs
constexpr int kCurveParts = 8;     ///< straight pieces that a curve is cut into

struct Piece {
    double x0, y0, x1, y1; ///< em
};

/// Collects an outline as straight pieces.
struct Tracer {
    std::vector<Piece> pieces;
    double unit = 1; ///< em of a font unit
    double x = 0, y = 0;

    void lineTo(double toX, double toY) {
        pieces.push_back({x, y, toX, toY});
        x = toX;
        y = toY;
    }
};

Tracer& tracer(void* user) {
    return *static_cast<Tracer*>(user);
}
int moveTo(const FT_Vector* to, void* user) {
    Tracer& trace = tracer(user);
    trace.x = static_cast<double>(to->x) * trace.unit;
    trace.y = static_cast<double>(to->y) * trace.unit;
    return 0;
}
int lineTo(const FT_Vector* to, void* user) {
    Tracer& trace = tracer(user);
    trace.lineTo(static_cast<double>(to->x) * trace.unit, static_cast<double>(to->y) * trace.unit);
    return 0;
}
int cubicTo(const FT_Vector* one, const FT_Vector* two, const FT_Vector* to, void* user) {
    Tracer& trace = tracer(user);
    const double x0 = trace.x, y0 = trace.y;
    const auto along = [](double a, double b, double c, double d, double t) {
        const double u = 1 - t;
        return u * u * u * a + 3 * u * u * t * b + 3 * u * t * t * c + t * t * t * d;
    };
    const auto em = [&](FT_Pos value) { return static_cast<double>(value) * trace.unit; };
    for (int i = 1; i <= kCurveParts; ++i) {
        const double t = static_cast<double>(i) / kCurveParts;
        trace.lineTo(along(x0, em(one->x), em(two->x), em(to->x), t), along(y0, em(one->y), em(two->y), em(to->y), t));
    }
    return 0;
}
int conicTo(const FT_Vector* one, const FT_Vector* to, void* user) {
    Tracer& trace = tracer(user);
    // Source: a quadratic curve as a cubic one has its inner points two thirds of the way to the quadratic's.
    const auto inner = [&](double from, FT_Pos control) {
        return static_cast<FT_Pos>((from / trace.unit + 2.0 * static_cast<double>(control)) / 3);
    };
    const FT_Vector first{inner(trace.x, one->x), inner(trace.y, one->y)};
    const FT_Vector second{(to->x + 2 * one->x) / 3, (to->y + 2 * one->y) / 3};
    return cubicTo(&first, &second, to, user);
}

/// What a cut through a letter shows.
struct Cut {
    double ink = 0;    ///< em
    double center = 0; ///< of the ink, em
    int stems = 0;
};

Cut cutAt(const std::vector<Piece>& pieces, double height) {
    std::vector<std::pair<double, int>> crossings;
    for (const Piece& piece : pieces) {
        if ((piece.y0 <= height) == (piece.y1 <= height))
            continue;
        const double t = (height - piece.y0) / (piece.y1 - piece.y0);
        crossings.emplace_back(piece.x0 + t * (piece.x1 - piece.x0), piece.y0 < piece.y1 ? 1 : -1);
    }
    std::sort(crossings.begin(), crossings.end());
    Cut cut;
    int winding = 0;
    double moment = 0;
    for (std::size_t i = 0; i + 1 < crossings.size(); ++i) {
        winding += crossings[i].second;
        if (winding == 0)
            continue;
        const double width = crossings[i + 1].first - crossings[i].first;
        cut.ink += width;
        moment += width * (crossings[i + 1].first + crossings[i].first) / 2;
        cut.stems += winding + crossings[i + 1].second == 0 ? 1 : 0;
    }
    cut.center = cut.ink > 0 ? moment / cut.ink : 0;
    return cut;
}

std::vector<Piece> outlineOf(FT_Face face, FT_UInt glyph) {
    if (FT_Load_Glyph(face, glyph, FT_LOAD_NO_SCALE | FT_LOAD_IGNORE_TRANSFORM) != 0 ||
        face->glyph->format != FT_GLYPH_FORMAT_OUTLINE || face->units_per_EM == 0)
        return {};
    Tracer trace;
    trace.unit = 1.0 / face->units_per_EM;
    FT_Outline_Funcs functions{};
    functions.move_to = moveTo;
    functions.line_to = lineTo;
    functions.conic_to = conicTo;
    functions.cubic_to = cubicTo;
    FT_Outline_Decompose(&face->glyph->outline, &functions, &trace);
    return trace.pieces;
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

std::optional<LetterForm> letterFormOf(const FontProgram& program) {
    std::vector<double> stems, slants;
    std::size_t withFeet = 0;
    for (const auto& [glyph, text] : program.glyphTexts()) {
        if (text.size() != 1 || kStemLetters.find(text[0]) == std::u32string_view::npos)
            continue;
        const std::vector<Piece> outline = outlineOf(program.face(), glyph);
        const Cut feet = cutAt(outline, kFeet), ankles = cutAt(outline, kAnkles), above = cutAt(outline, kStems);
        if (ankles.stems == 0 || above.stems != ankles.stems)
            continue;
        stems.push_back(above.ink / above.stems);
        slants.push_back((above.center - ankles.center) / (kStems - kAnkles));
        withFeet += feet.ink > kFootWidth * above.ink ? 1 : 0;
    }
    if (stems.empty())
        return std::nullopt;
    // Italics have no feet on some letters.
    return LetterForm{withFeet * 3 >= stems.size(), median(stems), median(slants)};
}

} // namespace orvane::pdf
