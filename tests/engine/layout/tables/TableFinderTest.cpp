#include "TableCase.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orvane::layout::tests {
namespace {

std::vector<std::filesystem::path> caseFiles() {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(ORVANE_TABLE_CASES))
        files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

/// One file of the folder tables; see TableCase.h for what stands in it.
class TableFinderCase : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(TableFinderCase, FindsWhatTheFileExpects) {
    const TableCase tableCase = readTableCase(GetParam());
    ASSERT_FALSE(tableCase.expected.empty()) << "the file expects nothing";
    EXPECT_EQ(dumpTables(tableCase.page), tableCase.expected);
}

std::string nameOf(const testing::TestParamInfo<std::filesystem::path>& info) {
    std::string name = info.param.stem().string();
    std::replace_if(
        name.begin(), name.end(), [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Tables, TableFinderCase, testing::ValuesIn(caseFiles()), nameOf);

} // namespace
} // namespace orvane::layout::tests
