#include "layout/assembly/TextAssembler.h"

#include "base/Utf8.h"
#include "layout/assembly/HangulLines.h"
#include "layout/assembly/InlineBuilder.h"
#include "layout/assembly/RunFormat.h"
#include "layout/paragraphs/HyphenResolver.h"
#include "layout/text/Characters.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string_view>
#include <utility>

namespace orvane::layout {
namespace {

using document::Inline;
using document::LinkTarget;
using document::RunProperties;

/// The look of a blank: decoration reaches over it only when it is on both sides.
RunProperties blankBetween(const RunProperties& before, const RunProperties& after) {
    RunProperties blank = before;
    if (after.underline != before.underline)
        blank.underline = document::UnderlineKind::None;
    if (after.highlight != before.highlight)
        blank.highlight.reset();
    blank.isStruck = before.isStruck && after.isStruck;
    if (after.verticalPosition != before.verticalPosition)
        blank.verticalPosition = document::VerticalPosition::Baseline;
    return blank;
}

bool sameTarget(const std::optional<LinkTarget>& a, const std::optional<LinkTarget>& b) {
    return a && b && *a == *b;
}

/// Whether an address that the link leads to was cut by the end of a line between the two words.
bool isCutAddress(const std::optional<LinkTarget>& link, const std::string& last, const std::string& next) {
    constexpr std::size_t kEnough = 8; // bytes on each side that tell the place
    constexpr std::string_view kStops = ".,;:!?)";
    if (!link || link->uri.empty() || last.empty() || next.empty())
        return false;
    const std::string_view start = std::string_view(next).substr(0, kEnough);
    const std::size_t end = start.find_last_not_of(kStops);
    if (end == std::string_view::npos)
        return false;
    const std::string around =
        last.substr(last.size() - std::min(last.size(), kEnough)) + std::string(start, 0, end + 1);
    // Words alone may meet in an address by chance: "the" "report" in "a.example/thereport".
    return around.find_first_of("/.:?&=#%_-@") != std::string::npos && link->uri.find(around) != std::string::npos;
}

/// Goes through a paragraph's words and keeps what the next one needs to know of the one before.
class ParagraphReader {
public:
    ParagraphReader(const DraftParagraph& paragraph, const AssemblyContext& context)
        : m_paragraph(paragraph)
        , m_context(context)
        , m_families(paragraph, context.fonts) {}

    AssembledText read() {
        for (const std::string& name : m_paragraph.bookmarks)
            m_builder.add({document::Bookmark{name}}, std::nullopt);
        AssembledText assembled;
        std::size_t page = m_paragraph.pieces.front().page;
        for (const DraftPiece& piece : m_paragraph.pieces) {
            if (piece.page != page)
                assembled.turns.push_back({m_context.draft.pages[piece.page].number, m_letters});
            page = piece.page;
            for (std::size_t i = 0; i < piece.text.lines.size(); ++i)
                readLine(piece, i);
        }
        assembled.inlines = m_builder.finish();
        return assembled;
    }

private:
    struct Before {
        RunProperties properties;
        std::optional<LinkTarget> link;
        const pdf::FormField* field = nullptr;
        std::string text;
        int blanks = 0; ///< painted behind it, at the end of its line
    };

    void readLine(const DraftPiece& piece, std::size_t index) {
        const Line& line = piece.text.lines[index];
        for (std::size_t i = 0; i < line.words.size(); ++i) {
            if (m_wordCount++ < m_paragraph.labelWords)
                continue;
            readWord(piece.page, line.words[i], i == 0 ? Position::StartsLine : Position::WithinLine);
        }
        const auto names = [index](const std::vector<std::size_t>& lines) {
            return std::find(lines.begin(), lines.end(), index) != lines.end();
        };
        m_isBroken = names(piece.text.hardBreaks);
        m_wraps = names(piece.text.wrappingLines);
    }

    enum class Position { StartsLine, WithinLine };

