#include "ReadPages.h"

#include <gtest/gtest.h>

namespace orvane::pdf {
namespace {

using tests::PdfBuilder;
using tests::PdfPage;
using tests::pdfRef;

/// A page of 600 by 800 with one link annotation of these entries; a second page of 400 by 300 turned by 90 degrees
/// follows.
class LinkPdf {
public:
    explicit LinkPdf(const std::string& entries)
        : m_pdf(build(entries)) {}
    PageContent page() { return m_pdf.page(); }
    OpenedPdf& pdf() { return m_pdf; }

private:
    static PdfBuilder build(const std::string& entries) {
        PdfBuilder builder;
        const std::string second = pdfRef(builder.pageObject(1));
        const int destinations = builder.add("<< /Kids [" +
                                             pdfRef(builder.add("<< /Limits [(chapter) (chapter)] /Names [(chapter) [" +
                                                                second + " /XYZ 0 250 0]] >>")) +
                                             "] >>");
        builder.catalog("/Names << /Dests " + pdfRef(destinations) + " >> /Dests << /Old << /D [" + second +
                        " /FitH 100] >> >>");
        std::string annotation = entries;
        for (std::size_t at = annotation.find("PAGE2"); at != std::string::npos; at = annotation.find("PAGE2"))
            annotation.replace(at, 5, second);
        const int link = builder.add("<< /Type /Annot /Subtype /Link /Rect [100 700 200 720] " + annotation + " >>");
        builder.page(PdfPage{"", 600, 800, "/Annots [" + pdfRef(link) + "]", {}, {}});
        builder.page(PdfPage{"", 400, 300, "/Rotate 90", {}, {}});
        return builder;
    }
    OpenedPdf m_pdf;
};

TEST(Links, LeadToAddresses) {
    LinkPdf pdf("/A << /S /URI /URI (https://example.org/a?b=c) >>");
    const PageContent page = pdf.page();
    ASSERT_EQ(page.links.size(), 1u);
    EXPECT_EQ(page.links[0].uri, "https://example.org/a?b=c");
    EXPECT_FALSE(page.links[0].destination);
    ASSERT_EQ(page.links[0].boxes.size(), 1u);
    EXPECT_EQ(page.links[0].boxes[0], (Rect{100, 80, 200, 100}));
}

TEST(Links, LeadToMailAddressesByTheirScheme) {
    EXPECT_EQ(LinkPdf("/A << /S /URI /URI (ada@example.org) >>").page().links.at(0).uri, "mailto:ada@example.org");
    EXPECT_EQ(LinkPdf("/A << /S /URI /URI (mailto:ada@example.org) >>").page().links.at(0).uri,
              "mailto:ada@example.org");
    EXPECT_EQ(LinkPdf("/A << /S /URI /URI (notes/@ada.html) >>").page().links.at(0).uri, "notes/@ada.html");
}

TEST(Links, CoverEachOfTheirLines) {
    LinkPdf pdf(
        "/QuadPoints [150 720 200 720 150 710 200 710 100 710 130 710 100 700 130 700] /A << /S /URI /URI (x:y) >>");
    const PageContent page = pdf.page();
    ASSERT_EQ(page.links.size(), 1u);
    EXPECT_EQ(page.links[0].boxes, (std::vector<Rect>{{150, 80, 200, 90}, {100, 90, 130, 100}}));
}

TEST(Links, LeadToPlacesInTheDocument) {
    struct Row {
        const char* entries;
        std::optional<double> top;
        const char* why;
    };
    // On the second page, turned by 90 degrees, y in page space is x of user space.
    const Row rows[] = {
        {"/Dest [PAGE2 /XYZ 40 250 0]", 40, "coordinates of the target page, turned as it is"},
        {"/A << /S /GoTo /D [PAGE2 /XYZ null null 0] >>", std::nullopt, "coordinates left as they are"},
        {"/Dest [PAGE2 /Fit]", std::nullopt, "the page as a whole"},
        {"/Dest [1 /Fit]", std::nullopt, "a page by number"},
        {"/Dest (chapter)", 0, "a name in the name tree"},
        {"/A << /S /GoTo /D (chapter) >>", 0, "a name in an action"},
        {"/Dest /Old", 0, "a name of the older kind"},
    };
    for (const Row& row : rows) {
        LinkPdf pdf(row.entries);
        const PageContent page = pdf.page();
        ASSERT_EQ(page.links.size(), 1u) << row.why;
        ASSERT_TRUE(page.links[0].destination) << row.why;
        EXPECT_EQ(page.links[0].destination->page, 2) << row.why;
        EXPECT_EQ(page.links[0].destination->top, row.top) << row.why;
    }
}

TEST(Links, ThatLeadNowhereAreTold) {
    for (const char* entries : {"/Dest (missing)", "/Dest [99 /Fit]", "/A << /S /GoTo /D [99 0 R /Fit] >>"}) {
        LinkPdf pdf(entries);
        EXPECT_TRUE(pdf.page().links.empty()) << entries;
        EXPECT_EQ(pdf.pdf().count(DiagnosticKind::LinkUnresolved), 1) << entries;
    }
}

TEST(Links, AreNotPainted) {
    LinkPdf pdf("/Border [0 0 3] /C [1 0 0] /A << /S /URI /URI (x:y) >>");
    EXPECT_TRUE(pdf.page().paths.empty());
}

} // namespace
} // namespace orvane::pdf
