#include "layout/structure/PageMaking.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace orvane::layout {
namespace {

/// Parts of the names of TeX, its dialects and the programs that print for them.
constexpr std::array<std::string_view, 2> kTypesetters = {"TeX", "dvip"};

bool isTypesetter(std::string_view program) {
    return std::any_of(kTypesetters.begin(), kTypesetters.end(),
                       [&](std::string_view name) { return program.find(name) != std::string_view::npos; });
}

} // namespace

PageMaking pageMakingOf(const pdf::Metadata& metadata, WordDivision division) {
    const bool isTypeset = isTypesetter(metadata.creator) || isTypesetter(metadata.producer);
    return isTypeset || division == WordDivision::Always ? PageMaking::Program : PageMaking::Author;
}

} // namespace orvane::layout
