#include "write/rtf/FormFieldRtf.h"

#include "write/FormFields.h"

namespace orvane::write::rtf {
namespace {

using namespace document;

constexpr int kDateText = 2; ///< Source: RTF 1.9.1, "Form Fields": \fftypetxt

void writeTextOf(RtfStream& rtf, std::string_view destination, const std::string& text) {
    if (text.empty())
        return;
    const RtfDestination group(rtf, destination);
    rtf.text(text);
}

void writeNames(RtfStream& rtf, const FormField& field) {
    writeTextOf(rtf, "ffname", field.name);
    if (!field.help.empty()) {
        rtf.word("ffownstat");
        writeTextOf(rtf, "ffstattext", field.help);
    }
}

/// What the word processor knows of the field beside its text.
void writeProperties(RtfStream& rtf, const FormField& field) {
    rtf.word("fftype", static_cast<int>(field.type));
    if (field.type == FormFieldType::CheckBox)
        rtf.word("ffres", field.isChecked ? 1 : 0);
    if (field.type == FormFieldType::DropDown) {
        rtf.word("ffres", static_cast<std::int64_t>(field.shownChoice));
        rtf.word("ffhaslistbox");
    }
    if (field.isDate)
        rtf.word("fftypetxt", kDateText);
    writeNames(rtf, field);
    for (const std::string& choice : field.choices)
        writeTextOf(rtf, "ffl", choice);
}

void startFormField(RtfStream& rtf, const FormField& field) {
    rtf.open();
    rtf.word("field");
    {
        const RtfDestination instruction(rtf, "fldinst");
        rtf.text(instructionOf(field.type));
        const RtfDestination properties(rtf, "formfield");
        const RtfGroup group(rtf);
        writeProperties(rtf, field);
    }
    rtf.open();
    rtf.word("fldrslt");
}

void endFormField(RtfStream& rtf) {
    rtf.close();
    rtf.close();
}

} // namespace

void writeFormField(Story& story, const ContentControl& control, const std::function<void()>& writeContent) {
    RtfStream& rtf = story.rtf;
    const FormField field = formFieldOf(control);
    startFormField(rtf, field);
    // The sign of a check box and the choice of a list are drawn by the word processor.
    if (field.type == FormFieldType::Text) {
        if (control.content.empty())
            rtf.text(kEmptyField);
        else
            writeContent();
    }
    endFormField(rtf);
}

} // namespace orvane::write::rtf
