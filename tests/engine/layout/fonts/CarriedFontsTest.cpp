#include "layout/fonts/CarriedFonts.h"

#include "engine/layout/PageReading.h"
#include "engine/layout/TextBuilder.h"
#include "layout/fonts/FontCatalog.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using pdf::tests::PageContentBuilder;

pdf::Font fontNamed(const char* name, int objectNumber) {
    pdf::Font font;
    font.name = name;
    font.objectNumber = objectNumber;
    font.isEmbedded = true;
    font.isBold = std::string_view(name).ends_with("Bold");
    return font;
}

std::vector<pdf::FontRequest> requestsFor(const PageContentBuilder& page) {
    return fontsToCarry({tests::read(page)}, {});
}

/// What is asked for of a page with "abba" in that font.
std::vector<pdf::FontRequest> requestsFor(pdf::Font font, const char* text = "abba") {
    PageContentBuilder page;
    const std::uint32_t index = page.font(std::move(font));
    page.text(72, 100, text, 10, {.font = index});
    return requestsFor(page);
}

TEST(CarriedFonts, AreThoseOfFamiliesThatFewHave) {
    const std::vector<pdf::FontRequest> requests = requestsFor(fontNamed("ABCDEF+Lato-Bold", 7));
    ASSERT_EQ(requests.size(), 1u);
    EXPECT_EQ(requests[0].family, "Lato");
    EXPECT_TRUE(requests[0].isBold);
    ASSERT_EQ(requests[0].sources.size(), 1u);
    EXPECT_EQ(requests[0].sources[0].objectNumber, 7);
    const std::vector<pdf::FontCharacter>& characters = requests[0].sources[0].characters;
    ASSERT_EQ(characters.size(), 2u) << "each once";
    EXPECT_EQ(characters[1].character, U'b');
    EXPECT_EQ(characters[1].code, U'b');
    EXPECT_NEAR(characters[1].advance, 0.55, 1e-9);

    EXPECT_TRUE(requestsFor(fontNamed("Arial-Bold", 7)).empty()) << "has a twin everywhere";
    EXPECT_TRUE(requestsFor(fontNamed("F1", 7)).empty()) << "a name that says nothing";
    EXPECT_TRUE(requestsFor(fontNamed("Lato", 0)).empty()) << "no object to read it from";
    pdf::Font named = fontNamed("Lato", 7);
    named.isEmbedded = false;
    EXPECT_TRUE(requestsFor(named).empty());
    pdf::Font drawn = fontNamed("Lato", 7);
    drawn.isType3 = true;
    EXPECT_TRUE(requestsFor(drawn).empty());
}

TEST(CarriedFonts, AreNotThoseOfJoinedScripts) {
    EXPECT_TRUE(requestsFor(fontNamed("Sakkal", 7), "\xD8\xA8\xD8\xAA").empty()) << "shapes without their rules";
    EXPECT_EQ(requestsFor(fontNamed("Melior", 7), "\xD0\xB4\xD0\xB0").size(), 1u);
}

TEST(CarriedFonts, HaveAllSubsetsOfAFace) {
    PageContentBuilder page;
    page.text(72, 100, "ab", 10, {.font = page.font(fontNamed("ABCDEF+Lato", 7))});
    page.text(72, 120, "cd", 10, {.font = page.font(fontNamed("GHIJKL+Lato", 9))});
    page.text(72, 140, "ef", 10, {.font = page.font(fontNamed("Lato-Bold", 11))});
    const std::vector<pdf::FontRequest> requests = requestsFor(page);
    ASSERT_EQ(requests.size(), 2u);
    EXPECT_EQ(requests[0].sources.size(), 2u);
    EXPECT_EQ(requests[1].sources.size(), 1u);
}

TEST(CarriedFonts, StayAtHomeWhereTheyLackMuchOfTheText) {
    PageContentBuilder page;
    const std::uint32_t font = page.font(fontNamed("Lato", 7));
    page.text(72, 100, "a", 10, {.font = font});
    for (int i = 0; i < 9; ++i) // ligatures, which no character stands for
        page.glyph(80 + 6 * i, 100, U"ffi", 6, 10, {.font = font});
    EXPECT_TRUE(requestsFor(page).empty());
}

TEST(CarriedFonts, ShowTextAsWideAsItWas) {
    CarriedFont font;
    font.request.family = "Lato";
    font.request.ascent = 1;
    font.request.descent = 0.2;
    font.request.blankWidth = 0.19;
    font.request.sources = {{7, {{U'a', 'a', 0.55}}}};
    DocumentDraft draft;
    draft.pages.emplace_back().fonts = {fontNamed("Lato", 7), fontNamed("Lato-Bold", 8)};
    draft.pages[0].fonts[1].name = "Melior-Bold";
    const std::vector<CarriedFont> fonts{font};
    const FontCatalog catalog(draft, {}, Tracking::InWidths, CarriedFonts(fonts));
    EXPECT_EQ(catalog.font(0, 0).family, "Lato");
    ASSERT_TRUE(catalog.font(0, 0).isCarried());
    EXPECT_EQ(catalog.font(0, 0).carriedAdvances->at(U'a'), 0.55);
    EXPECT_EQ(catalog.font(0, 0).carriedAdvances->at(U' '), 0.19);
    EXPECT_EQ(catalog.font(0, 0).widthPercent, 100);
    EXPECT_FALSE(catalog.font(0, 1).isCarried());
}

} // namespace
} // namespace orvane::layout
