#include "LoadedLibrary.h"

#include "support/PdfBuilder.h"

#include <string>

#include <fmt/format.h>

namespace orvane::component {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// What each option bit and each layout code make of a document, through the built library. Documents are RTF where
/// nothing else is asked for: its text can be read as it stands.
class OptionBits : public LoadedLibrary {
protected:
    OptionBits() {
        tests::PdfBuilder pdf;
        const int picture = pdf.addStream(tests::pdfImage(2, 2, "/DeviceRGB", 8), "abcdefghijkl");
        const std::string pictures = "/XObject << /Im1 " + tests::pdfRef(picture) + " >>";
        // Four letters, each set 3 points apart from the next.
        pdf.page({"BT /F4 12 Tf 72 720 Td (First bold page) Tj 0 -40 Td /F1 12 Tf 3 Tc (wide) Tj ET "
                  "q 144 0 0 144 72 400 cm /Im1 Do Q",
                  612,
                  792,
                  {},
                  pictures,
                  {}});
        pdf.page("BT /F1 12 Tf 72 720 Td (Second page) Tj ET");
        pdf.page("BT /F1 12 Tf 72 720 Td (Third page) Tj ET");
        pdf.write(file("a.pdf"));
    }

    /// The document that the request makes; empty, and a failure of the test, where there is none.
    std::string document(std::int32_t flags, std::int16_t layoutCode, const std::string& pageRange = {}) {
        ConversionRequest wanted = request();
        wanted.flags = flags;
        wanted.layoutCode = layoutCode;
        wanted.pageRange = pageRange;
        wanted.targetPath = file("document");
        const auto engine = createEngine();
        EXPECT_EQ(engine->DoConvert(wanted), result::kAccepted) << flags;
        EXPECT_EQ(waitForEnd(*engine), finish::kSucceeded) << flags;
        return read("document");
    }
};

constexpr std::int16_t kTextLayouts[] = {layout_code::kFlowing, layout_code::kTruePage, layout_code::kContinuous,
                                         layout_code::kPlainText};

TEST_F(OptionBits, DecideTheFormat) {
    const std::string compound = "\xD0\xCF\x11\xE0";
    const std::string package = "PK\x03\x04";
    const std::string text = "{\\rtf1";
    struct Row {
        std::int32_t flags;
        std::string start;
        const char* why;
    };
    const Row rows[] = {
        {flag::kAllPages, text, "no word format"},
        {flag::kAllPages | flag::kWordFormat, compound, "the older word format"},
        {flag::kAllPages | flag::kWordFormat | flag::kDocx, package, "the newer one"},
        {flag::kAllPages | flag::kDocx, text, "the bit of the newer one means nothing alone"},
    };
    for (const std::int16_t layout : kTextLayouts)
        for (const Row& row : rows)
            EXPECT_THAT(document(row.flags, layout), StartsWith(row.start)) << row.why << ", layout " << layout;
}

TEST_F(OptionBits, TakeAllPagesOrTheRange) {
    for (const std::int16_t layout : kTextLayouts) {
        const std::string all = document(flag::kAllPages, layout, "2");
        for (const char* word : {"First", "Second", "Third"})
            EXPECT_THAT(all, HasSubstr(word)) << "the range is not looked at, layout " << layout;
        const std::string range = document(0, layout, "2-3");
        EXPECT_THAT(range, Not(HasSubstr("First"))) << layout;
        EXPECT_THAT(range, HasSubstr("Second")) << layout;
        EXPECT_THAT(range, HasSubstr("Third")) << layout;
    }
}

TEST_F(OptionBits, RemovePictures) {
    for (const std::int16_t layout : {layout_code::kFlowing, layout_code::kTruePage}) {
        EXPECT_THAT(document(flag::kAllPages, layout), HasSubstr("\\pict")) << layout;
        const std::string without = document(flag::kAllPages | flag::kRemoveImages, layout);
        EXPECT_THAT(without, Not(HasSubstr("\\pict"))) << layout;
        EXPECT_THAT(without, HasSubstr("First")) << layout;
    }
}

TEST_F(OptionBits, KeepTheSpaceBetweenLetters) {
    for (const std::int16_t layout : {layout_code::kFlowing, layout_code::kTruePage, layout_code::kContinuous}) {
        EXPECT_THAT(document(flag::kAllPages, layout), Not(HasSubstr("\\expndtw"))) << layout;
        EXPECT_THAT(document(flag::kAllPages | flag::kKeepCharacterSpacing, layout), HasSubstr("\\expndtw60"))
            << "three points, layout " << layout;
    }
}

TEST_F(OptionBits, ChangeNothingWhereTheyMeanNothingForTheDocument) {
    const std::string plain = document(flag::kAllPages, layout_code::kFlowing);
    for (const std::int32_t bits : {flag::kLaterFileOfSelection, flag::kUserPasswordAsked, flag::kOwnerPasswordAsked,
                                    std::int32_t{16}, std::int32_t{1 << 20}})
        EXPECT_EQ(document(flag::kAllPages | bits, layout_code::kFlowing), plain) << bits;
}

TEST_F(OptionBits, LeaveToTheLayoutCodeHowPagesBecomeText) {
    const std::string flowing = document(flag::kAllPages, layout_code::kFlowing);
    EXPECT_THAT(flowing, HasSubstr("\\pict"));
    EXPECT_THAT(flowing, Not(HasSubstr("\\shptxt"))) << "text flows";

    const std::string truePage = document(flag::kAllPages, layout_code::kTruePage);
    EXPECT_THAT(truePage, HasSubstr("\\shptxt")) << "text stands in boxes";

    const std::string continuous = document(flag::kAllPages, layout_code::kContinuous);
    EXPECT_THAT(continuous, HasSubstr("{\\b First bold page"));
    EXPECT_THAT(continuous, Not(HasSubstr("\\pict"))) << "no pictures";
    EXPECT_THAT(continuous, Not(HasSubstr("\\page"))) << "one flow";
    EXPECT_THAT(continuous, Not(HasSubstr("\\shp"))) << "no boxes";

    const std::string plainText = document(flag::kAllPages, layout_code::kPlainText);
    EXPECT_THAT(plainText, HasSubstr("First"));
    EXPECT_THAT(plainText, Not(HasSubstr("\\b First bold page"))) << "one look";
    EXPECT_THAT(plainText, Not(HasSubstr("\\pict")));
}

} // namespace
} // namespace orvane::component
