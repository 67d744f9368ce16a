#pragma once

#include <filesystem>
#include <string>

namespace orvane::pictures {

/// The names of the files of one run: "report-p003-02.png" is the second picture of page 3 of report.pdf. They sort in
/// page order. A folder that holds files of such names from before keeps them: the run's files are then called
/// "report-2-p003-02.png", or by the next number that is free.
class PictureNames {
public:
    /// `stem` is the name of the source without its ending. Requires: `folder` exists.
    PictureNames(const std::filesystem::path& folder, std::string stem, int pageCount);

    /// The name, without its ending, of picture `number` of `count` on a page.
    std::string name(int page, int number, int count) const;

private:
    std::string m_prefix;
    int m_pageDigits;
};

} // namespace orvane::pictures
