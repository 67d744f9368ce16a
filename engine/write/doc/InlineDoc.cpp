#include "write/doc/InlineDoc.h"

#include "document/FormulaText.h"
#include "write/LinkNames.h"
#include "write/ParagraphParts.h"
#include "write/doc/CommentDoc.h"
#include "write/doc/FieldDoc.h"
#include "write/doc/FormFieldDoc.h"
#include "write/doc/NoteDoc.h"
#include "write/doc/RunDoc.h"

#include <utility>

#include <fmt/format.h>

namespace orvane::write::doc {
namespace {

using namespace document;

/// The text with the format's own characters for some; control characters are left out.
std::u16string fileText(std::string_view utf8) {
    std::u16string result;
    const std::u16string text = utf16FromUtf8(utf8);
    for (std::size_t i = 0; i < text.size(); ++i) {
        switch (text[i]) {
        case u'\n':
        case u'\v':
        case 0x2028:
        case 0x2029:
            result += character::kLineBreak;
            break;
        case u'\r':
            if (i + 1 == text.size() || text[i + 1] != u'\n')
                result += character::kLineBreak;
            break;
        case 0x00AD:
            result += character::kSoftHyphen;
            break;
        case 0x2011:
            result += character::kHardHyphen;
            break;
        default:
            if (text[i] >= 0x20 || text[i] == u'\t')
                result += text[i];
            break;
        }
    }
    return result;
}

class InlineWriter {
public:
    InlineWriter(Story& story, const RunProperties& base)
        : m_story(story)
        , m_base(base) {}

    void write(std::span<const Inline> inlines) {
        for (const Inline& item : inlines)
            std::visit([this](const auto& value) { writeOne(value); }, item.value);
    }

private:
    void writeOne(const Text& text) { add(fileText(text.text), text.properties); }
    void writeOne(const Tab& tab) { add({character::kTab}, tab.properties); }

    void writeOne(const Break& item) {
        switch (item.kind) {
        case BreakKind::Line:
            return add({character::kLineBreak}, m_base);
        case BreakKind::Column:
            return add({character::kColumnBreak}, m_base);
        case BreakKind::Page:
            return add({character::kPageBreak}, m_base);
        }
    }

    void writeOne(const Picture& picture) {
        PictureData& pictures = m_story.state.pictures;
        if (!pictures.has(picture)) {
            m_story.state.diagnostics.add(DiagnosticKind::PictureUnreadable, picture.origin.page,
                                          "a picture is missing and was left out", picture.origin.box);
            return;
        }
        PropertyList list;
        list.add(sprm::kCPicLocation, pictures.placeOf(picture)).add(sprm::kCFSpec, 1);
        m_story.text.add({&character::kPicture, 1}, list.bytes());
    }

    /// As it looks; without a picture in one line, as people type it.
    void writeOne(const Formula& formula) {
        if (formula.picture && m_story.state.pictures.has(*formula.picture))
            return writeOne(*formula.picture);
        writeOne(Text{linearText(formula.content), formula.properties});
    }

    void writeOne(const Link& link) {
        const std::string instruction = linkInstruction(link.target);
        // Links within links do not exist; the outer one holds.
        if (m_isInLink || instruction.empty()) {
            write(link.inlines);
            return;
        }
        m_isInLink = true;
        startField(m_story, FieldKind::Link, instruction);
        write(link.inlines);
        endField(m_story);
        m_isInLink = false;
    }

    void writeOne(const Bookmark& bookmark) {
        const std::string name = bookmarkName(bookmark.name);
        // Places count from the start of the body.
        if (m_story.kind != StoryKind::Body || name.empty() || !m_story.state.bookmarkNames.insert(name).second)
            return;
        m_story.state.bookmarks.push_back({utf16FromUtf8(name), m_story.text.length()});
    }

    void writeOne(const NoteReference& reference) { writeNoteReference(m_story, reference, m_base); }

    void writeOne(const CommentReference& reference) { writeCommentReference(m_story, reference); }

    void writeOne(const Field& field) {
        startField(m_story, kindOf(field), fieldInstruction(field));
        write(field.result);
        endField(m_story);
    }

    void writeOne(const ContentControl& control) {
        PropertyList look;
        addRunProperties(look, m_story.state.fonts, m_base, m_base);
        writeFormField(m_story, control, look.bytes(), [&] { write(control.content); });
    }

    /// The link as a field's instruction; empty for one that leads nowhere.
    std::string linkInstruction(const LinkTarget& target) {
        if (const std::string anchor = bookmarkName(target.bookmark); !anchor.empty())
            return fmt::format(" HYPERLINK \\l \"{}\" ", anchor);
        const std::string uri = linkAddress(target.uri);
        if (!uri.empty())
            return fmt::format(" HYPERLINK \"{}\" ", uri);
        if (!target.uri.empty())
            m_story.state.diagnostics.add(DiagnosticKind::LinkUnresolved, 0,
                                          "an address is longer than word processors take; its text has no link");
        return {};
    }

    void add(const std::u16string& text, const RunProperties& properties) {
        PropertyList list;
        addRunProperties(list, m_story.state.fonts, properties, m_base);
        m_story.text.add(text, list.bytes());
    }

    Story& m_story;
    const RunProperties& m_base;
    bool m_isInLink = false;
};

} // namespace

void writeInlines(Story& story, std::span<const Inline> inlines, const RunProperties& base) {
    InlineWriter(story, base).write(inlines);
}

} // namespace orvane::write::doc
