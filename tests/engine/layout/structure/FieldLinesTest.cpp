#include "layout/structure/FieldLines.h"

#include "engine/layout/DraftSupport.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

void enter(DraftBlock& block, int field) {
    for (Line& line : block.paragraph()->pieces[0].text.lines)
        for (Word& word : line.words)
            for (Span& span : word.spans)
                span.look.field = field;
}

DocumentDraft joined(std::vector<tests::TextAt> lines, const std::vector<int>& fields) {
    DocumentDraft draft = tests::draftOfLines(lines);
    for (std::size_t i = 0; i < fields.size(); ++i)
        enter(draft.blocks[i], fields[i]);
    joinFieldLines(draft, {});
    return draft;
}

TEST(FieldLines, AreOneEntry) {
    const DocumentDraft draft = joined({{"First.", 100}, {"Second.", 112}, {"Third.", 124}}, {0, 0, 0});
    ASSERT_THAT(draft.blocks, SizeIs(1));
    const ParagraphDraft& text = draft.blocks[0].paragraph()->pieces[0].text;
    EXPECT_THAT(text.lines, SizeIs(3));
    EXPECT_THAT(text.hardBreaks, ElementsAre(0, 1));
    EXPECT_DOUBLE_EQ(text.leading, 12);
}

TEST(FieldLines, StayApartInFieldsOfTheirOwn) {
    EXPECT_THAT(joined({{"First.", 100}, {"Second.", 112}}, {0, 1}).blocks, SizeIs(2));
    EXPECT_THAT(joined({{"First.", 100}, {"Second.", 112}}, {-1, -1}).blocks, SizeIs(2)) << "no field at all";
    EXPECT_THAT(joined({{"First.", 100}, {"Second.", 140}}, {0, 0}).blocks, SizeIs(2)) << "a line is empty";
    EXPECT_THAT(joined({{"First.", 100}, {"Second.", 112}, {"Third.", 130}}, {0, 0, 0}).blocks, SizeIs(2));
}

} // namespace
} // namespace orvane::layout
