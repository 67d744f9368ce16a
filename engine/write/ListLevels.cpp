#include "write/ListLevels.h"

#include <algorithm>

namespace orvane::write {

using namespace document;

ListLevel findLevel(const Document& document, const std::optional<ListReference>& list) {
    if (!list || list->numbering >= document.numberings.size())
        return {};
    const auto& levels = document.numberings[list->numbering].levels;
    if (levels.empty())
        return {};
    const auto highest = static_cast<int>(std::min(levels.size(), kMostListLevels)) - 1;
    const int level = std::clamp(list->level, 0, highest);
    return {&levels[static_cast<std::size_t>(level)], {static_cast<int>(list->numbering) + 1, level}};
}

ParagraphProperties inheritedProperties(const Style& style, const ListLevel& level) {
    ParagraphProperties inherited = style.paragraph;
    if (level.properties) {
        inherited.indentStart = level.properties->indentStart;
        inherited.firstLine = level.properties->firstLine;
    }
    return inherited;
}

int numberFormatCode(NumberFormat format) {
    switch (format) {
    case NumberFormat::Decimal:
        return 0;
    case NumberFormat::UpperRoman:
        return 1;
    case NumberFormat::LowerRoman:
        return 2;
    case NumberFormat::UpperLetter:
        return 3;
    case NumberFormat::LowerLetter:
        return 4;
    case NumberFormat::Symbols:
        return 9;
    case NumberFormat::DecimalZero:
        return 22;
    case NumberFormat::Bullet:
        return 23;
    case NumberFormat::None:
        return 255;
    }
    return 0;
}

int countStartCode(CountStart start) {
    switch (start) {
    case CountStart::Continuous:
        return 0;
    case CountStart::EachSection:
        return 1;
    case CountStart::EachPage:
        return 2;
    }
    return 0;
}

} // namespace orvane::write