    void readWord(std::size_t page, const Word& word, Position position) {
        if (word.spans.empty())
            return;
        for (std::size_t i = 0; i < word.spans.size(); ++i) {
            const Span& span = word.spans[i];
            const RunProperties properties = runProperties(span, page, m_families, m_context);
            const auto link = m_context.links.target(page, span.look.link);
            const pdf::FormField* formField = formFieldOf(page, span);
            if (m_before && m_before->field != formField)
                m_builder.enterField(nullptr);
            if (i == 0 && m_before)
                separate(word, position, properties, link);
            m_builder.enterField(formField);
            addUnseen(m_context.unseenValues.before(span), properties);
            if (const Formula* formula = formulaOf(page, span))
                addFormula(*formula, page, properties, link);
            else if (const DraftNoteReference* note = noteAt(page, span))
                m_builder.add({document::NoteReference{note->note, properties, note->isCounted ? "" : note->mark}},
                              std::nullopt);
            else if (const auto field = fieldAt(page, span.box))
                m_builder.add({document::Field{*field, {}, {{document::Text{span.text, properties}}}}}, link);
            else
                addRun(span.text, properties, link);
            addUnseen(m_context.unseenValues.after(span), properties);
            addComments(page, span, link);
            m_before = Before{properties, link, formField, {}};
        }
        m_before->text = textOf(word);
        m_before->blanks = word.blanksAfter;
    }

    void addRun(const std::string& text, const RunProperties& properties, const std::optional<LinkTarget>& link) {
        m_builder.addText(text, properties, link);
        m_letters += countLetters(utf32FromUtf8(text));
    }

    /// The part of a field's value that its box has no room for: there, yet not seen.
    void addUnseen(std::string_view text, const RunProperties& properties) {
        if (text.empty())
            return;
        RunProperties hidden = properties;
        hidden.isHidden = true;
        addRun(std::string(text), hidden, std::nullopt);
    }

    void separate(const Word& word, Position position, const RunProperties& properties,
                  const std::optional<LinkTarget>& link) {
        const auto gapLink = sameTarget(m_before->link, link) ? link : std::nullopt;
        if (position == Position::StartsLine && m_isBroken) {
            breakLine(word, gapLink);
            return;
        }
        LineJoin join = LineJoin::Blank;
        if (position == Position::StartsLine &&
            (isCutAddress(gapLink, m_before->text, textOf(word)) || isCutHangul(word)))
            join = LineJoin::Nothing;
        else if (position == Position::StartsLine)
            join = joinTo(word);
        else if (word.gapBefore == Gap::None)
            join = LineJoin::Nothing;
        if (position == Position::WithinLine && isTabulator(word))
            m_builder.add({document::Tab{blankBefore(properties)}}, gapLink);
        else if (join == LineJoin::Blank)
            m_builder.addText(blanksBefore(word, position), stretched(blankBefore(properties), word), gapLink);
        else if (join == LineJoin::DropHyphen)
            dropHyphen(gapLink);
    }

    LineJoin joinTo(const Word& word) const {
        const DocumentContext& document = m_context.document;
        return resolveLineEnd(m_before->text, textOf(word), document.vocabulary,
                              document.partsScripts ? ScriptBoundary::Blank : ScriptBoundary::Joined,
                              document.division == WordDivision::Never ? HyphenSource::Typed : HyphenSource::Divided,
                              document.compounds);
    }

    /// Joins a divided word. Where words are divided throughout, so that lines break as they do, the place stays known:
    /// not every word processor has the rules of the language.
    void dropHyphen(const std::optional<LinkTarget>& link) {
        const bool isFlowing = m_context.request.mode == LayoutMode::Flowing;
        if (isFlowing && m_context.document.division == WordDivision::Always)
            softenHyphen(link);
        else
            m_builder.dropLastCharacter();
    }

    /// The hyphen is shown at the end of a line only.
    void softenHyphen(const std::optional<LinkTarget>& link) {
        constexpr std::string_view kSoftHyphen = "\u00AD";
        m_builder.dropLastCharacter();
        m_builder.addText(kSoftHyphen, m_before->properties, link);
    }

    /// Ends the line before `word`. A word divided there stays one word, that it can be found and spelled.
    void breakLine(const Word& word, const std::optional<LinkTarget>& link) {
        if (m_wraps && joinTo(word) == LineJoin::DropHyphen)
            softenHyphen(link);
        else
            m_builder.add({document::Break{document::BreakKind::Line}}, link);
    }

    /// A Korean word that the line's end cut: no blank stands there, as it does behind other lines.
    bool isCutHangul(const Word& word) const {
        return m_context.paintsEndsOfHangul && m_before->blanks == 0 && isCutInHangul(m_before->text, textOf(word));
    }

    std::string blanksBefore(const Word& word, Position position) const {
        if (position == Position::StartsLine)
            return std::string(blanksAtLineEnd(), ' ');
        return utf8FromUtf32(std::u32string(static_cast<std::size_t>(word.blanksBefore), word.blankBefore));
    }

