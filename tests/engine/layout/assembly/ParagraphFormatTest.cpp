#include "layout/assembly/ParagraphFormat.h"

#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using document::ParagraphProperties;
using tests::makeLine;

/// The format of a paragraph of these lines in a column of 72 to 523 points.
ParagraphProperties formatOfLines(std::vector<Line> lines, document::Alignment alignment) {
    ParagraphDraft paragraph = tests::makeParagraph(std::move(lines));
    paragraph.alignment = alignment;
    const DraftBlock block = tests::makeBlock(std::move(paragraph));
    return formatOf(*block.paragraph(), {}, {});
}

TEST(ParagraphFormat, LetsTextReachPastTheColumnWhereItDid) {
    const auto format = formatOfLines({makeLine(std::string(100, 'x'), 72, 100)}, document::Alignment::Start);
    EXPECT_NEAR(pointsFromTwips(format.indentEnd), 523 - (72 + 500) - 12, 0.1) << "else the line would break";
}

TEST(ParagraphFormat, GivesALineOfItsOwnRoomForAStandInOfItsFont) {
    for (const auto alignment : {document::Alignment::Start, document::Alignment::Justified}) {
        const auto format = [&](std::size_t characters, std::size_t lines) {
            const Line line = makeLine(std::string(characters, '_'), 72, 100);
            return formatOfLines(std::vector<Line>(lines, line), alignment);
        };
        EXPECT_EQ(format(90, 1).indentEnd, twipsFromPoints(1 - 12)) << "450 of 451 points";
        EXPECT_GE(format(80, 1).indentEnd, Twips(0)) << "there is room enough";
        EXPECT_EQ(format(90, 2).indentEnd, Twips(0)) << "lines of a text wrap where the column ends";
    }
}

TEST(ParagraphFormat, GivesLinesThatAreNotSetFromTheStartThatRoomToo) {
    const auto format = [](std::size_t characters, double left, document::Alignment alignment) {
        return formatOfLines({makeLine(std::string(characters, 'x'), left, 100)}, alignment);
    };
    const auto atEnd = format(90, 73, document::Alignment::End);
    EXPECT_EQ(atEnd.indentStart, twipsFromPoints(1 - 12));
    EXPECT_EQ(atEnd.indentEnd, Twips(0));
    EXPECT_EQ(format(80, 123, document::Alignment::End).indentStart, Twips(0)) << "there is room enough";
    const auto centred = format(90, 72.5, document::Alignment::Center);
    EXPECT_EQ(centred.indentStart, twipsFromPoints(0.5 - 6));
    EXPECT_EQ(centred.indentEnd, centred.indentStart);
}

TEST(ParagraphFormat, EndsRaggedLinesWhereTheyWereSetTo) {
    const auto indentAt = [](double end) {
        ParagraphDraft paragraph = tests::makeParagraph({makeLine("some words", 72, 100), makeLine("more", 72, 112)});
        paragraph.ownEnd = end;
        return formatOf(*tests::makeBlock(std::move(paragraph)).paragraph(), {}, {}).indentEnd;
    };
    EXPECT_EQ(indentAt(323), twipsFromPoints(200));
    EXPECT_EQ(indentAt(520), Twips(0)) << "at the column's edge";
}

TEST(ParagraphFormat, GivesThatRoomToALineThatMightHaveGoneOnButDoesNot) {
    ParagraphDraft paragraph = tests::makeParagraph({makeLine(std::string(90, 'x'), 72, 760)});
    paragraph.endsParagraph = false; // the page ends
    const DraftBlock block = tests::makeBlock(std::move(paragraph));
    EXPECT_EQ(formatOf(*block.paragraph(), {}, {}).indentEnd, twipsFromPoints(1 - 12));
}

TEST(ParagraphFormat, LetsTextSetAgainstTheEndReachPastTheColumnOrEndBeforeIt) {
    const auto format = [](double left) {
        return formatOfLines({makeLine("twelve chars", left, 100)}, document::Alignment::End);
    };
    const auto roomOf = [](double left) { return 523 - makeLine("twelve chars", left, 100).box.right; };
    EXPECT_NEAR(pointsFromTwips(format(495).indentEnd), roomOf(495), 0.1);
    EXPECT_LT(roomOf(495), 0);
    EXPECT_NEAR(pointsFromTwips(format(400).indentEnd), roomOf(400), 0.1) << "the section is wider than the page shows";
    EXPECT_EQ(format(523.5 - makeLine("twelve chars", 0, 100).box.right).indentEnd, Twips(0)) << "it ends at the edge";
}

TEST(ParagraphFormat, LetsTheShadingOfALineGoAsFarAsItsGround) {
    const auto format = [](document::Alignment alignment) {
        ParagraphDraft paragraph = tests::makeParagraph({makeLine("a banner", 100, 100)});
        paragraph.alignment = alignment;
        paragraph.shadedSpan = ColumnSpan{60, 540};
        const DraftBlock block = tests::makeBlock(std::move(paragraph));
        return formatOf(*block.paragraph(), {}, {});
    };
    const document::ParagraphProperties start = format(document::Alignment::Start);
    EXPECT_EQ(start.indentStart, Twips(20 * (60 - 72)));
    EXPECT_EQ(start.firstLine, Twips(20 * (100 - 60))) << "the line stays where it stands";
    EXPECT_EQ(start.indentEnd, Twips(20 * (523 - 540)));
    const document::ParagraphProperties center = format(document::Alignment::Center);
    EXPECT_EQ(center.indentStart, Twips(20 * (60 - 72)));
    EXPECT_EQ(center.firstLine, Twips(0));
}

