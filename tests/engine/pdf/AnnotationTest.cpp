#include "Pixels.h"
#include "ReadPages.h"

#include <gtest/gtest.h>

namespace orvane::pdf {
namespace {

using tests::PdfBuilder;
using tests::PdfPage;
using tests::pdfRef;

TEST(Annotations, TellWhatReadersWroteOnThePage) {
    PdfBuilder builder;
    const int highlight =
        builder.add("<< /Type /Annot /Subtype /Highlight /Rect [100 690 300 720] /QuadPoints [100 720 300 720 100 705 "
                    "300 705 100 705 "
                    "200 705 100 690 200 690] /C [1 1 0] /Contents (Check this) /T (Ann) /M (D:20240501120000Z) >>");
    const int note = builder.add("<< /Type /Annot /Subtype /Text /Rect [10 10 30 30] /Contents (Note) >>");
    const int hidden = builder.add("<< /Type /Annot /Subtype /Text /Rect [10 10 30 30] /Contents (Hidden) /F 2 >>");
    const int popup = builder.add("<< /Type /Annot /Subtype /Popup /Rect [10 10 30 30] >>");
    PdfPage page;
    page.entries =
        "/Annots [" + pdfRef(highlight) + " " + pdfRef(note) + " " + pdfRef(hidden) + " " + pdfRef(popup) + "]";
    OpenedPdf pdf(builder.page(page));
    const PageContent content = pdf.page();
    ASSERT_EQ(content.annotations.size(), 2u);
    const Annotation& first = content.annotations[0];
    EXPECT_EQ(first.kind, AnnotationKind::Highlight);
    EXPECT_EQ(first.box, (Rect{100, 72, 300, 102}));
    EXPECT_EQ(first.quads, (std::vector<Rect>{{100, 72, 300, 87}, {100, 87, 200, 102}}));
    EXPECT_EQ(first.contents, "Check this");
    EXPECT_EQ(first.author, "Ann");
    EXPECT_EQ(first.date, "2024-05-01T12:00:00Z");
    EXPECT_EQ(first.color, (Color{255, 255, 0}));
    EXPECT_EQ(content.annotations[1].kind, AnnotationKind::Text);
    EXPECT_TRUE(content.paths.empty()) << "marks and notes are told, not painted";
}

TEST(Annotations, ThatStandOnThePageArePainted) {
    PdfBuilder builder;
    const int appearance = builder.addStream(
        "/Type /XObject /Subtype /Form /BBox [0 0 100 20] /Resources << /Font << /F1 << /Type /Font /Subtype "
        "/Type1 /BaseFont /Helvetica >> >> >>",
        "BT /F1 10 Tf 2 5 Td (typed) Tj ET");
    const int text = builder.add(
        "<< /Type /Annot /Subtype /FreeText /Rect [100 700 200 720] /DA (/F1 10 Tf) /Contents (typed) /AP << /N " +
        pdfRef(appearance) + " >> >>");
    OpenedPdf pdf(builder.page(PdfPage{"", 612, 792, "/Annots [" + pdfRef(text) + "]", {}, {}}));
    const PageContent content = pdf.page();
    EXPECT_EQ(textOf(content), "typed");
    EXPECT_NEAR(content.glyphs.at(0).origin.x, 102, 1e-6);
    EXPECT_NEAR(content.glyphs.at(0).origin.y, 87, 1e-6);
}

TEST(Annotations, TellWhatTheyPaintAndArePaintedAlone) {
    PdfBuilder builder;
    const int appearance =
        builder.addStream("/Type /XObject /Subtype /Form /BBox [0 0 100 20]", "1 0 0 rg 0 0 50 20 re f");
    const int link = builder.add("<< /Type /Annot /Subtype /Link /Rect [0 0 10 10] >>");
    const int stamp = builder.add("<< /Type /Annot /Subtype /Stamp /Rect [100 700 200 720] /AP << /N " +
                                  pdfRef(appearance) + " >> >>");
    OpenedPdf pdf(builder.page(
        PdfPage{"0 g 0 690 612 40 re f", 612, 792, "/Annots [" + pdfRef(link) + " " + pdfRef(stamp) + "]", {}, {}}));
    const PageContent content = pdf.page();
    ASSERT_EQ(content.annotations.size(), 1u);
    const Annotation& read = content.annotations.front();
    EXPECT_EQ(read.number, 1u) << "links count";
    ASSERT_EQ(content.paths.size(), 2u);
    EXPECT_LT(content.paths[0].paintOrder, read.paintedFrom);
    EXPECT_GE(content.paths[1].paintOrder, read.paintedFrom);
    EXPECT_LT(content.paths[1].paintOrder, read.paintedTo);
    const PictureDataPtr alone =
        pdf.document().renderAnnotation(1, read.number, read.box, {72}, PaintedText::Shown, pdf.diagnostics());
    ASSERT_TRUE(alone);
    const Pixels pixels = readPng(alone->bytes);
    EXPECT_EQ(pixels.at(10, 10), "FF0000FF");
    EXPECT_EQ(pixels.at(80, 10).substr(6), "00") << "the black of the page is not its own";
}

TEST(Annotations, TellThatTheirLinesArePaintedCoarsely) {
    for (const auto& [count, told] : {std::pair{20, 0}, std::pair{2000, 1}}) {
        std::string lines;
        for (int i = 0; i < count; ++i)
            lines += std::to_string(i % 600) + " 0 m " + std::to_string(i % 600) + " 792 l S\n";
        PdfBuilder builder;
        const int appearance = builder.addStream("/Type /XObject /Subtype /Form /BBox [0 0 612 792]", lines);
        const int stamp = builder.add("<< /Type /Annot /Subtype /Stamp /Rect [0 0 612 792] /AP << /N " +
                                      pdfRef(appearance) + " >> >>");
        OpenedPdf pdf(builder.page(PdfPage{"", 612, 792, "/Annots [" + pdfRef(stamp) + "]", {}, {}}));
        pdf.document().renderAnnotation(1, 0, {0, 0, 612, 792}, {200}, PaintedText::Shown, pdf.diagnostics());
        EXPECT_EQ(pdf.count(DiagnosticKind::DrawingSimplified), told) << count;
    }
}

/// A form of one text field, a check box and a choice.
PdfBuilder formPdf(const std::string& textEntries) {
    PdfBuilder builder;
    const std::string page = pdfRef(builder.pageObject(0));
    const int parent = builder.reserve();
    const int appearance = builder.addStream(
        "/Type /XObject /Subtype /Form /BBox [0 0 100 20] /Resources << /Font << /F1 << /Type /Font /Subtype "
        "/Type1 /BaseFont /Helvetica >> >> >>",
        "/Tx BMC BT /F1 10 Tf 2 5 Td (Jane) Tj ET EMC");
    const int text =
        builder.add("<< /Type /Annot /Subtype /Widget /FT /Tx /T (first) /TU (First name) /Parent " + pdfRef(parent) +
                    " /V (Jane) /P " + page + " /Rect [100 700 200 720] /DA (/F1 10 Tf) /AP << /N " +
                    pdfRef(appearance) + " >> " + textEntries + " >>");
    builder.set(parent, "<< /T (name) /Kids [" + pdfRef(text) + "] >>");
    const int on = builder.addStream("/Type /XObject /Subtype /Form /BBox [0 0 10 10]", "0 0 10 10 re f");
    const int box = builder.add("<< /Type /Annot /Subtype /Widget /FT /Btn /T (agree) /V /Yes /AS /Yes /P " + page +
                                " /Rect [100 600 110 610] /AP << /N << /Yes " + pdfRef(on) + " >> >> >>");
    const int choice =
        builder.add("<< /Type /Annot /Subtype /Widget /FT /Ch /Ff 131072 /T (colour) /V (Red) /Opt [(Red) (Blue)] /P " +
                    page + " /Rect [100 500 200 520] /DA (/F1 10 Tf) >>");
    const std::string fields = pdfRef(text) + " " + pdfRef(box) + " " + pdfRef(choice);
    builder.catalog(
        "/AcroForm << /Fields [" + pdfRef(parent) + " " + pdfRef(box) + " " + pdfRef(choice) +
        "] /DR << /Font << /F1 << /Type /Font /Subtype /Type1 /BaseFont /Helvetica >> >> >> /DA (/F1 10 Tf 0 g) >>");
    builder.page(PdfPage{"", 612, 792, "/Annots [" + fields + "]", {}, {}});
    return builder;
}

TEST(FormFields, TellTheirValues) {
    OpenedPdf pdf(formPdf("/Ff 4097"));
    const PageContent content = pdf.page();
    ASSERT_EQ(content.fields.size(), 3u);
    const FormField& text = content.fields[0];
    EXPECT_EQ(text.kind, FieldKind::Text);
    EXPECT_EQ(text.name, "name.first");
    EXPECT_EQ(text.tooltip, "First name");
    EXPECT_EQ(text.value, "Jane");
    EXPECT_TRUE(text.isMultiline);
    EXPECT_TRUE(text.isReadOnly);
    EXPECT_EQ(text.box, (Rect{100, 72, 200, 92}));
    const FormField& box = content.fields[1];
    EXPECT_EQ(box.kind, FieldKind::CheckBox);
    EXPECT_TRUE(box.isOn);
    EXPECT_EQ(box.value, "Yes");
    const FormField& choice = content.fields[2];
    EXPECT_EQ(choice.kind, FieldKind::ComboBox);
    EXPECT_EQ(choice.value, "Red");
    EXPECT_EQ(choice.choices, (std::vector<std::string>{"Red", "Blue"}));
}

TEST(FormFields, TellChoicesAsTheyAreShownAndWhatTheyStandFor) {
    PdfBuilder builder;
    const std::string page = pdfRef(builder.pageObject(0));
    const int choice = builder.add("<< /Type /Annot /Subtype /Widget /FT /Ch /Ff 131072 /T (colour) /V (r) "
                                   "/Opt [[(r) (Bright red)] (Blue)] /P " +
                                   page + " /Rect [100 500 200 520] /DA (/F1 10 Tf) >>");
    builder.catalog("/AcroForm << /Fields [" + pdfRef(choice) + "] >>");
    builder.page(PdfPage{"", 612, 792, "/Annots [" + pdfRef(choice) + "]", {}, {}});
    OpenedPdf pdf(builder);
    const FormField field = pdf.page().fields.at(0);
    EXPECT_EQ(field.value, "Bright red");
    EXPECT_EQ(field.choices, (std::vector<std::string>{"Bright red", "Blue"}));
    EXPECT_EQ(field.choiceValues, (std::vector<std::string>{"r", ""}));
}

TEST(FormFields, TellHowTheyWriteDates) {
    OpenedPdf dated(formPdf("/AA << /F << /S /JavaScript /JS (AFDate_FormatEx\\(\"dd.mm.yyyy\"\\);) >> >>"));
    EXPECT_EQ(dated.page().fields.at(0).dateFormat, "dd.mm.yyyy");
    OpenedPdf plain(formPdf(""));
    EXPECT_EQ(plain.page().fields.at(0).dateFormat, "");
}

TEST(FormFields, AreSeenWithTheirValues) {
    OpenedPdf pdf(formPdf(""));
    const PageContent content = pdf.page();
    EXPECT_NE(visibleTextOf(content).find("Jane"), std::string::npos);
    EXPECT_NE(visibleTextOf(content).find("Red"), std::string::npos) << "a value without an appearance is given one";
    EXPECT_FALSE(content.paths.empty()) << "the tick of the check box";
}

TEST(FormFields, ThatAreHiddenAreNot) {
    OpenedPdf pdf(formPdf("/F 2"));
    const PageContent content = pdf.page();
    EXPECT_EQ(content.fields.size(), 2u);
    EXPECT_EQ(visibleTextOf(content).find("Jane"), std::string::npos);
}

} // namespace
} // namespace orvane::pdf
