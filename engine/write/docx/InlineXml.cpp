#include "write/docx/InlineXml.h"

#include "base/ComplexScript.h"
#include "write/LinkNames.h"
#include "write/ParagraphParts.h"
#include "write/docx/CommentsPart.h"
#include "write/docx/ControlXml.h"
#include "write/docx/FieldXml.h"
#include "write/docx/FontTablePart.h"
#include "write/docx/FormulaXml.h"
#include "write/docx/NotesPart.h"
#include "write/docx/PictureXml.h"
#include "write/docx/RunXml.h"
#include "write/docx/TextXml.h"

#include <algorithm>

namespace orvane::write::docx {
namespace {

using namespace document;

/// Writes inlines one after the other. Characters of equal properties that follow each other share one run.
class InlineWriter {
public:
    InlineWriter(Story& story, const RunProperties& base)
        : m_story(story)
        , m_xml(story.xml)
        , m_base(base) {}

    void write(std::span<const Inline> inlines) {
        for (const Inline& item : inlines)
            std::visit([this](const auto& value) { writeOne(value); }, item.value);
        closeRun();
    }

private:
    void writeOne(const Text& text) {
        openRun(text.properties, hasComplexScript(text.text) ? ScriptUse::Complex : ScriptUse::Simple);
        writeRunText(m_xml, text.text);
    }

    void writeOne(const Tab& tab) {
        openRun(tab.properties, m_runScripts);
        m_xml.leaf("w:tab");
    }

    void writeOne(const Break& item) {
        if (!m_run)
            openRun(m_base, ScriptUse::Simple);
        const XmlElement br(m_xml, "w:br");
        if (item.kind != BreakKind::Line)
            m_xml.attribute({"w:type", item.kind == BreakKind::Page ? "page" : "column"});
    }

    void writeOne(const Picture& picture) {
        closeRun();
        writeInlinePicture(m_story, picture);
    }

    void writeOne(const Formula& formula) {
        closeRun();
        writeFormula(m_story, formula, m_base);
    }

    void writeOne(const Link& link) {
        closeRun();
        const std::string anchor = bookmarkName(link.target.bookmark);
        const std::string uri = anchor.empty() ? linkAddress(link.target.uri) : std::string();
        if (anchor.empty() && uri.empty() && !link.target.uri.empty())
            m_story.state.diagnostics.add(DiagnosticKind::LinkUnresolved, 0,
                                          "an address is longer than word processors take; its text has no link");
        // Links within links do not exist; the outer one holds.
        if (m_isInLink || (anchor.empty() && uri.empty())) {
            write(link.inlines);
            return;
        }
        const XmlElement hyperlink(m_xml, "w:hyperlink");
        if (anchor.empty())
            leadOutside(uri);
        else
            m_xml.attribute({"w:anchor", anchor});
        m_xml.attribute({"w:history", 1});
        m_isInLink = true;
        write(link.inlines);
        m_isInLink = false;
    }

    /// The place within what the address names is written beside it, as word processors do.
    void leadOutside(const std::string& uri) {
        const std::size_t sign = std::min(uri.find('#'), uri.size());
        const std::string place = sign < uri.size() ? uri.substr(sign + 1) : std::string();
        const std::string& address = sign > 0 ? uri.substr(0, sign) : uri;
        m_xml.attribute({"r:id", m_story.relationships.add("hyperlink", address, TargetMode::External)});
        if (sign > 0 && !place.empty())
            m_xml.attribute({"w:anchor", place});
    }

    void writeOne(const Bookmark& bookmark) {
        const std::string name = bookmarkName(bookmark.name);
        if (name.empty() || !m_story.state.bookmarks.insert(name).second)
            return;
        closeRun();
        const auto id = static_cast<std::int64_t>(m_story.state.bookmarks.size());
        m_xml.leaf("w:bookmarkStart", {{"w:id", id}, {"w:name", name}});
        m_xml.leaf("w:bookmarkEnd", {{"w:id", id}});
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
        const RunProperties* look = firstLook(field.result);
        writeFieldStart(m_xml, fieldInstruction(field), look ? *look : m_base, m_base);
        write(field.result);
        writeFieldEnd(m_xml, look ? *look : m_base, m_base);
    }

    void writeOne(const ContentControl& control) {
        closeRun();
        if (m_isInControl) {
            write(control.content);
            return;
        }
        m_isInControl = true;
        writeControl(m_story, control, m_base, [&] { write(control.content); });
        m_isInControl = false;
    }

    void openRun(const RunProperties& properties, ScriptUse scripts) {
        if (m_run && m_runScripts == scripts && *m_run == properties)
            return;
        closeRun();
        m_run = &properties;
        m_runScripts = scripts;
        collectFonts(m_story.state, properties);
        m_xml.start("w:r");
        writeRunProperties(m_xml, properties, &m_base, scripts);
    }

    void closeRun() {
        if (m_run)
            m_xml.end();
        m_run = nullptr;
    }

    Story& m_story;
    XmlWriter& m_xml;
    const RunProperties& m_base;
    const RunProperties* m_run = nullptr; ///< of the open run
    ScriptUse m_runScripts = ScriptUse::Simple;
    bool m_isInLink = false;
    bool m_isInControl = false;
};

} // namespace

void writeInlines(Story& story, std::span<const Inline> inlines, const RunProperties& base) {
    InlineWriter(story, base).write(inlines);
}

} // namespace orvane::write::docx
