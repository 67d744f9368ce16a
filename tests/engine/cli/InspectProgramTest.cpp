#include "engine/cli/ProgramTest.h"

#include <gmock/gmock.h>

namespace orvane::cli {
namespace {

using testing::HasSubstr;
using testing::Not;

class InspectProgram : public ProgramTest {
protected:
    std::string makeTwoPages() const {
        tests::PdfBuilder pdf;
        pdf.page("BT /F1 12 Tf 72 700 Td (First page) Tj ET").page("BT /F1 12 Tf 72 700 Td (Second page) Tj ET");
        pdf.write(path("a.pdf"));
        return path("a.pdf");
    }
};

TEST_F(InspectProgram, DrawsWhatAStageSawOnThePage) {
    const auto result = orvane({"inspect", makeTwoPages(), "--page", "2", "--stage", "lines", "-o", path("out.svg")});
    EXPECT_EQ(result.exitCode, 0) << result.errorOutput;
    EXPECT_EQ(result.output, path("out.svg") + "\n");
    const std::string svg = read("out.svg");
    EXPECT_THAT(svg, HasSubstr("<svg"));
    EXPECT_THAT(svg, HasSubstr("Second"));
    EXPECT_THAT(svg, Not(HasSubstr("First")));
}

TEST_F(InspectProgram, EveryStageThatTheHelpNamesIsThere) {
    const std::string pdf = makeTwoPages();
    for (const char* stage : {"words", "lines", "rules", "figures", "regions", "paragraphs", "tables"}) {
        const auto result = orvane({"inspect", pdf, "--stage", stage, "-o", path("out.svg")});
        EXPECT_EQ(result.exitCode, 0) << stage << ": " << result.errorOutput;
        EXPECT_THAT(orvane({"inspect", "--help"}).output, HasSubstr(stage));
    }
}

TEST_F(InspectProgram, RefusesAStageThatIsNotThere) {
    const auto result = orvane({"inspect", makeTwoPages(), "--stage", "magic", "-o", path("out.svg")});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errorOutput, HasSubstr("there is no stage \"magic\""));
    EXPECT_FALSE(exists("out.svg"));
}

TEST_F(InspectProgram, RefusesAPageThatIsNotThere) {
    const auto result = orvane({"inspect", makeTwoPages(), "--page", "3", "--stage", "lines", "-o", path("out.svg")});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_FALSE(exists("out.svg"));
}

TEST_F(InspectProgram, LeavesThePdfAlone) {
    const std::string pdf = makeTwoPages();
    const std::string before = read("a.pdf");
    EXPECT_EQ(orvane({"inspect", pdf, "--stage", "lines", "-o", pdf}).exitCode, 2);
    EXPECT_EQ(read("a.pdf"), before);
}

} // namespace
} // namespace orvane::cli
