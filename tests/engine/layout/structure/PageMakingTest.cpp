#include "layout/structure/PageMaking.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

TEST(PageMaking, KnowsTypesettingProgramsByTheirNames) {
    const struct {
        const char* creator;
        const char* producer;
        PageMaking making;
    } rows[] = {
        {"LaTeX with hyperref", "pdfTeX-1.40.25", PageMaking::Program},
        {"", "LuaTeX-1.17", PageMaking::Program},
        {"dvips(k) 5.99", "GPL Ghostscript 9.05", PageMaking::Program},
        {"", "xdvipdfmx (20210318)", PageMaking::Program},
        {"Writer", "LibreOffice 7.4", PageMaking::Author},
        {"TextEdit", "Quartz PDFContext", PageMaking::Author},
        {"", "", PageMaking::Author},
    };
    for (const auto& row : rows) {
        pdf::Metadata metadata;
        metadata.creator = row.creator;
        metadata.producer = row.producer;
        EXPECT_EQ(pageMakingOf(metadata, WordDivision::Sometimes), row.making) << row.creator << row.producer;
    }
}

TEST(PageMaking, KnowsThemByWordsThatAreDividedThroughout) {
    EXPECT_EQ(pageMakingOf({}, WordDivision::Always), PageMaking::Program);
}

} // namespace
} // namespace orvane::layout
