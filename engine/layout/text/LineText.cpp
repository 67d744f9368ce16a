#include "layout/text/LineText.h"

#include "base/Utf8.h"
#include "layout/text/Characters.h"
#include "layout/text/LogicalOrder.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <string_view>

namespace orvane::layout {

std::string textOf(const Word& word) {
    std::string text;
    for (const Span& span : word.spans)
        text += span.text;
    return text;
}

std::string textOf(const Line& line) {
    std::string text;
    for (const Word& word : line.words) {
        if (!text.empty() && word.gapBefore != Gap::None)
            text += word.gapBefore == Gap::Tab ? '\t' : ' ';
        text += textOf(word);
    }
    return text;
}

char32_t firstCharacterOf(const Line& line) {
    const std::u32string text = line.words.empty() ? std::u32string() : utf32FromUtf8(textOf(line.words.front()));
    return text.empty() ? U'\0' : text.front();
}

std::string plainWord(const Word& word) {
    const std::u32string text = utf32FromUtf8(textOf(word));
    const auto isLetter = [](char32_t c) { return u_isalpha(static_cast<UChar32>(c)); };
    const auto first = std::find_if(text.begin(), text.end(), isLetter);
    const auto last = std::find_if(text.rbegin(), std::make_reverse_iterator(first), isLetter).base();
    std::u32string plain;
    for (auto c = first; c < last; ++c) {
        if (!isLetter(*c) && *c != U'-' && u_charType(static_cast<UChar32>(*c)) != U_NON_SPACING_MARK)
            return {};
        plain += static_cast<char32_t>(u_tolower(static_cast<UChar32>(*c)));
    }
    return utf8FromUtf32(plain);
}

namespace {

/// A drop cap reaches over the lines below, and sometimes over the one above: the line is as high as the rest of it.
void leaveDropCapOut(Line& line) {
    const std::size_t cap = dropCapSpans(line);
    Rect rest;
    for (std::size_t word = 0; word < line.words.size(); ++word)
        for (std::size_t span = word == 0 ? cap : 0; span < line.words[word].spans.size(); ++span)
            rest = rest.united(line.words[word].spans[span].box);
    if (rest.isEmpty())
        return;
    line.box.top = rest.top;
    line.box.bottom = rest.bottom;
}

} // namespace

void measureAnew(Line& line) {
    std::map<double, std::size_t> sizes;
    DirectionCount words;
    line.box = {};
    for (const Word& word : line.words) {
        line.box = line.box.united(word.box);
        const std::u32string text = utf32FromUtf8(textOf(word));
        words.rightToLeft += word.isRightToLeft;
        words.leftToRight += !word.isRightToLeft && std::any_of(text.begin(), text.end(), isLeftToRightLetter);
        for (const Span& span : word.spans)
            sizes[span.look.size] += span.text.size();
    }
    // Mixed text and plain numbers are in the order of the line they were part of.
    if ((words.rightToLeft > 0) != (words.leftToRight > 0))
        line.isRightToLeft = words.rightToLeft > 0;
    else if (isSignedNumber(utf32FromUtf8(textOf(line))))
        line.isRightToLeft = false;
    std::size_t most = 0;
    for (const auto& [size, count] : sizes)
        if (count >= most) {
            line.fontSize = size;
            most = count;
        }
    if (line.dropCapLines > 0)
        leaveDropCapOut(line);
}

std::size_t dropCapSpans(const Line& line) {
    if (line.dropCapLines == 0 || line.words.empty())
        return 0;
    const std::vector<Span>& spans = line.words.front().spans;
    const auto end =
        std::find_if(spans.begin(), spans.end(), [&line](const Span& span) { return span.look.size <= line.fontSize; });
    return static_cast<std::size_t>(end - spans.begin());
}

double startBehindDropCap(const Line& line) {
    const std::size_t cap = dropCapSpans(line);
    if (cap == 0)
        return line.box.left;
    if (cap < line.words.front().spans.size())
        return line.words.front().spans[cap].box.left;
    return line.words.size() > 1 ? line.words[1].box.left : line.box.left;
}

bool isWithoutBlanks(char32_t character) {
    const auto code = static_cast<UChar32>(character);
    const auto width = u_getIntPropertyValue(code, UCHAR_EAST_ASIAN_WIDTH);
    const bool isHangul = u_getIntPropertyValue(code, UCHAR_HANGUL_SYLLABLE_TYPE) != U_HST_NOT_APPLICABLE;
    return (width == U_EA_WIDE || width == U_EA_FULLWIDTH) && !isHangul;
}

bool endsWithoutBlanks(const Line& line) {
    const std::u32string text = utf32FromUtf8(textOf(line.words.back()));
    return !text.empty() && isWithoutBlanks(text.back());
}

bool endsInHangingStop(const Line& line) {
    constexpr std::u32string_view kStops = U"\u3001\u3002\uFF0C\uFF0E";
    const std::u32string text = line.words.empty() ? U"" : utf32FromUtf8(textOf(line.words.back()));
    return !text.empty() && kStops.find(text.back()) != std::u32string_view::npos;
}

bool meetOtherScript(char32_t left, char32_t right) {
    const auto isWord = [](char32_t c) { return u_isalnum(static_cast<UChar32>(c)) != 0; };
    return isWord(left) && isWord(right) && isWithoutBlanks(left) != isWithoutBlanks(right);
}

bool endsSentence(std::u32string_view word) {
    for (std::size_t i = word.size(); i-- > 0;) {
        if (std::u32string_view(U".!?:;。！？：；؟۔؛").find(word[i]) != std::u32string_view::npos)
            return true;
        // Closing quotes and brackets stand behind the full stop.
        if (u_isalnum(static_cast<UChar32>(word[i])))
            return false;
    }
    return false;
}

bool isTabulator(const Word& word) {
    const bool isTyped = word.isTypedBefore && word.blanksBefore > 1 && word.leaderBefore == document::TabLeader::None;
    return word.gapBefore == Gap::Tab && !isTyped;
}

bool hasTabulator(const Line& line) {
    return line.words.size() > 1 && std::any_of(line.words.begin() + 1, line.words.end(), isTabulator);
}

} // namespace orvane::layout
