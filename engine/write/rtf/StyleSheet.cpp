#include "write/rtf/StyleSheet.h"

#include "write/rtf/ParagraphPropertiesRtf.h"
#include "write/rtf/RunRtf.h"

#include <algorithm>

namespace orvane::write::rtf {
namespace {

using namespace document;

/// The name as the file takes it: a semicolon would end it.
std::string styleName(const Style& style) {
    std::string name = style.name.empty() ? style.id : style.name;
    std::replace(name.begin(), name.end(), ';', ' ');
    return name;
}

void writeStyle(RtfState& state, RtfStream& rtf, const Style& style) {
    static const ParagraphProperties kPlainParagraph;
    const Style* parent = state.styles.parentOf(style);
    const Style& next = state.styles.isKnown(style.next) ? state.styles.at(style.next) : style;
    const RtfGroup group(rtf);
    rtf.word("s", state.numberOf(style));
    writeParagraphProperties(state, rtf, style.paragraph, parent ? parent->paragraph : kPlainParagraph);
    writeStyleRunProperties(state, rtf, style.run, parent ? parent->run : plainRun());
    // Pairs of letters stand where their widths put them, as they do in the other formats where nothing is said.
    if (parent)
        rtf.word("sbasedon", state.numberOf(*parent));
    else
        rtf.word("kerning", 0);
    rtf.word("snext", state.numberOf(next));
    rtf.word("sqformat");
    rtf.text(styleName(style));
    rtf.raw(";");
}

} // namespace

void writeStyleSheet(RtfState& state, RtfStream& rtf) {
    const RtfGroup sheet(rtf, "stylesheet");
    if (state.document.styles.empty())
        writeStyle(state, rtf, state.styles.defaultStyle());
    for (const Style& style : state.document.styles)
        if (&state.styles.at(style.id) == &style)
            writeStyle(state, rtf, style);
}

} // namespace orvane::write::rtf
