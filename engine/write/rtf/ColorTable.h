#pragma once

#include "base/Color.h"
#include "write/rtf/RtfStream.h"

#include <map>
#include <vector>

namespace orvane::write::rtf {

/// The colours of a file; words name them by number. 0 is the colour that a reader takes by itself.
/// Source: RTF 1.9.1, "Color Table".
class ColorTable {
public:
    /// The colour's number, a new one for a colour that is not known yet.
    int numberOf(Color color);
    void write(RtfStream& rtf) const;

private:
    std::vector<Color> m_colors;
    std::map<Color, int> m_numbers;
};

} // namespace orvane::write::rtf
