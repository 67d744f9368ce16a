#include "document/ListLabels.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include <fmt/format.h>

namespace orvane::document {
namespace {

constexpr int kMostRoman = 3999;
constexpr int kMostRepeatedLetters = 30;

std::string roman(int number) {
    constexpr std::pair<int, const char*> kSteps[] = {{1000, "m"}, {900, "cm"}, {500, "d"}, {400, "cd"}, {100, "c"},
                                                      {90, "xc"},  {50, "l"},   {40, "xl"}, {10, "x"},   {9, "ix"},
                                                      {5, "v"},    {4, "iv"},   {1, "i"}};
    std::string text;
    for (const auto& [value, letters] : kSteps)
        for (; number >= value; number -= value)
            text += letters;
    return text;
}

/// After z word processors go on with aa, bb, cc.
std::string letters(int number) {
    const int repeated = std::min((number - 1) / 26 + 1, kMostRepeatedLetters);
    return std::string(static_cast<std::size_t>(repeated), static_cast<char>('a' + (number - 1) % 26));
}

/// Asterisk, dagger, double dagger, section sign; then two of each, and so on.
std::string symbols(int number) {
    static constexpr const char* kSigns[] = {"*", "\u2020", "\u2021", "\u00A7"};
    const int repeated = std::min((number - 1) / 4 + 1, kMostRepeatedLetters);
    std::string text;
    for (int i = 0; i < repeated; ++i)
        text += kSigns[(number - 1) % 4];
    return text;
}

std::string upper(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return text;
}

std::string labelText(const std::vector<NumberingLevel>& levels, std::size_t own, const std::vector<int>& counts) {
    const NumberingLevel& level = levels[own];
    if (level.format == NumberFormat::Bullet)
        return level.text;
    std::string text;
    for (std::size_t i = 0; i < level.text.size(); ++i) {
        const bool isNumber =
            level.text[i] == '%' && i + 1 < level.text.size() && level.text[i + 1] >= '1' && level.text[i + 1] <= '9';
        if (!isNumber) {
            text += level.text[i];
            continue;
        }
        const auto named = static_cast<std::size_t>(level.text[++i] - '1');
        if (named < counts.size() && named < levels.size())
            text += formatNumber(counts[named], level.isLegal ? NumberFormat::Decimal : levels[named].format);
    }
    return text;
}

} // namespace

std::string ListLabels::next(const ListReference& list) {
    if (list.numbering >= m_document.numberings.size() || m_document.numberings[list.numbering].levels.empty())
        return {};
    const auto& levels = m_document.numberings[list.numbering].levels;
    const auto own = static_cast<std::size_t>(std::clamp(list.level, 0, static_cast<int>(levels.size()) - 1));
    std::vector<int>& counts = m_counts[list.numbering];
    const bool goesOn = own < counts.size();
    // Levels above that no paragraph stood on yet count as begun; those below begin anew.
    while (counts.size() <= own)
        counts.push_back(levels[counts.size()].start);
    counts.resize(own + 1);
    if (goesOn)
        ++counts[own];
    return labelText(levels, own, counts);
}

std::string formatNumber(int number, NumberFormat format) {
    switch (format) {
    case NumberFormat::LowerRoman:
    case NumberFormat::UpperRoman:
        if (number < 1 || number > kMostRoman)
            break;
        return format == NumberFormat::LowerRoman ? roman(number) : upper(roman(number));
    case NumberFormat::LowerLetter:
    case NumberFormat::UpperLetter:
        if (number < 1)
            break;
        return format == NumberFormat::LowerLetter ? letters(number) : upper(letters(number));
    case NumberFormat::DecimalZero:
        return fmt::format("{:02}", number);
    case NumberFormat::Symbols:
        if (number < 1)
            break;
        return symbols(number);
    case NumberFormat::Bullet:
    case NumberFormat::None:
        return {};
    case NumberFormat::Decimal:
        break;
    }
    return std::to_string(number);
}

} // namespace orvane::document
