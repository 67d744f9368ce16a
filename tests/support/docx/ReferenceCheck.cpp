#include "support/docx/ReferenceCheck.h"

#include <set>

namespace orvane::tests {
namespace {

class ReferenceCheck {
public:
    ReferenceCheck(const XmlParts& parts, std::vector<std::string>& faults)
        : m_parts(parts)
        , m_faults(faults) {}

    void run() {
        checkAgainst("word/styles.xml", "//w:style/@w:styleId", "//w:pStyle/@w:val|//w:basedOn/@w:val|//w:next/@w:val");
        checkAgainst("word/numbering.xml", "//w:num/@w:numId", "//w:numPr/w:numId/@w:val");
        checkAgainst("word/numbering.xml", "//w:abstractNum/@w:abstractNumId", "//w:num/w:abstractNumId/@w:val");
        checkAgainst("word/footnotes.xml", "/w:footnotes/w:footnote/@w:id",
                     "//w:footnoteReference/@w:id|//w:footnotePr/w:footnote/@w:id");
        checkAgainst("word/endnotes.xml", "/w:endnotes/w:endnote/@w:id",
                     "//w:endnoteReference/@w:id|//w:endnotePr/w:endnote/@w:id");
        checkAgainst("word/comments.xml", "//w:comment/@w:id", "//w:commentReference/@w:id");
        checkOnce("//w:bookmarkStart/@w:id");
        checkOnce("//w:bookmarkStart/@w:name");
        checkOnce("//w:sdtPr/w:id/@w:val");
        checkOnce("//w:footnoteReference/@w:id");
        checkOnce("//w:commentReference/@w:id");
        for (const auto& [name, xml] : m_parts) {
            checkDrawingIds(name, xml);
            checkBookmarks(name, xml);
            checkFields(name, xml);
            for (const pugi::xpath_node& table : xml.select_nodes("//w:tbl"))
                checkGrid(name, table.node());
        }
    }

private:
    using Values = std::vector<std::string>;

    static Values valuesOf(const pugi::xml_node& node, const char* xpath) {
        Values values;
        for (const pugi::xpath_node& found : node.select_nodes(xpath))
            values.push_back(found.attribute().value());
        return values;
    }

    void fault(const std::string& part, const std::string& message) { m_faults.push_back(part + ": " + message); }

    /// All that `references` select in any part is among what `ids` select in the part `home`, where each is once.
    void checkAgainst(const std::string& home, const char* ids, const char* references) {
        std::set<std::string> known;
        if (const auto part = m_parts.find(home); part != m_parts.end())
            for (const std::string& id : valuesOf(part->second, ids))
                if (!known.insert(id).second)
                    fault(home, "id " + id + " stands twice");
        for (const auto& [name, xml] : m_parts)
            for (const std::string& id : valuesOf(xml, references))
                if (known.count(id) == 0)
                    fault(name, "refers to " + id + ", which is not in " + home);
    }

    void checkOnce(const char* xpath) {
        std::set<std::string> seen;
        for (const auto& [name, xml] : m_parts)
            for (const std::string& value : valuesOf(xml, xpath))
                if (!seen.insert(value).second)
                    fault(name, std::string(xpath) + " " + value + " stands twice");
    }

    void checkDrawingIds(const std::string& name, const pugi::xml_node& xml) {
        std::set<std::string> seen;
        for (const std::string& id : valuesOf(xml, "//wp:docPr/@id|//wps:cNvPr/@id"))
            if (id == "0" || !seen.insert(id).second)
                fault(name, "drawing id " + id + " stands twice");
    }

    void checkBookmarks(const std::string& name, const pugi::xml_node& xml) {
        if (valuesOf(xml, "//w:bookmarkStart/@w:id") != valuesOf(xml, "//w:bookmarkEnd/@w:id"))
            fault(name, "bookmarks do not end as they begin");
    }

    /// Fields lie within each other, each with its three marks in order.
    void checkFields(const std::string& name, const pugi::xml_node& xml) {
        std::vector<bool> isSeparated; // by open field
        for (const std::string& mark : valuesOf(xml, "//w:fldChar/@w:fldCharType")) {
            const bool isOpen = !isSeparated.empty();
            if (mark == "begin")
                isSeparated.push_back(false);
            else if (!isOpen || (mark == "separate") == isSeparated.back())
                return fault(name, "a field's marks are out of order");
            else if (mark == "separate")
                isSeparated.back() = true;
            else
                isSeparated.pop_back();
        }
        if (!isSeparated.empty())
            fault(name, "a field does not end");
    }

    static int number(const pugi::xml_node& node, const char* path, int otherwise) {
        return node.select_node(path).attribute().as_int(otherwise);
    }

    /// Each row fills the grid, and a cell that goes on from above has one above it that begins and ends where it does.
    void checkGrid(const std::string& name, const pugi::xml_node& table) {
        const auto columns = static_cast<int>(table.select_nodes("w:tblGrid/w:gridCol").size());
        std::set<std::pair<int, int>> mergeable;
        for (const pugi::xml_node& row : table.children("w:tr")) {
            int column = number(row, "w:trPr/w:gridBefore/@w:val", 0);
            std::set<std::pair<int, int>> merging;
            for (const pugi::xml_node& cell : row.children("w:tc")) {
                const int span = number(cell, "w:tcPr/w:gridSpan/@w:val", 1);
                const pugi::xml_node merge = cell.child("w:tcPr").child("w:vMerge");
                const bool continues = merge && merge.attribute("w:val").empty();
                if (continues && mergeable.count({column, span}) == 0)
                    fault(name, "a cell goes on from a cell that is not there");
                if (merge)
                    merging.insert({column, span});
                column += span;
            }
            if (column + number(row, "w:trPr/w:gridAfter/@w:val", 0) != columns)
                fault(name, "a row does not fill the grid");
            mergeable = std::move(merging);
        }
    }

    const XmlParts& m_parts;
    std::vector<std::string>& m_faults;
};

} // namespace

void checkReferences(const XmlParts& parts, std::vector<std::string>& faults) {
    ReferenceCheck(parts, faults).run();
}

} // namespace orvane::tests
