#include "worker/ContentCounter.h"

#include <gtest/gtest.h>

namespace orvane::worker {
namespace {

using namespace document;

Inline textInline(std::string text) {
    return {Text{std::move(text), {}}};
}

Block paragraphOf(std::vector<Inline> inlines) {
    Paragraph paragraph;
    paragraph.inlines = std::move(inlines);
    return {paragraph};
}

TEST(ContentCounter, CountsWhatAPageHolds) {
    pdf::PageContent page;
    page.glyphs.resize(5);
    page.glyphs[0].unicode = U"a";
    page.glyphs[1].unicode = U" ";
    page.glyphs[2].unicode = U"ffi";
    page.glyphs[3].unicode = U"b";
    page.glyphs[3].visibility = pdf::Visibility::OffPage;
    page.glyphs[4].unicode = U"c";
    page.glyphs[4].visibility = pdf::Visibility::Invisible;
    page.pictures.resize(2);
    page.pictures[1].visibility = pdf::Visibility::ClippedAway;
    page.links.resize(3);

    protocol::Counts counts;
    countRead(page, counts);
    countRead(page, counts);
    EXPECT_EQ(counts, (protocol::Counts{10, 0, 2, 0, 6, 0}));
}

TEST(ContentCounter, CountsWhatADocumentHolds) {
    Link link{{"https://example.org", ""}, {textInline("go")}};
    Field page{FieldCode::Page, "", {textInline("7")}};
    ContentControl control;
    control.content = {textInline("x")};
    Table table;
    table.rows = {TableRow{}};
    table.rows[0].cells = {TableCell{}};
    table.rows[0].cells[0].blocks = {paragraphOf({textInline("cell")})};
    Frame frame;
    frame.blocks = {paragraphOf({textInline("box")})};
    Figure picture;
    picture.content = Picture{};
    Figure drawing;
    drawing.content = Drawing{};

    Document document;
    document.sections.resize(1);
    document.sections[0].blocks = {
        paragraphOf({textInline("a\u00a0\u00e4 \U0001F600"), {Tab{}}, {link}, {page}, {control}, {Picture{}}}),
        {table},
        {frame},
        {picture},
        {drawing}};
    document.sections[0].header.standard = {paragraphOf({textInline("head")})};
    document.sections[0].footer.evenPages = {paragraphOf({textInline("foot")})};
    document.notes.resize(1);
    document.notes[0].blocks = {paragraphOf({textInline("note")})};
    document.comments.resize(1);
    document.comments[0].blocks = {paragraphOf({textInline("say")})};

    protocol::Counts counts;
    countWritten(document, counts);
    // 3 in the text, 2 in the link, 1 field, 1 control, "cell", "box", "head", "foot", "note", "say"
    EXPECT_EQ(counts, (protocol::Counts{0, 3 + 2 + 1 + 1 + 4 + 3 + 4 + 4 + 4 + 3, 0, 2, 0, 1}));
}

TEST(ContentCounter, LeavesOutHiddenText) {
    document::Text hidden{"cut off", {}};
    hidden.properties.isHidden = true;
    Document document;
    document.sections.resize(1);
    document.sections[0].blocks = {paragraphOf({textInline("seen"), {hidden}})};
    protocol::Counts counts;
    countWritten(document, counts);
    EXPECT_EQ(counts.charactersWritten, 4);
}

} // namespace
} // namespace orvane::worker
