#include "write/rtf/InlineRtf.h"

#include "base/ComplexScript.h"
#include "document/FormulaText.h"
#include "write/LinkNames.h"
#include "write/rtf/CommentRtf.h"
#include "write/rtf/FieldRtf.h"
#include "write/rtf/FormFieldRtf.h"
#include "write/rtf/NoteRtf.h"
#include "write/rtf/PictureRtf.h"
#include "write/rtf/RunRtf.h"

#include <fmt/format.h>

namespace orvane::write::rtf {
namespace {

using namespace document;

/// Writes inlines one after the other. Characters of equal properties that follow each other share one group.
class InlineWriter {
public:
    InlineWriter(Story& story, const RunProperties& base)
        : m_story(story)
        , m_rtf(story.rtf)
        , m_base(base) {}

    void write(std::span<const Inline> inlines) {
        for (const Inline& item : inlines)
            std::visit([this](const auto& value) { writeOne(value); }, item.value);
        closeRun();
    }

private:
    void writeOne(const Text& text) {
        openRun(text.properties, hasComplexScript(text.text) ? ScriptUse::Complex : ScriptUse::Simple);
        m_rtf.text(text.text);
    }

    void writeOne(const Tab& tab) {
        openRun(tab.properties, m_runScripts);
        m_rtf.word("tab");
    }

    void writeOne(const Break& item) {
        switch (item.kind) {
        case BreakKind::Line:
            m_rtf.word("line");
            return;
        case BreakKind::Column:
            m_rtf.word("column");
            return;
        case BreakKind::Page:
            m_rtf.word("page");
            return;
        }
    }

    void writeOne(const Picture& picture) {
        closeRun();
        writeInlinePicture(m_story, picture);
    }

    /// As it looks; without a picture in one line, as people type it.
    void writeOne(const Formula& formula) {
        if (formula.picture)
            return writeOne(*formula.picture);
        writeOne(Text{linearText(formula.content), formula.properties});
        closeRun();
    }

    void writeOne(const Link& link) {
        closeRun();
        const std::string instruction = linkInstruction(link.target);
        // Links within links do not exist; the outer one holds.
        if (m_isInLink || instruction.empty()) {
            write(link.inlines);
            return;
        }
        m_isInLink = true;
        startField(m_rtf, instruction);
        write(link.inlines);
        endField(m_rtf);
        m_isInLink = false;
    }

    void writeOne(const Bookmark& bookmark) {
        const std::string name = bookmarkName(bookmark.name);
        if (name.empty() || !m_story.state.bookmarks.insert(name).second)
            return;
        closeRun();
        for (const char* edge : {"bkmkstart", "bkmkend"}) {
            const RtfDestination mark(m_rtf, edge);
            m_rtf.text(name);
        }
    }

    void writeOne(const NoteReference& reference) {
        closeRun();
        writeNoteReference(m_story, reference, m_base);
    }

    void writeOne(const CommentReference& reference) {
        closeRun();
        writeCommentReference(m_story, reference);
    }

    void writeOne(const Field& field) {
        closeRun();
        startField(m_rtf, fieldInstruction(field));
        write(field.result);
        endField(m_rtf);
    }

    void writeOne(const ContentControl& control) {
        closeRun();
        if (m_isInControl) {
            write(control.content);
            return;
        }
        m_isInControl = true;
        writeFormField(m_story, control, [&] { write(control.content); });
        m_isInControl = false;
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

    void openRun(const RunProperties& properties, ScriptUse scripts) {
        if (m_run && m_runScripts == scripts && *m_run == properties)
            return;
        closeRun();
        m_run = &properties;
        m_runScripts = scripts;
        m_rtf.open();
        writeRunProperties(m_story.state, m_rtf, properties, m_base, scripts);
    }

    void closeRun() {
        if (m_run)
            m_rtf.close();
        m_run = nullptr;
    }

    Story& m_story;
    RtfStream& m_rtf;
    const RunProperties& m_base;
    const RunProperties* m_run = nullptr; ///< of the open group
    ScriptUse m_runScripts = ScriptUse::Simple;
    bool m_isInLink = false;
    bool m_isInControl = false;
};

} // namespace

void writeInlines(Story& story, std::span<const Inline> inlines, const RunProperties& base) {
    InlineWriter(story, base).write(inlines);
}

} // namespace orvane::write::rtf
