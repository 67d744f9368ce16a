#include "engine/cli/ProgramTest.h"

#include <gmock/gmock.h>

namespace orvane::cli {
namespace {

using testing::HasSubstr;

class DumpProgram : public ProgramTest {};

TEST_F(DumpProgram, ListsWhatIsInADocument) {
    EXPECT_EQ(orvane({"convert", makePdf("a.pdf"), path("a.doc")}).exitCode, 0);
    const auto result = orvane({"dump", path("a.doc")});
    EXPECT_EQ(result.exitCode, 0) << result.errorOutput;
    EXPECT_THAT(result.output, HasSubstr("file information\n  edition 00c1, table stream 1Table\n"));
    EXPECT_THAT(result.output, HasSubstr("\"This is page 1."));
}

TEST_F(DumpProgram, TellsWhyItDoesNot) {
    write("a.doc", "{\\rtf1 another format}");
    const auto other = orvane({"dump", path("a.doc")});
    EXPECT_EQ(other.exitCode, 4);
    EXPECT_THAT(other.errorOutput, HasSubstr("no compound file"));
    const auto missing = orvane({"dump", path("missing.doc")});
    EXPECT_EQ(missing.exitCode, 4);
    EXPECT_THAT(missing.errorOutput, HasSubstr("cannot be read"));
}

} // namespace
} // namespace orvane::cli
