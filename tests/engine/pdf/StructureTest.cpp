#include "ReadPages.h"

#include <gtest/gtest.h>

namespace orvane::pdf {
namespace {

using tests::PdfBuilder;
using tests::pdfRef;

TEST(Structure, IsATreeOfStandardTypes) {
    PdfBuilder builder;
    const std::string page1 = pdfRef(builder.pageObject(0));
    const std::string page2 = pdfRef(builder.pageObject(1));
    const int root = builder.reserve();
    const int document = builder.reserve();
    const int heading = builder.add("<< /Type /StructElem /S /Title1 /P " + pdfRef(document) + " /Pg " + page1 +
                                    " /K 0 /T (Head) /Lang (de) >>");
    const int cell = builder.add("<< /Type /StructElem /S /TH /Pg " + page2 + " /K [1 << /Type /MCR /Pg " + page1 +
                                 " /MCID 5 >> << /Type /OBJR /Obj 99 0 R >>] /A [<< /O /Table /ColSpan 2 "
                                 "/RowSpan 3 >> 0] >>");
    const int figure = builder.add("<< /S /Figure /Alt (A cat) /ActualText (CAT) /Pg " + page1 + " >>");
    builder.set(document, "<< /Type /StructElem /S /Document /P " + pdfRef(root) + " /K [" + pdfRef(heading) + " " +
                              pdfRef(cell) + " " + pdfRef(figure) + " " + pdfRef(document) + "] >>");
    builder.set(root, "<< /Type /StructTreeRoot /K " + pdfRef(document) +
                          " /RoleMap << /Title1 /Heading1 /Heading1 /H1 /Loop /Loop >> >>");
    builder.catalog("/StructTreeRoot " + pdfRef(root)).page("").page("");
    OpenedPdf pdf(builder);

    const std::vector<StructureElement> tree = pdf.document().structureTree();
    ASSERT_EQ(tree.size(), 1u);
    EXPECT_EQ(tree[0].type, "Document");
    ASSERT_EQ(tree[0].children.size(), 3u) << "an element that contains itself is read once";
    const StructureElement& h = tree[0].children[0];
    EXPECT_EQ(h.type, "H1") << "through the role map";
    EXPECT_EQ(h.title, "Head");
    EXPECT_EQ(h.language, "de");
    ASSERT_EQ(h.content.size(), 1u);
    EXPECT_EQ(h.content[0].page, 1);
    EXPECT_EQ(h.content[0].mcid, 0);
    const StructureElement& th = tree[0].children[1];
    EXPECT_TRUE(th.isHeaderCell);
    EXPECT_EQ(th.columnSpan, 2);
    EXPECT_EQ(th.rowSpan, 3);
    ASSERT_EQ(th.content.size(), 2u);
    EXPECT_EQ(th.content[0].page, 2);
    EXPECT_EQ(th.content[1].page, 1) << "content may lie on another page";
    EXPECT_EQ(tree[0].children[2].alternateText, "A cat");
    EXPECT_EQ(tree[0].children[2].actualText, "CAT");
}

TEST(Structure, OfAFileWithoutTagsIsEmpty) {
    OpenedPdf pdf(PdfBuilder().page(""));
    EXPECT_TRUE(pdf.document().structureTree().empty());
}

} // namespace
} // namespace orvane::pdf
