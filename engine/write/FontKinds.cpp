#include "write/FontKinds.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>

namespace orvane::write {
namespace {

bool hasOneOf(std::string_view name, std::initializer_list<std::string_view> words) {
    return std::any_of(words.begin(), words.end(),
                       [&](std::string_view word) { return name.find(word) != std::string_view::npos; });
}

} // namespace

FontKind fontKindOf(std::string_view name) {
    if (hasOneOf(name, {"Courier", "Mono", "Consolas", "Typewriter"}))
        return FontKind::Modern;
    if (hasOneOf(name, {"Sans"}))
        return FontKind::Swiss;
    if (hasOneOf(name, {"Times", "Serif", "Roman", "Georgia", "Garamond", "Cambria", "Caladea", "Palatino", "Bookman",
                        "Century", "Minion", "Song", "Ming", "Mincho", "Batang"}))
        return FontKind::Roman;
    if (hasOneOf(name, {"Script", "Hand", "Brush", "Chancery"}))
        return FontKind::Script;
    if (hasOneOf(name, {"Arial", "Helvetica", "Calibri", "Carlito", "Verdana", "Tahoma", "Segoe", "Gothic"}))
        return FontKind::Swiss;
    return FontKind::Unknown;
}

bool isSymbolFont(std::string_view name) {
    constexpr std::string_view kFonts[] = {"Symbol", "Wingdings", "Wingdings 2", "Wingdings 3", "Webdings", "MT Extra"};
    return std::find(std::begin(kFonts), std::end(kFonts), name) != std::end(kFonts);
}

} // namespace orvane::write
