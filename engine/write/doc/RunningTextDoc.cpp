#include "write/doc/RunningTextDoc.h"

#include "write/doc/BlockDoc.h"
#include "write/doc/NoteDoc.h"
#include "write/doc/ParagraphDoc.h"

#include <algorithm>
#include <array>

namespace orvane::write::doc {
namespace {

using namespace document;
using Blocks = std::vector<Block>;

/// The kinds of running texts in the order that the file has them.
constexpr std::size_t kKinds = 6;

/// A text without anything in it. What floats is referred to until the file is written, so that blocks are never
/// copied.
const Blocks kBlank;

const Blocks* pointerTo(const std::optional<Blocks>& blocks) {
    return blocks ? &*blocks : nullptr;
}

/// The text of the pages that are neither first nor even. Where only those have one it is blank: LibreOffice would put
/// an empty line there.
const Blocks* standardText(const RunningText& text) {
    const bool hasOthers = text.firstPage || text.evenPages;
    return !text.standard && hasOthers ? &kBlank : pointerTo(text.standard);
}

/// The texts, or none where nothing stands in any of them: a blank text takes room in a header.
const RunningText& withoutBlanks(const RunningText& text) {
    static const RunningText kNone;
    const auto hasContent = [](const std::optional<Blocks>& blocks) { return blocks && !blocks->empty(); };
    return hasContent(text.standard) || hasContent(text.firstPage) || hasContent(text.evenPages) ? text : kNone;
}

/// One text, with what floats over it.
struct RunningStory {
    StoryText text;
    FloatLayer floats;
};

class RunningTextWriter {
public:
    explicit RunningTextWriter(DocState& state)
        : m_state(state) {
        m_result.hasEvenPages =
            std::any_of(state.document.sections.begin(), state.document.sections.end(),
                        [](const Section& section) { return section.header.evenPages || section.footer.evenPages; });
    }

    RunningTexts write() {
        if (std::none_of(m_state.document.sections.begin(), m_state.document.sections.end(), hasAny))
            return std::move(m_result);
        addSeparators();
        for (const Section& section : m_state.document.sections)
            addSection(section);
        addStart();
        // The last paragraph mark belongs to no text.
        endPlainParagraph(m_result.text);
        addStart();
        m_result.table = m_table.str();
        return std::move(m_result);
    }

private:
    static bool hasAny(const Section& section) {
        const auto has = [](const RunningText& text) { return text.standard || text.firstPage || text.evenPages; };
        return has(section.header) || has(section.footer);
    }

    static void endPlainParagraph(StoryText& text) {
        text.endParagraph(character::kParagraphEnd, {}, Bytes().u16(0).str());
    }

    void addStart() { m_table.u32(m_result.text.length()); }

    /// The lines between text and notes, and between a note and its beginning on the page before; for both kinds of
    /// notes, each with a text that tells that it goes on.
    void addSeparators() {
        const std::string special = PropertyList().add(sprm::kCFSpec, 1).bytes();
        for (int kind = 0; kind < 2; ++kind) {
            for (const char16_t line : {character::kSeparator, character::kContinuationSeparator}) {
                addStart();
                m_result.text.add({&line, 1}, special);
                endPlainParagraph(m_result.text);
                endPlainParagraph(m_result.text);
            }
            addStart();
        }
    }

    void addSection(const Section& section) {
        const bool hasFirst = section.header.firstPage || section.footer.firstPage;
        const RunningText& header = withoutBlanks(section.header);
        const RunningText& footer = withoutBlanks(section.footer);
        // Where a page has no text of its own kind the standard one stands there too; the format would leave it empty.
        const auto even = [this](const RunningText& text) -> const Blocks* {
            if (!m_result.hasEvenPages)
                return nullptr;
            return text.evenPages ? pointerTo(text.evenPages) : standardText(text);
        };
        const auto first = [hasFirst](const RunningText& text) -> const Blocks* {
            if (!hasFirst)
                return nullptr;
            return text.firstPage ? pointerTo(text.firstPage) : standardText(text);
        };
        const std::array<const Blocks*, kKinds> texts{even(header),         standardText(header), even(footer),
                                                      standardText(footer), first(header),        first(footer)};
        for (std::size_t kind = 0; kind < kKinds; ++kind)
            addText(kind, texts[kind]);
    }

    void addText(std::size_t kind, const Blocks* blocks) {
        addStart();
        RunningStory& current = m_current[kind];
        // Without a text of its own the section before would go on: what it has ends with an empty one.
        if (!blocks && current.text.length() == 0)
            return;
        RunningStory own;
        Story story{m_state, own.text, StoryKind::RunningText, &own.floats};
        writeBlocks(story, blocks ? *blocks : kBlank);
        writeDisplacedNotes(story);
        endParagraph(story, ParagraphEnd::Paragraph);
        if (own.text == current.text && equal(own.floats, current.floats))
            return;
        m_state.runningFloats.append(own.floats, m_result.text.length());
        m_result.text.append(own.text);
        endPlainParagraph(m_result.text);
        current = std::move(own);
    }

    DocState& m_state;
    RunningTexts m_result;
    Bytes m_table;
    std::array<RunningStory, kKinds> m_current; ///< what holds at this section
};

} // namespace

RunningTexts writeRunningTexts(DocState& state) {
    return RunningTextWriter(state).write();
}

} // namespace orvane::write::doc
