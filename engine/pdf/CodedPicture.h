#pragma once

#include <cstdint>
#include <string>

namespace orvane::pdf {

/// The picture formats that a stream can hold.
enum class PictureCoding : std::uint8_t {
    Samples, ///< none: bare samples, compressed or not
    Jpeg,
    Jpeg2000,
    Jbig2,
    Fax,
};

/// How fax data is coded. Source: ISO 32000-1, 7.4.6.
struct FaxParameters {
    int k = 0; ///< below 0: group 4; 0: group 3, one-dimensional; above 0: group 3, mixed
    bool hasEndOfLine = false;
    bool isByteAligned = false;
    int columns = 0;
    bool isBlackDark = true; ///< runs that the code calls black look black; false: white
};

/// A picture as it stands in its stream.
struct CodedPicture {
    PictureCoding coding = PictureCoding::Samples;
    std::string bytes;
    std::string globals; ///< of JBIG2: the segments that several pictures share
    FaxParameters fax;
    /// The bytes as a file show what the page shows: nothing in the PDF around them changes the colours.
    bool isWhole = false;
};

} // namespace orvane::pdf
