#include "layout/text/FieldValue.h"

#include "base/Utf8.h"

#include <cstddef>
#include <vector>

namespace orvane::layout {
namespace {

bool isBlank(char32_t c) {
    return c <= U' ' || c == U'\u00A0';
}

} // namespace

std::u32string lettersOf(std::string_view text) {
    std::u32string letters = utf32FromUtf8(std::string(text));
    std::erase_if(letters, isBlank);
    return letters;
}

std::optional<ShownValue> findShown(std::string_view value, std::string_view seen) {
    const std::u32string characters = utf32FromUtf8(std::string(value));
    const std::u32string wanted = lettersOf(seen);
    std::u32string letters;
    std::vector<std::size_t> places; // of the letters among the characters
    for (std::size_t i = 0; i < characters.size(); ++i) {
        if (isBlank(characters[i]))
            continue;
        letters += characters[i];
        places.push_back(i);
    }
    if (wanted.empty())
        return std::nullopt;
    const std::size_t start = letters.starts_with(wanted) ? 0
                              : letters.ends_with(wanted) ? letters.size() - wanted.size()
                                                          : letters.find(wanted);
    if (start == std::u32string::npos)
        return std::nullopt;
    const std::size_t end = start + wanted.size();
    const std::size_t from = start == 0 ? 0 : places[start];
    const std::size_t to = end == letters.size() ? characters.size() : places[end - 1] + 1;
    return ShownValue{utf8FromUtf32(characters.substr(0, from)), utf8FromUtf32(characters.substr(from, to - from)),
                      utf8FromUtf32(characters.substr(to))};
}

} // namespace orvane::layout
