#include "layout/assembly/StyleMaker.h"

#include "layout/assembly/NamedStyles.h"
#include "layout/assembly/ParagraphFormat.h"
#include "layout/support/Tally.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <optional>
#include <utility>

namespace orvane::layout {
namespace {

using document::Alignment;
using document::LineSpacing;
using document::LineSpacingRule;
using document::ParagraphProperties;
using document::RunProperties;
using document::Style;

/// The paragraphs of one style.
struct StyleGroup {
    Style style;
    FlowKind place = FlowKind::Body;
    std::vector<AssembledBlock*> members;
};

void countRuns(const std::vector<document::Inline>& inlines, Tally<RunProperties>& tally) {
    for (const document::Inline& item : inlines) {
        if (const auto* text = std::get_if<document::Text>(&item.value))
            tally.add(text->properties, static_cast<double>(text->text.size()));
        else if (const auto* link = std::get_if<document::Link>(&item.value))
            countRuns(link->inlines, tally);
        else if (const auto* field = std::get_if<document::Field>(&item.value))
            countRuns(field->result, tally);
        else if (const auto* control = std::get_if<document::ContentControl>(&item.value))
            countRuns(control->content, tally);
    }
}

std::size_t lineCount(const AssembledBlock& block) {
    std::size_t count = 0;
    if (const DraftParagraph* draft = block.draftParagraph())
        for (const DraftPiece& piece : draft->pieces)
            count += piece.text.lines.size();
    return count;
}

/// Whether a tabulator of the block's first line may go to the edge of its hanging indent. Leaders lead farther.
bool mayTabToIndent(const AssembledBlock& block) {
    const DraftParagraph* draft = block.draftParagraph();
    if (!draft || block.paragraph()->properties.firstLine >= Twips(0))
        return false;
    const std::vector<Word>& words = draft->firstLine().words;
    return std::any_of(words.begin(), words.end(), [](const Word& word) {
        return isTabulator(word) && word.leaderBefore == document::TabLeader::None;
    });
}

/// Groups in the order in which their first paragraphs stand; the default style first, even when nothing is set in it.
std::vector<StyleGroup> groupByStyle(std::vector<BlockFlow>& flows) {
    std::vector<StyleGroup> groups{{namedStyle(nullptr, FlowKind::Body), FlowKind::Body, {}}};
    std::map<document::StyleId, std::size_t> indexOf{{groups[0].style.id, 0}};
    for (BlockFlow& flow : flows) {
        forEachBlock(flow.blocks, flow.kind, [&](AssembledBlock& block, FlowKind place) {
            document::Paragraph* paragraph = block.paragraph();
            if (!paragraph)
                return;
            Style style = namedStyle(block.draftParagraph(), place);
            paragraph->style = style.id;
            const auto [entry, isNew] = indexOf.emplace(style.id, groups.size());
            if (isNew)
                groups.push_back({std::move(style), place, {}});
            groups[entry->second].members.push_back(&block);
        });
    }
    return groups;
}

/// The look of most characters.
void chooseRun(StyleGroup& group) {
    Tally<RunProperties> looks;
    for (const AssembledBlock* member : group.members)
        countRuns(member->paragraph()->inlines, looks);
    if (const RunProperties* look = looks.heaviest())
        group.style.run = *look;
    // That is a matter of single characters, which a style has none of.
    group.style.run.isEastAsian = false;
}

/// The format of members of at least `lines` lines; only of those with `alignment`, if given.
std::vector<const ParagraphProperties*> formatsOf(const StyleGroup& group, std::size_t lines,
                                                  std::optional<Alignment> alignment = std::nullopt) {
    std::vector<const ParagraphProperties*> formats;
    for (const AssembledBlock* member : group.members) {
        const ParagraphProperties& format = member->paragraph()->properties;
        if (lineCount(*member) >= lines && (!alignment || format.alignment == *alignment))
            formats.push_back(&format);
    }
    return formats;
}

/// The value of `field` that most paragraphs have.
template<typename T>
void chooseField(StyleGroup& group, T ParagraphProperties::*field) {
    Tally<T> values;
    for (const ParagraphProperties* format : formatsOf(group, 1))
        values.add(format->*field);
    if (const T* value = values.heaviest())
        group.style.paragraph.*field = *value;
}

/// Likewise for a length, which is measured and so never quite the same.
void chooseLength(StyleGroup& group, Twips ParagraphProperties::*field, const AssemblyParameters::Styles& limits) {
    // The indents of paragraphs that are aligned otherwise are none of the style's.
    const Alignment alignment = group.style.paragraph.alignment;
    std::vector<const ParagraphProperties*> formats = formatsOf(group, 1, alignment);
    // Of a single line only the first edge is seen, so longer paragraphs are asked first, unless they are few.
    std::vector<const ParagraphProperties*> longer = formatsOf(group, 2, alignment);
    if (static_cast<double>(longer.size()) >= limits.longerShare * static_cast<double>(formats.size()))
        formats = std::move(longer);
    std::vector<double> lengths;
    for (const ParagraphProperties* format : formats)
        lengths.push_back(pointsFromTwips(format->*field));
    group.style.paragraph.*field = twipsFromPoints(mostFrequent(std::move(lengths), limits.sameIndent).value_or(0));
}

/// Nothing shows whether a single line is justified, so only longer paragraphs and clear cases count.
void chooseAlignment(StyleGroup& group) {
    constexpr double kFaintVote = 0.01;
    Tally<Alignment> alignments;
    for (const AssembledBlock* member : group.members) {
        const std::size_t lines = lineCount(*member);
        const Alignment alignment = member->paragraph()->properties.alignment;
        if (lines > 1 || alignment != Alignment::Start)
            alignments.add(alignment, static_cast<double>(lines));
        else if (lines == 1)
            alignments.add(alignment, kFaintVote);
    }
    if (const Alignment* alignment = alignments.heaviest())
        group.style.paragraph.alignment = *alignment;
}

/// Whether lines of that height cut off the style's letters. That of smaller ones is no spacing for the style.
bool cutsLetters(const LineSpacing& spacing, const Style& style, const AssemblyParameters::Styles& limits) {
    return spacing.rule == LineSpacingRule::Exact &&
           pointsFromTwips(spacing.height) < limits.leastHeight * style.run.size.value / 2;
}

/// The line spacing of most paragraphs that show one; nullopt when none does.
std::optional<LineSpacing> usualLineSpacing(const StyleGroup& group, const AssemblyParameters::Styles& limits) {
    Tally<LineSpacing> spacings;
    for (const AssembledBlock* member : group.members) {
        const LineSpacing& spacing = member->paragraph()->properties.lineSpacing;
        if (member->hasOwnLineSpacing && !cutsLetters(spacing, group.style, limits))
            spacings.add(spacing, static_cast<double>(lineCount(*member) - 1));
    }
    const LineSpacing* spacing = spacings.heaviest();
    return spacing ? std::optional(*spacing) : std::nullopt;
}

/// What a style is taken to have whose paragraphs are all of one line: body text's multiple, but single spacing in
/// tables, running heads and notes, for which word processors' own styles set that.
LineSpacing inheritedLineSpacing(const StyleGroup& group, const LineSpacing& body) {
    if (group.place != FlowKind::Body || body.rule != LineSpacingRule::Multiple)
        return {};
    return body;
}

bool isNear(Twips a, Twips b, double points) {
    return std::abs(a.value - b.value) <= twipsFromPoints(points).value;
}

bool isNear(const LineSpacing& a, const LineSpacing& b, const AssemblyParameters::Styles& limits) {
    if (a.rule != b.rule)
        return false;
    return a.rule == LineSpacingRule::Multiple ? std::abs(a.multiple - b.multiple) <= limits.sameMultiple
                                               : isNear(a.height, b.height, limits.sameHeight);
}

/// Gives a paragraph those values of its style that it cannot be told from.
void snapToStyle(AssembledBlock& block, const Style& style, const AssemblyParameters::Styles& limits) {
    ParagraphProperties& format = block.paragraph()->properties;
    const ParagraphProperties& usual = style.paragraph;
    const bool isSingleLine = lineCount(block) == 1;
    // A picture on a line needs all of its height: other spacing than single would cut it, or part it from its text.
    const bool isText = block.draftParagraph() != nullptr;
    if (isText && !block.hasOwnLineSpacing)
        format.lineSpacing = usual.lineSpacing;
    else if (isNear(format.lineSpacing, usual.lineSpacing, limits))
        format.lineSpacing = usual.lineSpacing;
    format.outlineLevel = usual.outlineLevel;
    format.keepWithNext = usual.keepWithNext;
    const bool mayBeJustified = isSingleLine && format.alignment == Alignment::Start;
    if (mayBeJustified && usual.alignment == Alignment::Justified)
        format.alignment = usual.alignment;
    // The indents of a list's items are those of its levels.
    if (format.alignment != usual.alignment || block.paragraph()->list)
        return;
    const bool startsAlike =
        isNear(format.indentStart + format.firstLine, usual.indentStart + usual.firstLine, limits.sameIndent);
    const bool goesOnAlike =
        (isSingleLine && !mayTabToIndent(block)) || isNear(format.indentStart, usual.indentStart, limits.sameIndent);
    if (startsAlike && goesOnAlike) {
        format.indentStart = usual.indentStart;
        format.firstLine = usual.firstLine;
    }
    // A line that ends beyond the column's edge would break without the room that it takes there.
    const bool standsOut = format.indentEnd < Twips(0) && format.indentEnd < usual.indentEnd;
    const bool isSetFromStart = format.alignment == Alignment::Start || format.alignment == Alignment::Justified;
    const bool isEndUnseen = isSingleLine && isSetFromStart && !standsOut && isText &&
                             roomBehind(block.draftParagraph()->pieces.front()) >= pointsFromTwips(usual.indentEnd);
    if (isNear(format.indentEnd, usual.indentEnd, limits.sameIndent) || isEndUnseen)
        format.indentEnd = usual.indentEnd;
}

void chooseFormat(StyleGroup& group, const AssemblyParameters::Styles& limits) {
    chooseAlignment(group);
    if (group.style.id != "ListParagraph") {
        chooseLength(group, &ParagraphProperties::indentStart, limits);
        chooseLength(group, &ParagraphProperties::indentEnd, limits);
        chooseLength(group, &ParagraphProperties::firstLine, limits);
    }
    chooseField(group, &ParagraphProperties::isRightToLeft);
    if (group.style.id != "Normal")
        chooseField(group, &ParagraphProperties::tabs);
}

} // namespace

std::vector<Style> makeStyles(std::vector<BlockFlow>& flows, const AssemblyContext& context) {
    std::vector<StyleGroup> groups = groupByStyle(flows);
    if (groups[0].members.empty()) {
        groups[0].style.run.fontFamily = context.fonts.mainFamily(ScriptClass::Simple);
        groups[0].style.run.size = halfPointsFromPoints(context.document.bodyFontSize);
    }
    for (StyleGroup& group : groups)
        chooseRun(group);
    const AssemblyParameters::Styles& limits = context.parameters.styles;
    const LineSpacing body = usualLineSpacing(groups[0], limits).value_or(LineSpacing{});
    std::vector<Style> styles;
    for (StyleGroup& group : groups) {
        chooseFormat(group, limits);
        group.style.paragraph.lineSpacing = usualLineSpacing(group, limits).value_or(inheritedLineSpacing(group, body));
        for (AssembledBlock* member : group.members)
            snapToStyle(*member, group.style, limits);
        styles.push_back(group.style);
    }
    return styles;
}

} // namespace orvane::layout
