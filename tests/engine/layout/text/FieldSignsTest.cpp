#include "layout/text/FieldSigns.h"

#include "layout/text/LineText.h"

#include "engine/layout/PageReading.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using pdf::FieldKind;
using pdf::FormField;
using pdf::tests::PageContentBuilder;
using testing::ElementsAre;
using testing::IsEmpty;

FormField fieldAt(const Rect& box, FieldKind kind = FieldKind::Text, std::string value = {}) {
    FormField field;
    field.kind = kind;
    field.box = box;
    field.value = std::move(value);
    return field;
}

TEST(FieldSigns, HoldThePlaceOfAnEmptyField) {
    PageContentBuilder page;
    page.text(72, 100, "Name:", 10);
    page.text(233, 100, "Town:", 10);
    page.content().fields.push_back(fieldAt({104, 90, 230, 104}));
    const PageText text = tests::read(page);
    ASSERT_EQ(text.lines.size(), 1u) << "the field fills the gap";
    EXPECT_EQ(textOf(text.lines[0]), "Name: \uFFFC Town:");
    EXPECT_EQ(text.lines[0].words.at(1).spans[0].look.field, 0);
    EXPECT_EQ(text.lines[0].words.at(0).spans[0].look.field, -1);
}

TEST(FieldSigns, LeaveWhatAFieldShows) {
    PageContentBuilder page;
    page.text(72, 100, "Name:", 10);
    page.text(106, 100, "Jane Doe", 10);
    page.content().fields.push_back(fieldAt({104, 90, 230, 104}, FieldKind::Text, "Jane Doe"));
    const PageText text = tests::read(page);
    EXPECT_THAT(tests::linesOf(page), ElementsAre("Name: Jane Doe"));
    EXPECT_EQ(text.lines.at(0).words.at(2).spans.at(0).look.field, 0);
}

TEST(FieldSigns, LeaveOutWhatTheEdgeOfAFieldCuts) {
    PageContentBuilder page;
    page.text(72, 60, "Remarks", 10);
    page.text(106, 100, "The first line", 10);
    page.text(106, 112, "and a second", 10);
    page.content().fields.push_back(
        fieldAt({104, 85, 230, 106}, FieldKind::Text, "The first line\nand a second\nand a third"));
    EXPECT_THAT(tests::linesOf(page), ElementsAre("Remarks", "The first line"));
    page.content().fields.front().value = "something else";
    EXPECT_THAT(tests::linesOf(page), ElementsAre("Remarks", "The first line", "and a second"))
        << "what is not of the value is text of the page";
}

TEST(FieldSigns, SetAValueThatIsShownNowhere) {
    PageContentBuilder page;
    page.text(72, 100, "Name:", 10);
    page.content().fields.push_back(fieldAt({104, 90, 230, 104}, FieldKind::Text, "Jane Doe"));
    EXPECT_THAT(tests::linesOf(page), ElementsAre("Name: Jane Doe"));
}

TEST(FieldSigns, StandForCheckBoxesInPlaceOfTheirDrawing) {
    PageContentBuilder page;
    page.text(87, 100, "agreed", 10);
    page.strokedRectangle({72, 90, 84, 102});
    page.content().fields.push_back(fieldAt({72, 90, 84, 102}, FieldKind::CheckBox));
    page.content().fields.back().isOn = true;
    page.text(74, 100, "X", 10);
    const PageText text = tests::read(page);
    ASSERT_EQ(text.lines.size(), 1u);
    EXPECT_EQ(textOf(text.lines[0]), "\u2612 agreed");
    EXPECT_THAT(text.rules, IsEmpty());
}

TEST(FieldSigns, StandOnALineWhoseLettersStandInTheField) {
    PageContentBuilder page;
    page.text(72, 100, "Working days", 10);
    page.text(72, 112, "abroad:", 10);
    page.content().fields.push_back(fieldAt({140, 99, 180, 114}));
    const PageText text = tests::read(page);
    ASSERT_EQ(text.lines.size(), 2u);
    EXPECT_EQ(textOf(text.lines[1]), "abroad:\t\uFFFC");
    EXPECT_EQ(text.lines[1].words.back().spans[0].look.field, 0);
}

TEST(FieldSigns, HideWhatTheirGroundCovers) {
    PageContentBuilder page;
    const double left = 72 + PageContentBuilder::widthOf("Tax . . ", 10);
    page.text(72, 100, "Tax . . . . . . . . .", 10);
    page.filledRectangle({left, 90, 230, 104}, kWhite);
    page.text(left + 1, 100, "none", 10);
    EXPECT_THAT(tests::linesOf(page), testing::Not(ElementsAre("Tax . . none"))) << "only a field says what it holds";
    page.content().fields.push_back(fieldAt({left, 90, 230, 104}, FieldKind::Text, "none"));
    EXPECT_THAT(tests::linesOf(page), ElementsAre("Tax . . none"));
}

TEST(FieldSigns, LeaveButtonsAlone) {
    PageContentBuilder page;
    page.text(72, 100, "Send", 10);
    page.content().fields.push_back(fieldAt({70, 90, 100, 104}, FieldKind::PushButton));
    EXPECT_EQ(tests::read(page).lines.at(0).words.at(0).spans.at(0).look.field, -1);
}

} // namespace
} // namespace orvane::layout
