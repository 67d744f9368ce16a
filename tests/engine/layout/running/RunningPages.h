#pragma once

#include "layout/running/RunningHeads.h"
#include "layout/text/LineText.h"

#include "engine/layout/TextBuilder.h"

#include <fmt/format.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

/// Pages of text for tests of what runs above and below it.
namespace orvane::layout::tests {

/// Pages of text, each with what `addHeads(page, number)` puts on it.
inline std::vector<PageText> pagesWith(int count, const std::function<void(PageText&, int)>& addHeads) {
    const char* kTexts[] = {"one line of some text", "other words are here", "nothing repeats below",
                            "a fourth kind of words", "yet another line"};
    std::vector<PageText> pages;
    for (int number = 1; number <= count; ++number) {
        pages.push_back(makePage(number));
        for (int i = 0; i < 30; ++i)
            pages.back().lines.push_back(
                makeLine(fmt::format("{} {}{}", kTexts[(i + 2 * number) % 5], char('a' + number), char('a' + i)), 72,
                         100 + i * 20));
        addHeads(pages.back(), number);
    }
    return pages;
}

inline std::string linesOf(const std::optional<RunningHead>& head) {
    std::string text;
    if (head)
        for (const Line& line : head->content.lines)
            text += fmt::format("{}{}", text.empty() ? "" : "|", textOf(line));
    return text;
}

} // namespace orvane::layout::tests
