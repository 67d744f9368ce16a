#include "write/Languages.h"

#include <algorithm>
#include <iterator>

namespace orvane::write {
namespace {

struct LanguageNumber {
    std::string_view tag;
    int number;
};

/// The first row of a language is the one of where it is at home.
constexpr LanguageNumber kNumbers[] = {
    {"en-US", 0x0409}, {"en-GB", 0x0809},  {"en-AU", 0x0C09}, {"en-CA", 0x1009}, {"en-NZ", 0x1409}, {"en-IE", 0x1809},
    {"en-ZA", 0x1C09}, {"en-IN", 0x4009},  {"de-DE", 0x0407}, {"de-CH", 0x0807}, {"de-AT", 0x0C07}, {"fr-FR", 0x040C},
    {"fr-BE", 0x080C}, {"fr-CA", 0x0C0C},  {"fr-CH", 0x100C}, {"it-IT", 0x0410}, {"it-CH", 0x0810}, {"es-ES", 0x0C0A},
    {"es-MX", 0x080A}, {"es-AR", 0x2C0A},  {"es-CO", 0x240A}, {"es-CL", 0x340A}, {"pt-PT", 0x0816}, {"pt-BR", 0x0416},
    {"nl-NL", 0x0413}, {"nl-BE", 0x0813},  {"sv-SE", 0x041D}, {"sv-FI", 0x081D}, {"nb-NO", 0x0414}, {"no-NO", 0x0414},
    {"nn-NO", 0x0814}, {"da-DK", 0x0406},  {"fi-FI", 0x040B}, {"is-IS", 0x040F}, {"et-EE", 0x0425}, {"lv-LV", 0x0426},
    {"lt-LT", 0x0427}, {"pl-PL", 0x0415},  {"cs-CZ", 0x0405}, {"sk-SK", 0x041B}, {"sl-SI", 0x0424}, {"hr-HR", 0x041A},
    {"sr-RS", 0x241A}, {"bs-BA", 0x141A},  {"mk-MK", 0x042F}, {"bg-BG", 0x0402}, {"ro-RO", 0x0418}, {"hu-HU", 0x040E},
    {"el-GR", 0x0408}, {"tr-TR", 0x041F},  {"ru-RU", 0x0419}, {"uk-UA", 0x0422}, {"be-BY", 0x0423}, {"sq-AL", 0x041C},
    {"ca-ES", 0x0403}, {"eu-ES", 0x042D},  {"gl-ES", 0x0456}, {"cy-GB", 0x0452}, {"ga-IE", 0x083C}, {"mt-MT", 0x043A},
    {"af-ZA", 0x0436}, {"sw-KE", 0x0441},  {"id-ID", 0x0421}, {"ms-MY", 0x043E}, {"vi-VN", 0x042A}, {"ka-GE", 0x0437},
    {"hy-AM", 0x042B}, {"az-AZ", 0x042C},  {"kk-KZ", 0x043F}, {"uz-UZ", 0x0443}, {"mn-MN", 0x0450}, {"la-VA", 0x0476},
    {"zh-CN", 0x0804}, {"zh-TW", 0x0404},  {"zh-HK", 0x0C04}, {"zh-SG", 0x1004}, {"ja-JP", 0x0411}, {"ko-KR", 0x0412},
    {"ar-SA", 0x0401}, {"ar-EG", 0x0C01},  {"ar-DZ", 0x1401}, {"ar-MA", 0x1801}, {"ar-AE", 0x3801}, {"he-IL", 0x040D},
    {"iw-IL", 0x040D}, {"yi-001", 0x043D}, {"fa-IR", 0x0429}, {"ur-PK", 0x0420}, {"ps-AF", 0x0463}, {"sd-PK", 0x0859},
    {"ug-CN", 0x0480}, {"dv-MV", 0x0465},  {"th-TH", 0x041E}, {"lo-LA", 0x0454}, {"hi-IN", 0x0439}, {"mr-IN", 0x044E},
    {"ne-NP", 0x0461}, {"bn-IN", 0x0445},  {"bn-BD", 0x0845}, {"pa-IN", 0x0446}, {"gu-IN", 0x0447}, {"ta-IN", 0x0449},
    {"te-IN", 0x044A}, {"kn-IN", 0x044B},  {"ml-IN", 0x044C}, {"si-LK", 0x045B}, {"my-MM", 0x0455}, {"km-KH", 0x0453},
    {"bo-CN", 0x0451},
};

std::string_view primaryOf(std::string_view language) {
    return language.substr(0, language.find('-'));
}

} // namespace

ScriptClass scriptClassOf(std::string_view language) {
    constexpr std::string_view kEastAsian[] = {"zh", "ja", "ko"};
    constexpr std::string_view kComplex[] = {"ar",  "he", "iw", "fa", "ur", "yi", "ps", "sd", "ug",
                                             "ckb", "dv", "th", "lo", "hi", "mr", "ne", "bn", "pa",
                                             "gu",  "ta", "te", "kn", "ml", "si", "my", "km", "bo"};
    const std::string_view primary = primaryOf(language);
    if (std::find(std::begin(kEastAsian), std::end(kEastAsian), primary) != std::end(kEastAsian))
        return ScriptClass::EastAsian;
    if (std::find(std::begin(kComplex), std::end(kComplex), primary) != std::end(kComplex))
        return ScriptClass::Complex;
    return ScriptClass::Simple;
}

int languageNumber(std::string_view language) {
    if (language.empty())
        return 0;
    const auto* found = std::find_if(std::begin(kNumbers), std::end(kNumbers),
                                     [&](const LanguageNumber& row) { return row.tag == language; });
    if (found == std::end(kNumbers))
        found = std::find_if(std::begin(kNumbers), std::end(kNumbers),
                             [&](const LanguageNumber& row) { return primaryOf(row.tag) == primaryOf(language); });
    return found == std::end(kNumbers) ? 0 : found->number;
}

} // namespace orvane::write
