#pragma once

#include <string>
#include <vector>

namespace orvane::pictures {

/// Rows of a bilevel picture, '#' for black.
using Raster = std::vector<std::string>;

/// How fax data is written, in the words of a PDF's CCITTFaxDecode parameters.
struct FaxCoding {
    int k = -1; ///< below 0: group 4; 0: group 3, one-dimensional; above 0: mixed, one row of so many one-dimensional
    bool hasEndOfLine = false;
    bool isByteAligned = false;
    bool hasEndOfBlock = true;
};

/// Codes a picture of up to 16 pixels a row. Source: ITU-T T.4 and T.6.
std::string codeFax(const Raster& rows, const FaxCoding& coding);

} // namespace orvane::pictures
