#include "write/rtf/FormFieldRtf.h"

#include "base/Utf8.h"
#include "write/LinkNames.h"

#include <algorithm>

namespace orvane::write::rtf {
namespace {

using namespace document;

// Source: RTF 1.9.1, "Form Fields": \fftype, \fftypetxt, limits of names, texts and choices.
constexpr int kTextField = 0;
constexpr int kCheckBox = 1;
constexpr int kDropDown = 2;
constexpr int kDateText = 2;
constexpr std::size_t kLongestName = 20;
constexpr std::size_t kLongestHelp = 255;
constexpr std::size_t kMostChoices = 25;
constexpr std::size_t kLongestChoice = 50;
/// What stands in an empty text field, so that it can be seen and clicked.
constexpr const char* kEmptyField = "\u2002\u2002\u2002\u2002\u2002";

std::string shortened(const std::string& text, std::size_t length) {
    return utf8FromUtf32(utf32FromUtf8(text).substr(0, length));
}

std::string plainText(const std::vector<Inline>& inlines) {
    std::string result;
    for (const Inline& item : inlines)
        if (const auto* text = std::get_if<Text>(&item.value))
            result += text->text;
    return result;
}

/// Which choice is shown; none when the field cannot be a list.
std::optional<std::size_t> shownChoice(const ContentControl& control) {
    const auto end =
        control.choices.begin() + static_cast<std::ptrdiff_t>(std::min(control.choices.size(), kMostChoices));
    const auto found = std::find(control.choices.begin(), end, plainText(control.content));
    if (found == end)
        return std::nullopt;
    return static_cast<std::size_t>(found - control.choices.begin());
}

void writeTextOf(RtfStream& rtf, std::string_view destination, const std::string& text) {
    if (text.empty())
        return;
    const RtfDestination group(rtf, destination);
    rtf.text(text);
}

void writeNames(RtfStream& rtf, const ContentControl& control) {
    writeTextOf(rtf, "ffname", shortened(bookmarkName(control.name), kLongestName));
    if (!control.tooltip.empty()) {
        rtf.word("ffownstat");
        writeTextOf(rtf, "ffstattext", shortened(control.tooltip, kLongestHelp));
    }
}

void writeCheckBox(RtfStream& rtf, const ContentControl& control) {
    rtf.word("fftype", kCheckBox);
    rtf.word("ffres", control.isChecked ? 1 : 0);
    writeNames(rtf, control);
}

void writeChoices(RtfStream& rtf, const ContentControl& control, std::size_t shown) {
    rtf.word("fftype", kDropDown);
    rtf.word("ffres", static_cast<std::int64_t>(shown));
    rtf.word("ffhaslistbox");
    writeNames(rtf, control);
    for (std::size_t i = 0; i < std::min(control.choices.size(), kMostChoices); ++i)
        writeTextOf(rtf, "ffl", shortened(control.choices[i], kLongestChoice));
}

void writeTextField(RtfStream& rtf, const ContentControl& control) {
    rtf.word("fftype", kTextField);
    if (control.kind == ControlKind::Date)
        rtf.word("fftypetxt", kDateText);
    writeNames(rtf, control);
}

template<typename Properties>
void startFormField(RtfStream& rtf, const char* code, const Properties& writeProperties) {
    rtf.open();
    rtf.word("field");
    {
        const RtfDestination instruction(rtf, "fldinst");
        rtf.text(code);
        const RtfDestination field(rtf, "formfield");
        const RtfGroup group(rtf);
        writeProperties();
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
    const auto shown = control.kind == ControlKind::DropDown ? shownChoice(control) : std::nullopt;
    if (control.kind == ControlKind::CheckBox)
        startFormField(rtf, " FORMCHECKBOX ", [&] { writeCheckBox(rtf, control); });
    else if (shown)
        startFormField(rtf, " FORMDROPDOWN ", [&] { writeChoices(rtf, control, *shown); });
    else
        startFormField(rtf, " FORMTEXT ", [&] { writeTextField(rtf, control); });
    // The sign of a check box and the choice of a list are drawn by the word processor.
    if (control.kind != ControlKind::CheckBox && !shown) {
        if (control.content.empty())
            rtf.text(kEmptyField);
        else
            writeContent();
    }
    endFormField(rtf);
}

} // namespace orvane::write::rtf
