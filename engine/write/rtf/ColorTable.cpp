#include "write/rtf/ColorTable.h"

namespace orvane::write::rtf {

int ColorTable::numberOf(Color color) {
    const auto [found, isNew] = m_numbers.try_emplace(color, static_cast<int>(m_colors.size()) + 1);
    if (isNew)
        m_colors.push_back(color);
    return found->second;
}

void ColorTable::write(RtfStream& rtf) const {
    const RtfGroup table(rtf, "colortbl");
    rtf.raw(";");
    for (const Color& color : m_colors) {
        rtf.word("red", color.red);
        rtf.word("green", color.green);
        rtf.word("blue", color.blue);
        rtf.raw(";");
    }
}

} // namespace orvane::write::rtf
