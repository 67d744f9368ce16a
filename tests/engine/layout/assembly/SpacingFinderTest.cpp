#include "layout/assembly/SpacingFinder.h"

#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

// Lines of Carlito at 10 points are 12.207 points high: baselines that far apart have no space between them.
constexpr double kLine = 12.207;

using tests::documentOf;
using tests::draftOfLines;
using tests::makeBlock;
using tests::makeLine;
using tests::makeParagraph;
using tests::makePictureBlock;
using tests::paragraphAt;
using tests::styleOf;

TEST(SpacingFinder, PutsTheUsualSpaceIntoTheStyle) {
    const double step = kLine + 8;
    const auto document = documentOf(
        draftOfLines({{"one", 100}, {"two", 100 + step}, {"three", 100 + 2 * step}, {"four", 100 + 3 * step + 0.2}}));
    EXPECT_NEAR(pointsFromTwips(styleOf(document, "Normal").paragraph.spaceAfter), 8, 0.15);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(paragraphAt(document, i).properties, styleOf(document, "Normal").paragraph) << i;
}

TEST(SpacingFinder, SetsAnUnusualSpaceOnTheParagraph) {
    const auto document = documentOf(
        draftOfLines({{"one", 100}, {"two", 100 + kLine}, {"three", 100 + 2 * kLine}, {"far below", 130 + 3 * kLine}}));
    EXPECT_EQ(styleOf(document, "Normal").paragraph.spaceAfter, Twips(0));
    EXPECT_NEAR(pointsFromTwips(paragraphAt(document, 2).properties.spaceAfter), 30, 0.1);
    EXPECT_EQ(paragraphAt(document, 1).properties.spaceAfter, Twips(0));
}

TEST(SpacingFinder, TakesSpaceAwayWhereLinesStandCloser) {
    const double step = kLine + 8;
    const auto document = documentOf(draftOfLines({{"one", 100},
                                                   {"two", 100 + step},
                                                   {"three", 100 + 2 * step},
                                                   {"close", 100 + 2 * step + kLine},
                                                   {"five", 100 + 3 * step + kLine}}));
    EXPECT_EQ(paragraphAt(document, 2).properties.spaceAfter, Twips(0));
    EXPECT_NEAR(pointsFromTwips(paragraphAt(document, 3).properties.spaceAfter), 8, 0.15);
}

TEST(SpacingFinder, GivesHeadingsTheSpaceAboveThem) {
    const double step = kLine + 6;
    DocumentDraft draft = draftOfLines({{"one", 100},
                                        {"two", 100 + step},
                                        {"Heading", 100 + 2 * step + 18},
                                        {"three", 100 + 3 * step + 18},
                                        {"four", 100 + 4 * step + 18}});
    draft.blocks[2].paragraph()->role = ParagraphRole::Heading;
    draft.blocks[2].paragraph()->level = 2;
    const auto document = documentOf(draft);
    const auto& heading = styleOf(document, "Heading2").paragraph;
    EXPECT_NEAR(pointsFromTwips(heading.spaceBefore), 24, 0.2);
    EXPECT_NEAR(pointsFromTwips(heading.spaceAfter), 6, 0.2);
    EXPECT_EQ(paragraphAt(document, 1).properties, styleOf(document, "Normal").paragraph)
        << "the greater of both spaces holds, so the paragraph above keeps its own";
}

TEST(SpacingFinder, LetsItemsStandCloseWithSpaceBehindTheList) {
    const double step = kLine + 8;
    DocumentDraft draft = draftOfLines({{"one", 100},
                                        {"two", 100 + step},
                                        {"item", 100 + 2 * step},
                                        {"item", 100 + 2 * step + kLine},
                                        {"item", 100 + 2 * step + 2 * kLine},
                                        {"three", 100 + 3 * step + 2 * kLine}});
    for (const std::size_t i : {2u, 3u, 4u})
        draft.blocks[i].paragraph()->role = ParagraphRole::ListItem;
    const auto document = documentOf(draft);
    const auto& item = styleOf(document, "ListParagraph").paragraph;
    EXPECT_TRUE(item.isContextualSpacing);
    EXPECT_NEAR(pointsFromTwips(item.spaceAfter), 8, 0.15);
    for (const std::size_t i : {2u, 3u, 4u})
        EXPECT_EQ(paragraphAt(document, i).properties, item);
}

TEST(SpacingFinder, LeavesRoomForTheMarkBelowAPicture) {
    // The top of the text is 2 points below the picture: the descenders of the picture's paragraph take that.
    DocumentDraft draft = draftOfLines({{"below", 231.5}});
    draft.blocks.insert(draft.blocks.begin(), makePictureBlock({72, 120, 272, 220}));
    EXPECT_EQ(paragraphAt(documentOf(draft), 0).properties.spaceAfter, Twips(0));
    draft.blocks[1] = makeBlock(makeParagraph({makeLine("below", 72, 251.5)}));
    EXPECT_NEAR(pointsFromTwips(paragraphAt(documentOf(draft), 0).properties.spaceAfter), 19.3, 0.5);
}

} // namespace
} // namespace orvane::layout
