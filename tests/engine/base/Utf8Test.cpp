#include "base/Utf8.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(Utf8, DecodesSequencesOfEveryLength) {
    EXPECT_EQ(utf32FromUtf8("a\u00E9\u20AC\U0001F600"), U"a\u00E9\u20AC\U0001F600");
    EXPECT_EQ(utf8FromUtf32(U"a\u00E9\u20AC\U0001F600"), "a\u00E9\u20AC\U0001F600");
}

TEST(Utf8, ReplacesWhatIsNotValid) {
    const struct {
        const char* bytes;
        std::u32string expected;
        const char* why;
    } cases[] = {
        {"\x80", U"\uFFFD", "a continuation without a lead"},
        {"\xC3", U"\uFFFD", "cut short"},
        {"\xC0\xAF", U"\uFFFD\uFFFD", "longer than needed"},
        {"\xED\xA0\x80", U"\uFFFD\uFFFD\uFFFD", "a surrogate"},
        {"\xF4\x90\x80\x80", U"\uFFFD\uFFFD\uFFFD\uFFFD", "beyond the last character"},
        {"\xC3(", U"\uFFFD(", "the next character is kept"},
    };
    for (const auto& [bytes, expected, why] : cases)
        EXPECT_EQ(utf32FromUtf8(bytes), expected) << why;
    EXPECT_EQ(utf8FromUtf32(std::u32string(1, char32_t{0xD800})), "\uFFFD");
}

} // namespace
} // namespace orvane
