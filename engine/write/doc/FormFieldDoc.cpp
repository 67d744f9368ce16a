#include "write/doc/FormFieldDoc.h"

#include "write/FormFields.h"
#include "write/doc/Bytes.h"
#include "write/doc/FieldDoc.h"

namespace orvane::write::doc {
namespace {

constexpr int kHeaderSize = 0x44; ///< Source: [MS-DOC] 2.9.166 (NilPICFAndBinData)
// Source: [MS-DOC] 2.9.79 (FFDataBits).
constexpr int kStatePlace = 2;
constexpr int kHasStatusText = 1 << 8;
constexpr int kTextTypePlace = 11;
constexpr int kHasListBox = 1 << 15;
constexpr int kDateText = 2;
constexpr int kUsualBoxSize = 20; ///< half points

FieldKind kindOf(FormFieldType type) {
    switch (type) {
    case FormFieldType::Text:
        return FieldKind::FormText;
    case FormFieldType::CheckBox:
        return FieldKind::FormCheckBox;
    case FormFieldType::DropDown:
        return FieldKind::FormDropDown;
    }
    return FieldKind::FormText;
}

/// A text with its length before it and a zero behind it. Source: [MS-DOC] 2.9.350 (Xstz).
void addText(Bytes& bytes, const std::string& text) {
    const std::u16string units = utf16FromUtf8(text);
    bytes.u16(static_cast<std::int64_t>(units.size())).characters(units).u16(0);
}

/// Source: [MS-DOC] 2.2.4 (STTB).
void addChoices(Bytes& bytes, const std::vector<std::string>& choices) {
    bytes.u16(0xFFFF).u16(static_cast<std::int64_t>(choices.size())).u16(0);
    for (const std::string& choice : choices) {
        const std::u16string units = utf16FromUtf8(choice);
        bytes.u16(static_cast<std::int64_t>(units.size())).characters(units);
    }
}

int stateOf(const FormField& field) {
    return field.type == FormFieldType::CheckBox ? static_cast<int>(field.isChecked)
                                                 : static_cast<int>(field.shownChoice);
}

std::string formFieldData(const FormField& field) {
    const bool isList = field.type == FormFieldType::DropDown;
    Bytes bytes;
    bytes.u32(0xFFFFFFFF);
    bytes.u16(static_cast<int>(field.type) | stateOf(field) << kStatePlace | (field.help.empty() ? 0 : kHasStatusText) |
              (field.isDate ? kDateText << kTextTypePlace : 0) | (isList ? kHasListBox : 0));
    bytes.u16(0).u16(kUsualBoxSize);
    addText(bytes, field.name);
    if (field.type == FormFieldType::Text)
        addText(bytes, {});
    else
        bytes.u16(stateOf(field));
    addText(bytes, {}); // how the text is formatted
    addText(bytes, {}); // help on a key
    addText(bytes, field.help);
    addText(bytes, {}); // macros for entering and leaving
    addText(bytes, {});
    if (isList)
        addChoices(bytes, field.choices);
    return bytes.str();
}

/// The data with its head, as the data stream holds it.
std::string framed(const std::string& data) {
    Bytes bytes;
    bytes.u32(static_cast<std::int64_t>(kHeaderSize + data.size())).u16(kHeaderSize);
    return bytes.zeros(kHeaderSize - bytes.size()).raw(data).str();
}

} // namespace

void writeFormField(Story& story, const document::ContentControl& control, const std::string& look,
                    const std::function<void()>& writeContent) {
    const FormField field = formFieldOf(control);
    const std::uint32_t place = story.state.pictures.addBytes(framed(formFieldData(field)));
    PropertyList mark;
    mark.add(sprm::kCPicLocation, place).add(sprm::kCFData, 1).add(sprm::kCFSpec, 1);
    openField(story, kindOf(field.type), instructionOf(field.type));
    story.text.add({&character::kPicture, 1}, mark.bytes());
    separateField(story);
    // The sign of a check box and the choice of a list are drawn by the word processor.
    if (field.type == FormFieldType::Text) {
        if (control.content.empty())
            story.text.add(utf16FromUtf8(kEmptyField), look);
        else
            writeContent();
    }
    endField(story);
}

} // namespace orvane::write::doc
