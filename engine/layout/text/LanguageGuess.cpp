#include "layout/text/LanguageGuess.h"

#include "base/Utf8.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <string_view>
#include <unordered_map>

#include <unicode/uscript.h>

namespace orvane::layout {
namespace {

struct ScriptLanguage {
    UScriptCode script;
    std::string_view tag;
};

/// Scripts that one language has nearly to itself.
constexpr ScriptLanguage kScripts[] = {
    {USCRIPT_HANGUL, "ko-KR"},   {USCRIPT_GREEK, "el-GR"},      {USCRIPT_HEBREW, "he-IL"},   {USCRIPT_THAI, "th-TH"},
    {USCRIPT_GEORGIAN, "ka-GE"}, {USCRIPT_DEVANAGARI, "hi-IN"}, {USCRIPT_ARMENIAN, "hy-AM"}, {USCRIPT_BENGALI, "bn-IN"},
    {USCRIPT_TAMIL, "ta-IN"},    {USCRIPT_TELUGU, "te-IN"},     {USCRIPT_KHMER, "km-KH"},    {USCRIPT_LAO, "lo-LA"},
};

/// Characters of everyday words that are written in one of the two ways only.
constexpr std::u32string_view kSimplified = U"这国们为来个说时对会发经过还后学业与关实";
constexpr std::u32string_view kTraditional = U"這國們為來個說時對會發經過還後學業與關實";

struct LanguageWords {
    std::string_view tag;
    std::string_view words; ///< lower case, parted by blanks
};

constexpr LanguageWords kLanguages[] = {
    {"en-US", "the of and to in is that for it with as are was on be by this not or from have which"},
    {"de-DE", "der die und den von zu das mit sich des auf für ist im dem nicht ein eine als auch werden oder bei"},
    {"fr-FR", "de la le les et des en du est que une un dans pour par sur au qui pas avec ce sont aux"},
    {"es-ES", "de la que el en y los del se las por un para con una no su al lo como más es son"},
    {"it-IT", "di e il la che in un per è una del della con non sono da dei le al nel alla gli delle"},
    {"pt-PT", "de a o que e do da em um para com não uma os no se na por mais as dos como ao são"},
    {"nl-NL", "de van het een en in te dat op voor met zijn is niet aan er om ook als door worden bij"},
    {"sv-SE", "och att det i en som på är av för med till den har inte ett om från eller kan ska"},
    {"da-DK", "og i at det er en til på som med for af de den ikke der et har om kan efter blev eller også"},
    {"nb-NO", "og i at det er en til på som med for av de den ikke et har om kan etter ble eller også fra"},
    {"fi-FI", "ja on ei se että oli ovat mutta tai kun joka myös sekä sen jos niin hän ole kuin mukaan"},
    {"et-EE", "ja on ei see et oli mis kui ka või ning seda aga selle oma siis need tema"},
    {"pl-PL", "i w na z do się nie jest to że o przez od po dla jak oraz za są lub jego być"},
    {"cs-CZ", "a v na se je že s do o z pro jako by po které při nebo jsou od tak podle bylo"},
    {"sk-SK", "a v na sa je že s do o z pre ako by po ktoré pri alebo sú od tak podľa bolo"},
    {"sl-SI", "in je v na se za da so ki z po pri kot ali s tudi pa bi od lahko"},
    {"hr-HR", "i u je na se za da su od s koji kao ili o iz te bi što biti nije"},
    {"hu-HU", "a az és hogy nem is egy ez meg csak vagy mint de volt kell ki el ha még már"},
    {"ro-RO", "de și în a la cu pe din care este nu un o pentru că mai sau prin au fi sunt"},
    {"tr-TR", "ve bir bu için ile da de olarak olan en çok daha gibi sonra kadar ise veya ne her"},
    {"lt-LT", "ir į kad yra iš su ne tai buvo kaip ar nuo apie jo bet prie jis už arba"},
    {"lv-LV", "un ir ar no par kas uz ka tas bija pie kā vai lai pēc var ne bet arī"},
    {"ca-ES", "de la i el que en a les els del per un una amb no és es al com més dels"},
    {"id-ID", "yang dan di dengan untuk dari dalam ini pada tidak itu adalah akan oleh ke atau dapat telah"},
    {"vi-VN", "và của là các có được cho trong một không với người những đã này về khi đến từ"},
    {"ru-RU", "и в не на что с по как это для от к из за или его при так он но бы является"},
    {"uk-UA", "і в не на що з по як це для від до та за або його при є у й під але бути"},
    {"bg-BG", "и на за в от се да не е с по че са като или до към това при ще"},
    {"ar-SA", "في من على إلى أن هذا التي عن مع هذه ما كان الذي بين أو كما لا بعد قد"},
    {"fa-IR", "و در به از که این را با است برای آن یک می شده بر تا خود یا ها"},
    {"ur-PK", "کے کی ہے میں اور سے کا کو کہ یہ پر نے ہیں اس بھی ایک تھا نہیں"},
    {"la-VA", "et in est non ut ad cum qui quod ex sed quae sit vel per esse atque nec enim"},
};

struct Letters {
    std::map<UScriptCode, std::size_t> scripts;
    std::size_t simplified = 0;
    std::size_t traditional = 0;
    std::size_t all = 0;

