#include "pdf/MathFontName.h"

#include <gtest/gtest.h>

namespace orvane::pdf {
namespace {

TEST(MathFontName, KnowsFontsThatWereMadeForFormulas) {
    for (const char* name : {"CMMI10", "CMSY7", "CMEX10", "CMMIB10", "MSBM10", "EUFM10", "PazoMath-Italic",
                             "CambriaMath", "LMMathItalic10-Regular", "STIXTwoMath-Regular", "latinmodern-math",
                             "MathJax_Main", "MathematicalPi-One", "txsys", "MTMI", "MnSymbol10"})
        EXPECT_TRUE(isMathFontName(name)) << name;
}

TEST(MathFontName, KnowsThatTextsUseTheOthers) {
    for (const char* name : {"CMR10", "CMTI10", "CMBX12", "Symbol", "SymbolMT", "OpenSymbol", "Mathilde", "Cambria",
                             "TimesNewRoman", "MyriadPro-Regular", ""})
        EXPECT_FALSE(isMathFontName(name)) << name;
}

} // namespace
} // namespace orvane::pdf
