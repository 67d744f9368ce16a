#include "layout/assembly/DropCapAssembler.h"

#include "layout/fonts/LineMetrics.h"
#include "layout/paragraphs/DropCaps.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <string>

namespace orvane::layout {
namespace {

using document::Inline;
using document::Text;

/// The first text if it starts with `letters` and nothing but bookmarks stand before it; a blank behind them becomes a
/// text of its own. Null otherwise.
Text* findLetters(std::vector<Inline>& inlines, const std::string& letters) {
    const auto first = std::find_if(inlines.begin(), inlines.end(), [](const Inline& item) {
        return !std::holds_alternative<document::Bookmark>(item.value);
    });
    const auto* text = first == inlines.end() ? nullptr : std::get_if<Text>(&first->value);
    if (!text || text->text.compare(0, letters.size(), letters) != 0)
        return nullptr;
    const std::string rest = text->text.substr(letters.size());
    if (rest.find_first_not_of(' ') != std::string::npos)
        return nullptr;
    const auto next = std::next(first);
    auto* behind = next == inlines.end() ? nullptr : std::get_if<Text>(&next->value);
    if (!behind)
        return nullptr;
    // The blank between a letter that is a word and the next one is as high as the line.
    behind->text.insert(0, rest);
    auto& found = std::get<Text>(first->value);
    found.text = letters;
    return &found;
}

std::string lettersOf(const Line& line) {
    std::string letters;
    for (std::size_t i = 0; i < dropCapSpans(line); ++i)
        letters += line.words.front().spans[i].text;
    return letters;
}

/// From line to line of those beside the cap. Units: points.
double pitchOf(const ParagraphDraft& text, std::size_t lines) {
    const std::size_t last = std::min(lines, text.lines.size()) - 1;
    return last == 0 ? text.leading : (text.lines[last].baseline - text.lines[0].baseline) / static_cast<double>(last);
}

} // namespace

void setDropCap(document::Paragraph& paragraph, const DraftParagraph& draft, const AssemblyContext& context) {
    const ParagraphDraft& text = draft.pieces.front().text;
    const Line& line = text.lines.front();
    if (!text.dropCap || paragraph.list)
        return;
    Text* letters = findLetters(paragraph.inlines, lettersOf(line));
    if (!letters)
        return;
    const Span& cap = line.words.front().spans[dropCapSpans(line) - 1];
    const double height = line.dropCapLines * pitchOf(text, static_cast<std::size_t>(line.dropCapLines));
    paragraph.dropCap =
        document::DropCap{*text.dropCap, line.dropCapLines, twipsFromPoints(height),
                          twipsFromPoints(std::max(0.0, startBesideDropCap(text.lines) - cap.box.right))};
    // Word processors put the letters on the baseline of a line as high as those beside it.
    const document::LineSpacing& spacing = paragraph.properties.lineSpacing;
    const double above = spacedExtent(extentOf(line, draft.pieces.front().page, context.fonts), spacing).ascent;
    const LineExtent whole = spacedExtent({}, {document::LineSpacingRule::Exact, 1.0, paragraph.dropCap->height});
    letters->properties.raise = twipsFromPoints(whole.ascent - above - (cap.baseline - line.baseline));
}

} // namespace orvane::layout
