#include "base/Failure.h"
#include "base/PageRange.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(PageRange, SelectsThePagesOfTheDocument) {
    struct Row {
        const char* range;
        std::vector<int> expected;
        bool wasCut;
        const char* why;
    };
    const Row rows[] = {
        {"", {1, 2, 3, 4, 5}, false, "no range means all pages"},
        {"  ", {1, 2, 3, 4, 5}, false, "blanks are no range"},
        {"2", {2}, false, "one page"},
        {"1-3,5", {1, 2, 3, 5}, false, "a list"},
        {" 1 - 2 , 4 ", {1, 2, 4}, false, "blanks are skipped"},
        {"4-2", {2, 3, 4}, false, "the order within an item does not matter"},
        {"3,1,3", {1, 3}, false, "repeats count once, pages ascend"},
        {"4-9", {4, 5}, true, "cut to the document"},
        {"1,99999999999999999999", {1}, true, "a number beyond all documents is cut, not misread"},
    };
    for (const Row& row : rows) {
        const PageSelection selection = selectPages(row.range, 5);
        EXPECT_EQ(selection.pages, row.expected) << row.why;
        EXPECT_EQ(selection.wasCut, row.wasCut) << row.why;
    }
}

TEST(PageRange, RefusesWhatIsNoRange) {
    for (const char* range : {"0", "1,", ",1", "1--2", "1-2-3", "x", "1;2", "-1", "1,0"}) {
        try {
            selectPages(range, 5);
            ADD_FAILURE() << range << " was accepted";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.code(), FailureCode::InvalidRequest) << range;
        }
    }
}

TEST(PageRange, RefusesARangeWithoutAPageInIt) {
    try {
        selectPages("6-9", 5);
        ADD_FAILURE() << "accepted";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.code(), FailureCode::NoPageInRange);
        EXPECT_NE(std::string(failure.what()).find("6-9"), std::string::npos);
    }
}

} // namespace
} // namespace orvane
