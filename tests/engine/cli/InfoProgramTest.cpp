#include "engine/cli/ProgramTest.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace orvane::cli {
namespace {

using testing::HasSubstr;

class InfoProgram : public ProgramTest {
protected:
    std::string makeDescribedPdf() const {
        tests::PdfBuilder pdf;
        pdf.page("").page({"", 842, 595, "/Rotate 90", {}, {}});
        pdf.information("/Title (On Growth) /Author (D. T.)");
        pdf.write(path("a.pdf"));
        return path("a.pdf");
    }
};

TEST_F(InfoProgram, TellsWhatAFileIs) {
    const auto result = orvane({"info", makeDescribedPdf()});
    EXPECT_EQ(result.exitCode, 0) << result.errorOutput;
    EXPECT_THAT(result.output, HasSubstr("pages       2\n"));
    EXPECT_THAT(result.output, HasSubstr("title       On Growth\n"));
    EXPECT_THAT(result.output, HasSubstr("encrypted   no\n"));
}

TEST_F(InfoProgram, TellsItAsJson) {
    const auto object = nlohmann::json::parse(orvane({"info", makeDescribedPdf(), "--json"}).output);
    EXPECT_EQ(object["pageCount"], 2);
    EXPECT_EQ(object["author"], "D. T.");
    EXPECT_EQ(object["pages"][0]["width"], 612);
    EXPECT_EQ(object["pages"][1]["width"], 595) << "as shown, so turned";
    EXPECT_EQ(object["pages"][1]["rotation"], 90);
}

TEST_F(InfoProgram, TellsAFailureAsJsonToo) {
    write("bad.pdf", "not a PDF");
    const auto result = orvane({"info", path("bad.pdf"), "--json"});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(nlohmann::json::parse(result.output)["result"], "NotAPdf");
}

} // namespace
} // namespace orvane::cli
