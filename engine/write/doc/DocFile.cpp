#include "write/doc/DocFile.h"

#include "write/doc/BlockDoc.h"
#include "write/doc/CommentDoc.h"
#include "write/doc/DocLists.h"
#include "write/doc/DocumentProperties.h"
#include "write/doc/FieldDoc.h"
#include "write/doc/FileInformation.h"
#include "write/doc/FormattedPages.h"
#include "write/doc/NoteDoc.h"
#include "write/doc/ParagraphDoc.h"
#include "write/doc/RunningTextDoc.h"
#include "write/doc/SectionDoc.h"

namespace orvane::write::doc {
namespace {

using namespace document;

constexpr std::uint32_t kPageSize = 512;

/// A section's properties and the end of its text.
struct WrittenSection {
    std::uint32_t end = 0;
    std::string properties;
};

void endPlainParagraph(StoryText& text) {
    text.endParagraph(character::kParagraphEnd, {}, Bytes().u16(0).str());
}

/// The last paragraph mark of the boxes' text belongs to no box.
void endBoxes(FloatLayer& layer) {
    if (!layer.boxes.starts.empty())
        endPlainParagraph(layer.boxes.text);
}

std::vector<WrittenSection> writeBody(DocState& state) {
    static const std::vector<Section> kOneSection(1);
    const auto& sections = state.document.sections.empty() ? kOneSection : state.document.sections;
    std::vector<WrittenSection> written;
    Story story{state, state.body, StoryKind::Body, &state.bodyFloats};
    for (std::size_t i = 0; i < sections.size(); ++i) {
        writeBlocks(story, sections[i].blocks);
        endParagraph(story, i + 1 == sections.size() ? ParagraphEnd::Paragraph : ParagraphEnd::Section);
        written.push_back({state.body.length(), sectionProperties(sections[i], state.document, state.diagnostics)});
    }
    // The last paragraph mark of these texts belongs to no note and no comment.
    for (NoteTexts* notes : {&state.footnotes, &state.endnotes})
        if (!notes->references.empty())
            endPlainParagraph(notes->text);
    if (!state.comments.references.empty())
        endPlainParagraph(state.comments.text);
    endBoxes(state.bodyFloats);
    return written;
}

/// The main stream while it grows.
class MainStream {
public:
    explicit MainStream(const StoryText& text) {
        m_bytes.characters(text.text());
        m_textEnd = position();
        padToPage();
    }

    std::uint32_t textEnd() const { return m_textEnd; }
    std::uint32_t position() const { return kFileInformationSize + static_cast<std::uint32_t>(m_bytes.size()); }
    TextPlace place() const { return {kFileInformationSize, position() / kPageSize}; }
    void add(const std::string& bytes) { m_bytes.raw(bytes); }
    const std::string& bytes() const { return m_bytes.str(); }

private:
    void padToPage() { m_bytes.padTo(kPageSize); }

