#pragma once

#include "layout/text/PageText.h"

#include <filesystem>
#include <string>

// clang-format off
/// A page described in a text file, with what the tables found on it must be. A file starts with comments (#) that say
/// what the case is about; then comes the page, one thing a line, in points:
///
///     row 64 | 50 Name | >150 12.5 | ^200 yes   lines on one baseline at x 50; ending at x 150; around x 200
///     line 64 | 50 Name | 150 12.5              the same as one line with tabs, or with blanks between what stands near
///                                               to each other
///     text 50 64 Some words                     one line
///     look bold 12 turned 270                   for the text that follows; "look" alone goes back to 10 points upright
///     look italic                               in italic letters
///     look right-to-left                        the text that follows reads from the right
///     look field                                the text that follows is the value of an interactive field
///     font Courier fixed                        another font for the text that follows; "fixed" is a typewriter's
///     h 60 50 250                               a horizontal rule at y 60 from x 50 to x 250; "double", "dashed",
///                                               "width 2" may follow
///     v 50 60 90                                a vertical rule at x 50
///     grid 50 150 250 / 60 75 90                rules along all the x and y positions
///     box 50 60 250 90                          four rules
///     ground 50 60 250 75 D9D9D9                a filled rectangle
///     picture 60 62 90 72                       a picture; "drawing" for drawn paths
///     expect                                    what follows is the dump of the tables, and the lines outside of them
// clang-format on
namespace orvane::layout::tests {

struct TableCase {
    PageText page;
    std::string expected;
};

/// Errors: std::runtime_error that names the file and line when a line is not understood.
TableCase readTableCase(const std::filesystem::path& file);

/// What findTables() makes of the page, in the form of the files.
std::string dumpTables(PageText page);

} // namespace orvane::layout::tests
