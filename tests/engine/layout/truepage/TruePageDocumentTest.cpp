#include "layout/truepage/TruePageDocument.h"

#include "base/Failure.h"
#include "engine/layout/TextBuilder.h"
#include "layout/truepage/Backdrop.h"

#include <gtest/gtest.h>

namespace orvane::layout::tests {
namespace {

using document::Block;
using document::Document;
using document::Figure;
using document::Frame;
using document::Paragraph;

/// Lets the job go on, or not.
class Starter : public JobObserver {
public:
    explicit Starter(bool hasCancelled)
        : m_hasCancelled(hasCancelled) {}
    void stageReached(JobStage, int, int) override {}
    bool isCancelled() const override { return m_hasCancelled; }

private:
    bool m_hasCancelled;
};

Document documentOf(std::vector<PageText> pages) {
    Diagnostics diagnostics;
    return truePageDocument(std::move(pages), {}, {LayoutMode::TruePage, false, false}, {}, Starter(false),
                            diagnostics);
}

template<typename T>
std::vector<const T*> all(const std::vector<Block>& blocks) {
    std::vector<const T*> found;
    for (const Block& block : blocks)
        if (const T* value = std::get_if<T>(&block.value))
            found.push_back(value);
    return found;
}

double points(Emu length) {
    return static_cast<double>(length.value) / 12700;
}

TEST(TruePageDocument, PutsTextIntoFramesWhereItStood) {
    PageText page = makePage(1);
    page.lines = {makeLine("A heading", 100, 90, {20}), makeLine("some lines of text", 72, 140),
                  makeLine("more lines of text", 72, 152)};
    const Document document = documentOf({page});
    ASSERT_EQ(document.sections.size(), 1u);
    const auto frames = all<Frame>(document.sections[0].blocks);
    ASSERT_EQ(frames.size(), 2u);
    EXPECT_NEAR(points(frames[0]->placement.x), 100, 0.1);
    EXPECT_NEAR(points(frames[1]->placement.x), 72, 0.1);
    EXPECT_NEAR(points(frames[1]->height), 24, 0.1) << "two lines of their pitch";
    EXPECT_LT(points(frames[1]->placement.y), 132) << "its first line stands on 140";
    EXPECT_GT(points(frames[1]->placement.y) + points(frames[1]->height), 152);
    const auto& paragraph = std::get<Paragraph>(frames[1]->blocks.at(0).value);
    EXPECT_EQ(paragraph.properties.lineSpacing.rule, document::LineSpacingRule::Exact);
    EXPECT_EQ(paragraph.properties.lineSpacing.height, twipsFromPoints(12));
}

TEST(TruePageDocument, BringsFontsAlong) {
    PageText page = makePage(1);
    pdf::Font lato;
    lato.name = "Lato";
    lato.objectNumber = 7;
    page.fonts = {lato};
    page.lines = {makeLine("some text", 72, 140)};
    DocumentFacts facts;
    CarriedFont carried;
    carried.request.family = "Lato";
    carried.request.sources = {{7, {}}};
    carried.program = "a program";
    facts.fonts.push_back(carried);
    Diagnostics diagnostics;
    const Document document =
        truePageDocument({page}, facts, {LayoutMode::TruePage, false, false}, {}, Starter(false), diagnostics);
    ASSERT_EQ(document.fonts.size(), 1u);
    EXPECT_EQ(document.fonts[0].family, "Lato");
    EXPECT_EQ(document.fonts[0].program, "a program");
    EXPECT_EQ(document.styles.front().run.fontFamily, "Lato") << "no other family stands in for it";
}

TEST(TruePageDocument, HasOnePageForEachPage) {
    PageText wide = makePage(3);
    std::swap(wide.width, wide.height);
    const Document document = documentOf({makePage(1), makePage(2), wide});
    ASSERT_EQ(document.sections.size(), 2u) << "pages of one size are one section";
    const auto anchors = all<Paragraph>(document.sections[0].blocks);
    ASSERT_EQ(anchors.size(), 2u);
    EXPECT_FALSE(anchors[0]->properties.pageBreakBefore);
    EXPECT_TRUE(anchors[1]->properties.pageBreakBefore);
    EXPECT_EQ(document.sections[1].pageWidth, twipsFromPoints(842));
    EXPECT_EQ(document.sections[1].start, document::SectionStart::NextPage);
}

TEST(TruePageDocument, SpreadsLinesThatItEndedItself) {
    EXPECT_TRUE(documentOf({makePage(1)}).spreadsBrokenLines);
}

TEST(TruePageDocument, TurnsTextAsItWas) {
    PageText page = makePage(1);
    for (const double angle : {90.0, 270.0, 30.0}) {
        Line line = makeLine("turned", 200, 300 + angle);
        line.angle = angle;
        page.lines.push_back(line);
    }
    const Document document = documentOf({page});
    const auto frames = all<Frame>(document.sections[0].blocks);
    ASSERT_EQ(frames.size(), 3u);
    int down = 0, up = 0, turned = 0;
    for (const Frame* frame : frames) {
        down += frame->direction == document::TextDirection::Downwards;
        up += frame->direction == document::TextDirection::Upwards;
        turned += frame->rotation == 30;
    }
    EXPECT_EQ(down, 1);
    EXPECT_EQ(up, 1);
    EXPECT_EQ(turned, 1);
}

TEST(TruePageDocument, StopsWhenToldTo) {
    Diagnostics diagnostics;
    EXPECT_THROW(
        truePageDocument({makePage(1)}, {}, {LayoutMode::TruePage, false, false}, {}, Starter(true), diagnostics),
        Failure);
}

TEST(Backdrop, KeepsTheOrderOfPainting) {
    PageText page = makePage(1);
    Ground ground;
    ground.box = {10, 10, 110, 60};
    ground.paintOrder = 1;
    layout::Figure picture;
    picture.box = {20, 20, 60, 40};
    picture.matrix = {40, 0, 0, 20, 20, 20};
    picture.picture = PictureId{7};
    picture.paintOrder = 2;
    Rule rule;
    rule.position = 50;
    rule.from = 10;
    rule.to = 110;
    rule.paintOrder = 3;
    page.grounds = {ground};
    page.figures = {picture};
    page.rules = {rule};
    const std::vector<document::Figure> backdrop = backdropOf(page);
    ASSERT_EQ(backdrop.size(), 3u);
    EXPECT_TRUE(std::holds_alternative<document::Drawing>(backdrop[0].content));
    EXPECT_TRUE(std::holds_alternative<document::Picture>(backdrop[1].content));
    EXPECT_NEAR(points(backdrop[1].placement.x), 20, 0.1);
    const auto& drawing = std::get<document::Drawing>(backdrop[2].content);
    ASSERT_EQ(drawing.shapes.size(), 1u);
    EXPECT_TRUE(drawing.shapes[0].line) << "a rule is a stroke";
    for (const document::Figure& figure : backdrop)
        EXPECT_EQ(figure.placement.wrapping, document::Wrapping::BehindText);
}

/// What is drawn on a page that has that rule.
std::vector<document::Shape> shapesOf(const Rule& rule) {
    PageText page = makePage(1);
    page.rules = {rule};
    return std::get<document::Drawing>(backdropOf(page).at(0).content).shapes;
}

TEST(Backdrop, PaintsRulesAsTheyWerePainted) {
    Rule rule;
    rule.position = 100;
    rule.from = 72;
    rule.to = 300;
    rule.paint = RulePaint::Filled;
    const auto filled = shapesOf(rule);
    ASSERT_EQ(filled.size(), 1u);
    EXPECT_TRUE(filled[0].fill);
    EXPECT_FALSE(filled[0].line);
    EXPECT_NEAR(points(filled[0].height), 0.5, 0.01);
}

TEST(Backdrop, DrawsBothLinesOfADoubleRule) {
    Rule rule;
    rule.position = 100;
    rule.from = 72;
    rule.to = 300;
    rule.kind = document::BorderKind::Double;
    rule.width = 3;
    rule.lineWidth = 0.5;
    const auto shapes = shapesOf(rule);
    ASSERT_EQ(shapes.size(), 2u);
    EXPECT_NEAR(points(shapes[1].y) - points(shapes[0].y), 2.5, 0.01);
    EXPECT_NEAR(points(shapes[0].line.value().width), 0.5, 0.01);
}

TEST(Backdrop, LeavesOutWhatIsPartOfTheText) {
    PageText page = makePage(1);
    Rule underline;
    underline.isUsed = true;
    page.rules = {underline};
    Ground highlight;
    highlight.isUsed = true;
    page.grounds = {highlight};
    EXPECT_TRUE(backdropOf(page).empty());
}

TEST(Backdrop, JoinsRulesThatAreDrawnOneAfterTheOther) {
    PageText page = makePage(1);
    page.rules.resize(3);
    for (std::size_t i = 0; i < page.rules.size(); ++i) {
        page.rules[i].position = 100 + 10 * static_cast<double>(i);
        page.rules[i].from = 72;
        page.rules[i].to = 300;
    }
    const std::vector<document::Figure> backdrop = backdropOf(page);
    ASSERT_EQ(backdrop.size(), 1u);
    EXPECT_EQ(std::get<document::Drawing>(backdrop[0].content).shapes.size(), 3u);
    EXPECT_NEAR(points(backdrop[0].placement.y), 99.75, 0.01);
}

} // namespace
} // namespace orvane::layout::tests
