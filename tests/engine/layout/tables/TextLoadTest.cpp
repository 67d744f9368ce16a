#include "engine/layout/PageContentBuilder.h"
#include "engine/layout/PageReading.h"
#include "layout/tables/TableFinder.h"

#include <gtest/gtest.h>

#include <ctime>
#include <string>

/// Pages of thousands of texts side by side that are no table.
namespace orvane::layout::tests {
namespace {

TEST(PageOfTexts, TakesLittleTimeAsAListInTenColumns) {
    pdf::tests::PageContentBuilder page;
    for (int i = 0; i < 2400; ++i)
        page.text(30 + i / 240 * 56, 20 + i % 240 * 3, "\u2022 item " + std::to_string(i), 2);
    PageText text = read(page);
    Diagnostics diagnostics;
    const std::clock_t start = std::clock();
    findTables(text, {}, {}, diagnostics);
    EXPECT_LT(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, 3);
}

} // namespace
} // namespace orvane::layout::tests
