#include "read/doc/DocDump.h"

#include "read/doc/ArtDump.h"
#include "read/doc/StructureDump.h"
#include "read/doc/SummaryDump.h"
#include "read/doc/TextDump.h"

#include <utility>

#include <fmt/format.h>

namespace orvane::read::doc {
namespace {

std::string streamsText(const WordFile& file) {
    std::string text;
    for (const auto& [name, bytes] : file.streams()) {
        const bool isMarked = !name.empty() && name.front() < ' ';
        text += fmt::format("  {}{}: {} bytes\n", isMarked ? fmt::format("<{:02x}>", name.front()) : "",
                            isMarked ? name.substr(1) : name, bytes.size());
    }
    return text;
}

std::string informationText(const WordFile& file) {
    std::string text = fmt::format("  edition {:04x}, table stream {}\n", file.edition(), file.tableName());
    for (const TextPart part : kTextParts)
        if (file.length(part) > 0)
            text += fmt::format("  {}: {} characters\n", nameOf(part), file.length(part));
    return text;
}

std::string piecesText(const WordFile& file) {
    std::string text;
    for (const Piece& piece : file.pieces())
        text += fmt::format("  {} to {}: {} at {}\n", piece.start, piece.end,
                            piece.isUnicode ? "UTF-16" : "code page 1252", piece.place);
    return text;
}

/// Adds structures one after the other, and goes on behind one that is damaged.
class Lister {
public:
    template<typename Describe>
    void add(std::string_view title, Describe describe) {
        std::string content;
        try {
            content = describe();
        } catch (const Damage& damage) {
            content = fmt::format("  damaged: {}\n", damage.what());
            if (m_dump.damage.empty())
                m_dump.damage = fmt::format("{}: {}", title, damage.what());
        }
        if (!content.empty())
            m_dump.text += fmt::format("{}\n{}", title, content);
    }

    Dump take() { return std::move(m_dump); }

private:
    Dump m_dump;
};

} // namespace

Dump dumpDoc(std::string_view bytes) {
    try {
        const WordFile file(bytes);
        Lister lister;
        lister.add("streams", [&] { return streamsText(file); });
        lister.add("file information", [&] { return informationText(file); });
        lister.add("pieces", [&] { return piecesText(file); });
        lister.add("styles", [&] { return dumpStyles(file); });
        lister.add("fonts", [&] { return dumpFonts(file); });
        lister.add("lists", [&] { return dumpLists(file); });
        lister.add("sections", [&] { return dumpSections(file); });
        for (const TextPart part : kTextParts)
            lister.add(fmt::format("text: {}", nameOf(part)), [&] { return dumpText(file, part); });
        lister.add("running texts", [&] { return dumpRunningTexts(file); });
        lister.add("fields", [&] { return dumpFields(file); });
        lister.add("bookmarks", [&] { return dumpBookmarks(file); });
        lister.add("notes", [&] { return dumpNotes(file); });
        lister.add("comments", [&] { return dumpComments(file); });
        lister.add("text boxes", [&] { return dumpTextBoxes(file); });
        lister.add("anchors", [&] { return dumpAnchors(file); });
        lister.add("shapes", [&] { return dumpShapes(file); });
        lister.add("pictures", [&] { return dumpPictures(file); });
        lister.add("document information", [&] { return dumpSummary(file.stream("\x05SummaryInformation")); });
        return lister.take();
    } catch (const Damage& found) {
        return {{}, found.what()};
    }
}

} // namespace orvane::read::doc
