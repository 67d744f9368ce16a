#include "layout/text/FieldValue.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

TEST(FieldValue, CutsAValueWhereItIsSeen) {
    struct Case {
        const char* value;
        const char* seen;
        const char* before;
        const char* shown;
        const char* after;
    };
    const Case cases[] = {
        {"one two three", "one two", "", "one two", " three"},
        {"one two three", "two three", "one ", "two three", ""},
        {"one two three", "tw", "one ", "tw", "o three"},
        {"a b a", "a", "", "a", " b a"},
        {"12 34", "1 2 3 4", "", "12 34", ""},
        {"d\u00E9j\u00E0 vu", "d\u00E9j\u00E0", "", "d\u00E9j\u00E0", " vu"},
        {"one\ntwo\n", "one two", "", "one\ntwo\n", ""},
    };
    for (const Case& c : cases) {
        const std::optional<ShownValue> value = findShown(c.value, c.seen);
        ASSERT_TRUE(value) << c.value << " | " << c.seen;
        EXPECT_EQ(value->before, c.before) << c.value << " | " << c.seen;
        EXPECT_EQ(value->shown, c.shown) << c.value << " | " << c.seen;
        EXPECT_EQ(value->after, c.after) << c.value << " | " << c.seen;
    }
}

TEST(FieldValue, KnowsNothingOfWhatTheValueDoesNotSay) {
    EXPECT_FALSE(findShown("secret", "******"));
    EXPECT_FALSE(findShown("1234.5", "1,234.50"));
    EXPECT_FALSE(findShown("", "text"));
    EXPECT_FALSE(findShown("text", " "));
}

} // namespace
} // namespace orvane::layout
