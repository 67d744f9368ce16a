#include "layout/text/SpanPart.h"

#include "base/Utf8.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane::layout {

std::size_t partSpan(Word& word, std::size_t span, std::size_t from, std::size_t to) {
    const Span whole = word.spans[span];
    const std::u32string text = utf32FromUtf8(whole.text);
    const double width = whole.box.width() / static_cast<double>(text.size());
    std::vector<Span> parts;
    const auto add = [&](std::size_t begin, std::size_t end) {
        if (begin == end)
            return;
        parts.push_back(whole);
        parts.back().text = utf8FromUtf32(std::u32string_view(text).substr(begin, end - begin));
        parts.back().box.left = whole.box.left + width * static_cast<double>(begin);
        parts.back().box.right = whole.box.left + width * static_cast<double>(end);
    };
    add(0, from);
    const std::size_t parted = span + parts.size();
    add(from, to);
    add(to, text.size());
    const auto place = word.spans.erase(word.spans.begin() + static_cast<std::ptrdiff_t>(span));
    word.spans.insert(place, parts.begin(), parts.end());
    return parted;
}

} // namespace orvane::layout
