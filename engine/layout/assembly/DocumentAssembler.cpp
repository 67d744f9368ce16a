#include "layout/assembly/DocumentAssembler.h"

#include "layout/assembly/BlankPages.h"
#include "layout/assembly/BlockAssembler.h"
#include "layout/assembly/BoxesApart.h"
#include "layout/assembly/CommentAssembler.h"
#include "layout/assembly/DocumentMetadata.h"
#include "layout/assembly/HangulLines.h"
#include "layout/assembly/LabelFrames.h"
#include "layout/assembly/MirroredMargins.h"
#include "layout/assembly/NumberingAssembler.h"
#include "layout/assembly/PushedText.h"
#include "layout/assembly/RunningPlace.h"
#include "layout/assembly/SpacingFinder.h"

#include <iterator>
#include <utility>

namespace orvane::layout {
namespace {

/// The flows that styles and spacing are found for: the body first, then the running texts of each section.
class FlowSet {
public:
    FlowSet(const DocumentDraft& draft, const AssemblyContext& context)
        : m_draft(draft)
        , m_context(context) {
        add(FlowKind::Body, draft.blocks);
        for (const DraftSection& section : draft.sections) {
            addRunning(FlowKind::Header, section.header);
            addRunning(FlowKind::Footer, section.footer);
        }
        for (const DraftNote& note : draft.notes)
            add(FlowKind::Note, note.blocks);
    }

    std::vector<BlockFlow>& flows() { return m_flows; }

    /// Hands the flows out again, in the order in which they were added.
    std::vector<document::Section> takeSections() {
        std::vector<AssembledBlock> body = std::move(m_flows[m_next++].blocks);
        std::vector<document::Section> sections;
        BlankPages blankPages(body, m_context);
        const auto pageCount = static_cast<std::size_t>(m_context.document.pageCount);
        for (std::size_t i = 0; i < m_draft.sections.size(); ++i) {
            const bool isLast = i + 1 == m_draft.sections.size();
            const std::size_t end = isLast ? body.size() : m_draft.sections[i + 1].firstBlock;
            document::Section section = m_draft.sections[i].setup;
            std::vector<AssembledBlock> blocks = take(body, m_draft.sections[i].firstBlock, end);
            blankPages.keep(blocks, section.start, isLast ? pageCount : pageOf(body, i + 1));
            section.blocks = finishBlocks(std::move(blocks), m_context);
            section.header = takeHeader(m_draft.sections[i]);
            section.footer = takeFooter(m_draft.sections[i]);
            sections.push_back(std::move(section));
        }
        return sections;
    }

    /// Requires: the sections have been taken.
    std::vector<document::Note> takeNotes() {
        std::vector<document::Note> notes;
        for (const DraftNote& note : m_draft.notes)
            notes.push_back({note.kind, finishBlocks(std::move(m_flows[m_next++].blocks), m_context), originOf(note)});
        return notes;
    }

private:
    using Blocks = std::vector<AssembledBlock>;

    document::Origin originOf(const DraftNote& note) const {
        if (note.blocks.empty())
            return {};
        const DraftBlock& first = note.blocks.front();
        return {m_draft.pages[first.page].number, first.box};
    }

    /// The page on which a section starts; 0 where that is not known.
    std::size_t pageOf(const std::vector<AssembledBlock>& body, std::size_t section) const {
        if (m_draft.sections[section].setup.start != document::SectionStart::Continuous)
            return m_draft.sections[section].tops.firstPage;
        const std::size_t first = m_draft.sections[section].firstBlock;
        return first < body.size() && body[first].draft ? body[first].draft->page : 0;
    }

    void add(FlowKind kind, const std::vector<DraftBlock>& blocks) {
        m_flows.push_back({kind, assembleBlocks(blocks, m_context)});
    }

    void addRunning(FlowKind kind, const DraftRunningText& text) {
        for (const auto* blocks : {&text.standard, &text.firstPage, &text.evenPages})
            if (*blocks)
                add(kind, **blocks);
    }

