#include "DocumentBuilder.h"
#include "WrittenDocument.h"

#include "support/docx/DocxCheck.h"

#include <gmock/gmock.h>

namespace orvane::tests {
namespace {

using namespace document;

std::string sectionProperties(const Section& one, const std::string& children) {
    Document document = documentOf("a");
    document.sections[0] = one;
    return WrittenDocument(document).body("//w:sectPr/" + children);
}

std::vector<Block> running(const char* characters) {
    return {{paragraph(characters)}};
}

/// The text of the part that a section refers to, through the references of the sections before it as a reader does.
std::string runningText(const WrittenDocument& written, int section, const std::string& side,
                        const std::string& pages) {
    const std::string reference = "w:" + side + "Reference[@w:type='" + pages + "']/@r:id";
    for (int i = section; i > 0; --i) {
        std::string id = written.body("(//w:sectPr)[" + std::to_string(i) + "]/" + reference);
        if (id.empty())
            continue;
        id.pop_back();
        std::string target = written.select("word/_rels/document.xml.rels", "//Relationship[@Id='" + id + "']/@Target");
        target.pop_back();
        return written.select("word/" + target, "//w:t/text()");
    }
    return {};
}

TEST(SectionXml, WritesPageMarginsAndNumbers) {
    Section one;
    one.pageWidth = Twips(15840);
    one.pageHeight = Twips(12240);
    one.marginTop = Twips(-700);
    one.firstPageNumber = 5;
    one.pageNumberFormat = NumberFormat::UpperRoman;
    EXPECT_EQ(sectionProperties(one, "w:pgSz"), normalXml("<w:pgSz w:w='15840' w:h='12240' w:orient='landscape'/>"));
    EXPECT_EQ(sectionProperties(one, "w:pgMar"),
              normalXml("<w:pgMar w:top='-700' w:right='1440' w:bottom='1440' w:left='1440' w:header='720' "
                        "w:footer='720' w:gutter='0'/>"));
    EXPECT_EQ(sectionProperties(one, "w:pgNumType"), normalXml("<w:pgNumType w:fmt='upperRoman' w:start='5'/>"));
}

TEST(SectionXml, WritesColumnsOfDifferentWidths) {
    Section one;
    one.columns = {{Twips(3000), Twips(300)}, {Twips(2000), Twips(500)}, {Twips(1000), Twips(0)}};
    one.hasColumnSeparator = true;
    EXPECT_EQ(sectionProperties(one, "w:cols"),
              normalXml("<w:cols w:num='3' w:sep='1' w:space='300' w:equalWidth='0'><w:col w:w='3000' w:space='300'/>"
                        "<w:col w:w='2000' w:space='500'/><w:col w:w='1000'/></w:cols>"));
}

TEST(SectionXml, WritesHowASectionStartsAndRuns) {
    Section one;
    one.start = SectionStart::Continuous;
    one.isRightToLeft = one.hasVerticalText = true;
    EXPECT_EQ(sectionProperties(one, "w:type|//w:sectPr/w:textDirection|//w:sectPr/w:bidi"),
              normalXml("<w:type w:val='continuous'/><w:textDirection w:val='tbRl'/><w:bidi/>"));
}

TEST(SectionXml, NumbersLines) {
    Section one;
    one.lineNumbers = LineNumbers{};
    EXPECT_EQ(sectionProperties(one, "w:lnNumType"), normalXml("<w:lnNumType w:countBy='1' w:restart='newPage'/>"));
    one.lineNumbers = LineNumbers{5, 11, CountStart::Continuous, Twips(200)};
    EXPECT_EQ(sectionProperties(one, "w:lnNumType"),
              normalXml("<w:lnNumType w:countBy='5' w:start='10' w:distance='200' w:restart='continuous'/>"))
        << "it names the number before the first";
}

TEST(SectionXml, MirrorsMargins) {
    Document document = documentOf("a");
    EXPECT_EQ(WrittenDocument(document).select("word/settings.xml", "//w:mirrorMargins"), "");
    document.hasMirroredMargins = true;
    document.sections[0].lineNumbers = LineNumbers{};
    const WrittenDocument written(document);
    EXPECT_EQ(written.select("word/settings.xml", "//w:mirrorMargins"), normalXml("<w:mirrorMargins/>"));
    EXPECT_THAT(faultsOfDocx(written.file()), testing::IsEmpty());
}

TEST(SectionXml, CutsPagesToTheLargestThatIsAllowed) {
    Document document = documentOf("a");
    document.sections[0].pageWidth = Twips(40000);
    const WrittenDocument written(document);
    EXPECT_EQ(written.body("//w:pgSz/@w:w"), "31680\n");
    ASSERT_EQ(written.diagnostics().entries().size(), 1u);
    EXPECT_EQ(written.diagnostics().entries()[0].kind, DiagnosticKind::FormatLimitReached);
}

TEST(SectionXml, EndsEachSectionInItsLastParagraph) {
    Document document = documentOf({{paragraph("a")}, {paragraph("b")}});
    document.sections.push_back(section({{paragraph("c")}}));
    const WrittenDocument written(document);
    EXPECT_EQ(written.body("//w:p[w:pPr/w:sectPr]/w:r/w:t/text()"), "b");
    EXPECT_EQ(written.count("//w:body/w:sectPr[last()]"), 1u);
}

TEST(RunningText, StandsOnPagesOfItsKindAndTheStandardOneOnTheRest) {
    Document document = documentOf("a");
    Section& one = document.sections[0];
    one.header = {running("head"), running("first head"), running("even head")};
    one.footer = {running("foot"), {}, {}};
    const WrittenDocument written(document);
    struct Row {
        const char* side;
        const char* pages;
        const char* text;
    };
    const Row rows[] = {{"header", "default", "head"},   {"header", "first", "first head"},
                        {"header", "even", "even head"}, {"footer", "default", "foot"},
                        {"footer", "first", "foot"},     {"footer", "even", "foot"}};
    for (const Row& row : rows)
        EXPECT_EQ(runningText(written, 1, row.side, row.pages), row.text) << row.side << " " << row.pages;
    EXPECT_EQ(written.count("//w:sectPr/w:titlePg"), 1u);
    EXPECT_EQ(written.select("word/settings.xml", "//w:evenAndOddHeaders"), normalXml("<w:evenAndOddHeaders/>"));
}

TEST(RunningText, GoesOnOrEndsInLaterSections) {
    Document document = documentOf("a");
    document.sections.assign(4, section({{paragraph("a")}}));
    document.sections[1].header.standard = running("head");
    document.sections[2].header.standard = running("head");
    const WrittenDocument written(document);
    EXPECT_EQ(runningText(written, 1, "header", "default"), "");
    EXPECT_EQ(runningText(written, 2, "header", "default"), "head");
    EXPECT_EQ(runningText(written, 3, "header", "default"), "head");
    EXPECT_EQ(runningText(written, 4, "header", "default"), "");
    EXPECT_EQ(written.count("//w:headerReference"), 2u) << "section 3 takes over that of section 2";
    EXPECT_EQ(written.part("word/settings.xml").find("evenAndOddHeaders"), std::string::npos);
}

TEST(RunningText, SharesAPartAmongEqualOnes) {
    Document document = documentOf("a");
    document.sections.assign(6, section({{paragraph("a")}}));
    for (std::size_t i = 0; i < 6; ++i)
        document.sections[i].footer.standard = running(i % 2 == 0 ? "left" : "right");
    const WrittenDocument written(document);
    EXPECT_EQ(runningText(written, 5, "footer", "default"), "left");
    EXPECT_EQ(runningText(written, 6, "footer", "default"), "right");
    const auto isFooter = [](const ZipEntry& entry) { return entry.name.starts_with("word/footer"); };
    EXPECT_EQ(std::count_if(written.entries().begin(), written.entries().end(), isFooter), 2);
}

TEST(RunningText, HasLinksOfItsOwn) {
    Document document = documentOf("a");
    document.sections[0].header.standard = {{paragraph({{Link{{"https://a.example/", ""}, {text("link")}}}})}};
    const WrittenDocument written(document);
    EXPECT_EQ(written.select("word/_rels/header1.xml.rels", "//Relationship/@Target"), "https://a.example/\n");
    EXPECT_THAT(faultsOfDocx(written.file()), testing::IsEmpty());
}

} // namespace
} // namespace orvane::tests
