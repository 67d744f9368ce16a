#include "pdf/LetterForm.h"

#include "pdf/GlyphOutline.h"

#include <algorithm>
#include <string_view>
#include <vector>

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

/// What a cut through a letter shows.
struct Cut {
    double ink = 0;    ///< em
    double center = 0; ///< of the ink, em
    int stems = 0;
};

Cut cutAt(const std::vector<OutlinePiece>& pieces, double height) {
    std::vector<std::pair<double, int>> crossings;
    for (const OutlinePiece& piece : pieces) {
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
        const std::vector<OutlinePiece> outline = outlineOf(program.face(), glyph);
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
