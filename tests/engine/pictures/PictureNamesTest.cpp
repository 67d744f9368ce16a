#include "pictures/PictureNames.h"

#include "support/Files.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace orvane::pictures {
namespace {

TEST(PictureNames, SortInPageOrder) {
    const tests::TemporaryFolder folder;
    const PictureNames names(folder.path(), "report", 12);
    EXPECT_EQ(names.name(3, 2, 9), "report-p003-02");
    EXPECT_EQ(names.name(3, 2, 100), "report-p003-002");
    EXPECT_LT(names.name(9, 1, 1), names.name(10, 1, 1));
    EXPECT_EQ(PictureNames(folder.path(), "report", 12345).name(3, 2, 9), "report-p00003-02");
}

TEST(PictureNames, LeaveThoseOfAnEarlierRunAlone) {
    const tests::TemporaryFolder folder;
    tests::writeFile(folder.path() / "report-p001-01.png", "old");
    tests::writeFile(folder.path() / "report-2-p001-01.png", "old");
    tests::writeFile(folder.path() / "other-p001-01.png", "old");
    tests::writeFile(folder.path() / "report-plan.txt", "old");
    EXPECT_EQ(PictureNames(folder.path(), "report", 1).name(1, 1, 1), "report-3-p001-01");
    EXPECT_EQ(PictureNames(folder.path(), "plan", 1).name(1, 1, 1), "plan-p001-01");
}

} // namespace
} // namespace orvane::pictures
