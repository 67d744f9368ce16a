#include "ReadPages.h"

#include <gtest/gtest.h>

namespace orvane::pdf {
namespace {

using tests::PdfBuilder;
using tests::pdfRef;

TEST(Outline, IsATreeOfTitlesAndPlaces) {
    PdfBuilder builder;
    const int root = builder.reserve();
    const int first = builder.reserve();
    const int child = builder.reserve();
    const int second = builder.reserve();
    const std::string page1 = pdfRef(builder.pageObject(0));
    const std::string page2 = pdfRef(builder.pageObject(1));
    builder.set(root, "<< /First " + pdfRef(first) + " /Last " + pdfRef(second) + " >>");
    builder.set(first, "<< /Title (One) /Parent " + pdfRef(root) + " /Next " + pdfRef(second) + " /First " +
                           pdfRef(child) + " /Last " + pdfRef(child) + " /Count 1 /Dest [" + page1 +
                           " /XYZ 0 700 0] >>");
    builder.set(child, "<< /Title <FEFF00C40020000A0062> /Parent " + pdfRef(first) + " /A << /S /GoTo /D [" + page2 +
                           " /Fit] >> >>");
    builder.set(second, "<< /Title (Two ) /Parent " + pdfRef(root) + " /Prev " + pdfRef(first) +
                            " /A << /S /URI /URI (x:y) >> >>");
    builder.catalog("/Outlines " + pdfRef(root)).page("").page("");
    OpenedPdf pdf(builder);

    const std::vector<OutlineEntry> outline = pdf.document().outline();
    ASSERT_EQ(outline.size(), 2u);
    EXPECT_EQ(outline[0].title, "One");
    EXPECT_EQ(outline[0].destination.page, 1);
    EXPECT_EQ(outline[0].destination.top, 92);
    ASSERT_EQ(outline[0].children.size(), 1u);
    EXPECT_EQ(outline[0].children[0].title, "Ä b") << "a title is one line";
    EXPECT_EQ(outline[0].children[0].destination.page, 2);
    EXPECT_EQ(outline[1].title, "Two");
    EXPECT_EQ(outline[1].destination.page, 0) << "an address is no place in the document";
}

TEST(Outline, ThatBitesItsTailEnds) {
    PdfBuilder builder;
    const int root = builder.reserve();
    const int entry = builder.reserve();
    builder.set(root, "<< /First " + pdfRef(entry) + " /Last " + pdfRef(entry) + " >>");
    builder.set(entry, "<< /Title (Loop) /Next " + pdfRef(entry) + " /First " + pdfRef(entry) + " /Last " +
                           pdfRef(entry) + " >>");
    OpenedPdf pdf(builder.catalog("/Outlines " + pdfRef(root)).page(""));
    const std::vector<OutlineEntry> outline = pdf.document().outline();
    ASSERT_EQ(outline.size(), 1u);
    EXPECT_TRUE(outline[0].children.empty());
}

} // namespace
} // namespace orvane::pdf
