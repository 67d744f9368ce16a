#include "write/docx/ParagraphPropertiesXml.h"

#include "write/ParagraphParts.h"
#include "write/docx/BorderXml.h"

#include <algorithm>
#include <cmath>

namespace orvane::write::docx {
namespace {

using namespace document;

/// Numbers of paragraph properties beyond a page's largest size are refused by readers.
constexpr int kMostTwips = 31680;
/// What w:outlineLvl says of body text. Source: ECMA-376 part 1, 17.3.1.20.
constexpr int kBodyTextLevel = 9;

int limited(Twips value) {
    return std::clamp(value.value, -kMostTwips, kMostTwips);
}

const char* nameOf(Alignment alignment) {
    switch (alignment) {
    // In the transitional format "left" is the side where reading starts, in right-to-left paragraphs too.
    case Alignment::Start:
        return "left";
    case Alignment::Center:
        return "center";
    case Alignment::End:
        return "right";
    case Alignment::Justified:
        return "both";
    case Alignment::Distributed:
        return "distribute";
    }
    return "left";
}

const char* nameOf(TabAlignment alignment) {
    switch (alignment) {
    case TabAlignment::Start:
        return "left";
    case TabAlignment::Center:
        return "center";
    case TabAlignment::End:
        return "right";
    case TabAlignment::Decimal:
        return "decimal";
    }
    return "left";
}

const char* nameOf(TabLeader leader) {
    switch (leader) {
    case TabLeader::None:
        return "none";
    case TabLeader::Dots:
        return "dot";
    case TabLeader::Hyphens:
        return "hyphen";
    case TabLeader::Underscore:
        return "underscore";
    case TabLeader::MiddleDots:
        return "middleDot";
    }
    return "none";
}

/// Writes the children of one w:pPr; each member writes those of one concern, called in the order that the format asks
/// for.
class ParagraphPropertiesWriter {
public:
    ParagraphPropertiesWriter(XmlWriter& xml, const ParagraphProperties& value, const ParagraphProperties& base)
        : m_xml(xml)
        , m_value(value)
        , m_base(base) {}

    void write(const ParagraphIdentity& identity) {
        if (!identity.style.empty())
            m_xml.leaf("w:pStyle", {{"w:val", identity.style}});
        writeSwitch("w:keepNext", &ParagraphProperties::keepWithNext);
        writeSwitch("w:keepLines", &ParagraphProperties::keepLinesTogether);
        writeSwitch("w:pageBreakBefore", &ParagraphProperties::pageBreakBefore);
        if (identity.dropCap)
            writeDropCap(*identity.dropCap);
        writeSwitch("w:widowControl", &ParagraphProperties::hasWidowControl);
        if (identity.list)
            writeListMembership(*identity.list);
        writeBorders();
        if (differs(&ParagraphProperties::shading))
            writeShading(m_xml, m_value.shading);
        writeTabs();
        writeSwitch("w:bidi", &ParagraphProperties::isRightToLeft);
        writeSpacing();
        writeIndents(identity.list.has_value());
        writeSwitch("w:contextualSpacing", &ParagraphProperties::isContextualSpacing);
        if (differs(&ParagraphProperties::alignment))
            m_xml.leaf("w:jc", {{"w:val", nameOf(m_value.alignment)}});
        if (differs(&ParagraphProperties::outlineLevel))
            m_xml.leaf("w:outlineLvl",
                       {{"w:val", m_value.outlineLevel > 0 ? std::min(m_value.outlineLevel, 9) - 1 : kBodyTextLevel}});
    }

private:
    template<typename Member>
    bool differs(Member ParagraphProperties::*member) const {
        return m_value.*member != m_base.*member;
    }

    void writeSwitch(std::string_view element, bool ParagraphProperties::*member) {
        if (!differs(member))
            return;
        const XmlElement item(m_xml, element);
        if (!(m_value.*member))
            m_xml.attribute({"w:val", 0});
    }

    /// Source: ECMA-376 part 1, 17.3.1.11 (framePr).
    void writeDropCap(const DropCap& dropCap) {
        const bool isInMargin = dropCap.kind == DropCapKind::InMargin;
        m_xml.leaf("w:framePr", {{"w:dropCap", isInMargin ? "margin" : "drop"},
                                 {"w:lines", std::clamp(dropCap.lines, 1, kMostDropCapLines)},
                                 {"w:hSpace", limited(dropCap.distance)},
                                 {"w:wrap", "around"},
                                 {"w:vAnchor", "text"},
                                 {"w:hAnchor", isInMargin ? "page" : "text"}});
    }

