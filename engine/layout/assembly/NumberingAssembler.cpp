#include "layout/assembly/NumberingAssembler.h"

#include "layout/assembly/RunFormat.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace orvane::layout {
namespace {

/// A bullet as word processors write it. Symbol fonts have their characters in the private use area from U+F000 on.
struct SymbolBullet {
    std::string_view sign;
    std::string_view font;
    std::string_view character;
};

constexpr SymbolBullet kSymbolBullets[] = {
    {"\u2022", "Symbol", "\uF0B7"},    {"\u25CF", "Wingdings", "\uF06C"}, {"\u25AA", "Wingdings", "\uF0A7"},
    {"\u25A0", "Wingdings", "\uF06E"}, {"\u2713", "Wingdings", "\uF0FC"}, {"\u2714", "Wingdings", "\uF0FC"},
    {"\u27A2", "Wingdings", "\uF0D8"}, {"\u2756", "Wingdings", "\uF076"}, {"\u2794", "Wingdings", "\uF0E8"},
    {"\u25C6", "Wingdings", "\uF075"}, {"\u2751", "Wingdings", "\uF071"}, {"\u25A1", "Wingdings", "\uF0A8"},
    {"\uFFFD", "Symbol", "\uF0B7"}, // nobody can name it, but it is a bullet
};

/// Signs come in many fonts; those that a font for symbols has are set in it, so that they look the same everywhere.
void useSymbolFont(document::NumberingLevel& level) {
    const auto known = std::find_if(std::begin(kSymbolBullets), std::end(kSymbolBullets),
                                    [&](const SymbolBullet& bullet) { return bullet.sign == level.text; });
    if (known == std::end(kSymbolBullets) || !level.run)
        return;
    level.text = known->character;
    level.run->fontFamily = known->font;
}

} // namespace

document::Numbering assembleNumbering(const DraftNumbering& draft, const AssemblyContext& context) {
    document::Numbering numbering = draft.numbering;
    for (std::size_t i = 0; i < numbering.levels.size(); ++i) {
        if (!draft.labels[i])
            continue;
        document::NumberingLevel& level = numbering.levels[i];
        level.run = runProperties(draft.labels[i]->span, draft.labels[i]->page, ScriptFamilies(context.fonts), context);
        if (level.format == document::NumberFormat::Bullet)
            useSymbolFont(level);
    }
    return numbering;
}

} // namespace orvane::layout
