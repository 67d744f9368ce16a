#include "write/docx/RunXml.h"

#include "write/Languages.h"
#include "write/MarkerColors.h"
#include "write/docx/BorderXml.h"

#include <algorithm>
#include <array>

namespace orvane::write::docx {
namespace {

using document::RunProperties;
using document::UnderlineKind;
using document::VerticalPosition;

// What a reader accepts. Source: ECMA-376 part 1, 17.3.2.38, 17.3.2.43, 17.3.2.35.
constexpr int kLargestSize = 3276;
constexpr int kNarrowest = 1;
constexpr int kWidest = 600;
constexpr int kMostSpacing = 31680;

/// The names of markerColor(). Source: ECMA-376 part 1, 17.18.40.
constexpr std::array<const char*, 17> kMarkerNames{
    nullptr,    "black",    "blue",      "cyan",        "green",   "magenta",    "red",      "yellow",    "white",
    "darkBlue", "darkCyan", "darkGreen", "darkMagenta", "darkRed", "darkYellow", "darkGray", "lightGray",
};

const char* markerName(Color color) {
    return kMarkerNames[static_cast<std::size_t>(markerColor(color))];
}

const char* nameOf(UnderlineKind kind) {
    switch (kind) {
    case UnderlineKind::None:
        return "none";
    case UnderlineKind::Single:
        return "single";
    case UnderlineKind::Double:
        return "double";
    case UnderlineKind::Thick:
        return "thick";
    case UnderlineKind::Dotted:
        return "dotted";
    case UnderlineKind::Dashed:
        return "dash";
    case UnderlineKind::Wavy:
        return "wave";
    }
    return "single";
}

const char* nameOf(VerticalPosition position) {
    switch (position) {
    case VerticalPosition::Baseline:
        return "baseline";
    case VerticalPosition::Superscript:
        return "superscript";
    case VerticalPosition::Subscript:
        return "subscript";
    }
    return "baseline";
}

/// Which of a run's three languages a language tag stands for.
std::string_view languageAttribute(std::string_view language) {
    switch (scriptClassOf(language)) {
    case ScriptClass::Simple:
        return "w:val";
    case ScriptClass::EastAsian:
        return "w:eastAsia";
    case ScriptClass::Complex:
        return "w:bidi";
    }
    return "w:val";
}

/// Writes one w:rPr; each member writes the children of one concern, called in the order that the format asks for.
class RunPropertiesWriter {
public:
    RunPropertiesWriter(XmlWriter& xml, const RunProperties& value, const RunProperties* base, ScriptUse scripts)
        : m_xml(xml)
        , m_value(value)
        , m_base(base)
        , m_hasComplex(!base || scripts == ScriptUse::Complex || value.isRightToLeft) {}

    void write() {
        writeFonts();
        writeSwitch("w:b", "w:bCs", &RunProperties::isBold);
        writeSwitch("w:i", "w:iCs", &RunProperties::isItalic);
        writeSwitch("w:caps", &RunProperties::isAllCaps);
        writeSwitch("w:smallCaps", &RunProperties::isSmallCaps);
        writeSwitch("w:strike", &RunProperties::isStruck);
        writeSwitch("w:outline", &RunProperties::isOutlined);
        writeSwitch("w:vanish", &RunProperties::isHidden);
        writeColor();
        writeSpacing();
        writeSize();
        writeGround();
        writeUnderline();
        writeVerticalPosition();
        writeSwitch("w:rtl", &RunProperties::isRightToLeft);
        writeLanguage();
    }

private:
    template<typename Member>
    bool differs(Member RunProperties::*member) const {
        return !m_base || m_value.*member != m_base->*member;
    }

