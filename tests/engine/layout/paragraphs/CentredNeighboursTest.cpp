#include "layout/paragraphs/CentredNeighbours.h"

#include "engine/layout/LineArt.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using document::Alignment;

constexpr Alignment kStart = Alignment::Start, kCenter = Alignment::Center;

/// A line of 10 points from `left` to `right`; the column reaches from 100 to 300.
ParagraphDraft lineAt(double left, double right, double top, Alignment alignment) {
    ParagraphDraft paragraph;
    Line line = tests::makeLine("some words", left, top + 8);
    line.box = {left, top, right, top + 10};
    paragraph.box = line.box;
    paragraph.alignment = alignment;
    paragraph.indentStart = alignment == kStart ? left - 100 : 0;
    paragraph.leading = 12;
    paragraph.lines.push_back(std::move(line));
    return paragraph;
}

std::vector<Alignment> centred(std::vector<ParagraphDraft> paragraphs) {
    centreAmongCentred(paragraphs, {});
    std::vector<Alignment> alignments;
    for (const ParagraphDraft& paragraph : paragraphs) {
        alignments.push_back(paragraph.alignment);
        EXPECT_TRUE(paragraph.alignment == kStart || paragraph.indentStart == 0);
    }
    return alignments;
}

TEST(CentredNeighbours, TheWidestLineOfACentredBlockIsCentredToo) {
    EXPECT_EQ(centred({lineAt(150, 250, 100, kCenter), lineAt(100, 300, 112, kStart), lineAt(170, 230, 124, kCenter)}),
              (std::vector{kCenter, kCenter, kCenter}));
    EXPECT_EQ(centred({lineAt(150, 250, 100, kCenter), lineAt(130, 270, 112, kStart)}), (std::vector{kCenter, kCenter}))
        << "indented on both sides alike";
}

TEST(CentredNeighbours, OtherLinesStayWhereTheyAre) {
    EXPECT_EQ(centred({lineAt(150, 250, 100, kCenter), lineAt(100, 300, 112, kStart)}), (std::vector{kCenter, kStart}))
        << "a full line below a heading is text";
    EXPECT_EQ(centred({lineAt(150, 250, 100, kCenter), lineAt(130, 290, 112, kStart)}), (std::vector{kCenter, kStart}))
        << "about another middle";
    EXPECT_EQ(centred({lineAt(150, 250, 100, kCenter), lineAt(130, 270, 130, kStart)}), (std::vector{kCenter, kStart}))
        << "below an empty line";
}

std::vector<Alignment> started(std::vector<ParagraphDraft> paragraphs) {
    startAmongStarts(paragraphs, {100, 300}, {});
    std::vector<Alignment> alignments;
    for (const ParagraphDraft& paragraph : paragraphs) {
        alignments.push_back(paragraph.alignment);
        EXPECT_TRUE(paragraph.alignment != kStart || paragraph.indentStart == paragraph.box.left - 100);
    }
    return alignments;
}

TEST(CentredNeighbours, ALineThatBeginsWhereOthersDoIsNeitherCentredNorAtTheEnd) {
    const std::vector<ParagraphDraft> others{lineAt(130, 290, 100, kStart), lineAt(130, 180, 130, kStart),
                                             lineAt(130, 210, 160, kStart)};
    for (const ParagraphDraft& line : {lineAt(130, 270, 190, kCenter), lineAt(130.5, 300, 190, Alignment::End)}) {
        std::vector<ParagraphDraft> paragraphs = others;
        paragraphs.push_back(line);
        EXPECT_EQ(started(paragraphs).back(), kStart);
        paragraphs.erase(paragraphs.begin());
        EXPECT_EQ(started(paragraphs).back(), line.alignment) << "beside two others it may be chance";
    }
    std::vector<ParagraphDraft> paragraphs = others;
    paragraphs.push_back(lineAt(150, 250, 190, kCenter));
    EXPECT_EQ(started(paragraphs).back(), kCenter) << "it begins elsewhere";
}

} // namespace
} // namespace orvane::layout