    void writeListMembership(const ListPlace& list) {
        const XmlElement numPr(m_xml, "w:numPr");
        m_xml.leaf("w:ilvl", {{"w:val", list.level}});
        m_xml.leaf("w:numId", {{"w:val", list.id}});
    }

    void writeBorders() {
        const XmlElement pBdr(m_xml, "w:pBdr", EmptyElement::Omit);
        const auto side = [this](std::string_view element, const Border& now, const Border& before) {
            if (now != before && (now.kind != BorderKind::None || before.kind != BorderKind::None))
                writeBorder(m_xml, element, now);
        };
        side("w:top", m_value.borders.top, m_base.borders.top);
        side("w:left", m_value.borders.left, m_base.borders.left);
        side("w:bottom", m_value.borders.bottom, m_base.borders.bottom);
        side("w:right", m_value.borders.right, m_base.borders.right);
        side("w:between", m_value.betweenBorder, m_base.betweenBorder);
    }

    /// A style's tab stops hold beside a paragraph's own, so those that are not wanted are cleared.
    void writeTabs() {
        if (!differs(&ParagraphProperties::tabs))
            return;
        const XmlElement tabs(m_xml, "w:tabs", EmptyElement::Omit);
        for (const TabStop& stop : m_base.tabs)
            if (std::none_of(m_value.tabs.begin(), m_value.tabs.end(),
                             [&](const TabStop& own) { return own.position == stop.position; }))
                m_xml.leaf("w:tab", {{"w:val", "clear"}, {"w:pos", limited(stop.position)}});
        for (const TabStop& stop : m_value.tabs)
            if (std::find(m_base.tabs.begin(), m_base.tabs.end(), stop) == m_base.tabs.end())
                writeTab(stop);
    }

    void writeTab(const TabStop& stop) {
        const XmlElement tab(m_xml, "w:tab", {{"w:val", nameOf(stop.alignment)}});
        if (stop.leader != TabLeader::None)
            m_xml.attribute({"w:leader", nameOf(stop.leader)});
        m_xml.attribute({"w:pos", limited(stop.position)});
    }

    void writeSpacing() {
        const XmlElement spacing(m_xml, "w:spacing", EmptyElement::Omit);
        if (differs(&ParagraphProperties::spaceBefore))
            m_xml.attribute({"w:before", std::clamp(m_value.spaceBefore.value, 0, kMostTwips)});
        if (differs(&ParagraphProperties::spaceAfter))
            m_xml.attribute({"w:after", std::clamp(m_value.spaceAfter.value, 0, kMostTwips)});
        if (differs(&ParagraphProperties::lineSpacing))
            writeLineSpacing(m_value.lineSpacing);
    }

    void writeLineSpacing(const LineSpacing& spacing) {
        if (spacing.rule == LineSpacingRule::Multiple) {
            m_xml.attribute({"w:line", std::clamp<long>(std::lround(spacing.multiple * 240), 1, kMostTwips)});
            m_xml.attribute({"w:lineRule", "auto"});
            return;
        }
        m_xml.attribute({"w:line", std::clamp(spacing.height.value, 1, kMostTwips)});
        m_xml.attribute({"w:lineRule", spacing.rule == LineSpacingRule::Exact ? "exact" : "atLeast"});
    }

    void writeIndents(bool isListItem) {
        const XmlElement ind(m_xml, "w:ind", EmptyElement::Omit);
        // LibreOffice may take the start of another style where only the end is given, as in tables of footers.
        const bool hasBoth = !isListItem && differs(&ParagraphProperties::indentEnd);
        if (hasBoth || differs(&ParagraphProperties::indentStart))
            m_xml.attribute({"w:left", limited(m_value.indentStart)});
        if (differs(&ParagraphProperties::indentEnd))
            m_xml.attribute({"w:right", limited(m_value.indentEnd)});
        if (!differs(&ParagraphProperties::firstLine))
            return;
        if (m_value.firstLine < Twips(0))
            m_xml.attribute({"w:hanging", limited(-m_value.firstLine)});
        else
            m_xml.attribute({"w:firstLine", limited(m_value.firstLine)});
    }

    XmlWriter& m_xml;
    const ParagraphProperties& m_value;
    const ParagraphProperties& m_base;
};

} // namespace

void writeParagraphProperties(XmlWriter& xml, const ParagraphProperties& properties, const ParagraphProperties& base,
                              const ParagraphIdentity& identity) {
    ParagraphPropertiesWriter(xml, properties, base).write(identity);
}

} // namespace orvane::write::docx
