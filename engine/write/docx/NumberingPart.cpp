#include "write/docx/NumberingPart.h"

#include "write/ListLevels.h"
#include "write/docx/FontTablePart.h"
#include "write/docx/Justification.h"
#include "write/docx/RunXml.h"
#include "write/docx/XmlPart.h"

#include <algorithm>
#include <map>

#include <fmt/format.h>

namespace orvane::write::docx {
namespace {

using namespace document;

void writeLevelIndents(XmlWriter& xml, const NumberingLevel& level) {
    const XmlElement pPr(xml, "w:pPr");
    if (level.textStart) {
        const XmlElement tabs(xml, "w:tabs");
        xml.leaf("w:tab", {{"w:val", "num"}, {"w:pos", level.textStart->value}});
    }
    const XmlElement ind(xml, "w:ind", {{"w:left", level.indentStart.value}});
    if (level.firstLine < Twips(0))
        xml.attribute({"w:hanging", -level.firstLine.value});
    else
        xml.attribute({"w:firstLine", level.firstLine.value});
}

void writeLevel(DocumentState& state, XmlWriter& xml, const NumberingLevel& level, std::size_t index) {
    const XmlElement lvl(xml, "w:lvl", {{"w:ilvl", index}});
    xml.leaf("w:start", {{"w:val", std::max(0, level.start)}});
    xml.leaf("w:numFmt", {{"w:val", numberFormatName(level.format)}});
    if (level.isLegal)
        xml.leaf("w:isLgl");
    if (!level.isTabBehindLabel())
        xml.leaf("w:suff", {{"w:val", "space"}});
    xml.leaf("w:lvlText", {{"w:val", level.text}});
    xml.leaf("w:lvlJc", {{"w:val", justificationOf(level.alignment)}});
    writeLevelIndents(xml, level);
    if (level.run) {
        collectFonts(state, *level.run);
        writeRunProperties(xml, *level.run, nullptr, ScriptUse::Complex);
    }
}

std::string levelsXml(DocumentState& state, const Numbering& numbering) {
    std::string text;
    XmlWriter xml([&text](std::string_view piece) { text += piece; });
    xml.leaf("w:multiLevelType", {{"w:val", numbering.levels.size() > 1 ? "multilevel" : "singleLevel"}});
    for (std::size_t i = 0; i < std::min(numbering.levels.size(), kMostListLevels); ++i)
        writeLevel(state, xml, numbering.levels[i], i);
    xml.finish();
    return text;
}

/// The definitions that a document's lists share.
struct Definitions {
    std::vector<std::string> levels;      ///< by definition
    std::vector<std::size_t> ofNumbering; ///< by index into Document::numberings
    std::vector<bool> isRepeated;         ///< whether an earlier list has the same definition
};

Definitions collectDefinitions(DocumentState& state) {
    Definitions definitions;
    std::map<std::string, std::size_t> known;
    for (const Numbering& numbering : state.document.numberings) {
        const auto [found, isNew] = known.try_emplace(levelsXml(state, numbering), known.size());
        if (isNew)
            definitions.levels.push_back(found->first);
        definitions.ofNumbering.push_back(found->second);
        definitions.isRepeated.push_back(!isNew);
    }
    return definitions;
}

void writeList(XmlWriter& xml, std::size_t index, const Numbering& numbering, const Definitions& definitions) {
    const XmlElement num(xml, "w:num", {{"w:numId", index + 1}});
    xml.leaf("w:abstractNumId", {{"w:val", definitions.ofNumbering[index]}});
    if (!definitions.isRepeated[index])
        return;
    // Lists of one definition count on; this one has to start anew.
    for (std::size_t level = 0; level < std::min(numbering.levels.size(), kMostListLevels); ++level) {
        const XmlElement override(xml, "w:lvlOverride", {{"w:ilvl", level}});
        xml.leaf("w:startOverride", {{"w:val", std::max(0, numbering.levels[level].start)}});
    }
}

} // namespace

const char* numberFormatName(NumberFormat format) {
    switch (format) {
    case NumberFormat::Decimal:
        return "decimal";
    case NumberFormat::LowerRoman:
        return "lowerRoman";
    case NumberFormat::UpperRoman:
        return "upperRoman";
    case NumberFormat::LowerLetter:
        return "lowerLetter";
    case NumberFormat::UpperLetter:
        return "upperLetter";
    case NumberFormat::Bullet:
        return "bullet";
    case NumberFormat::None:
        return "none";
    case NumberFormat::DecimalZero:
        return "decimalZero";
    case NumberFormat::Symbols:
        return "chicago";
    }
    return "decimal";
}

void addNumberingPart(DocumentState& state, Relationships& relationships) {
    const auto& numberings = state.document.numberings;
    if (numberings.empty())
        return;
    const Definitions definitions = collectDefinitions(state);
    XmlPart part("word/numbering.xml", "numbering");
    XmlWriter& xml = part.xml();
    startRoot(xml, "w:numbering");
    for (std::size_t i = 0; i < definitions.levels.size(); ++i) {
        const XmlElement definition(xml, "w:abstractNum", {{"w:abstractNumId", i}});
        // Word processors take lists with one such number for the same when text is pasted.
        xml.leaf("w:nsid", {{"w:val", fmt::format("{:08X}", i + 1)}});
        xml.raw(definitions.levels[i]);
    }
    for (std::size_t i = 0; i < numberings.size(); ++i)
        writeList(xml, i, numberings[i], definitions);
    xml.end();
    part.addTo(state.package);
    relationships.add("numbering", "numbering.xml");
}

} // namespace orvane::write::docx
