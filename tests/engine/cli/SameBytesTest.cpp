#include "engine/cli/ProgramTest.h"

#include <gmock/gmock.h>

namespace orvane::cli {
namespace {

using testing::HasSubstr;
using testing::Not;

class EachFormat : public ProgramTest, public testing::WithParamInterface<const char*> {
protected:
    /// The document of that layout, as bytes.
    std::string convert(const std::string& source, const std::string& name, std::vector<std::string> options) const {
        const std::string target = path(name + "." + GetParam());
        options.insert(options.begin(), {"convert", source, target});
        const auto result = orvane(options);
        EXPECT_EQ(result.exitCode, 0) << result.errorOutput;
        return read(name + "." + GetParam());
    }

    /// The styles and the text of a DOCX.
    static std::string partsOf(const std::string& file) {
        const char* program = "import sys, zipfile\n"
                              "parts = zipfile.ZipFile(sys.argv[1])\n"
                              "for name in ('word/styles.xml', 'word/document.xml'): print(parts.read(name).decode())";
        return tests::runProgram("/usr/bin/python3", {"-c", program, file}).output;
    }
};

INSTANTIATE_TEST_SUITE_P(Formats, EachFormat, testing::Values("docx", "rtf", "doc"),
                         [](const auto& row) { return std::string(row.param); });

TEST_P(EachFormat, HasTheSameBytesForTheSamePdf) {
    makePdfWithPicture("picture.pdf");
    const std::string sources[] = {makePdf("text.pdf", 2), path("picture.pdf")};
    for (const std::string& source : sources)
        for (const char* layout : {"flowing", "true-page", "continuous", "plain-text"}) {
            const std::string once = convert(source, "once", {"--layout", layout});
            EXPECT_GT(once.size(), 100u) << layout;
            EXPECT_TRUE(once == convert(source, "again", {"--layout", layout})) << source << ' ' << layout;
        }
}

TEST_P(EachFormat, KeepsTheDistancesOfCharactersWhereAskedTo) {
    tests::PdfBuilder pdf;
    pdf.page("BT /F1 12 Tf 2 Tc 72 720 Td (Characters that stand apart) Tj ET");
    pdf.write(path("a.pdf"));
    // Two points: in twips, or as the DOC's property.
    const std::string format = GetParam();
    const auto spacingOf = [&](const std::string& name, const std::vector<std::string>& options) {
        const std::string bytes = convert(path("a.pdf"), name, options);
        if (format == "doc")
            return orvane({"dump", path(name + ".doc")}).output;
        return format == "rtf" ? bytes : partsOf(path(name + ".docx"));
    };
    const std::string written = format == "doc"   ? " spacing=40"
                                : format == "rtf" ? "\\expndtw40"
                                                  : "<w:spacing w:val=\"40\"/>";
    for (const char* layout : {"flowing", "true-page", "continuous"}) {
        EXPECT_THAT(spacingOf("kept", {"--keep-spacing", "--layout", layout}), HasSubstr(written)) << layout;
        EXPECT_THAT(spacingOf("left", {"--layout", layout}), Not(HasSubstr(written))) << layout;
    }
}

} // namespace
} // namespace orvane::cli
