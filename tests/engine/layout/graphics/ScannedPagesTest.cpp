#include "layout/graphics/ScannedPages.h"

#include "layout/graphics/ScanIllustrations.h"

#include "engine/layout/PageReading.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using pdf::Visibility;
using pdf::tests::PageContentBuilder;
using testing::IsEmpty;
using testing::SizeIs;
using tests::read;

PageContentBuilder scanOf(int lines) {
    PageContentBuilder page;
    page.picture({0, 0, 595, 842});
    for (int line = 0; line < lines; ++line)
        page.text(72, 100 + 14 * line, "words that were recognised", 10, {.visibility = Visibility::Invisible});
    return page;
}

PageText parted(const PageContentBuilder& page) {
    PageText text = read(page);
    Diagnostics diagnostics;
    partTextFromScan(text, LayoutParameters{}, diagnostics);
    return text;
}

TEST(ScannedPages, LetsTextStandForThePictureOfIt) {
    PageContentBuilder page = scanOf(12);
    page.picture({300, 600, 500, 800}); // an illustration that the scanner set apart
    const PageText text = parted(page);
    EXPECT_THAT(text.lines, SizeIs(12));
    ASSERT_THAT(text.figures, SizeIs(1));
    EXPECT_EQ(text.figures[0].box, (Rect{300, 600, 500, 800}));
}

/// Squares of 4 points that fill `box`.
std::vector<Rect> inkIn(const Rect& box) {
    std::vector<Rect> ink;
    for (double y = box.top; y < box.bottom; y += 4)
        for (double x = box.left; x < box.right; x += 4)
            ink.push_back({x, y, x + 4, y + 4});
    return ink;
}

std::vector<Figure> illustrationsWith(const std::vector<Rect>& ink) {
    PageText text = read(scanOf(12));
    EXPECT_TRUE(isReadScan(text, LayoutParameters{}));
    addIllustrations(text, ink, GraphicsParameters::Illustrations{});
    Diagnostics diagnostics;
    partTextFromScan(text, LayoutParameters{}, diagnostics);
    return text.figures;
}

TEST(ScannedPages, KeepsInkThatNoWordAccountsForAsAnIllustration) {
    const std::vector<Figure> figures = illustrationsWith(inkIn({300, 400, 400, 520}));
    ASSERT_THAT(figures, SizeIs(1));
    EXPECT_EQ(figures[0].box, (Rect{300, 400, 400, 520}));
    EXPECT_TRUE(figures[0].needsPainting);
}

TEST(ScannedPages, KnowsInkThatIsNoIllustration) {
    const struct {
        const char* why;
        Rect ink;
    } cases[] = {{"the words themselves", {72, 92, 200, 256}},
                 {"a rule", {72, 400, 500, 404}},
                 {"a blot", {300, 400, 320, 420}},
                 {"the shadow of the lid", {0, 0, 44, 842}},
                 {"grey paper", {0, 0, 595, 842}}};
    for (const auto& [why, ink] : cases)
        EXPECT_THAT(illustrationsWith(inkIn(ink)), IsEmpty()) << why;
}

TEST(ScannedPages, LooksForIllustrationsOnlyWhereTextWasRead) {
    EXPECT_FALSE(isReadScan(read(scanOf(1)), LayoutParameters{})) << "a few words in a picture";
    PageContentBuilder page;
    page.text(72, 100, "text that was set, and enough of it to be a page of its own", 10);
    EXPECT_FALSE(isReadScan(read(page), LayoutParameters{}));
}

TEST(ScannedPages, TellsThatThePictureIsGone) {
    PageText text = read(scanOf(12));
    Diagnostics diagnostics;
    partTextFromScan(text, LayoutParameters{}, diagnostics);
    ASSERT_THAT(diagnostics.entries(), SizeIs(1));
    EXPECT_EQ(diagnostics.entries()[0].kind, DiagnosticKind::PictureSimplified);
}

TEST(ScannedPages, MakesFewWordsTheAlternateTextOfThePicture) {
    const PageText text = parted(scanOf(1));
    EXPECT_THAT(text.lines, IsEmpty());
    ASSERT_THAT(text.figures, SizeIs(1));
    EXPECT_EQ(text.figures[0].alternateText, "words that were recognised");
}

TEST(ScannedPages, EvensWhatRecognitionMeasured) {
    PageContentBuilder page = scanOf(12);
    const double next = page.text(72, 300, "measured", 10.8, {.visibility = Visibility::Invisible});
    page.text(next + 15, 300, "apart", 9.4, {.visibility = Visibility::Invisible});
    page.text(72, 330, "A heading", 16, {.visibility = Visibility::Invisible});
    const PageText text = parted(page);
    ASSERT_THAT(text.lines, SizeIs(14));
    EXPECT_EQ(textOf(text.lines[12]), "measured apart") << "no tabulator";
    for (const Word& word : text.lines[12].words)
        EXPECT_EQ(word.spans.front().look.size, 10);
    EXPECT_EQ(text.lines[13].fontSize, 16);
}

TEST(ScannedPages, LeavesPagesWithVisibleTextAlone) {
    PageContentBuilder page;
    page.picture({0, 0, 595, 842});
    for (int line = 0; line < 12; ++line)
        page.text(72, 100 + 14 * line, "words on a photograph", 10);
    const PageText text = parted(page);
    EXPECT_THAT(text.lines, SizeIs(12));
    EXPECT_THAT(text.figures, SizeIs(1));
}

} // namespace
} // namespace orvane::layout
