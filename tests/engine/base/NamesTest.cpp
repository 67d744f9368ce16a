#include "base/Diagnostic.h"
#include "base/Failure.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace orvane {
namespace {

TEST(FailureCode, ComesBackFromItsName) {
    std::set<std::string> names;
    for (int value = 0; value <= static_cast<int>(FailureCode::Internal); ++value) {
        const auto code = static_cast<FailureCode>(value);
        EXPECT_EQ(failureCodeFromString(toString(code)), code) << toString(code);
        EXPECT_TRUE(names.insert(toString(code)).second) << toString(code) << " stands twice";
    }
}

TEST(FailureCode, IsAFaultOfOursWhenTheNameIsNone) {
    EXPECT_EQ(failureCodeFromString("notapdf"), FailureCode::Internal);
    EXPECT_EQ(failureCodeFromString(""), FailureCode::Internal);
}

TEST(Failure, SaysWhyAndWhere) {
    const Failure failure(FailureCode::NotAPdf, "no pages", {3, 17});
    EXPECT_EQ(failure.code(), FailureCode::NotAPdf);
    EXPECT_STREQ(failure.what(), "no pages");
    EXPECT_EQ(failure.where().page, 3);
    EXPECT_EQ(failure.where().object, 17);
}

TEST(DiagnosticKind, HasANameOfItsOwn) {
    std::set<std::string> names;
    for (int value = 0; value <= static_cast<int>(DiagnosticKind::ContentLeftOut); ++value) {
        const char* name = toString(static_cast<DiagnosticKind>(value));
        EXPECT_TRUE(names.insert(name).second) << name << " stands twice";
    }
}

TEST(Diagnostics, AreJoinedInOrder) {
    Diagnostics first;
    first.add(DiagnosticKind::ContentDamaged, 1, "one");
    Diagnostics second;
    second.add(DiagnosticKind::FontSubstituted, 2, "two", {1, 2, 3, 4});
    first.append(second);
    ASSERT_EQ(first.entries().size(), 2u);
    EXPECT_EQ(first.entries()[0].message, "one");
    EXPECT_TRUE(first.entries()[0].box.isEmpty());
    EXPECT_EQ(first.entries()[1].kind, DiagnosticKind::FontSubstituted);
    EXPECT_EQ(first.entries()[1].page, 2);
    EXPECT_EQ(first.entries()[1].box, (Rect{1, 2, 3, 4}));
}

} // namespace
} // namespace orvane
