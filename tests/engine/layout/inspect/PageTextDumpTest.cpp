#include "layout/inspect/PageTextDump.h"

#include "engine/layout/PageReading.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using pdf::tests::PageContentBuilder;
using testing::HasSubstr;
using tests::read;

TEST(PageTextDump, NotesWhereTheLookChanges) {
    PageContentBuilder page;
    pdf::Font font;
    font.isBold = true;
    const std::uint32_t bold = page.font(font);
    double x = page.text(72, 100, "plain ", 10);
    x = page.text(x, 100, "bold text", 10, {.font = bold});
    page.text(x, 100, " end", 10, {.color = {255, 0, 0}});
    EXPECT_EQ(dump(read(page).lines.at(0)), "plain {b:bold text} {#FF0000:end}");
}

TEST(PageTextDump, ShowsEachThingOnItsLine) {
    PageContentBuilder page;
    page.text(72, 100, "Text", 10);
    page.horizontalRule(72, 200, 300, 1);
    page.filledRectangle({72, 400, 200, 430}, {1, 2, 3});
    page.picture({72, 500, 200, 600});
    const std::string text = dump(read(page));
    EXPECT_THAT(text, HasSubstr("page 1 595.0 x 842.0\n"));
    EXPECT_THAT(text, HasSubstr("100.00 10pt: Text\n"));
    EXPECT_THAT(text, HasSubstr("rule - 300.00 from 72.0 to 200.0 width 1.00 single #000000\n"));
    EXPECT_THAT(text, HasSubstr("ground [72.0 400.0 200.0 430.0] #010203\n"));
    EXPECT_THAT(text, HasSubstr("figure [72.0 500.0 200.0 600.0] picture 1"));
}

} // namespace
} // namespace orvane::layout
