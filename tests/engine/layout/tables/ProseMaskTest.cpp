#include "layout/tables/ProseMask.h"

#include "engine/layout/TextBuilder.h"
#include "layout/LayoutParameters.h"

#include <gtest/gtest.h>

namespace orvane::layout::tests {
namespace {

struct PlacedText {
    double left = 0;
    double baseline = 0;
    const char* text = "";
};

/// For each of the texts whether it is marked as running text: "+" or "-".
std::string marksOf(const std::vector<PlacedText>& texts) {
    std::vector<Line> lines;
    for (const PlacedText& text : texts)
        lines.push_back(makeLine(text.text, text.left, text.baseline));
    const TableParameters::Tables parameters;
    std::string marks;
    for (const char isProse : markProse(cutIntoPieces(lines, parameters), lines, parameters))
        marks += isProse ? '+' : '-';
    return marks;
}

const std::vector<PlacedText> kRagged{{50, 70, "Founded in the year of the flood"},
                                      {50, 82, "the firm built all the mills"},
                                      {50, 94, "and many of the south"},
                                      {50, 106, "waterwheels of the region"},
                                      {50, 118, "until it had to move"}};

TEST(ProseMask, MarksRaggedLinesThatEndWhereTheNextWordHasNoRoom) {
    std::vector<PlacedText> texts = kRagged;
    EXPECT_EQ(marksOf(texts), "-----") << "words had room at the ends of two lines";
    texts[1].text = "the firm built all of the mills";
    texts[2].text = "and many of the old southern";
    EXPECT_EQ(marksOf(texts), "+++++");
}

TEST(ProseMask, LeavesRaggedLinesBesideALabel) {
    std::vector<PlacedText> texts = kRagged;
    texts[1].text = "the firm built all of the mills";
    texts[2].text = "and many of the old southern";
    texts.push_back({10, 94, "mills"});
    EXPECT_EQ(marksOf(texts), "------");
}

} // namespace
} // namespace orvane::layout::tests
