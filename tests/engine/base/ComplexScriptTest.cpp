#include "base/ComplexScript.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(ComplexScript, IsToldByItsCharacters) {
    struct Row {
        const char* text;
        bool expected;
        const char* why;
    };
    const Row rows[] = {
        {"", false, "nothing"},
        {"Plain \u00e4\u00df \u0416 \u03b1", false, "Latin, Cyrillic, Greek"},
        {"\u4e2d\u6587 \ud55c", false, "East Asian scripts have properties of their own"},
        {"\u0633\u0644\u0627\u0645", true, "Arabic"},
        {"\u05e9\u05dc\u05d5\u05dd", true, "Hebrew"},
        {"\u0928\u092e\u0938\u094d\u0924\u0947", true, "Devanagari"},
        {"\u0e2a\u0e27\u0e31\u0e2a", true, "Thai"},
        {"a \u05d0", true, "one character is enough"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(hasComplexScript(row.text), row.expected) << row.why;
}

} // namespace
} // namespace orvane
