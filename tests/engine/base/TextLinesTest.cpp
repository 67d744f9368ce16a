#include "base/TextLines.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::ElementsAre;

TEST(TextLines, EndInAnyWay) {
    EXPECT_THAT(linesOf("one\ntwo\r\nthree\rfour"), ElementsAre("one", "two", "three", "four"));
}

TEST(TextLines, AreAtLeastOne) {
    EXPECT_THAT(linesOf(""), ElementsAre(""));
    EXPECT_THAT(linesOf("one\n"), ElementsAre("one", "")) << "what follows the last end is a line";
    EXPECT_THAT(linesOf("one\n\ntwo"), ElementsAre("one", "", "two"));
}

} // namespace
} // namespace orvane
