#include "layout/assembly/BoxesApart.h"

#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::makeBlock;
using tests::makeDraft;
using tests::makeLine;
using tests::makeParagraph;
using tests::paragraphAt;

TEST(BoxesApart, HaveIndentsOfTheirOwn) {
    DocumentDraft draft = makeDraft(1);
    for (int i = 0; i < 3; ++i)
        draft.blocks.push_back(makeBlock(makeParagraph({makeLine("in a box", 72, 100 + 40 * i)})));
    draft.blocks[1].paragraph()->pieces.front().text.isBoxApart = true;
    const document::Document document = tests::documentOf(draft);
    EXPECT_EQ(paragraphAt(document, 0).properties.indentStart, Twips(0));
    EXPECT_EQ(paragraphAt(document, 1).properties.indentStart, Twips(1));
    EXPECT_EQ(paragraphAt(document, 2).properties.indentStart, Twips(0));
}

} // namespace
} // namespace orvane::layout
