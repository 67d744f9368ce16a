#include "layout/paragraphs/HyphenResolver.h"

#include "base/Utf8.h"
#include "layout/text/Characters.h"
#include "layout/text/LineText.h"

#include <unicode/uchar.h>
#include <unicode/uscript.h>

#include <algorithm>
#include <iterator>

namespace orvane::layout {
namespace {

constexpr char32_t kSoftHyphen = U'\u00AD';

bool isLower(char32_t character) {
    return u_islower(static_cast<UChar32>(character));
}

/// True for scripts whose blanks part phrases: their lines may end behind every word, so most ends are within a phrase.
bool hasBlanksBetweenPhrases(char32_t character) {
    UErrorCode error = U_ZERO_ERROR;
    const UScriptCode script = uscript_getScript(static_cast<UChar32>(character), &error);
    return script == USCRIPT_THAI || script == USCRIPT_LAO || script == USCRIPT_KHMER || script == USCRIPT_MYANMAR;
}

std::u32string lowerCase(std::u32string text) {
    for (char32_t& character : text)
        character = static_cast<char32_t>(u_tolower(static_cast<UChar32>(character)));
    return text;
}

/// The word without brackets, quotes and full stops around it.
std::u32string_view core(std::u32string_view word) {
    while (!word.empty() && !isLetter(word.front()))
        word.remove_prefix(1);
    while (!word.empty() && !isLetter(word.back()))
        word.remove_suffix(1);
    return word;
}

bool knows(const std::unordered_set<std::string>& vocabulary, const std::u32string& word) {
    return vocabulary.contains(utf8FromUtf32(lowerCase(word)));
}

/// "import- and export", "Ein- und Ausgabe"
bool isConjunction(std::u32string_view word) {
    static constexpr std::u32string_view kConjunctions[] = {
        U"and", U"or", U"und", U"oder", U"bzw", U"sowie", U"och", U"eller", U"og", U"\u0438", U"\u0438\u043B\u0438"};
    return std::find(std::begin(kConjunctions), std::end(kConjunctions), word) != std::end(kConjunctions);
}

/// Whether the document's words tell that the two are parts of a compound rather than of one word.
bool areCompound(const std::u32string& head, const std::u32string& tail,
                 const std::unordered_set<std::string>& vocabulary, const CompoundWords& compounds) {
    const bool isWord = knows(vocabulary, head);
    return (isWord && (knows(vocabulary, tail) || compounds.mayEnd(utf8FromUtf32(lowerCase(tail))))) ||
           compounds.surelyBegins(utf8FromUtf32(lowerCase(head)));
}

/// A hyphen between letters at the end of a line: of the line, or of the word?
LineJoin resolveHyphen(const std::u32string& last, const std::u32string& next,
                       const std::unordered_set<std::string>& vocabulary, const CompoundWords& compounds,
                       HyphenSource source) {
    std::u32string_view stem = last;
    stem.remove_suffix(1);
    const std::u32string_view head = core(stem);
    const std::u32string_view tail = core(next);
    if (tail.empty() || !isLetter(next[0]))
        return LineJoin::Nothing; // "COVID-" and "19", a range of numbers
    if (isConjunction(tail))
        return LineJoin::Blank; // the hyphen stands for the rest of a compound that comes later
    if (knows(vocabulary, std::u32string(head) + U"-" + std::u32string(tail)))
        return LineJoin::Nothing;
    // Typed before a whole word, it is a hyphen even where the document also writes both in one.
    const bool isTypedBeforeWord = source == HyphenSource::Typed && knows(vocabulary, std::u32string(tail));
    if (knows(vocabulary, std::u32string(head) + std::u32string(tail)) && !isTypedBeforeWord)
        return LineJoin::DropHyphen;
    // "Nord-" "Ostsee", "E-" "Mail", "X-" "ray", "e-" "mail": compounds.
    if (!isLower(next[0]) || head.size() < 2 || !isLower(head.back()) || head.find(U'-') != std::u32string_view::npos)
        return LineJoin::Nothing;
    if (source == HyphenSource::Typed)
        return LineJoin::Nothing;
    return areCompound(std::u32string(head), std::u32string(tail), vocabulary, compounds) ? LineJoin::Nothing
                                                                                          : LineJoin::DropHyphen;
}

/// Korean has blanks between words, but lines may end behind any syllable: the document tells where it has the word
/// whole, and not both parts of it.
bool isDividedHangul(const std::u32string& last, const std::u32string& next,
                     const std::unordered_set<std::string>& vocabulary) {
    if (!isHangul(last.back()) || !isHangul(next[0]))
        return false;
    const std::u32string head(core(last)), tail(core(next));
    return knows(vocabulary, head + tail) && !(knows(vocabulary, head) && knows(vocabulary, tail));
}

} // namespace

LineJoin resolveLineEnd(std::string_view lastWord, std::string_view nextWord,
                        const std::unordered_set<std::string>& vocabulary, ScriptBoundary boundary, HyphenSource source,
                        const CompoundWords& compounds) {
    const std::u32string last = utf32FromUtf8(lastWord);
    const std::u32string next = utf32FromUtf8(nextWord);
    if (last.empty() || next.empty())
        return LineJoin::Nothing;
    if (isWithoutBlanks(last.back()) && isWithoutBlanks(next[0]))
        return LineJoin::Nothing;
    if (hasBlanksBetweenPhrases(last.back()) && hasBlanksBetweenPhrases(next[0]))
        return LineJoin::Nothing;
    if (isWithoutBlanks(last.back()) != isWithoutBlanks(next[0]))
        return boundary == ScriptBoundary::Blank && meetOtherScript(last.back(), next[0]) ? LineJoin::Blank
                                                                                          : LineJoin::Nothing;
    if (isDividedHangul(last, next, vocabulary))
        return LineJoin::Nothing;
    if (last.size() < 2)
        return LineJoin::Blank;
    const char32_t end = last.back();
    const char32_t before = last[last.size() - 2];
    if (end == kSoftHyphen)
        return LineJoin::DropHyphen;
    if ((end == U'-' || end == U'\u2010') && isLetter(before))
        return resolveHyphen(last, next, vocabulary, compounds, source);
    // A dash set without blanks: "word-dash" "word".
    if (end == U'-' || end == U'\u2014')
        return LineJoin::Nothing;
    return LineJoin::Blank;
}

} // namespace orvane::layout
