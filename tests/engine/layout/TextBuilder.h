#pragma once

#include "layout/text/PageText.h"

#include <string>

/// Lines and pages as a test needs them, without a PDF. Every character is half its size wide.
namespace orvane::layout::tests {

/// How the text of a made line looks.
struct LineLook {
    double size = 10;
    bool isBold = false;
    bool isItalic = false;
    std::uint32_t font = 0;
};

/// A line of `text`, its words cut at blanks (Gap::Space) and at '\t' (Gap::Tab).
inline Line makeLine(const std::string& text, double left, double baseline, LineLook look = {}) {
    const double advance = look.size / 2;
    Line line;
    line.baseline = baseline;
    line.fontSize = look.size;
    double x = left;
    Word word;
    const auto finishWord = [&](Gap nextGap) {
        if (!word.spans.empty()) {
            word.box = word.spans.front().box;
            line.words.push_back(word);
            word = {};
        }
        word.gapBefore = nextGap;
    };
    for (const char c : text) {
        if (c == ' ' || c == '\t') {
            finishWord(c == ' ' ? Gap::Space : Gap::Tab);
            x += c == ' ' ? advance : 4 * advance;
            continue;
        }
        if (word.spans.empty()) {
            Span span;
            span.look.size = look.size;
            span.look.font = look.font;
            span.look.isBold = look.isBold;
            span.look.isItalic = look.isItalic;
            span.baseline = baseline;
            span.box = {x, baseline - 0.8 * look.size, x, baseline + 0.2 * look.size};
            word.spans.push_back(span);
        }
        Span& span = word.spans.back();
        span.text += c;
        // The further bytes of a UTF-8 sequence are no characters of their own.
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80)
            span.box.right = x += advance;
    }
    finishWord(Gap::None);
    for (const Word& made : line.words)
        line.box = line.box.united(made.box);
    return line;
}

/// An empty page of A4.
inline PageText makePage(int number) {
    PageText page;
    page.number = number;
    page.width = 595;
    page.height = 842;
    pdf::Font font;
    font.name = font.family = "Carlito";
    page.fonts.push_back(font);
    return page;
}

} // namespace orvane::layout::tests
