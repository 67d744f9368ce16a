#include "layout/structure/FloatOverlays.h"

#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::makeBlock;
using tests::makeLine;
using tests::makeParagraph;

/// A picture that floats there beside a line of text that starts at `left`, after a look whether that makes way for it.
FigureDraft floatBeside(const Rect& picture, double left, bool isForeground = false) {
    DocumentDraft draft = tests::makeDraft(1);
    draft.blocks.push_back(tests::makePictureBlock(picture));
    auto& figure = std::get<FigureDraft>(draft.blocks.back().value);
    figure.isInline = false;
    figure.figure.isForeground = isForeground;
    Line line = makeLine("some words", left, 200);
    draft.blocks.push_back(makeBlock(makeParagraph({line})));
    findOverlaidFigures(draft, 0, draft.blocks.size(), {});
    return std::get<FigureDraft>(draft.blocks.front().value);
}

bool isOverlaid(const Rect& picture, double left) {
    return floatBeside(picture, left).isOverlaid;
}

TEST(FloatOverlays, PutFiguresBehindTextThatStandsOnThem) {
    const FigureDraft below = floatBeside({100, 150, 400, 300}, 200);
    EXPECT_TRUE(below.figure.isBackground) << "text that can be seen is not hidden";
    EXPECT_FALSE(below.isOverlaid);
    EXPECT_FALSE(floatBeside({100, 220, 400, 300}, 200).figure.isBackground) << "the text stands above";
    EXPECT_FALSE(floatBeside({72, 150, 480, 300}, 490).figure.isBackground) << "the text stands beside it";
    EXPECT_TRUE(floatBeside({100, 150, 400, 300}, 200, true).isOverlaid) << "it was painted over the text";
}

TEST(FloatOverlays, FindFiguresWithoutRoomForTextBesideThem) {
    EXPECT_FALSE(isOverlaid({72, 150, 250, 300}, 300));
    EXPECT_TRUE(isOverlaid({72, 150, 480, 300}, 490)) << "a word processor would move the text below";
    EXPECT_TRUE(isOverlaid({110, 150, 523, 300}, 50)) << "likewise on the other side";
}

TEST(FloatOverlays, FindFiguresWithoutRoomForAPictureBesideThem) {
    const auto overlaid = [](double right) {
        DocumentDraft draft = tests::makeDraft(1);
        draft.blocks.push_back(tests::makePictureBlock({72, 150, 150, 600}));
        auto& figure = std::get<FigureDraft>(draft.blocks.back().value);
        figure.isInline = false;
        draft.blocks.push_back(tests::makePictureBlock({150, 150, right, 220}));
        std::get<FigureDraft>(draft.blocks.back().value).isInline = true;
        findOverlaidFigures(draft, 0, draft.blocks.size(), {});
        return std::get<FigureDraft>(draft.blocks.front().value).isOverlaid;
    };
    EXPECT_TRUE(overlaid(523)) << "it fills what the column has beside";
    EXPECT_FALSE(overlaid(450));
}

TEST(FloatOverlays, FindTheFiguresOfSlides) {
    const auto overlaid = [](int lines) {
        DocumentDraft draft = tests::makeDraft(1);
        for (int i = 0; i < 4; ++i) {
            draft.blocks.push_back(tests::makePictureBlock({72.0 + 100 * i, 100, 150.0 + 100 * i, 150}));
            std::get<FigureDraft>(draft.blocks.back().value).isInline = false;
        }
        for (int i = 0; i < lines; ++i)
            draft.blocks.push_back(makeBlock(makeParagraph({makeLine("a label", 72, 300 + 40 * i)})));
        findOverlaidFigures(draft, 0, draft.blocks.size(), {});
        return std::get<FigureDraft>(draft.blocks.front().value).isOverlaid;
    };
    EXPECT_TRUE(overlaid(4));
    EXPECT_FALSE(overlaid(5));
}

TEST(FloatOverlays, LookAtLinesRatherThanAtParagraphs) {
    DocumentDraft draft = tests::makeDraft(1);
    draft.blocks.push_back(tests::makePictureBlock({72, 150, 250, 210}));
    std::get<FigureDraft>(draft.blocks.back().value).isInline = false;
    // Set around the picture, so that the box of both lines touches it.
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine("beside it", 260, 205), makeLine("below", 72, 220)})));
    findOverlaidFigures(draft, 0, draft.blocks.size(), {});
    EXPECT_FALSE(std::get<FigureDraft>(draft.blocks.front().value).isOverlaid);
}

} // namespace
} // namespace orvane::layout
