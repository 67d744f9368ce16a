#include "ReadPages.h"
#include "Type1Program.h"

#include "pdf/FontProgram.h"
#include "pdf/GlyphName.h"
#include "pdf/PopplerRuntime.h"
#include "pdf/SymbolFont.h"
#include "pdf/TextString.h"
#include "pdf/TrueTypeFile.h"
#include "pdf/TrueTypeGlyph.h"
#include "pdf/UsualGlyphOrder.h"

#include <gtest/gtest.h>

namespace orvane::pdf {
namespace {

using tests::PdfBuilder;
using tests::PdfPage;
using tests::pdfRef;

/// A ToUnicode map of single codes of `digits` hexadecimal digits.
std::string toUnicode(const std::string& lines, int count, const std::string& range) {
    return "/CIDInit /ProcSet findresource begin 12 dict begin begincmap /CMapName /Test def 1 begincodespacerange " +
           range + " endcodespacerange " + std::to_string(count) + " beginbfchar\n" + lines +
           "endbfchar endcmap end end";
}

/// A page that shows `shown` in a font of its own.
std::string textIn(PdfBuilder& builder, const std::string& font, const std::string& shown) {
    const int number = builder.add(font);
    OpenedPdf pdf(
        builder.page(PdfPage{"BT /E1 20 Tf 50 500 Td " + shown + " Tj ET", 612, 792, {}, {}, "/E1 " + pdfRef(number)}));
    return textOf(pdf.page());
}

TEST(Unicode, FollowsTheFilesOwnMap) {
    PdfBuilder builder;
    const int map = builder.addStream("", toUnicode("<41> <00660069> <42> <D83DDE00> <43> <FB03>\n", 3, "<00> <FF>"));
    EXPECT_EQ(textIn(builder, "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica /ToUnicode " + pdfRef(map) + " >>",
                     "(ABC)"),
              "fi😀ffi")
        << "several characters, one beyond the basic plane, and a ligature in full";
}

TEST(Unicode, IsFoundByTheNamesOfGlyphsWhereTheMapIsSilent) {
    PdfBuilder builder;
    const int map =
        builder.addStream("", toUnicode("<41> <FFFD> <42> <E001> <43> <0003> <44> <0041>\n", 4, "<00> <FF>"));
    const std::string font =
        "<< /Type /Font /Subtype /Type1 /BaseFont /Unknown /ToUnicode " + pdfRef(map) +
        " /Encoding << /Type /Encoding /Differences [65 /eacute /uni0416 /f_f_i /B] >> /FirstChar 65 /LastChar 68 "
        "/Widths [500 500 500 500] >>";
    const int number = builder.add(font);
    OpenedPdf pdf(
        builder.page(PdfPage{"BT /E1 20 Tf 50 500 Td (ABCD) Tj ET", 612, 792, {}, {}, "/E1 " + pdfRef(number)}));
    const PageContent page = pdf.page();
    EXPECT_EQ(textOf(page), "éЖffiA") << "the map is believed where it says something";
    ASSERT_EQ(page.glyphs.size(), 4u);
    EXPECT_TRUE(page.glyphs[0].isUnicodeGuessed);
    EXPECT_FALSE(page.glyphs[3].isUnicodeGuessed);
    EXPECT_EQ(pdf.count(DiagnosticKind::TextRepaired), 1) << "one for the font";
}

TEST(Unicode, OfSignsOfFormulasIsThatOfTheirNamesNotTheLetterAtTheirCode) {
    PdfBuilder builder;
    const int map = builder.addStream("", toUnicode("<53> <0053> <71> <0071> <61> <0061>\n", 3, "<00> <FF>"));
    const std::string font =
        "<< /Type /Font /Subtype /Type1 /BaseFont /CMEX10 /ToUnicode " + pdfRef(map) +
        " /Encoding << /Type /Encoding /Differences [83 /uniontext 97 /a 113 /radicalbig] >> /FirstChar 83 "
        "/LastChar 84 /Widths [500 500] >>";
    EXPECT_EQ(textIn(builder, font, "(Sqa)"), "\u22C3\u221Aa");
}

TEST(Unicode, OfSignsThatPublishersNumberIsThatOfTheirNumbers) {
    const auto textOf = [](const std::string& name, const std::string& differences) {
        PdfBuilder builder;
        const int map = builder.addStream("", toUnicode("<03> <0003> <F0> <00F0> <DE> <00DE>\n", 3, "<00> <FF>"));
        const std::string font = "<< /Type /Font /Subtype /Type1 /BaseFont /" + name + " /ToUnicode " + pdfRef(map) +
                                 " /Encoding << /Type /Encoding /Differences [" + differences +
                                 "] >> /FirstChar 3 /LastChar 5 /Widths [781 500 500] >>";
        return textIn(builder, font, "<F003DE>");
    };
    EXPECT_EQ(textOf("ABCDEF+AdvMacMthSyN", "3 /C0 222 /Thorn 240 /eth"), "(\u2212)");
    EXPECT_EQ(textOf("ABCDEF+AdvMacMthSyN", "3 /C15 222 /Thorn 240 /eth"), "(\u2022)");
    EXPECT_EQ(textOf("ABCDEF+AdvOT863180fb", "3 /y 222 /Thorn 240 /eth"), "\u00F0y\u00DE") << "letters of Iceland";
    EXPECT_EQ(textOf("ABCDEF+Palatino", "3 /y 222 /Thorn 240 /eth"), "\u00F0y\u00DE");
    EXPECT_EQ(textOf("ABCDEF+Palatino", "3 /C0 222 /Thorn 240 /eth"), "\u00F0\u00DE") << "what is unknown is empty";
}

TEST(Unicode, OfAMapThatSaysOneThingForAllIsNotBelieved) {
    PdfBuilder builder;
    const int map = builder.addStream(
        "", toUnicode("<41> <0020> <42> <0020> <43> <0020> <44> <0020> <45> <0020>\n", 5, "<00> <FF>"));
    EXPECT_EQ(textIn(builder,
                     "<< /Type /Font /Subtype /Type1 /BaseFont /Unknown /ToUnicode " + pdfRef(map) +
                         " /Encoding /WinAnsiEncoding /FirstChar 65 /LastChar 69 /Widths [500 500 500 500 500] >>",
                     "(ABCDE)"),
              "ABCDE");
}

TEST(UsualGlyphOrder, LacksTheBlankThatDoesNotBreakAndTheApple) {
    const std::pair<std::uint32_t, char32_t> known[] = {
        {2, 0},      {3, U' '},   {36, U'A'},  {97, U'~'},  {98, U'Ä'},  {129, U'ü'}, {135, U'•'},
        {162, U'¿'}, {171, U'…'}, {172, U'À'}, {177, U'–'}, {178, U'—'}, {179, U'“'}, {182, U'’'},
        {188, U'€'}, {196, U'„'}, {208, U'Ô'}, {209, U'Ò'}, {238, U'×'}, {255, U'đ'}, {256, 0}};
    for (const auto& [glyph, character] : known)
        EXPECT_EQ(characterInUsualOrder(glyph), character) << glyph;
}

TEST(Unicode, OfGlyphNumbersFollowsTheUsualOrder) {
    PdfBuilder builder;
    const std::string descendant =
        "<< /Type /Font /Subtype /CIDFontType2 /BaseFont /Arial /CIDSystemInfo << /Registry (Adobe) /Ordering "
        "(Identity) /Supplement 0 >> /DW 500 >>";
    const int child = builder.add(descendant);
    // Glyphs 43, 72, 79, 79, 82: "Hello" in the order of most TrueType fonts.
    EXPECT_EQ(textIn(builder,
                     "<< /Type /Font /Subtype /Type0 /BaseFont /Arial /Encoding /Identity-H /DescendantFonts [" +
                         pdfRef(child) + "] >>",
                     "<002B0048004F004F0052>"),
              "Hello");
}

TEST(Unicode, OfSignFontsIsWhatIsSeen) {
    struct Row {
        const char* font;
        const char* code;
        const char* expected;
    };
    const Row rows[] = {
        {"Wingdings", "(l)", "●"},        {"Wingdings", "(\\247)", "▪"},
        {"Wingdings", "(\\330)", "➢"},    {"Wingdings-Regular", "(\\374)", "✓"},
        {"ABCDEF+Wingdings", "(n)", "■"}, {"Symbol", "(a)", "α"},
        {"Symbol", "(\\267)", "•"},       {"SymbolMT", "(\\256)", "→"},
        {"ZapfDingbats", "(4)", "✔"},     {"ZapfDingbats", "(n)", "■"},
    };
    for (const Row& row : rows) {
        PdfBuilder builder;
        EXPECT_EQ(textIn(
                      builder,
                      std::string("<< /Type /Font /Subtype /TrueType /BaseFont /") + row.font +
                          " /FirstChar 32 /LastChar 255 /Widths [" +
                          [] {
                              std::string w;
                              for (int i = 32; i < 256; ++i)
                                  w += "600 ";
                              return w;
                          }() +
                          "] >>",
                      row.code),
                  row.expected)
            << row.font << row.code;
    }
}

/// The text of five signs of a TrueType font of this name, which its map puts at these characters.
std::string signsOf(const std::string& font, const std::string& map, const std::string& width = "500") {
    PdfBuilder builder;
    std::string widths;
    for (int i = 0; i < 5; ++i)
        widths += width + " ";
    const int stream = builder.addStream("", toUnicode(map, 5, "<00> <FF>"));
    return textIn(builder,
                  "<< /Type /Font /Subtype /TrueType /BaseFont /" + font + " /ToUnicode " + pdfRef(stream) +
                      " /FirstChar 65 /LastChar 69 /Widths [" + widths + "] >>",
                  "(ABCDE)");
}

TEST(Unicode, OfPrivateBulletsIsABullet) {
    EXPECT_EQ(signsOf("Unknown", "<41> <F0B7> <42> <F0A7> <43> <F041> <44> <F09E> <45> <F0B0>\n"), "•▪A•°");
    EXPECT_EQ(signsOf("Unknown", "<41> <F097> <42> <F0E0> <43> <F0DF> <44> <F0E8>\n"), "●→←➔")
        << "as word processors put them";
}

TEST(Unicode, OfAFontThatStandsInForSignsIsTheSign) {
    EXPECT_EQ(signsOf("OpenSymbol", "<41> <F06C> <42> <F033> <43> <F0B7> <44> <0028> <45> <2713>\n"), "●✓•(✓")
        << "of Wingdings, of ZapfDingbats, of Symbol, and as the map says";
}

TEST(Unicode, OfACodeThatIsOpenSymbolsOwnIsTheSignOfFormulas) {
    const std::string map = "<41> <E083> <42> <E09E> <43> <E0B7> <44> <E0CE> <45> <E0DC>\n";
    EXPECT_EQ(signsOf("OpenSymbol", map), "+(αω↑");
    EXPECT_EQ(signsOf("AnotherFont", map).find("+("), std::string::npos);
}

TEST(Unicode, OfANarrowSignWhereOthersHavePicturesIsThatOfSymbol) {
    const std::string map = "<41> <F02A> <42> <F028> <43> <F029> <44> <F02B> <45> <F02D>\n";
    EXPECT_EQ(signsOf("OpenSymbol", map, "507"), "\u2217()+\u2212");
    EXPECT_EQ(signsOf("OpenSymbol", "<41> <F0A3> <42> <F0A3> <43> <F0A3> <44> <F0A3> <45> <F0A3>\n", "892"), "□□□□□");
    EXPECT_EQ(signsOf("OpenSymbol", "<41> <F0A3> <42> <F0A3> <43> <F0A3> <44> <F0A3> <45> <F0A3>\n", "795"), "○○○○○");
    EXPECT_EQ(signsOf("OpenSymbol", "<41> <F02A> <42> <F028> <43> <F02A> <44> <F028> <45> <F02A>\n", "940"),
              "\u2709\u260E\u2709\u260E\u2709");
}

TEST(Unicode, OfASignWithoutANameThatIsDrawnAsABulletIsABullet) {
    struct Row {
        int radius;
        const char* expected;
        const char* why;
    };
    const Row rows[] = {
        {170, "\u2022", "a bullet"}, {300, "\u25CF", "the table's black circle"}, {60, "\u25CF", "a dot"}};
    for (const Row& row : rows) {
        const std::string source = tests::type1Program({{"sign", {}, {{300, 350, row.radius}}}});
        const std::vector<unsigned char> sourceBytes(source.begin(), source.end());
        const FontProgram program(sourceBytes);
        TrueTypeFile file;
        file.family = "OpenSymbol";
        file.glyphs = {TrueTypeGlyph{}, *trueTypeGlyph(program, 1, 1000)};
        const std::string bytes = bytesOf(file);

        PdfBuilder builder;
        const int stream = builder.addStream("/Length1 " + std::to_string(bytes.size()), bytes);
        const int descriptor =
            builder.add("<< /Type /FontDescriptor /FontName /OpenSymbol /Flags 4 /FontBBox [0 0 1000 "
                        "1000] /ItalicAngle 0 /Ascent 800 /Descent 0 /StemV 80 /FontFile2 " +
                        pdfRef(stream) + " >>");
        const int child = builder.add("<< /Type /Font /Subtype /CIDFontType2 /BaseFont /OpenSymbol /CIDSystemInfo << "
                                      "/Registry (Adobe) /Ordering (Identity) /Supplement 0 >> /DW 600 /CIDToGIDMap "
                                      "/Identity /FontDescriptor " +
                                      pdfRef(descriptor) + " >>");
        const int map = builder.addStream("", toUnicode("<0001> <F06C>\n", 1, "<0000> <FFFF>"));
        EXPECT_EQ(
            textIn(builder,
                   "<< /Type /Font /Subtype /Type0 /BaseFont /OpenSymbol /Encoding /Identity-H /DescendantFonts [" +
                       pdfRef(child) + "] /ToUnicode " + pdfRef(map) + " >>",
                   "<0001>"),
            row.expected)
            << row.why;
    }
}

TEST(Unicode, OfACodeWithoutANameAmongNumberedOnesIsNotItsLetter) {
    struct Row {
        const char* map;
        int count;
        const char* encoding;
        const char* expected;
        const char* why;
    };
    const Row rows[] = {
        {"<20> <0639> <21> <0646>\n", 2, "", "\u0646\u0646", "codes in the order of use: a glyph that says nothing"},
        {"<20> <0020> <21> <0021>\n", 2, "", "!\"!", "codes that are letters"},
        {"<20> <0639> <7E> <0646>\n", 2, "", "!\"!", "few codes have a name"},
        {"<20> <0639> <21> <0646>\n", 2, " /Encoding /WinAnsiEncoding", "\u0646\"\u0646",
         "the font says what its codes are"},
    };
    for (const Row& row : rows) {
        PdfBuilder builder;
        const int map = builder.addStream("", toUnicode(row.map, row.count, "<00> <FF>"));
        const int number =
            builder.add("<< /Type /Font /Subtype /TrueType /BaseFont /Unknown /FirstChar 32 /LastChar 34 "
                        "/Widths [500 500 500]" +
                        std::string(row.encoding) + " /ToUnicode " + pdfRef(map) + " >>");
        OpenedPdf pdf(
            builder.page(PdfPage{"BT /E1 20 Tf 50 500 Td <212221> Tj ET", 612, 792, {}, {}, "/E1 " + pdfRef(number)}));
        EXPECT_EQ(textOf(pdf.page()), row.expected) << row.why;
    }
}

TEST(Unicode, ThatStaysUnknownIsEmptyAndTold) {
    PdfBuilder builder;
    const int glyph = builder.addStream("", "500 0 0 0 500 700 d1 0 0 500 700 re f");
    const int map = builder.addStream("", toUnicode("<41> <FFFD>\n", 1, "<00> <FF>"));
    const int number = builder.add(
        "<< /Type /Font /Subtype /Type3 /ToUnicode " + pdfRef(map) +
        " /FontBBox [0 0 500 700] /FontMatrix [0.001 0 0 0.001 0 0] /CharProcs << /zzsign " + pdfRef(glyph) +
        " >> /Encoding << /Differences [65 /zzsign] >> /FirstChar 65 /LastChar 65 /Widths [500] >>");
    OpenedPdf pdf(
        builder.page(PdfPage{"BT /E1 20 Tf 50 500 Td (AA) Tj ET", 612, 792, {}, {}, "/E1 " + pdfRef(number)}));
    const PageContent page = pdf.page();
    ASSERT_EQ(page.glyphs.size(), 2u);
    EXPECT_TRUE(page.glyphs[0].unicode.empty());
    EXPECT_EQ(pdf.count(DiagnosticKind::TextUnmapped), 1);
}

TEST(Unicode, OfAccentsPaintedAloneJoinsTheirLetters) {
    // In TeX's way: the accent, back by its width and half the difference, then the letter.
    PdfBuilder builder;
    const int number = builder.add(
        "<< /Type /Font /Subtype /Type1 /BaseFont /CMR10 /Encoding << /Differences [1 /acute /dieresis /dotlessi] >> "
        "/FirstChar 1 /LastChar 101 /Widths [" +
        [] {
            std::string w;
            for (int i = 1; i < 102; ++i)
                w += "500 ";
            return w;
        }() +
        "] >>");
    OpenedPdf pdf(builder.page(PdfPage{"BT /E1 10 Tf 50 500 Td [<01> 500 (e) <02> 500 <03> (a) 500 <02>] TJ ET "
                                       "BT /E1 10 Tf 50 400 Td [(e) <01> (a)] TJ ET",
                                       612,
                                       792,
                                       {},
                                       {},
                                       "/E1 " + pdfRef(number)}));
    EXPECT_EQ(textOf(pdf.page()), "éïäe´a") << "an accent between letters is left alone";
}

TEST(Unicode, OfGlyphNamesFollowsTheirRules) {
    preparePoppler();
    struct Row {
        const char* name;
        const char32_t* expected;
    };
    const Row rows[] = {
        {"A", U"A"},
        {"eacute", U"é"},
        {"uni20AC", U"€"},
        {"uni00410042", U"AB"},
        {"u1F600", U"😀"},
        {"a.sc", U"a"},
        {"f_f_i", U"ffi"},
        {"ffl", U"ffl"},
        {".notdef", U""},
        {"g32", U""},
        {"uniD800", U""},
        {"braceleftBigg", U"{"},
        {"summationdisplay", U"∑"},
        {"parenleftbig", U"("},
        {"copyrightserif", U"©"},
        {"sevenoldstyle", U"7"},
        {"", U""},
    };
    for (const Row& row : rows)
        EXPECT_EQ(textOfGlyphName(row.name), row.expected) << row.name;
}

TEST(Unicode, OfSignFontsIsFoundByTheWholeName) {
    EXPECT_EQ(symbolFontOf("Symbol"), SymbolFont::Symbol);
    EXPECT_EQ(symbolFontOf("Symbol,Bold"), SymbolFont::Symbol);
    EXPECT_EQ(symbolFontOf("ITC Zapf Dingbats"), SymbolFont::ZapfDingbats);
    EXPECT_EQ(symbolFontOf("Wingdings-Regular"), SymbolFont::Wingdings);
    EXPECT_EQ(symbolFontOf("Wingdings3"), SymbolFont::Wingdings3);
    EXPECT_EQ(symbolFontOf("SegoeUISymbol"), std::nullopt);
    EXPECT_EQ(symbolFontOf("Arial"), std::nullopt);
}

TEST(TextString, BecomesUtf8) {
    EXPECT_EQ(textFromPdf(std::string("plain")), "plain");
    EXPECT_EQ(textFromPdf(std::string("\x92\xE9\xA0")), "™é€") << "PDFDocEncoding";
    EXPECT_EQ(textFromPdf(std::string("\xFE\xFF\xD8\x3D\xDE\x00", 6)), "😀");
    EXPECT_EQ(textFromPdf(std::string("\xFF\xFE\x41\x00", 4)), "A");
    EXPECT_EQ(textFromPdf(std::string("\xEF\xBB\xBFé")), "é");
    EXPECT_EQ(textFromPdf(std::string("a\rb\x01")), "a\nb") << "control characters but line breaks are dropped";
    EXPECT_EQ(textFromPdf(std::string("\xFE\xFF\x00\x1B\x00\x65\x00\x6E\x00\x1B\x00\x41", 12)), "A")
        << "a language code is no text";
}

TEST(TextString, ReadsDates) {
    EXPECT_EQ(isoDateFromPdf("D:20240229235958Z"), "2024-02-29T23:59:58Z");
    EXPECT_EQ(isoDateFromPdf("D:20240229235958-05'30'"), "2024-02-29T23:59:58-05:30");
    EXPECT_EQ(isoDateFromPdf("D:202402"), "2024-02-01T00:00:00Z");
    EXPECT_EQ(isoDateFromPdf("20240229"), "2024-02-29T00:00:00Z");
    EXPECT_EQ(isoDateFromPdf("yesterday"), "");
    EXPECT_EQ(isoDateFromPdf("D:20241399"), "");
}

} // namespace
} // namespace orvane::pdf
