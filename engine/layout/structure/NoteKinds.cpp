#include "layout/structure/NoteKinds.h"

#include "layout/structure/NoteMark.h"

#include <algorithm>
#include <string_view>

namespace orvane::layout {
namespace {

using document::NoteKind;

constexpr std::string_view kNumerals = "ivxlc";

bool isNumeral(const std::string& mark) {
    return !mark.empty() && mark.find_first_not_of(kNumerals) == std::string::npos;
}

/// A letter that is no numeral: where there is one, "c" and "i" count letters too.
bool isLetter(const std::string& mark) {
    return mark.size() == 1 && mark.front() >= 'a' && mark.front() <= 'z' && !isNumeral(mark);
}

} // namespace

void settleNoteKinds(std::vector<FoundNote>& notes, std::size_t lastTextPage) {
    const auto hasAny = [&notes](const auto& test) { return std::any_of(notes.begin(), notes.end(), test); };
    const bool hasLetters = hasAny([](const FoundNote& note) { return isLetter(bareMark(note.mark)); });
    const auto hasNumeral = [hasLetters](const FoundNote& note) {
        const std::string mark = bareMark(note.mark);
        return isNumeral(mark) && !(hasLetters && mark.size() == 1);
    };
    const bool areCollected =
        hasAny([&](const FoundNote& note) { return hasNumeral(note) && note.referencePage < note.page; });
    // Below them no text would go on if they stood at its end.
    const bool standAtFeet =
        !areCollected && hasAny([&](const FoundNote& note) { return hasNumeral(note) && note.page < lastTextPage; });
    for (FoundNote& note : notes)
        note.kind = note.referencePage < note.page || (hasNumeral(note) && !standAtFeet) ? NoteKind::Endnote
                                                                                         : NoteKind::Footnote;
}

} // namespace orvane::layout
