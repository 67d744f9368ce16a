#include "layout/structure/HeadingNumber.h"

#include "layout/text/LineText.h"

#include <algorithm>
#include <cctype>
#include <string>

namespace orvane::layout {
namespace {

constexpr std::size_t kMostDigits = 3;

/// "2", "2.", "2.1", "2.1.": numbers with full stops between them.
std::optional<HeadingNumber> readDecimal(const std::string& word) {
    HeadingNumber number;
    std::size_t i = 0;
    while (i < word.size()) {
        std::size_t digits = 0;
        int value = 0;
        while (i < word.size() && std::isdigit(static_cast<unsigned char>(word[i])) && digits < kMostDigits) {
            value = 10 * value + (word[i++] - '0');
            ++digits;
        }
        if (digits == 0)
            return std::nullopt;
        number.parts.push_back(value);
        if (i == word.size())
            break;
        const bool mayEnd = i + 1 == word.size() && (word[i] == '.' || word[i] == ')' || word[i] == ':');
        if (mayEnd)
            break;
        if (word[i++] != '.')
            return std::nullopt;
    }
    return number.parts.empty() ? std::nullopt : std::optional(number);
}

/// A word that stands before the number of a heading in some language.
bool isChapterWord(std::string word) {
    std::transform(word.begin(), word.end(), word.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    static constexpr const char* kWords[] = {"chapter",
                                             "part",
                                             "section",
                                             "appendix",
                                             "annex",
                                             "article",
                                             "kapitel",
                                             "teil",
                                             "abschnitt",
                                             "anhang",
                                             "chapitre",
                                             "partie",
                                             "annexe",
                                             "cap\xC3\xADtulo",
                                             "capitulo",
                                             "capitolo",
                                             "parte",
                                             "hoofdstuk",
                                             "bijlage",
                                             "rozdzia\xC5\x82",
                                             "\xD0\xB3\xD0\xBB\xD0\xB0\xD0\xB2\xD0\xB0",
                                             "artikel"};
    return std::any_of(std::begin(kWords), std::end(kWords), [&](const char* known) { return word == known; });
}

} // namespace

std::optional<HeadingNumber> readHeadingNumber(const Line& line) {
    if (line.words.empty())
        return std::nullopt;
    const std::string first = textOf(line.words[0]);
    if (line.words.size() > 1) {
        if (const auto number = readDecimal(first))
            return number;
        if (isChapterWord(first))
            return readDecimal(textOf(line.words[1]));
    }
    return std::nullopt;
}

} // namespace orvane::layout
