#include "pdf/FontName.h"

#include <gtest/gtest.h>

namespace orvane::pdf {
namespace {

TEST(FontName, TellsTheStyleByWholeWords) {
    struct Row {
        const char* name;
        int weight; ///< 0 when the name does not tell
        bool isItalic;
    };
    const Row rows[] = {
        {"Arial", 0, false},
        {"Arial-BoldMT", 700, false},
        {"Arial,BoldItalic", 700, true},
        {"TimesNewRomanPS-BoldItalicMT", 700, true},
        {"TimesNewRomanPSMT", 0, false},
        {"Helvetica-Oblique", 0, true},
        {"MyriadPro-SemiboldIt", 600, true},
        {"OpenSans-ExtraBold", 800, false},
        {"Inter-SemiBold", 600, false},
        {"Lato-Light", 300, false},
        {"Lato-Black", 900, false},
        {"Roboto-Medium", 500, false},
        {"Boldini", 0, false},
        {"Italia", 0, false},
        {"Blackadder", 0, false},
        {"CMBX10", 700, false},
        {"NimbusRomNo9L-MediItal", 700, true},
        {"FuturaHv", 800, false},
        {"FuturaBk", 400, false},
        {"HvBodoni", 0, false},
        {"CMTI8", 0, true},
        {"CMR10", 0, false},
        {"SFBX1200", 700, false},
    };
    for (const Row& row : rows) {
        const FontNameStyle style = styleFromFontName(row.name);
        EXPECT_EQ(style.weight.value_or(0), row.weight) << row.name;
        EXPECT_EQ(style.isItalic, row.isItalic) << row.name;
    }
}

TEST(FontName, LosesItsSubsetPrefix) {
    EXPECT_EQ(withoutSubsetPrefix("ABCDEF+Arial"), "Arial");
    EXPECT_EQ(withoutSubsetPrefix("ABCDEF+GHIJKL+Arial"), "Arial");
    EXPECT_EQ(withoutSubsetPrefix("Abcdef+Arial"), "Abcdef+Arial");
    EXPECT_EQ(withoutSubsetPrefix("C+Arial"), "C+Arial");
    EXPECT_EQ(withoutSubsetPrefix("ABCDEF+"), "ABCDEF+");
}

} // namespace
} // namespace orvane::pdf
