#pragma once

#include "engine/layout/TextBuilder.h"
#include "layout/page/PageLayout.h"
#include "layout/text/LineText.h"

#include <string>
#include <vector>

/// Pages drawn with characters: what a test shows is how the page looks.
namespace orvane::layout::tests {

inline constexpr double kArtAdvance = 5;  ///< points from one character to the next: half of LineLook's size
inline constexpr double kArtLeading = 12; ///< points from one row to the next
inline constexpr double kArtTop = 100;    ///< baseline of the first row

/// The rows as lines, top to bottom: an empty row is space, blanks in front are an indent, three or more blanks end a
/// line and start the next on the same baseline. Column 0 stands at x = 0.
inline std::vector<Line> linesFromArt(const std::vector<std::string>& rows, double leading = kArtLeading) {
    std::vector<Line> lines;
    for (std::size_t r = 0; r < rows.size(); ++r) {
        const std::string& row = rows[r];
        for (std::size_t from = row.find_first_not_of(' '); from != std::string::npos;) {
            const std::size_t gap = row.find("   ", from);
            lines.push_back(makeLine(row.substr(from, gap - from), static_cast<double>(from) * kArtAdvance,
                                     kArtTop + static_cast<double>(r) * leading));
            from = gap == std::string::npos ? gap : row.find_first_not_of(' ', gap);
        }
    }
    return lines;
}

/// A rule as thin as most are. Positions in points.
inline Rule ruleAt(RuleDirection direction, double position, double from, double to) {
    Rule rule;
    rule.direction = direction;
    rule.position = position;
    rule.from = from;
    rule.to = to;
    return rule;
}

/// A column as wide as so many characters.
inline ColumnSpan artColumn(int characters) {
    return {0, characters * kArtAdvance};
}

/// Each paragraph's lines, joined by blanks.
inline std::string textOfParagraph(const ParagraphDraft& paragraph) {
    std::string text;
    for (const Line& line : paragraph.lines) {
        if (!text.empty())
            text += ' ';
        text += textOf(line);
    }
    return text;
}

inline std::vector<std::string> textsOf(const std::vector<ParagraphDraft>& paragraphs) {
    std::vector<std::string> texts;
    for (const ParagraphDraft& paragraph : paragraphs)
        texts.push_back(textOfParagraph(paragraph));
    return texts;
}

/// A page with one column of 72 to 523 points and a paragraph of one line at each of the baselines.
inline PageLayout pageWith(const std::vector<double>& baselines) {
    PageLayout page;
    page.width = 595;
    page.height = 842;
    page.bands.push_back({72, 770, {{72, 523}}, false});
    for (const double baseline : baselines) {
        ParagraphDraft paragraph;
        paragraph.lines.push_back(makeLine("a line of text", 72, baseline));
        paragraph.box = paragraph.lines.front().box;
        page.blocks.emplace_back().value = std::move(paragraph);
    }
    return page;
}

} // namespace orvane::layout::tests