    std::size_t of(UScriptCode script) const {
        const auto found = scripts.find(script);
        return found == scripts.end() ? 0 : found->second;
    }
};

Letters lettersOf(const std::vector<PageText>& pages) {
    Letters letters;
    for (const PageText& page : pages)
        for (const Line& line : page.lines)
            for (const char32_t c : utf32FromUtf8(textOf(line))) {
                UErrorCode error = U_ZERO_ERROR;
                const UScriptCode script = uscript_getScript(static_cast<UChar32>(c), &error);
                if (U_FAILURE(error) || script == USCRIPT_COMMON || script == USCRIPT_INHERITED)
                    continue;
                ++letters.all;
                ++letters.scripts[script];
                letters.simplified += kSimplified.find(c) != kSimplified.npos;
                letters.traditional += kTraditional.find(c) != kTraditional.npos;
            }
    return letters;
}

/// The language that has the script of most letters to itself.
std::string_view languageOfScript(const Letters& letters, const TextParameters::Languages& limits) {
    const auto hasShare = [&](std::size_t count) {
        return static_cast<double>(count) > limits.scriptShare * static_cast<double>(letters.all);
    };
    for (const auto& [script, tag] : kScripts)
        if (hasShare(letters.of(script)))
            return tag;
    const std::size_t kana = letters.of(USCRIPT_HIRAGANA) + letters.of(USCRIPT_KATAKANA);
    const std::size_t han = letters.of(USCRIPT_HAN);
    if (!hasShare(kana + han))
        return {};
    if (static_cast<double>(kana) > limits.kanaShare * static_cast<double>(kana + han))
        return "ja-JP";
    return letters.traditional > letters.simplified ? "zh-TW" : "zh-CN";
}

/// The languages, as indices into the table, of which each word is.
std::unordered_map<std::string_view, std::vector<std::size_t>> languagesByWord() {
    std::unordered_map<std::string_view, std::vector<std::size_t>> languages;
    for (std::size_t i = 0; i < std::size(kLanguages); ++i) {
        std::string_view rest = kLanguages[i].words;
        while (!rest.empty()) {
            const std::size_t end = std::min(rest.find(' '), rest.size());
            languages[rest.substr(0, end)].push_back(i);
            rest.remove_prefix(std::min(end + 1, rest.size()));
        }
    }
    return languages;
}

/// The language whose short words are the most frequent ones.
std::string_view languageOfWords(const std::vector<PageText>& pages, const TextParameters::Languages& limits) {
    const auto languages = languagesByWord();
    std::vector<std::size_t> counts(std::size(kLanguages));
    std::size_t words = 0;
    for (const PageText& page : pages)
        for (const Line& line : page.lines)
            for (const Word& word : line.words) {
                const std::string plain = plainWord(word);
                words += !plain.empty();
                if (const auto found = languages.find(plain); found != languages.end())
                    for (const std::size_t language : found->second)
                        ++counts[language];
            }
    const auto best = std::max_element(counts.begin(), counts.end());
    std::size_t second = 0;
    for (auto count = counts.begin(); count != counts.end(); ++count)
        if (count != best)
            second = std::max(second, *count);
    const auto exceeds = [&](double share, std::size_t count) {
        return static_cast<double>(*best) > share * static_cast<double>(count);
    };
    const bool isSure = *best >= limits.fewestWords && exceeds(limits.wordShare, words) && exceeds(limits.lead, second);
    return isSure ? kLanguages[static_cast<std::size_t>(best - counts.begin())].tag : std::string_view();
}

} // namespace

std::string guessLanguage(const std::vector<PageText>& pages, const TextParameters::Languages& parameters) {
    const std::string_view script = languageOfScript(lettersOf(pages), parameters);
    return std::string(script.empty() ? languageOfWords(pages, parameters) : script);
}

} // namespace orvane::layout
