#include "layout/assembly/FieldControl.h"

#include "engine/layout/DraftSupport.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using document::ContentControl;
using document::ControlKind;
using document::Inline;
using document::Text;
using pdf::FieldKind;
using pdf::FormField;
using testing::IsEmpty;
using testing::SizeIs;

std::string textOf(const ContentControl& control) {
    std::string text;
    for (const Inline& item : control.content)
        if (const auto* run = std::get_if<Text>(&item.value))
            text += run->text;
        else if (std::holds_alternative<document::Break>(item.value))
            text += '\n';
    return text;
}

TEST(FieldControl, TellsKindsApart) {
    FormField field;
    EXPECT_EQ(controlOf(field, {}).kind, ControlKind::Text);
    field.dateFormat = "dd.mm.yyyy";
    EXPECT_EQ(controlOf(field, {}).kind, ControlKind::Date);
    field.kind = FieldKind::ComboBox;
    field.choices = {"Red", "Blue"};
    EXPECT_EQ(controlOf(field, {}).kind, ControlKind::DropDown);
    field.choiceValues = {"r", "b"};
    EXPECT_THAT(controlOf(field, {}).choices, SizeIs(2));
    EXPECT_THAT(controlOf(field, {}).choiceValues, SizeIs(2));
    field.isEditable = true;
    EXPECT_EQ(controlOf(field, {}).kind, ControlKind::ComboBox);
    field.kind = FieldKind::CheckBox;
    EXPECT_EQ(controlOf(field, {}).kind, ControlKind::CheckBox);
    field.kind = FieldKind::RadioButton;
    field.isOn = true;
    EXPECT_EQ(controlOf(field, {}).kind, ControlKind::RadioButton);
    EXPECT_TRUE(controlOf(field, {}).isChecked);
}

TEST(FieldControl, TakesTheValueAsItWasTyped) {
    FormField field;
    field.value = "1234";
    EXPECT_EQ(textOf(controlOf(field, {{Text{"1 2 3 4", {}}}})), "1234") << "the cells of a comb part the digits";
    field.value = "one\ntwo";
    EXPECT_EQ(textOf(controlOf(field, {{Text{"one two", {}}}})), "one\ntwo");
    field.value = "something else";
    EXPECT_EQ(textOf(controlOf(field, {{Text{"as it looks", {}}}})), "as it looks");
}

TEST(FieldControl, HoldsWhatItsBoxHasNoRoomFor) {
    DocumentDraft draft = tests::draftOfLines({{"Remarks: is what", 100}, {"is seen", 112}});
    draft.pages[0].fields.emplace_back().name = "remarks";
    draft.pages[0].fields.back().value = "First line\nThis is what\nis seen\nand the rest";
    for (DraftBlock& block : draft.blocks)
        for (Word& word : block.paragraph()->pieces[0].text.lines[0].words)
            word.spans[0].look.field = 0;
    draft.blocks[0].paragraph()->pieces[0].text.lines[0].words[0].spans[0].look.field = -1;
    EXPECT_EQ(tests::textOfParagraph(draft, 0),
              "p Normal \"Remarks: \" control(remarks)[ \"First line This \"{hidden} \"is what\" ]");
    EXPECT_EQ(tests::textOfParagraph(draft, 1), "p Normal control(remarks)[ \"is seen\" \" and the rest\"{hidden} ]");
}

TEST(FieldControl, TypesWhatIsSeenOfALongerValue) {
    document::RunProperties hidden;
    hidden.isHidden = true;
    FormField field;
    field.value = "one\ntwo three";
    EXPECT_EQ(textOf(controlOf(field, {{Text{"one two", {}}}, {Text{" three", hidden}}})), "one\ntwo three");
    EXPECT_EQ(textOf(controlOf(field, {{Text{"one two", {}}}})), "one two") << "another control has the rest";
}

TEST(FieldControl, LeavesEmptyFieldsEmpty) {
    EXPECT_THAT(controlOf({}, {{Text{"\uFFFC", {}}}}).content, IsEmpty());
}

TEST(FieldControl, StandsInTheTextWhereTheFieldStood) {
    DocumentDraft draft = tests::draftOfLines({{"Name: Jane Doe please", 100}});
    draft.pages[0].fields.emplace_back().name = "name";
    draft.pages[0].fields.back().value = "Jane Doe";
    std::vector<Word>& words = draft.blocks[0].paragraph()->pieces[0].text.lines[0].words;
    words[1].spans[0].look.field = words[2].spans[0].look.field = 0;
    EXPECT_EQ(tests::textOfParagraph(draft, 0), "p Normal \"Name: \" control(name)[ \"Jane Doe\" ] \" please\"");
}

} // namespace
} // namespace orvane::layout
