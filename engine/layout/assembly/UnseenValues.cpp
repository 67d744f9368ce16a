#include "layout/assembly/UnseenValues.h"

#include "layout/structure/DraftWalk.h"
#include "layout/text/FieldValue.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <utility>
#include <vector>

namespace orvane::layout {
namespace {

/// What is seen of a field on its page.
struct SeenField {
    const Span* first = nullptr;
    const Span* last = nullptr;
    std::string text;
};

using SeenFields = std::map<std::pair<std::size_t, std::size_t>, SeenField>; ///< by page, and field of it

SeenFields fieldsSeenIn(const DocumentDraft& draft) {
    SeenFields fields;
    forEachParagraph(draft.blocks, [&](const DraftParagraph& paragraph) {
        for (const DraftPiece& piece : paragraph.pieces)
            for (const Line& line : piece.text.lines)
                for (const Word& word : line.words)
                    for (const Span& span : word.spans) {
                        if (span.look.field < 0)
                            continue;
                        SeenField& field = fields[{piece.page, static_cast<std::size_t>(span.look.field)}];
                        if (!field.first)
                            field.first = &span;
                        field.last = &span;
                        field.text += span.text;
                    }
    });
    return fields;
}

/// Hidden text stands in one line.
std::string inOneLine(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    return text;
}

} // namespace

UnseenValues::UnseenValues(const DocumentDraft& draft) {
    for (const auto& [place, seen] : fieldsSeenIn(draft)) {
        const std::vector<pdf::FormField>& fields = draft.pages[place.first].fields;
        if (place.second >= fields.size())
            continue;
        const std::optional<ShownValue> value = findShown(fields[place.second].value, seen.text);
        if (!value)
            continue;
        if (!value->before.empty())
            m_before.emplace(seen.first, inOneLine(value->before));
        if (!value->after.empty())
            m_after.emplace(seen.last, inOneLine(value->after));
    }
}

} // namespace orvane::layout