TEST(ParagraphFormat, SeesAnEndIndentOnlyWhereTextIsJustified) {
    const auto lines = [] { return std::vector{makeLine("words that end early", 72, 100), makeLine("and", 72, 112)}; };
    EXPECT_EQ(formatOfLines(lines(), document::Alignment::Start).indentEnd, Twips(0));
    EXPECT_NEAR(pointsFromTwips(formatOfLines(lines(), document::Alignment::Justified).indentEnd), 523 - 172 - 0.5,
                0.1);
}

TEST(ParagraphFormat, SeesNoEndIndentInWhatIdeographsLeaveFree) {
    const auto lines = [](double right) {
        Line first = makeLine("一二三", 72, 100);
        first.box.right = right;
        return std::vector{first, makeLine("四", 72, 112)};
    };
    EXPECT_EQ(formatOfLines(lines(523 - 8), document::Alignment::Justified).indentEnd, Twips(0));
    EXPECT_EQ(formatOfLines(lines(523 + 8), document::Alignment::Start).indentEnd, Twips(0)) << "a hanging full stop";
    EXPECT_NE(formatOfLines(lines(523 - 30), document::Alignment::Justified).indentEnd, Twips(0));
}

TEST(ParagraphFormat, OverlooksWhereLinesHappenToEnd) {
    const auto endOf = [](std::size_t characters) {
        const std::string text(characters, 'x');
        return formatOfLines({makeLine(text, 71, 100), makeLine(text, 71, 112)}, document::Alignment::Justified)
            .indentEnd;
    };
    EXPECT_EQ(endOf(90), Twips(0)) << "two points before the edge";
    EXPECT_NEAR(pointsFromTwips(endOf(89)), 7 - 0.5, 0.1) << "with a hair of room";
}

TEST(ParagraphFormat, TakesTheAlignmentOfTheLongestPart) {
    const auto part = [](std::size_t lines, document::Alignment alignment) {
        std::vector<Line> text;
        for (std::size_t i = 0; i < lines; ++i)
            text.push_back(makeLine(std::string(60, 'x'), 72, 100 + 12 * static_cast<double>(i)));
        ParagraphDraft paragraph = tests::makeParagraph(std::move(text));
        paragraph.alignment = alignment;
        return tests::makeBlock(std::move(paragraph));
    };
    DraftBlock block = part(2, document::Alignment::Start);
    const DraftBlock rest = part(6, document::Alignment::Justified);
    block.paragraph()->pieces.push_back(rest.paragraph()->pieces.front());
    EXPECT_EQ(formatOf(*block.paragraph(), {}, {}).alignment, document::Alignment::Justified);
}

TEST(ParagraphFormat, KnowsTextThatIsNotJustifiedByItsLastLine) {
    const auto formatWith = [](std::size_t last) {
        return formatOfLines({makeLine(std::string(60, 'x'), 72, 100), makeLine(std::string(last, 'x'), 72, 112)},
                             document::Alignment::Justified);
    };
    EXPECT_EQ(formatWith(20).alignment, document::Alignment::Justified);
    EXPECT_EQ(formatWith(60).alignment, document::Alignment::Justified);
    EXPECT_EQ(formatWith(70).alignment, document::Alignment::Start)
        << "no line of justified text is fuller than others";
    EXPECT_EQ(formatWith(70).indentEnd, Twips(0));
}

TEST(ParagraphFormat, TakesNoColumnOfSingleWordsForJustifiedText) {
    const auto format = formatOfLines({makeLine("w", 72, 100), makeLine("w", 72, 112), makeLine("w", 72, 124)},
                                      document::Alignment::Justified);
    EXPECT_EQ(format.alignment, document::Alignment::Start);
    EXPECT_EQ(format.indentEnd, Twips(0)) << "else no word would have room";
}

TEST(ParagraphFormat, DrawsTheRulesBetweenEqualParagraphs) {
    document::Border rule{document::BorderKind::Single, EighthPoints(6), {}, 4};
    DraftBlock above = tests::makeBlock(tests::makeParagraph({makeLine("a heading", 72, 100)}));
    above.paragraph()->pieces[0].text.borders.top = rule;
    EXPECT_EQ(formatOf(*above.paragraph(), {}, {}).betweenBorder, rule) << "the next one may have it too";
    above.paragraph()->pieces[0].text.borders.bottom = rule;
    EXPECT_EQ(formatOf(*above.paragraph(), {}, {}).betweenBorder, document::Border()) << "rules on both sides";
    above.paragraph()->pieces[0].text.borders.top = {};
    EXPECT_EQ(formatOf(*above.paragraph(), {}, {}).betweenBorder, rule);
}

} // namespace
} // namespace orvane::layout
