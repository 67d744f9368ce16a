#include "pdf/MathFontName.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string>

namespace orvane::pdf {
namespace {

/// How the names of TeX's mathematical fonts start, in small letters; a size or a shape follows. Source: the font lists
/// of the Computer Modern, AMS, Euler, Latin Modern, TX, PX, NewTX and MathTime families.
constexpr std::array<std::string_view, 45> kFamilies{
    "cmmi", "cmmib", "cmsy",  "cmbsy",  "cmex",  "msam",   "msbm",     "euex",      "eufm",    "eufb",  "eurm",  "eurb",
    "eusm", "eusb",  "rsfs",  "stmary", "wasy",  "esint",  "bbm",      "bbold",     "dsrom",   "dsss",  "txmi",  "txsy",
    "txex", "rtxmi", "ntxmi", "ntxsy",  "ntxex", "ntxbmi", "pxmi",     "pxsy",      "pxex",    "rpxmi", "npxmi", "mtmi",
    "mtsy", "mtex",  "mtgu",  "rmtmi",  "zeurm", "zeusm",  "mnsymbol", "fouriersy", "mtextra",
};

constexpr std::size_t kLongestShape = 3; ///< letters that name a shape: "txsyb"

/// "Math" as a word of its own, or the start of one that speaks of it; "Mathilde" is somebody's handwriting.
bool hasMathWord(std::string_view name, std::string_view key) {
    const std::size_t start = key.find("math");
    if (start == std::string_view::npos)
        return false;
    const std::string_view rest = key.substr(start + 4);
    const bool isWhole = rest.empty() || std::islower(static_cast<unsigned char>(name[start + 4])) == 0;
    return isWhole || rest.starts_with("ematic") || rest.starts_with("pi") || rest.starts_with("jax");
}

} // namespace

bool isMathFontName(std::string_view name) {
    std::string key;
    for (const char c : name)
        key += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    if (hasMathWord(name, key))
        return true;
    return std::any_of(kFamilies.begin(), kFamilies.end(), [&](std::string_view family) {
        const std::size_t length = family.size();
        return key.starts_with(family) &&
               (key.size() <= length + kLongestShape || std::isalpha(static_cast<unsigned char>(key[length])) == 0);
    });
}

} // namespace orvane::pdf
