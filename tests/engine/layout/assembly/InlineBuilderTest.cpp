#include "layout/assembly/InlineBuilder.h"

#include <gmock/gmock.h>

#include <string>

namespace orvane::layout {
namespace {

using document::Inline;
using document::LinkTarget;
using document::RunProperties;
using document::Text;
using testing::SizeIs;

const std::string& textAt(const std::vector<Inline>& inlines, std::size_t index) {
    return std::get<Text>(inlines.at(index).value).text;
}

TEST(InlineBuilder, JoinsTextOfOneLook) {
    RunProperties bold;
    bold.isBold = true;
    InlineBuilder builder;
    builder.addText("one ", {}, std::nullopt);
    builder.addText("run", {}, std::nullopt);
    builder.addText("", bold, std::nullopt);
    builder.addText("another", bold, std::nullopt);
    const std::vector<Inline> inlines = builder.finish();
    ASSERT_THAT(inlines, SizeIs(2));
    EXPECT_EQ(textAt(inlines, 0), "one run");
    EXPECT_EQ(textAt(inlines, 1), "another");
}

TEST(InlineBuilder, PutsWhatHasOneTargetIntoOneLink) {
    const LinkTarget target{.uri = "https://a.example/", .bookmark = {}};
    InlineBuilder builder;
    builder.addText("see ", {}, std::nullopt);
    builder.addText("the ", {}, target);
    builder.add({document::Tab{}}, target);
    builder.addText("page", {}, target);
    builder.addText(" there", {}, std::nullopt);
    const std::vector<Inline> inlines = builder.finish();
    ASSERT_THAT(inlines, SizeIs(3));
    EXPECT_THAT(std::get<document::Link>(inlines[1].value).inlines, SizeIs(3));
    EXPECT_EQ(textAt(inlines, 2), " there");
}

TEST(InlineBuilder, DropsAWholeCharacter) {
    InlineBuilder builder;
    builder.addText("con\u2010", {}, std::nullopt);
    builder.dropLastCharacter();
    builder.addText("text", {}, std::nullopt);
    EXPECT_EQ(textAt(builder.finish(), 0), "context");
}

TEST(InlineBuilder, LeavesNoEmptyRun) {
    InlineBuilder builder;
    builder.add({document::Tab{}}, std::nullopt);
    builder.addText("-", {}, std::nullopt);
    builder.dropLastCharacter();
    builder.dropLastCharacter();
    EXPECT_THAT(builder.finish(), SizeIs(1)) << "what is no text stays";
}

TEST(InlineBuilder, PutsWhatIsEnteredIntoTheField) {
    pdf::FormField field;
    InlineBuilder builder;
    builder.addText("Name: ", {}, std::nullopt);
    builder.enterField(&field);
    builder.addText("Ada", {}, std::nullopt);
    builder.enterField(nullptr);
    builder.addText(".", {}, std::nullopt);
    const std::vector<Inline> inlines = builder.finish();
    ASSERT_THAT(inlines, SizeIs(3));
    EXPECT_TRUE(std::holds_alternative<document::ContentControl>(inlines[1].value));
    EXPECT_EQ(textAt(inlines, 2), ".");
}

} // namespace
} // namespace orvane::layout
