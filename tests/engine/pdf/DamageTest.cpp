#include "Pixels.h"
#include "ReadPages.h"

#include "base/Failure.h"

#include <chrono>
#include <fstream>
#include <thread>

#include <gtest/gtest.h>

namespace orvane::pdf {
namespace {

using tests::PdfBuilder;
using tests::PdfPage;
using tests::pdfRef;

TEST(Damage, OfAPageLeavesWhatCanBeRead) {
    const std::string huge(300, '9');
    struct Row {
        std::string content;
        const char* text;
        const char* why;
    };
    const Row rows[] = {
        {"BT /F1 10 Tf 50 500 Td (a) Tj ET Q Q Q BT /F1 10 Tf 60 500 Td (b) Tj ET", "ab",
         "states are restored that were not saved"},
        {"q q q BT /F1 10 Tf 50 500 Td (a) Tj ET", "a", "states are saved and never restored"},
        {"BT /F1 10 Tf 50 500 Td (a) Tj /Missing 10 Tf (b) Tj ET BT /F1 10 Tf (c) Tj ET", "ac",
         "a font that does not exist"},
        {"BT /F1 10 Tf 50 500 Td (a) Tj 1 2 nonsense >> ] (b) Tj ET", "ab", "words that are no operators"},
        {"BT /F1 10 Tf 50 500 Td (a) Tj (b", "a", "the content breaks off in a string"},
        {"/Missing Do BT /F1 10 Tf 50 500 Td (a) Tj ET", "a", "a picture that does not exist"},
        {"BT /F1 10 Tf " + huge + " 0 0 " + huge + " 0 0 Tm (x) Tj 1 0 0 1 50 500 Tm (a) Tj ET", "a",
         "numbers beyond all measure"},
    };
    for (const Row& row : rows) {
        OpenedPdf pdf(PdfBuilder().page(row.content));
        EXPECT_EQ(visibleTextOf(pdf.page()), row.text) << row.why;
    }
}

TEST(Damage, IsTold) {
    OpenedPdf pdf(PdfBuilder().page("/Missing Do /Missing2 Do BT /F1 10 Tf 50 500 Td (a) Tj ET"));
    pdf.page();
    EXPECT_EQ(pdf.count(DiagnosticKind::ContentDamaged), 1) << "once a page";
}

TEST(Damage, OfAPageObjectIsTold) {
    PdfBuilder builder;
    builder.page("");
    builder.set(builder.pageObject(0), "(no page)");
    const tests::TemporaryFolder folder;
    builder.page("BT /F1 10 Tf 50 500 Td (a) Tj ET").write(folder.path() / "test.pdf");
    const PdfDocument document = PdfDocument::open(folder.path() / "test.pdf", {});
    Diagnostics diagnostics;
    std::string text;
    for (int page = 1; page <= document.pageCount() + 1; ++page)
        text += textOf(document.readPage(page, {}, diagnostics));
    EXPECT_EQ(text, "a");
    ASSERT_FALSE(diagnostics.entries().empty());
    EXPECT_EQ(diagnostics.entries().back().kind, DiagnosticKind::PageUnreadable) << "a page beyond the last";
}

TEST(Damage, OfFormsThatCallThemselvesEnds) {
    PdfBuilder builder;
    const int form = builder.reserve();
    const std::string resources = "/XObject << /Fm1 " + pdfRef(form) + " >>";
    const std::string content = "BT ET /Fm1 Do /Fm1 Do";
    builder.set(form, "<< /Type /XObject /Subtype /Form /BBox [0 0 600 700] /Resources << " + resources +
                          " >> /Length " + std::to_string(content.size()) + " >>\nstream\n" + content + "\nendstream");
    OpenedPdf pdf(builder.page(PdfPage{"/Fm1 Do BT /F1 10 Tf 50 500 Td (a) Tj ET", 612, 792, {}, resources, {}}));
    EXPECT_EQ(textOf(pdf.page()), "a");
}

TEST(Damage, OfContentWithoutEndStopsAtItsTime) {
    // Each form calls the next twice: 2^40 calls.
    PdfBuilder builder;
    std::vector<int> forms;
    for (int i = 0; i < 40; ++i)
        forms.push_back(builder.reserve());
    for (std::size_t i = 0; i < forms.size(); ++i) {
        const std::string next = pdfRef(forms[std::min(i + 1, forms.size() - 1)]);
        const std::string content = "/Next Do /Next Do";
        builder.set(forms[i], "<< /Type /XObject /Subtype /Form /BBox [0 0 600 700] /Resources << /XObject << /Next " +
                                  next + " >> >> /Length " + std::to_string(content.size()) + " >>\nstream\n" +
                                  content + "\nendstream");
    }
    OpenedPdf pdf(builder.page(PdfPage{
        "BT /F1 10 Tf 50 500 Td (a) Tj ET /Fm1 Do", 612, 792, {}, "/XObject << /Fm1 " + pdfRef(forms[0]) + " >>", {}}));
    PageReadOptions options;
    options.timeBudget = std::chrono::milliseconds(200);
    const auto start = std::chrono::steady_clock::now();
    const PageContent page = pdf.document().readPage(1, options, pdf.diagnostics());
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
    EXPECT_EQ(textOf(page), "a");
    EXPECT_EQ(pdf.count(DiagnosticKind::TimeBudgetExceeded), 1);
}

TEST(Damage, ThatLosesTheEndOfTheFileLosesNoPageBeforeIt) {
    PdfBuilder builder;
    builder.page("BT /F1 10 Tf 50 500 Td (one) Tj ET").page("BT /F1 10 Tf 50 500 Td (two) Tj ET");
    const std::string whole = builder.build();
    const tests::TemporaryFolder folder;
    struct Row {
        const char* name;
        std::string bytes;
    };
    // The catalog is the first object and is lost in the second row.
    const std::size_t firstObject = whole.find("1 0 obj");
    const Row rows[] = {
        {"without-trailer.pdf", whole.substr(0, whole.rfind("xref\n0"))},
        {"without-catalog.pdf",
         whole.substr(0, firstObject) +
             whole.substr(whole.find("2 0 obj"), whole.rfind("xref\n0") - whole.find("2 0 obj"))},
    };
    for (const Row& row : rows) {
        std::ofstream(folder.path() / row.name, std::ios::binary) << row.bytes;
        const PdfDocument document = PdfDocument::open(folder.path() / row.name, {});
        ASSERT_EQ(document.pageCount(), 2) << row.name;
        Diagnostics diagnostics;
        EXPECT_EQ(textOf(document.readPage(1, {}, diagnostics)), "one") << row.name;
        EXPECT_EQ(textOf(document.readPage(2, {}, diagnostics)), "two") << row.name;
    }
}

TEST(Speed, OfAPageOfAHundredThousandGlyphsIsNoMatter) {
    std::string content = "BT /F1 4 Tf 4 TL 10 780 Td\n";
    for (int line = 0; line < 1000; ++line)
        content += "(" + std::string(100, static_cast<char>('a' + line % 26)) + ") Tj T*\n";
    content += "ET\n";
    for (int i = 0; i < 100000; ++i)
        content += std::to_string(i % 600) + " " + std::to_string(i % 790) + " 5 5 re f\n";
    OpenedPdf pdf(PdfBuilder().page(content));
    const auto start = std::chrono::steady_clock::now();
    const PageContent page = pdf.page();
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10)) << "two orders beyond what it takes";
    EXPECT_EQ(page.glyphs.size(), 100000u);
    EXPECT_EQ(page.paths.size(), 100000u);
}

