#include "SampleStyles.h"

#include <fmt/format.h>

namespace orvane::tests {

using namespace document;

std::vector<Style> sampleStyles(const ParagraphProperties& normal, const RunProperties& run) {
    std::vector<Style> styles;
    styles.push_back({"Normal", "Normal", "", "", normal, run});
    for (int level = 1; level <= 3; ++level) {
        Style heading{
            fmt::format("Heading{}", level), fmt::format("heading {}", level), "Normal", "Normal", normal, run};
        heading.run.isBold = true;
        heading.run.color = kBlue;
        heading.run.size = HalfPoints(38 - 6 * level);
        heading.paragraph.outlineLevel = level;
        heading.paragraph.keepWithNext = true;
        heading.paragraph.spaceBefore = Twips(240);
        styles.push_back(heading);
    }
    Style quote{"Zitat_gro\u00DF", "Zitat gro\u00DF", "Normal", "", normal, run};
    quote.run.isItalic = true;
    quote.paragraph.indentStart = quote.paragraph.indentEnd = Twips(720);
    styles.push_back(quote);
    Style entry{"TOC1", "toc 1", "Normal", "", normal, run};
    entry.paragraph.tabs = {{Twips(9026), TabAlignment::End, TabLeader::Dots}};
    styles.push_back(entry);
    Style footnote{"FootnoteText", "footnote text", "Normal", "", normal, run};
    footnote.run.size = HalfPoints(18);
    footnote.paragraph.spaceAfter = Twips(0);
    styles.push_back(footnote);
    return styles;
}

std::vector<Numbering> sampleNumberings(const RunProperties& run) {
    Numbering bullets;
    for (int level = 0; level < 2; ++level) {
        NumberingLevel item;
        item.format = NumberFormat::Bullet;
        item.text = level == 0 ? "\u2022" : "\u2013";
        item.indentStart = Twips(360 + 360 * level);
        item.firstLine = Twips(-360);
        bullets.levels.push_back(item);
    }
    Numbering numbers;
    for (int level = 0; level < 3; ++level) {
        NumberingLevel item;
        item.text = level == 0 ? "%1." : level == 1 ? "%1.%2" : "%1.%2.%3";
        item.indentStart = Twips(500 + 500 * level);
        item.firstLine = Twips(-500);
        item.run = run;
        item.run->isBold = true;
        numbers.levels.push_back(item);
    }
    return {bullets, numbers, numbers};
}

} // namespace orvane::tests