    /// The header of a section, made so tall that it pushes the text down to where that starts.
    document::RunningText takeHeader(const DraftSection& section) {
        const double edge = pointsFromTwips(section.setup.headerDistance);
        const auto hold = [&](Blocks& blocks) { holdBelow(edge, blocks, m_context.parameters.spacing); };
        if (!section.tops.pushed)
            return takeRunning(section.header, hold, hold);
        const auto push = [&](Blocks& blocks) {
            hold(blocks);
            pushText(blocks, edge, *section.tops.pushed, m_context);
        };
        document::RunningText header = takeRunning(section.header, hold, push);
        if (!header.standard) {
            Blocks blank;
            push(blank);
            header.standard = finishBlocks(std::move(blank), m_context);
        }
        // Where no text stands on the first page either, it keeps that the others have a header now.
        if (!header.firstPage)
            header.firstPage.emplace();
        return header;
    }

    document::RunningText takeFooter(const DraftSection& section) {
        const double edge = pointsFromTwips(section.setup.pageHeight) - pointsFromTwips(section.setup.footerDistance);
        const auto hold = [&](Blocks& blocks) { holdAbove(edge, blocks, m_context.parameters.spacing); };
        return takeRunning(section.footer, hold, hold);
    }

    /// The texts with their changes: one for the first page's, one for what stands on all others.
    template<typename ChangeFirst, typename Change>
    document::RunningText takeRunning(const DraftRunningText& source, const ChangeFirst& changeFirst,
                                      const Change& change) {
        const auto takeNext = [this](const std::optional<std::vector<DraftBlock>>& blocks, const auto& changed) {
            if (!blocks)
                return std::optional<std::vector<document::Block>>();
            changed(m_flows[m_next].blocks);
            return std::optional(finishBlocks(std::move(m_flows[m_next++].blocks), m_context));
        };
        document::RunningText text;
        text.standard = takeNext(source.standard, change);
        text.firstPage = takeNext(source.firstPage, changeFirst);
        text.evenPages = takeNext(source.evenPages, change);
        return text;
    }

    static std::vector<AssembledBlock> take(std::vector<AssembledBlock>& blocks, std::size_t from, std::size_t to) {
        const auto at = [&](std::size_t i) { return blocks.begin() + static_cast<std::ptrdiff_t>(i); };
        return {std::make_move_iterator(at(from)), std::make_move_iterator(at(to))};
    }

    const DocumentDraft& m_draft;
    const AssemblyContext& m_context;
    std::vector<BlockFlow> m_flows;
    std::size_t m_next = 0;
};

} // namespace

document::Document assembleDocument(DocumentDraft draft, const DocumentContext& context, const DocumentFacts& facts,
                                    const LayoutRequest& request, const LayoutParameters& parameters,
                                    Diagnostics& diagnostics) {
    const LinkTargets links(draft, facts.outline, diagnostics);
    const Tracking tracking = request.keepCharacterSpacing ? Tracking::Kept : Tracking::InWidths;
    cutLabels(draft, parameters);
    FontCatalog fonts(draft, parameters, tracking);
    if (tracking == Tracking::InWidths)
        fonts.narrowSqueezed(draft, parameters);
    fitLabels(draft, fonts, tracking, parameters);
    const AssemblyContext assembly{draft,
                                   context,
                                   fonts,
                                   links,
                                   request,
                                   parameters,
                                   paintsEndsOfHangul(draft, parameters.hangulLines),
                                   UnseenValues(draft)};
    FlowSet flows(draft, assembly);
    document::Document document;
    document.metadata = metadataOf(facts.metadata, context);
    // By the rules of another language words would be divided where nobody does.
    document.dividesWords = context.division == WordDivision::Always && !document.metadata.language.empty();
    for (const DraftNumbering& numbering : draft.numberings)
        document.numberings.push_back(assembleNumbering(numbering, assembly));
    document.styles = makeStyles(flows.flows(), assembly);
    for (BlockFlow& flow : flows.flows())
        setBoxesApart(flow.blocks);
    findSpacing(flows.flows(), document.styles, assembly);
    document.sections = flows.takeSections();
    document.notes = flows.takeNotes();
    if (draft.hasMirroredMargins)
        mirrorMargins(document, draft);
    document.footnoteNumbering = draft.footnoteNumbering;
    document.endnoteNumbering = draft.endnoteNumbering;
    document.comments = assembleComments(draft, document.styles.front());
    return document;
}

} // namespace orvane::layout
