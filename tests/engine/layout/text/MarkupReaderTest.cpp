#include "engine/layout/PageReading.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using pdf::Annotation;
using pdf::AnnotationKind;
using pdf::tests::PageContentBuilder;

/// A line of three words whose second one a reader has marked; the mark ends `beyond` points behind it.
PageText markedWord(AnnotationKind kind, double beyond = 0) {
    PageContentBuilder page;
    const double from = page.text(72, 100, "read ", 10);
    const double to = page.text(from, 100, "this", 10);
    page.text(to, 100, " twice", 10);
    Annotation annotation;
    annotation.kind = kind;
    annotation.color = {255, 255, 0};
    annotation.quads = {{from, 91, to + beyond, 102.5}};
    annotation.box = annotation.quads[0];
    page.content().annotations.push_back(annotation);
    return tests::read(page);
}

const Look& lookOf(const PageText& text, std::size_t word) {
    return text.lines.at(0).words.at(word).spans.at(0).look;
}

TEST(MarkupReader, HighlightsTheMarkedWords) {
    const PageText text = markedWord(AnnotationKind::Highlight);
    EXPECT_EQ(lookOf(text, 1).highlight, (Color{255, 255, 0}));
    EXPECT_FALSE(lookOf(text, 0).highlight);
    EXPECT_FALSE(lookOf(text, 2).highlight);
    EXPECT_TRUE(text.grounds.empty()) << "nothing was painted";
}

TEST(MarkupReader, TakesMarksThatEndAnywhere) {
    // Up to the middle of the next word.
    const PageText text = markedWord(AnnotationKind::Highlight, 15);
    EXPECT_EQ(lookOf(text, 1).highlight, (Color{255, 255, 0}));
    EXPECT_FALSE(lookOf(text, 0).highlight);
    EXPECT_EQ(lookOf(markedWord(AnnotationKind::Underline, 200), 2).underline, document::UnderlineKind::Single);
}

TEST(MarkupReader, UnderlinesAndStrikesTheMarkedWords) {
    const PageText underlined = markedWord(AnnotationKind::Underline);
    EXPECT_EQ(lookOf(underlined, 1).underline, document::UnderlineKind::Single);
    EXPECT_EQ(lookOf(underlined, 2).underline, document::UnderlineKind::None);
    const PageText wavy = markedWord(AnnotationKind::Squiggly);
    EXPECT_EQ(lookOf(wavy, 1).underline, document::UnderlineKind::Wavy);
    const PageText struck = markedWord(AnnotationKind::StrikeOut);
    EXPECT_TRUE(lookOf(struck, 1).isStruck);
    EXPECT_FALSE(lookOf(struck, 0).isStruck);
    EXPECT_TRUE(struck.rules.empty()) << "nothing was painted";
}

} // namespace
} // namespace orvane::layout
