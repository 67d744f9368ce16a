#include "protocol/LineSplitter.h"
#include "protocol/ProtocolError.h"

#include <gtest/gtest.h>

namespace orvane::protocol {
namespace {

TEST(LineSplitter, MakesLinesOfPieces) {
    LineSplitter lines(100);
    lines.add("on");
    EXPECT_EQ(lines.next(), std::nullopt);
    lines.add("e\ntwo\n\nth");
    EXPECT_EQ(lines.next(), "one");
    EXPECT_EQ(lines.next(), "two");
    EXPECT_EQ(lines.next(), "");
    EXPECT_EQ(lines.next(), std::nullopt);
    lines.add("ree\n");
    EXPECT_EQ(lines.next(), "three");
    EXPECT_EQ(lines.next(), std::nullopt);
}

TEST(LineSplitter, TakesALineOfTheGreatestLength) {
    LineSplitter lines(4);
    lines.add("1234\n");
    EXPECT_EQ(lines.next(), "1234");
}

TEST(LineSplitter, RefusesALineThatIsTooLong) {
    LineSplitter whole(4);
    whole.add("12345\n");
    EXPECT_THROW(whole.next(), ProtocolError);
    LineSplitter unfinished(4);
    unfinished.add("12345");
    EXPECT_THROW(unfinished.next(), ProtocolError);
}

} // namespace
} // namespace orvane::protocol
