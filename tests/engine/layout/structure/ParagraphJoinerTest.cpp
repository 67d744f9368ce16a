#include "layout/structure/ParagraphJoiner.h"

#include "layout/structure/ParagraphContinuation.h"

#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::makeBlock;
using tests::makeDraft;
using tests::makeLine;
using tests::makeParagraph;

/// A full line at the foot of the first page, and one at the top of the second.
DocumentDraft brokenParagraph(const char* before, const char* after) {
    DocumentDraft draft = makeDraft(2);
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine(before, 72, 740), makeLine(before, 72, 752)})));
    draft.blocks.back().paragraph()->pieces[0].text.endsParagraph = false;
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine(after, 72, 84)}), 1));
    return draft;
}

constexpr const char* kFullLine =
    "a line of so many words that it goes on to the other side, where it ends without a full stop";

TEST(ParagraphJoiner, JoinsWhatAPageBreakCut) {
    DocumentDraft draft = brokenParagraph(kFullLine, "and goes on here");
    joinParagraphs(draft, {}, {});
    ASSERT_EQ(draft.blocks.size(), 1u);
    ASSERT_EQ(draft.blocks[0].paragraph()->pieces.size(), 2u);
    EXPECT_EQ(draft.blocks[0].paragraph()->pieces[1].page, 1u);
}

TEST(ParagraphJoiner, LeavesTheTextOfANarrowColumnBesideAWideOne) {
    const auto blocksBeside = [](double width) {
        DocumentDraft draft = brokenParagraph(kFullLine, "and goes on here");
        DraftPiece& next = draft.blocks[1].paragraph()->pieces[0];
        draft.blocks[1].page = next.page = 0;
        next.columnIndex = 1;
        next.text.startsParagraph = false;
        const ColumnSpan first = draft.blocks[0].paragraph()->pieces[0].column;
        next.column = {first.right, first.right + width * (first.right - first.left)};
        joinParagraphs(draft, {}, {});
        return draft.blocks.size();
    };
    EXPECT_EQ(blocksBeside(0.9), 1u);
    EXPECT_EQ(blocksBeside(0.5), 2u);
}

TEST(ParagraphJoiner, PassesOverTextThatFloats) {
    DocumentDraft draft = brokenParagraph(kFullLine, "and goes on here");
    DraftBlock stamp = makeBlock(makeParagraph({makeLine("a stamp", 20, 400)}), 1);
    stamp.paragraph()->pieces[0].text.isFloating = true;
    draft.blocks.insert(draft.blocks.begin() + 1, stamp);
    joinParagraphs(draft, {}, {});
    ASSERT_EQ(draft.blocks.size(), 2u);
    EXPECT_EQ(draft.blocks[0].paragraph()->pieces.size(), 2u);
}

TEST(ParagraphJoiner, KeepsParagraphsApartThatEnded) {
    DocumentDraft draft = brokenParagraph("a short line", "and goes on here");
    joinParagraphs(draft, {}, {});
    EXPECT_EQ(draft.blocks.size(), 2u);
}

TEST(ParagraphJoiner, KeepsTextApartFromANumberAbove) {
    DocumentDraft draft = makeDraft(2);
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine("(7)", 505, 740)})));
    draft.blocks.back().paragraph()->pieces[0].text.endsParagraph = false;
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine("and goes on here", 72, 84)}), 1));
    joinParagraphs(draft, {}, {});
    EXPECT_EQ(draft.blocks.size(), 2u);
}

TEST(ParagraphJoiner, MayGoOnFromADateButFromNoNumber) {
    const ParagraphContext around{10, 12, {}, {}};
    const auto mayGoOn = [&](const char* text) {
        const Line line = makeLine(text, 72, 740);
        return mayRunOn({makeParagraph({line}), {72, line.box.right}}, around, {});
    };
    EXPECT_TRUE(mayGoOn("2014-05-"));
    EXPECT_FALSE(mayGoOn("2014-05"));
}

TEST(ParagraphJoiner, KeepsParagraphsApartBelowWhichHalfThePageIsEmpty) {
    DocumentDraft draft = makeDraft(2);
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine(kFullLine, 72, 200)})));
    draft.blocks.back().paragraph()->pieces[0].text.endsParagraph = false;
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine("and goes on here", 72, 84)}), 1));
    DocumentDraft withNotes = draft;
    joinParagraphs(draft, {}, {});
    EXPECT_EQ(draft.blocks.size(), 2u);
    withNotes.noteAreas = {{72, 300, 523, 760}, {}};
    joinParagraphs(withNotes, {}, {});
    EXPECT_EQ(withNotes.blocks.size(), 1u) << "notes take the rest of the page";
}

TEST(ParagraphJoiner, KeepsATitleApartFromTheOneOfTheNextPageWhereManyLinesAreBlankBelow) {
    const auto blocksBelow = [](double baseline, const char* after) {
        DocumentDraft draft = makeDraft(2);
        draft.blocks.push_back(makeBlock(makeParagraph({makeLine(kFullLine, 72, baseline)})));
        draft.blocks.back().paragraph()->pieces[0].text.endsParagraph = false;
        draft.blocks.push_back(makeBlock(makeParagraph({makeLine(after, 72, 84)}), 1));
        DocumentContext context;
        context.textArea = {72, 72, 540, 760};
        context.bodyLeading = 14;
        joinParagraphs(draft, context, {});
        return draft.blocks.size();
    };
    EXPECT_EQ(blocksBelow(740, "Notes that begin with a capital"), 1u);
    EXPECT_EQ(blocksBelow(500, "Notes that begin with a capital"), 2u);
    EXPECT_EQ(blocksBelow(500, "and goes on here"), 1u);
}

TEST(ParagraphJoiner, PutsPicturesAtTheBreakBehindTheParagraph) {
    DocumentDraft draft = brokenParagraph(kFullLine, "and goes on here");
    DraftBlock picture;
    picture.page = 1;
    picture.value = FigureDraft{};
    draft.blocks.insert(draft.blocks.begin() + 1, picture);
    joinParagraphs(draft, {}, {});
    ASSERT_EQ(draft.blocks.size(), 2u);
    EXPECT_TRUE(draft.blocks[0].paragraph());
}

TEST(ParagraphJoiner, JoinsColumnsThatThePageSaysGoOn) {
    DocumentDraft draft = brokenParagraph("first column", "second column");
    draft.blocks[1].page = draft.blocks[1].paragraph()->pieces[0].page = 0;
    draft.blocks[1].paragraph()->pieces[0].text.startsParagraph = false;
    joinParagraphs(draft, {}, {});
    EXPECT_EQ(draft.blocks.size(), 1u);
}

} // namespace
} // namespace orvane::layout