    void writeFonts() {
        const auto orLatin = [](const std::string& family, const RunProperties& of) {
            return family.empty() ? std::string_view(of.fontFamily) : std::string_view(family);
        };
        const auto names = [&](const RunProperties& of) {
            return std::array<std::string_view, 3>{of.fontFamily, orLatin(of.eastAsianFontFamily, of),
                                                   orLatin(of.complexFontFamily, of)};
        };
        const auto wanted = names(m_value);
        const auto present = m_base ? names(*m_base) : std::array<std::string_view, 3>{};
        const auto isNew = [&](std::size_t i) { return !wanted[i].empty() && wanted[i] != present[i]; };

        const XmlElement fonts(m_xml, "w:rFonts", EmptyElement::Omit);
        if (m_value.isEastAsian)
            m_xml.attribute({"w:hint", "eastAsia"});
        if (isNew(0)) {
            m_xml.attribute({"w:ascii", wanted[0]});
            m_xml.attribute({"w:hAnsi", wanted[0]});
        }
        if (isNew(1))
            m_xml.attribute({"w:eastAsia", wanted[1]});
        if (isNew(2))
            m_xml.attribute({"w:cs", wanted[2]});
    }

    void writeSwitch(std::string_view element, bool RunProperties::*member) {
        if (!differs(member))
            return;
        const XmlElement item(m_xml, element);
        if (!(m_value.*member))
            m_xml.attribute({"w:val", 0});
    }

    void writeSwitch(std::string_view element, std::string_view complexElement, bool RunProperties::*member) {
        writeSwitch(element, member);
        if (m_hasComplex)
            writeSwitch(complexElement, member);
    }

    void writeColor() {
        if (differs(&RunProperties::color))
            m_xml.leaf("w:color", {{"w:val", toHex(m_value.color)}});
    }

    void writeSpacing() {
        if (differs(&RunProperties::characterSpacing))
            m_xml.leaf("w:spacing",
                       {{"w:val", std::clamp(m_value.characterSpacing.value, -kMostSpacing, kMostSpacing)}});
        if (differs(&RunProperties::widthPercent))
            m_xml.leaf("w:w", {{"w:val", std::clamp(m_value.widthPercent, kNarrowest, kWidest)}});
        if (differs(&RunProperties::raise))
            m_xml.leaf("w:position", {{"w:val", halfPointsFromPoints(pointsFromTwips(m_value.raise)).value}});
    }

    void writeSize() {
        if (!differs(&RunProperties::size))
            return;
        const int size = std::clamp(m_value.size.value, 1, kLargestSize);
        m_xml.leaf("w:sz", {{"w:val", size}});
        if (m_hasComplex)
            m_xml.leaf("w:szCs", {{"w:val", size}});
    }

    void writeGround() {
        if (!differs(&RunProperties::highlight))
            return;
        const auto& now = m_value.highlight;
        const auto before = m_base ? m_base->highlight : std::nullopt;
        const char* marker = now ? markerName(*now) : nullptr;
        const bool hadMarker = before && markerName(*before);
        if (marker)
            m_xml.leaf("w:highlight", {{"w:val", marker}});
        else if (hadMarker)
            m_xml.leaf("w:highlight", {{"w:val", "none"}});
        m_isGroundDue = (now && !marker) || (before && !hadMarker);
        m_ground = marker ? std::nullopt : now;
    }

    void writeUnderline() {
        if (differs(&RunProperties::underline))
            m_xml.leaf("w:u", {{"w:val", nameOf(m_value.underline)}});
        // The ground of a colour that no marker has follows the underline; the format asks for this order.
        if (m_isGroundDue)
            writeShading(m_xml, m_ground);
    }

    void writeVerticalPosition() {
        if (differs(&RunProperties::verticalPosition))
            m_xml.leaf("w:vertAlign", {{"w:val", nameOf(m_value.verticalPosition)}});
    }

    void writeLanguage() {
        if (!m_value.language.empty() && differs(&RunProperties::language))
            m_xml.leaf("w:lang", {{languageAttribute(m_value.language), m_value.language}});
    }

    XmlWriter& m_xml;
    const RunProperties& m_value;
    const RunProperties* m_base;
    bool m_hasComplex;
    bool m_isGroundDue = false;
    std::optional<Color> m_ground;
};

} // namespace

void writeRunProperties(XmlWriter& xml, const RunProperties& properties, const RunProperties* base, ScriptUse scripts) {
    const XmlElement rPr(xml, "w:rPr", EmptyElement::Omit);
    RunPropertiesWriter(xml, properties, base, scripts).write();
}

} // namespace orvane::write::docx
