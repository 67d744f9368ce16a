#include "layout/fonts/FamilyWidths.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

TEST(FamilyWidths, AreThoseOfTheFamilies) {
    const struct {
        const char* family;
        FontFace face;
        char32_t character;
        double em;
    } cases[] = {
        {"Times New Roman", {}, U'a', 0.444}, {"Times New Roman", {true, false}, U'a', 0.500},
        {"Arial", {}, U'W', 0.944},           {"Arial", {false, true}, U'W', 0.944},
        {"Arial", {}, U'É', 0.667},           {"Arial", {}, U'—', 1.000},
        {"Arial", {}, U'ж', 0.670},           {"Arial Narrow", {}, U'W', 0.774},
        {"Calibri", {}, U'n', 0.525},         {"Courier New", {true, true}, U'i', 0.600},
    };
    for (const auto& [family, face, character, em] : cases)
        EXPECT_NEAR(advanceOf(family, face, character).value_or(0), em, 0.002)
            << family << " U+" << std::hex << static_cast<unsigned>(character);
}

TEST(FamilyWidths, AreUnknownForOtherFamiliesAndScripts) {
    EXPECT_FALSE(hasKnownWidths("Georgia"));
    EXPECT_EQ(advanceOf("Georgia", {}, U'a'), std::nullopt);
    EXPECT_EQ(advanceOf("Arial", {}, U'中'), std::nullopt);
    EXPECT_EQ(advanceOf("Cambria", {}, U'ж'), std::nullopt);
    EXPECT_TRUE(hasKnownWidths("Courier New"));
}

} // namespace
} // namespace orvane::layout