    /// As many as were painted there, which some programs do, or else as there usually are: one more or less decides
    /// where the line ends. A line's end is filled with no more than two or so.
    std::size_t blanksAtLineEnd() const {
        constexpr int kMost = 3;
        if (m_before->blanks > 0)
            return m_before->blanks <= kMost ? static_cast<std::size_t>(m_before->blanks) : 1;
        return m_context.document.doublesBlanks && endsSentence(utf32FromUtf8(m_before->text)) ? 2 : 1;
    }

    /// Stretched rather than spaced: the distances between letters are none of the PDF's.
    static RunProperties stretched(RunProperties blank, const Word& word) {
        blank.widthPercent = static_cast<int>(std::lround(blank.widthPercent * word.blankStretch));
        return blank;
    }

    RunProperties blankBefore(const RunProperties& properties) const {
        RunProperties blank = blankBetween(m_before->properties, properties);
        if (properties.isRightToLeft != m_before->properties.isRightToLeft)
            blank.isRightToLeft = m_paragraph.firstLine().isRightToLeft;
        return blank;
    }

    /// What counts there by itself, in a running head.
    std::optional<document::FieldCode> fieldAt(std::size_t page, const Rect& box) const {
        for (const RunningField& field : m_context.draft.fields[page])
            if (field.box == box)
                return field.code;
        return std::nullopt;
    }

    const pdf::FormField* formFieldOf(std::size_t page, const Span& span) const {
        const std::vector<pdf::FormField>& fields = m_context.draft.pages[page].fields;
        const auto index = static_cast<std::size_t>(span.look.field);
        return span.look.field >= 0 && index < fields.size() ? &fields[index] : nullptr;
    }

    const Formula* formulaOf(std::size_t page, const Span& span) const {
        const std::vector<Formula>& formulas = m_context.draft.pages[page].formulas;
        const auto index = static_cast<std::size_t>(span.look.formula);
        return span.look.formula >= 0 && index < formulas.size() ? &formulas[index] : nullptr;
    }

    /// What is not understood stands there as it looks; in documents without pictures, as its signs.
    void addFormula(const Formula& formula, std::size_t page, const RunProperties& properties,
                    const std::optional<LinkTarget>& link) {
        const LayoutMode mode = m_context.request.mode;
        const bool hasPictures = mode != LayoutMode::Continuous && mode != LayoutMode::PlainText;
        std::optional<document::Picture> picture;
        if (hasPictures && formula.picture.value != 0)
            picture = pictureOf(formula, m_context.draft.pages[page].number);
        if (formula.structure)
            m_builder.add({document::Formula{*formula.structure, formula.place, properties, std::move(picture)}}, link);
        else if (picture)
            m_builder.add({std::move(*picture)}, link);
        else
            m_builder.addText(formula.text, properties, link);
    }

    static document::Picture pictureOf(const Formula& formula, int page) {
        document::Picture picture;
        picture.id = formula.picture;
        picture.width = emuFromPoints(formula.box.width());
        picture.height = emuFromPoints(formula.box.height());
        picture.alternateText = formula.text;
        picture.origin = {page, formula.box};
        return picture;
    }

    void addComments(std::size_t page, const Span& span, const std::optional<LinkTarget>& link) {
        const std::vector<DraftComment>& comments = m_context.draft.comments;
        const auto first =
            std::lower_bound(comments.begin(), comments.end(), page,
                             [](const DraftComment& comment, std::size_t at) { return comment.page < at; });
        for (auto comment = first; comment != comments.end() && comment->page == page; ++comment) {
            if (comment->box != span.box)
                continue;
            m_builder.enterField(nullptr);
            m_builder.add({document::CommentReference{static_cast<std::size_t>(comment - comments.begin())}}, link);
        }
    }

    const DraftNoteReference* noteAt(std::size_t page, const Span& span) const {
        if (span.look.verticalPosition != document::VerticalPosition::Superscript)
            return nullptr;
        for (const DraftNoteReference& reference : m_context.draft.noteReferences)
            if (reference.page == page && reference.box == span.box)
                return &reference;
        return nullptr;
    }

    const DraftParagraph& m_paragraph;
    const AssemblyContext& m_context;
    ScriptFamilies m_families;
    InlineBuilder m_builder;
    std::size_t m_wordCount = 0;
    std::size_t m_letters = 0; ///< added so far
    std::optional<Before> m_before;
    bool m_isBroken = false; ///< the line before was ended by hand
    bool m_wraps = false;    ///< it ends in a divided word, whose rest does not fit
};

} // namespace

AssembledText assembleText(const DraftParagraph& paragraph, const AssemblyContext& context) {
    return ParagraphReader(paragraph, context).read();
}

} // namespace orvane::layout
