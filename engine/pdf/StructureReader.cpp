#include "pdf/StructureReader.h"

#include "pdf/TextString.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string_view>

#include <Catalog.h>
#include <Object.h>
#include <PDFDoc.h>
#include <XRef.h>

namespace orvane::pdf {
namespace {

constexpr int kMaxDepth = 128;
constexpr int kMaxRoleSteps = 16;
constexpr int kMaxSpan = 1000;

/// Source: ISO 32000-1, 14.8.4; ISO 32000-2 adds Title, Sub, Em, Strong, Aside, FENote and Hn beyond 6.
constexpr std::array<std::string_view, 56> kStandardTypes{
    "Document",  "Part",    "Art",    "Sect",    "Div",       "BlockQuote", "Caption", "TOC",     "TOCI",  "Index",
    "NonStruct", "Private", "P",      "H",       "H1",        "H2",         "H3",      "H4",      "H5",    "H6",
    "L",         "LI",      "Lbl",    "LBody",   "Table",     "TR",         "TH",      "TD",      "THead", "TBody",
    "TFoot",     "Span",    "Quote",  "Note",    "Reference", "BibEntry",   "Code",    "Link",    "Annot", "Ruby",
    "RB",        "RT",      "RP",     "Warichu", "WT",        "WP",         "Figure",  "Formula", "Form",  "Title",
    "Sub",       "Em",      "Strong", "Aside",   "FENote",    "Artifact",
};

bool isStandardType(std::string_view type) {
    return std::find(kStandardTypes.begin(), kStandardTypes.end(), type) != kStandardTypes.end();
}

/// Walks the tree once, whatever knots it has.
class StructureWalker {
public:
    StructureWalker(::PDFDoc& document, ::Object roleMap)
        : m_document(document)
        , m_roleMap(std::move(roleMap)) {}

    /// Reads what stands under a /K entry: one kid or an array of them.
    void readKids(const ::Object& parent, StructureElement& element, int page, int depth) {
        if (depth > kMaxDepth)
            return;
        const ::Object& kids = parent.dictLookupNF("K");
        const ::Object resolved = kids.fetch(m_document.getXRef());
        if (!resolved.isArray()) {
            readKid(kids, element, page, depth);
            return;
        }
        for (int i = 0; i < resolved.arrayGetLength(); ++i)
            readKid(resolved.arrayGetNF(i), element, page, depth);
    }

private:
    void readKid(const ::Object& kid, StructureElement& parent, int page, int depth) {
        if (kid.isRef() && !m_seen.insert(kid.getRefNum()).second)
            return;
        const ::Object object = kid.fetch(m_document.getXRef());
        if (object.isInt()) {
            parent.content.push_back({page, object.getInt()});
            return;
        }
        if (!object.isDict())
            return;
        const int ownPage = pageOf(object, page);
        const ::Object type = object.dictLookup("Type");
        if (type.isName("MCR")) {
            const ::Object mcid = object.dictLookup("MCID");
            if (mcid.isInt())
                parent.content.push_back({ownPage, mcid.getInt()});
        } else if (!type.isName("OBJR")) {
            parent.children.push_back(readElement(object, ownPage, depth));
        }
    }

    StructureElement readElement(const ::Object& object, int page, int depth) {
        StructureElement element;
        const ::Object type = object.dictLookup("S");
        element.type = type.isName() ? standardTypeOf(type.getName()) : std::string();
        element.title = textFromPdf(object.dictLookup("T"));
        element.alternateText = textFromPdf(object.dictLookup("Alt"));
        element.actualText = textFromPdf(object.dictLookup("ActualText"));
        element.language = textFromPdf(object.dictLookup("Lang"));
        element.isHeaderCell = element.type == "TH";
        readAttributes(object.dictLookup("A"), element);
        readKids(object, element, page, depth + 1);
        return element;
    }

    /// Cell spans of a table. Source: ISO 32000-1, 14.8.5.7.
    void readAttributes(const ::Object& attributes, StructureElement& element) {
        if (attributes.isArray()) {
            for (int i = 0; i < attributes.arrayGetLength(); ++i)
                readAttributes(attributes.arrayGet(i), element);
            return;
        }
        if (!attributes.isDict())
            return;
        const auto spanOf = [&](const char* key, int fallback) {
            const ::Object value = attributes.dictLookup(key);
            return value.isInt() && value.getInt() >= 1 && value.getInt() <= kMaxSpan ? value.getInt() : fallback;
        };
        element.rowSpan = spanOf("RowSpan", element.rowSpan);
        element.columnSpan = spanOf("ColSpan", element.columnSpan);
    }

    std::string standardTypeOf(std::string type) const {
        for (int step = 0; step < kMaxRoleSteps && m_roleMap.isDict() && !isStandardType(type); ++step) {
            const ::Object role = m_roleMap.dictLookup(type.c_str());
            if (!role.isName())
                break;
            type = role.getName();
        }
        return type;
    }

    int pageOf(const ::Object& object, int inherited) {
        const ::Object& reference = object.dictLookupNF("Pg");
        if (!reference.isRef())
            return inherited;
        const auto [entry, isNew] = m_pages.try_emplace(reference.getRefNum(), 0);
        if (isNew)
            entry->second = m_document.findPage(reference.getRef());
        return entry->second;
    }

    ::PDFDoc& m_document;
    ::Object m_roleMap;
    std::set<int> m_seen;
    std::map<int, int> m_pages; ///< object number to page number
};

} // namespace

std::vector<StructureElement> readStructureTree(::PDFDoc& document) {
    const ::Object catalog = document.getXRef()->getCatalog();
    if (!catalog.isDict())
        return {};
    const ::Object root = catalog.dictLookup("StructTreeRoot");
    if (!root.isDict())
        return {};
    StructureElement top;
    StructureWalker(document, root.dictLookup("RoleMap")).readKids(root, top, 0, 0);
    return std::move(top.children);
}

} // namespace orvane::pdf
