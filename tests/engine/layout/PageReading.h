#pragma once

#include "layout/Layout.h"
#include "layout/text/LineText.h"

#include "engine/layout/PageContentBuilder.h"

#include <string>
#include <vector>

/// What the stages of one page make of a page built by hand.
namespace orvane::layout::tests {

inline PageText read(const pdf::tests::PageContentBuilder& page, const LayoutParameters& parameters = {}) {
    Diagnostics diagnostics;
    return readPageText(page.content(), parameters, diagnostics);
}

/// The texts of its lines, from top to bottom.
inline std::vector<std::string> linesOf(const pdf::tests::PageContentBuilder& page) {
    std::vector<std::string> texts;
    for (const Line& line : read(page).lines)
        texts.push_back(textOf(line));
    return texts;
}

} // namespace orvane::layout::tests
