#include "layout/structure/PrintedAddress.h"

#include "base/Utf8.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

/// "shown -> target" of each address.
std::string addressesIn(const std::string& text) {
    const std::u32string characters = utf32FromUtf8(text);
    std::string found;
    for (const PrintedAddress& address : findPrintedAddresses(characters)) {
        const auto shown = std::u32string_view(characters).substr(address.from, address.to - address.from);
        found += (found.empty() ? "" : "; ") + utf8FromUtf32(shown) + " -> " + address.uri;
    }
    return found;
}

TEST(PrintedAddress, FindsAddresses) {
    const struct {
        const char* why;
        const char* text;
        const char* expected;
    } cases[] = {
        {"a web address", "see http://a.example/b for more", "http://a.example/b -> http://a.example/b"},
        {"with capitals", "HTTPS://A.example", "HTTPS://A.example -> HTTPS://A.example"},
        {"one without its scheme", "see www.a.example", "www.a.example -> http://www.a.example"},
        {"a mail address", "write to j.doe@a.example.", "j.doe@a.example -> mailto:j.doe@a.example"},
        {"one with its scheme", "mailto:j@a.example", "mailto:j@a.example -> mailto:j@a.example"},
        {"a full stop behind it", "at http://a.example/b.", "http://a.example/b -> http://a.example/b"},
        {"brackets around it", "(http://a.example/b).", "http://a.example/b -> http://a.example/b"},
        {"brackets within", "http://a.example/b_(c)", "http://a.example/b_(c) -> http://a.example/b_(c)"},
        {"angles around it", "<http://a.example>", "http://a.example -> http://a.example"},
        {"text without blanks", "\u3053\u308Chttp://a.example/b\u3092\u8AAD\u3080",
         "http://a.example/b -> http://a.example/b"},
        {"two", "www.a.example and www.b.example",
         "www.a.example -> http://www.a.example; www.b.example -> http://www.b.example"},
        {"no host", "http:// and www. and http://x", ""},
        {"no host of its own", "www.a, http://www.a", ""},
        {"half a host", "http://www.a-", ""},
        {"no mail address", "5 @ 3, @name, a@b", ""},
        {"within a word", "xwww.a.example", ""},
        {"a version", "library 1.2.3", ""},
    };
    for (const auto& row : cases)
        EXPECT_EQ(addressesIn(row.text), row.expected) << row.why;
}

TEST(PrintedAddress, GoesOnBehindTheEndOfALine) {
    const struct {
        const char* why;
        const char* text;
        const char* expected;
    } cases[] = {
        {"within a path", "http://a.example/b\n/c.html now",
         "http://a.example/b\n/c.html -> http://a.example/b/c.html"},
        {"behind a hyphen", "http://a.example/b-\nc", "http://a.example/b-\nc -> http://a.example/b-c"},
        {"over three lines", "http://a.example/b\n/c?d=\n1",
         "http://a.example/b\n/c?d=\n1 -> http://a.example/b/c?d=1"},
        {"behind a folder", "http://a.example/\nb/c.html", "http://a.example/\nb/c.html -> http://a.example/b/c.html"},
        {"a word behind a folder", "http://a.example/\nand more", "http://a.example/ -> http://a.example/"},
        {"another sentence", "http://a.example/b.\nMore", "http://a.example/b -> http://a.example/b"},
        {"another address", "http://a.example/\nhttp://b.example/",
         "http://a.example/ -> http://a.example/; http://b.example/ -> http://b.example/"},
    };
    for (const auto& row : cases)
        EXPECT_EQ(addressesIn(row.text), row.expected) << row.why;
}

} // namespace
} // namespace orvane::layout