TEST(Threads, ReadTheSameFileAtOnce) {
    PdfBuilder builder;
    const int image = builder.addStream(tests::pdfImage(1, 1, "/DeviceCMYK", 8), std::string(4, '\x20'));
    for (int page = 0; page < 8; ++page)
        builder.page(PdfPage{"BT /F1 10 Tf 50 500 Td (a) Tj /F6 10 Tf (b) Tj ET /Im1 Do 0.1 0.2 0.3 0.4 k 1 1 5 5 re f",
                             612,
                             792,
                             {},
                             "/XObject << /Im1 " + pdfRef(image) + " >>",
                             {}});
    const tests::TemporaryFolder folder;
    builder.write(folder.path() / "test.pdf");
    PictureStore store(folder.path());
    std::vector<std::string> texts(4);
    std::vector<std::thread> threads;
    for (std::string& text : texts)
        threads.emplace_back([&] {
            const PdfDocument document = PdfDocument::open(folder.path() / "test.pdf", {});
            Diagnostics diagnostics;
            PageReadOptions options;
            options.pictures = &store;
            for (int page = 1; page <= document.pageCount(); ++page)
                text += textOf(document.readPage(page, options, diagnostics));
            text += std::to_string(diagnostics.entries().size());
        });
    for (std::thread& thread : threads)
        thread.join();
    for (const std::string& text : texts)
        EXPECT_EQ(text, "aβaβaβaβaβaβaβaβ0");
    EXPECT_EQ(store.size(), 1u);
}

