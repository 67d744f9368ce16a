#include "layout/fonts/FontMapper.h"

#include "layout/fonts/FontTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace orvane::layout {
namespace {

std::string familyOf(const char* name, const char* family = "") {
    pdf::Font font;
    font.name = name;
    font.family = family;
    return mapFont(font).family;
}

TEST(FontMapper, FindsFamiliesBehindPostScriptNames) {
    const struct {
        const char* name;
        const char* expected;
        const char* why;
    } cases[] = {
        {"TimesNewRomanPS-BoldMT", "Times New Roman", "maker's suffix and style"},
        {"TimesNewRomanPSMT", "Times New Roman", "suffix only"},
        {"Arial,BoldItalic", "Arial", "style after a comma"},
        {"ABCDEF+Calibri-Light", "Calibri Light", "a weight that is a family of its own"},
        {"Arial-Black", "Arial Black", "likewise"},
        {"Times-Roman", "Times New Roman", "one of the fourteen"},
        {"Helvetica-BoldOblique", "Arial", "one of the fourteen"},
        {"Carlito-Bold", "Calibri", "twin by metrics"},
        {"ArialUnicodeMS", "Arial", "its Latin letters are as wide, and machines have it no more"},
        {"LiberationSerif", "Times New Roman", "twin by metrics"},
        {"NimbusRomNo9L-ReguItal", "Times New Roman", "twin by metrics"},
        {"NotoSansCJKjp-Regular-VKana", "Noto Sans CJK JP", "East Asian, with a variant"},
        {"DejaVuSans-BoldOblique", "DejaVu Sans", "kept"},
        {"CMR10", "Times New Roman", "design size"},
        {"LMMono10-Regular", "Courier New", "design size"},
        {"DavidCLMMedium", "David CLM", "weight written together"},
        {"MS-PGothic", "MS PGothic", "a hyphen within the family"},
        {"MyriadPro-Semibold", "Myriad Pro Semibold", "unknown: its words set apart"},
        {"HelveticaNeueLTStd-Roman", "Arial", "foundry suffix"},
    };
    for (const auto& [name, expected, why] : cases)
        EXPECT_EQ(familyOf(name), expected) << name << ": " << why;
}

TEST(FontMapper, TakesTheDescriptorsFamilyForUnknownNames) {
    EXPECT_EQ(familyOf("TT5E", "Georgia"), "Georgia");
    EXPECT_EQ(familyOf("XyzOne-Bold", "Xyz One by Maker"), "Xyz One by Maker");
}

TEST(FontMapper, ChoosesByKindWhenTheNameSaysNothing) {
    pdf::Font font;
    font.name = "F1";
    EXPECT_EQ(mapFont(font).family, "Arial");
    font.isSerif = true;
    EXPECT_EQ(mapFont(font).family, "Times New Roman");
    font.isFixedPitch = true;
    EXPECT_EQ(mapFont(font).family, "Courier New");
    font.name = "CIDFont+F3";
    EXPECT_EQ(mapFont(font).family, "Courier New");
}

TEST(FontMapper, KnowsHowHighLinesAre) {
    pdf::Font font;
    font.name = "Carlito";
    EXPECT_NEAR(mapFont(font).lineHeight(), 1.2207, 0.001);
    font.name = "Caladea";
    EXPECT_NEAR(mapFont(font).lineHeight(), 1.15, 0.001) << "its lines are lower than those of its twin";
    font.name = "Some-Unknown";
    font.ascent = 1.0;
    font.descent = 0.3;
    EXPECT_NEAR(mapFont(font).lineHeight(), 1.3, 0.001);
    EXPECT_FALSE(mapFont(font).isLineKnown);
}

TEST(FontMapper, TableIsConsistent) {
    std::set<std::string> keys;
    for (const FontFamily& family : fontFamilies())
        EXPECT_TRUE(keys.insert(fontKey(family.name)).second) << family.name;
    for (const FontAlias& alias : fontAliases()) {
        EXPECT_TRUE(keys.insert(std::string(alias.key)).second) << alias.key << " stands twice";
        EXPECT_EQ(std::count_if(fontFamilies().begin(), fontFamilies().end(),
                                [&](const FontFamily& family) { return family.name == alias.family; }),
                  1)
            << alias.family;
    }
}

} // namespace
} // namespace orvane::layout