    Bytes m_bytes;
    std::uint32_t m_textEnd = 0;
};

/// Source: [MS-DOC] 2.8.26 (PlcfSed), 2.9.243 (Sed), 2.9.244 (Sepx).
std::string writeSections(MainStream& main, const std::vector<WrittenSection>& sections) {
    Bytes ends;
    Bytes places;
    ends.u32(0);
    for (const WrittenSection& section : sections) {
        ends.u32(section.end);
        places.u16(0).u32(main.position()).u16(0).u32(0xFFFFFFFF);
        main.add(
            Bytes().u16(static_cast<std::int64_t>(section.properties.size())).raw(section.properties).padTo(2).str());
    }
    return ends.raw(places.str()).str();
}

/// One piece that holds the whole text. Source: [MS-DOC] 2.9.38 (Clx), 2.9.177 (Pcd).
std::string pieces(std::uint32_t length) {
    constexpr int kPieceTable = 2;
    constexpr int kSize = 16;
    return Bytes().u8(kPieceTable).u32(kSize).u32(0).u32(length).u16(0).u32(kFileInformationSize).u16(0).str();
}

/// Source: [MS-DOC] 2.9.279 (SttbfBkmk), 2.8.10 (Plcfbkf), 2.8.12 (Plcfbkl).
void addBookmarks(TableStream& table, const std::vector<NamedPlace>& bookmarks, std::uint32_t length) {
    if (bookmarks.empty())
        return;
    Bytes names;
    names.u16(0xFFFF).u16(static_cast<std::int64_t>(bookmarks.size())).u16(0);
    Bytes places;
    Bytes links;
    for (std::size_t i = 0; i < bookmarks.size(); ++i) {
        names.u16(static_cast<std::int64_t>(bookmarks[i].name.size())).characters(bookmarks[i].name);
        places.u32(bookmarks[i].place);
        links.u16(static_cast<std::int64_t>(i)).u16(0);
    }
    places.u32(length);
    table.add(TablePart::BookmarkNames, names.str());
    table.add(TablePart::BookmarkStarts, places.str() + links.str());
    table.add(TablePart::BookmarkEnds, places.str());
}

void addNotes(TableStream& table, const DocState& state) {
    const NoteTables footnotes = noteTables(state.footnotes, state.body.length());
    table.add(TablePart::FootnoteReferences, footnotes.references);
    table.add(TablePart::FootnoteTexts, footnotes.texts);
    const NoteTables endnotes = noteTables(state.endnotes, state.body.length());
    table.add(TablePart::EndnoteReferences, endnotes.references);
    table.add(TablePart::EndnoteTexts, endnotes.texts);
    const CommentTables comments = commentTables(state.comments, state.body.length());
    table.add(TablePart::CommentReferences, comments.references);
    table.add(TablePart::CommentTexts, comments.texts);
    table.add(TablePart::CommentAuthors, comments.authors);
    table.add(TablePart::CommentDetails, comments.details);
}

/// Which shape each box of text belongs to, and that none goes on in another. The last entry is for the paragraph mark
/// that belongs to no box. Source: [MS-DOC] 2.8.32 (PlcftxbxTxt), 2.9.101 (FTXBXS), 2.8.31 (PlcfTxbxBkd), 2.9.310
/// (Tbkd).
void addTextBoxes(TableStream& table, const FloatLayer& layer, TablePart texts, TablePart ends) {
    const TextBoxes& boxes = layer.boxes;
    if (boxes.starts.empty())
        return;
    constexpr int kEntrySize = 22;
    constexpr int kBreakSize = 6;
    constexpr int kIsWhole = 0x0800;
    Bytes places;
    for (const std::uint32_t start : boxes.starts)
        places.u32(start);
    places.u32(boxes.text.length() - 1).u32(boxes.text.length());
    Bytes entries;
    Bytes breaks;
    int box = 0;
    for (const FloatingObject& object : layer.objects) {
        if (!object.frame)
            continue;
        entries.u32(1).u32(0).u16(0).u32(0xFFFFFFFF).u32(object.shape).u32(0);
        breaks.u16(box++).u16(0).u16(kIsWhole);
    }
    table.add(texts, places.str() + entries.zeros(kEntrySize).str());
    table.add(ends, places.str() + breaks.zeros(kBreakSize).str());
}

void addFields(TableStream& table, const DocState& state, const RunningTexts& running) {
    table.add(TablePart::BodyFields, fieldTable(state.body));
    table.add(TablePart::RunningTextFields, fieldTable(running.text));
    table.add(TablePart::FootnoteFields, fieldTable(state.footnotes.text));
    table.add(TablePart::CommentFields, fieldTable(state.comments.text));
    table.add(TablePart::EndnoteFields, fieldTable(state.endnotes.text));
    table.add(TablePart::TextBoxFields, fieldTable(state.bodyFloats.boxes.text));
    table.add(TablePart::RunningTextBoxFields, fieldTable(state.runningFloats.boxes.text));
}

/// Adds the properties of the text: pages in the main stream, their index in the table stream.
void addFormatting(DocState& state, const StoryText& text, MainStream& main, TableStream& table) {
    const FormattedPages looks = lookPages(text.looks(), main.place());
    main.add(looks.pages);
    table.add(TablePart::Looks, looks.index);
    const StoreProperties store = [&state](const std::string& properties) {
        const auto place = static_cast<std::uint32_t>(state.data.size());
        state.data.add(Bytes().u16(static_cast<std::int64_t>(properties.size())).raw(properties).str());
        return place;
    };
    const FormattedPages paragraphs = paragraphPages(text.paragraphs(), main.place(), store);
    main.add(paragraphs.pages);
    table.add(TablePart::Paragraphs, paragraphs.index);
}

StoryText wholeText(const DocState& state, const RunningTexts& running) {
    StoryText text = state.body;
    text.append(state.footnotes.text);
    text.append(running.text);
    text.append(state.comments.text);
    text.append(state.endnotes.text);
    text.append(state.bodyFloats.boxes.text);
    text.append(state.runningFloats.boxes.text);
    // Where the body is not all, one more paragraph mark ends the file.
    if (text.length() > state.body.length())
        endPlainParagraph(text);
    return text;
}

/// Adds what floats over the text. Returns the pictures of it, which stand behind everything else in the main stream.
CompoundStream addFloats(DocState& state, const RunningTexts& running, std::uint32_t place, TableStream& table) {
    CompoundStream pictures(u"");
    const FloatingParts floating =
        makeFloatingParts({state.bodyFloats, state.body.length()}, {state.runningFloats, running.text.length()},
                          state.pictureStore, state.pictureNumbers, place, pictures);
    table.add(TablePart::BodyAnchors, floating.bodyAnchors);
    table.add(TablePart::RunningTextAnchors, floating.runningAnchors);
    table.add(TablePart::Shapes, floating.shapes);
    addTextBoxes(table, state.bodyFloats, TablePart::TextBoxes, TablePart::TextBoxBreaks);
    addTextBoxes(table, state.runningFloats, TablePart::RunningTextBoxes, TablePart::RunningTextBoxBreaks);
    return pictures;
}

TextLengths lengthsOf(const DocState& state, const RunningTexts& running) {
    return {state.body.length(),
            state.footnotes.text.length(),
            running.text.length(),
            state.comments.text.length(),
            state.endnotes.text.length(),
            state.bodyFloats.boxes.text.length(),
            state.runningFloats.boxes.text.length()};
}

CompoundStream streamOf(const char16_t* name, std::string bytes) {
    CompoundStream stream(name);
    stream.add(std::move(bytes));
    return stream;
}

} // namespace

void writeDocFile(DocState& state, const std::filesystem::path& target) {
    // First: number 0 is the default font.
    const std::string styles = state.styleNumbers.table(state.fonts);
    const std::vector<WrittenSection> sections = writeBody(state);
    const RunningTexts running = writeRunningTexts(state);
    endBoxes(state.runningFloats);
    reportLostNotes(state);
    const StoryText text = wholeText(state, running);
    const DocLists lists = makeLists(state.document, state.fonts);

    MainStream main(text);
    TableStream table;
    table.add(TablePart::Styles, styles);
    addFormatting(state, text, main, table);
    table.add(TablePart::Sections, writeSections(main, sections));
    const CompoundStream tail = addFloats(state, running, main.position(), table);
    addNotes(table, state);
    table.add(TablePart::RunningTexts, running.table);
    addFields(table, state, running);
    addBookmarks(table, state.bookmarks, text.length());
    table.add(TablePart::Lists, lists.lists);
    table.addTail(lists.levels);
    table.add(TablePart::ListReferences, lists.references);
    table.add(TablePart::Fonts, state.fonts.table());
    table.add(TablePart::DocumentProperties,
              documentProperties(state.document, running.hasEvenPages ? Pages::Facing : Pages::Alike));
    table.add(TablePart::Pieces, pieces(text.length()));

    std::vector<CompoundStream> streams;
    const auto mainSize = main.position() + static_cast<std::uint32_t>(tail.size());
    streams.push_back(streamOf(
        u"WordDocument", fileInformation(lengthsOf(state, running), table, main.textEnd(), mainSize) + main.bytes()));
    streams.back().append(tail);
    streams.push_back(streamOf(u"1Table", table.bytes()));
    streams.push_back(streamOf(u"\u0005SummaryInformation", summaryInformation(state.document.metadata)));
    if (state.data.size() > 0)
        streams.push_back(std::move(state.data));
    writeCompoundFile(target, streams);
}

} // namespace orvane::write::doc