TEST(Rendering, PaintsARegionOfThePage) {
    PdfPage page{"1 0 0 rg 50 100 100 100 re f", 400, 300, "/CropBox [50 0 350 300]", {}, {}};
    OpenedPdf pdf(PdfBuilder().page(page));
    // In page space the square is at 0,100 to 100,200.
    const PictureDataPtr picture =
        pdf.document().renderRegion(1, {50, 150, 150, 250}, {144}, PaintedText::Shown, pdf.diagnostics());
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->pixelWidth, 200);
    EXPECT_EQ(picture->pixelHeight, 200);
    const Pixels pixels = readPng(picture->bytes);
    EXPECT_EQ(pixels.at(20, 20), "FF0000FF");
    EXPECT_EQ(pixels.at(180, 20), "FFFFFFFF");
    EXPECT_EQ(pixels.at(20, 180), "FFFFFFFF");
    EXPECT_THROW(pdf.document().renderRegion(1, {500, 0, 600, 10}, {72}, PaintedText::Shown, pdf.diagnostics()),
                 Failure);
    EXPECT_THROW(pdf.document().renderRegion(7, {0, 0, 10, 10}, {72}, PaintedText::Shown, pdf.diagnostics()), Failure);
    const PictureDataPtr huge =
        pdf.document().renderRegion(1, {0, 0, 300, 300}, {100000}, PaintedText::Shown, pdf.diagnostics());
    EXPECT_LT(std::int64_t{huge->pixelWidth} * huge->pixelHeight, 70'000'000) << "the resolution gives way";
}

TEST(Rendering, FindsInkOnPaperThatIsNotWhite) {
    PdfPage page{".8 g 0 0 400 300 re f 0 g 100 100 40 40 re f .7 g 200 100 40 40 re f .76 g 300 100 40 40 re f",
                 400,
                 300,
                 "",
                 {},
                 {}};
    OpenedPdf pdf(PdfBuilder().page(page));
    Rect ink;
    for (const Rect& square : pdf.document().inkOf(1, 4, pdf.diagnostics()))
        ink = ink.united(square);
    EXPECT_EQ(ink, (Rect{100, 160, 240, 200})) << "the black and the grey square, not the paper nor its grain";
    EXPECT_THROW(pdf.document().inkOf(7, 4, pdf.diagnostics()), Failure);
}

TEST(Rendering, LeavesWordsOutWhereTheyAreSetBesides) {
    OpenedPdf pdf(PdfBuilder().page("1 0 0 rg 50 100 100 100 re f 0 g BT /F4 90 Tf 60 110 Td (I) Tj ET"));
    const Rect region{50, 592, 150, 692};
    const auto isRed = [](const PictureDataPtr& picture) {
        const Pixels pixels = readPng(picture->bytes);
        for (int x = 0; x < picture->pixelWidth; ++x)
            if (pixels.at(x, 50) != "FF0000FF")
                return false;
        return true;
    };
    EXPECT_FALSE(isRed(pdf.document().renderRegion(1, region, {72}, PaintedText::Shown, pdf.diagnostics())));
    EXPECT_TRUE(isRed(pdf.document().renderRegion(1, region, {72}, PaintedText::LeftOut, pdf.diagnostics())));
}

} // namespace
} // namespace orvane::pdf
