#include "worker/PageInventory.h"

#include <gtest/gtest.h>

namespace orvane::worker {
namespace {

pdf::Glyph glyphAt(double x, const char32_t* text, pdf::Visibility visibility = pdf::Visibility::Visible) {
    pdf::Glyph glyph;
    glyph.unicode = text;
    glyph.box = {x, 100, x + 6, 112};
    glyph.origin = {x, 110};
    glyph.advance = 6;
    glyph.fontSize = 12;
    glyph.visibility = visibility;
    return glyph;
}

pdf::PageContent emptyPage() {
    pdf::PageContent page;
    page.width = 595;
    page.height = 842;
    page.fonts.resize(1);
    return page;
}

PageInventory inventory(const pdf::PageContent& page, const std::vector<pdf::FormField>& fields = {},
                        const layout::PageText& text = {}) {
    return inventoryOf(page, fields, text, layout::TextParameters());
}

TEST(PageInventory, CountsCharactersAndLettersThatArePartOfThePage) {
    pdf::PageContent page = emptyPage();
    page.number = 7;
    page.glyphs = {glyphAt(10, U"a"),
                   glyphAt(20, U" "),
                   glyphAt(30, U"\uFB03"),
                   glyphAt(40, U"b", pdf::Visibility::OffPage),
                   glyphAt(50, U"c", pdf::Visibility::Invisible),
                   glyphAt(60, U"-"),
                   glyphAt(60.2, U"-"), // once more, to make it bold
                   glyphAt(70, U"d", pdf::Visibility::ClippedAway)};
    const PageInventory listed = inventory(page);
    EXPECT_EQ(listed.page, 7);
    EXPECT_EQ(listed.characters, 5U); // a, ffi, -
    EXPECT_EQ(listed.letters, 4U);
}

TEST(PageInventory, LeavesLettersInPicturesAndFormulasToThese) {
    pdf::PageContent page = emptyPage();
    page.glyphs = {glyphAt(10, U"a"), glyphAt(50, U"b"), glyphAt(90, U"c")};
    layout::PageText text;
    text.figures.resize(1);
    text.figures[0].box = {45, 90, 60, 120};
    text.formulas.resize(1);
    text.formulas[0].box = {85, 90, 100, 120};
    const PageInventory listed = inventory(page, {}, text);
    EXPECT_EQ(listed.characters, 3U);
    EXPECT_EQ(listed.letters, 1U);
}

TEST(PageInventory, ListsPicturesThatShowSomething) {
    pdf::PageContent page;
    page.pictures.resize(3);
    for (pdf::Picture& picture : page.pictures)
        picture.pixelWidth = picture.pixelHeight = 8;
    page.pictures[0].box = {10, 10, 60, 60};
    page.pictures[1].visibility = pdf::Visibility::ClippedAway;
    page.pictures[2].pixelWidth = page.pictures[2].pixelHeight = 1;
    EXPECT_EQ(inventory(page).pictures, (std::vector<Rect>{{10, 10, 60, 60}}));
}

TEST(PageInventory, CountsEachTargetOfLinksOnce) {
    pdf::PageContent page = emptyPage();
    page.links.resize(6);
    for (pdf::Link& link : page.links)
        link.boxes = {{100, 100, 200, 112}};
    page.links[0].uri = page.links[1].uri = "https://example.org/";
    page.links[2].destination = page.links[3].destination = pdf::Destination{2, 100.0};
    page.links[4].destination = pdf::Destination{0, {}}; // leads nowhere
    page.links[5] = {{{100, 900, 200, 912}}, "https://example.org/below-the-page", {}};
    const PageInventory listed = inventory(page);
    EXPECT_EQ(listed.links, 5U);
    EXPECT_EQ(listed.addresses, std::vector<std::string>{"https://example.org/"});
    EXPECT_EQ(listed.innerLinks, 1U);
}

TEST(PageInventory, ListsFieldsThatAreFilledIn) {
    std::vector<pdf::FormField> fields(5);
    fields[0].name = "name";
    fields[0].value = "Ada";
    fields[1].name = "empty";
    fields[2].name = "on";
    fields[2].kind = pdf::FieldKind::CheckBox;
    fields[2].value = "Yes";
    fields[2].isOn = true;
    fields[3].kind = pdf::FieldKind::RadioButton;
    fields[3].value = "1";
    fields[4].kind = pdf::FieldKind::PushButton;
    fields[4].value = "Send";
    EXPECT_EQ(inventory({}, fields).values, (std::vector<FieldValue>{{"name", "Ada", false}, {"on", "", true}}));
}

} // namespace
} // namespace orvane::worker
