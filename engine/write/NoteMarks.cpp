#include "write/NoteMarks.h"

#include "write/ParagraphParts.h"

namespace orvane::write {

using namespace document;

namespace {

const Paragraph* firstParagraph(const Note& note) {
    return note.blocks.empty() ? nullptr : std::get_if<Paragraph>(&note.blocks.front().value);
}

} // namespace

std::string plainMark(const NoteReference& reference) {
    return reference.customMark.empty() ? std::to_string(reference.note + 1) : reference.customMark;
}

const RunProperties& noteBase(const StyleIndex& styles, const Note& note) {
    const Paragraph* first = firstParagraph(note);
    return first ? styles.at(first->style).run : styles.defaultStyle().run;
}

RunProperties markLook(const StyleIndex& styles, const Note& note) {
    RunProperties look = noteBase(styles, note);
    if (const Paragraph* first = firstParagraph(note))
        if (const RunProperties* text = firstLook(first->inlines))
            look = *text;
    look.verticalPosition = VerticalPosition::Superscript;
    return look;
}

} // namespace orvane::write
