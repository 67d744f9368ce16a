#pragma once

#include "layout/fonts/FontMapper.h"
#include "layout/fonts/FontParameters.h"
#include "layout/text/PageText.h"
#include "pdf/FontRequest.h"

#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

namespace orvane::layout {

/// A face that travels with the document.
struct CarriedFont {
    pdf::FontRequest request;
    std::string program; ///< a TrueType file of what was asked for
};

/// The faces that a document should bring along, if its makers allow it: those in the file whose family not every word
/// processor has, itself or as a twin of the same widths. Scripts whose letters take the shape of their neighbours stay
/// at home, for the file has shapes, not the rules for them; so do faces that lack some of the text's characters.
std::vector<pdf::FontRequest> fontsToCarry(const std::vector<PageText>& pages, const FontParameters& parameters);

/// Knows which fonts of the pages are carried.
class CarriedFonts {
public:
    CarriedFonts() = default;
    explicit CarriedFonts(const std::vector<CarriedFont>& fonts);

    /// Makes `mapped`, which is that of `font`, the carried one; leaves those alone that are not.
    void apply(const pdf::Font& font, MappedFont& mapped) const;

private:
    struct Face {
        std::string family;
        double ascent = 0;
        double descent = 0;
        std::shared_ptr<const std::map<char32_t, double>> advances;
    };
    std::map<std::tuple<int, bool, bool>, Face> m_faces; ///< by number of the font's object, weight, slant
};

} // namespace orvane::layout
