#include "write/doc/ParagraphPropertiesDoc.h"

#include "write/LineParts.h"
#include "write/doc/BorderDoc.h"

#include <algorithm>

namespace orvane::write::doc {
namespace {

using namespace document;

/// Lengths beyond a page's largest size are refused by readers.
constexpr int kMostTwips = 31680;
constexpr int kBodyTextLevel = 9;
/// Source: [MS-DOC] 2.9.182 (PChgTabsPapxOperand): at most 64 stops.
constexpr std::size_t kMostTabs = 64;

int limited(Twips value) {
    return std::clamp(value.value, -kMostTwips, kMostTwips);
}

/// Source: [MS-DOC] 2.6.2 (sprmPJc).
int alignmentNumber(Alignment alignment) {
    switch (alignment) {
    case Alignment::Start:
        return 0;
    case Alignment::Center:
        return 1;
    case Alignment::End:
        return 2;
    case Alignment::Justified:
        return 3;
    case Alignment::Distributed:
        return 4;
    }
    return 0;
}

/// The same for the property that means the sides of the page.
int sideNumber(Alignment alignment, bool isRightToLeft) {
    if (isRightToLeft && alignment == Alignment::Start)
        return alignmentNumber(Alignment::End);
    if (isRightToLeft && alignment == Alignment::End)
        return alignmentNumber(Alignment::Start);
    return alignmentNumber(alignment);
}

/// Source: [MS-DOC] 2.9.304 (TBD).
int tabNumber(const TabStop& stop) {
    const auto alignment = [&stop] {
        switch (stop.alignment) {
        case TabAlignment::Start:
            return 0;
        case TabAlignment::Center:
            return 1;
        case TabAlignment::End:
            return 2;
        case TabAlignment::Decimal:
            return 3;
        }
        return 0;
    }();
    const auto leader = [&stop] {
        switch (stop.leader) {
        case TabLeader::None:
            return 0;
        case TabLeader::Dots:
            return 1;
        case TabLeader::Hyphens:
            return 2;
        case TabLeader::Underscore:
            return 3;
        case TabLeader::MiddleDots:
            return 5;
        }
        return 0;
    }();
    return alignment | leader << 3;
}

/// Adds the properties of one paragraph; each member adds those of one concern.
class ParagraphAdder {
public:
    ParagraphAdder(PropertyList& list, const ParagraphProperties& value, const ParagraphProperties& base)
        : m_list(list)
        , m_value(value)
        , m_base(base) {}

    void add() {
        addSwitch(sprm::kPFBiDi, &ParagraphProperties::isRightToLeft);
        if (differs(&ParagraphProperties::alignment) || differs(&ParagraphProperties::isRightToLeft)) {
            m_list.add(sprm::kPJc80, sideNumber(m_value.alignment, m_value.isRightToLeft));
            m_list.add(sprm::kPJc, alignmentNumber(m_value.alignment));
        }
        addSwitch(sprm::kPFKeep, &ParagraphProperties::keepLinesTogether);
        addSwitch(sprm::kPFKeepFollow, &ParagraphProperties::keepWithNext);
        addSwitch(sprm::kPFPageBreakBefore, &ParagraphProperties::pageBreakBefore);
        addSwitch(sprm::kPFWidowControl, &ParagraphProperties::hasWidowControl);
        addSwitch(sprm::kPFContextualSpacing, &ParagraphProperties::isContextualSpacing);
        addIndents();
        addSpacing();
        if (differs(&ParagraphProperties::outlineLevel))
            m_list.add(sprm::kPOutLvl,
                       m_value.outlineLevel > 0 ? std::min(m_value.outlineLevel, kBodyTextLevel) - 1 : kBodyTextLevel);
        addBorders();
        if (differs(&ParagraphProperties::shading)) {
            Bytes ground;
            addGround(ground, m_value.shading ? &*m_value.shading : nullptr);
            m_list.addSized(sprm::kPShd, ground);
        }
        if (differs(&ParagraphProperties::tabs))
            addTabs();
    }

private:
    template<typename Member>
    bool differs(Member ParagraphProperties::*member) const {
        return m_value.*member != m_base.*member;
    }

    void addSwitch(std::uint16_t property, bool ParagraphProperties::*member) {
        if (differs(member))
            m_list.add(property, m_value.*member ? 1 : 0);
    }

    void addIndents() {
        const bool isRight = m_value.isRightToLeft;
        if (differs(&ParagraphProperties::indentStart)) {
            m_list.add(isRight ? sprm::kPDxaRight80 : sprm::kPDxaLeft80, limited(m_value.indentStart));
            m_list.add(sprm::kPDxaLeft, limited(m_value.indentStart));
        }
        if (differs(&ParagraphProperties::indentEnd)) {
            m_list.add(isRight ? sprm::kPDxaLeft80 : sprm::kPDxaRight80, limited(m_value.indentEnd));
            m_list.add(sprm::kPDxaRight, limited(m_value.indentEnd));
        }
        if (differs(&ParagraphProperties::firstLine)) {
            m_list.add(sprm::kPDxaLeft180, limited(m_value.firstLine));
            m_list.add(sprm::kPDxaLeft1, limited(m_value.firstLine));
        }
    }

    void addSpacing() {
        if (differs(&ParagraphProperties::spaceBefore))
            m_list.add(sprm::kPDyaBefore, std::clamp(m_value.spaceBefore.value, 0, kMostTwips));
        if (differs(&ParagraphProperties::spaceAfter))
            m_list.add(sprm::kPDyaAfter, std::clamp(m_value.spaceAfter.value, 0, kMostTwips));
        if (!differs(&ParagraphProperties::lineSpacing))
            return;
        // Source: [MS-DOC] 2.9.142 (LSPD).
        constexpr int kIsMultiple = 1;
        const LineSpacing& spacing = m_value.lineSpacing;
        const int height = std::clamp(spacing.height.value, 1, kMostTwips);
        Bytes value;
        if (spacing.rule == LineSpacingRule::Multiple)
            value.u16(lineParts(spacing.multiple)).u16(kIsMultiple);
        else
            value.u16(spacing.rule == LineSpacingRule::Exact ? -height : height).u16(0);
        m_list.addRaw(sprm::kPDyaLine, value);
    }

    void addSide(std::uint16_t property, const Border& now, const Border& before) {
        const bool isNothing = now.kind == BorderKind::None && before.kind == BorderKind::None;
        if (now == before || isNothing)
            return;
        Bytes value;
        addBorder(value, now);
        m_list.addSized(property, value);
    }

    void addBorders() {
        addSide(sprm::kPBrcTop, m_value.borders.top, m_base.borders.top);
        addSide(sprm::kPBrcLeft, m_value.borders.left, m_base.borders.left);
        addSide(sprm::kPBrcBottom, m_value.borders.bottom, m_base.borders.bottom);
        addSide(sprm::kPBrcRight, m_value.borders.right, m_base.borders.right);
        addSide(sprm::kPBrcBetween, m_value.betweenBorder, m_base.betweenBorder);
    }

    /// A style's tab stops hold beside a paragraph's own, so those that are not wanted are taken away.
    void addTabs() {
        std::vector<TabStop> gone;
        for (const TabStop& stop : m_base.tabs)
            if (std::none_of(m_value.tabs.begin(), m_value.tabs.end(),
                             [&](const TabStop& own) { return own.position == stop.position; }))
                gone.push_back(stop);
        gone.resize(std::min(gone.size(), kMostTabs));
        std::vector<TabStop> own = m_value.tabs;
        own.resize(std::min(own.size(), kMostTabs));
        Bytes value;
        value.u8(static_cast<std::int64_t>(gone.size()));
        for (const TabStop& stop : gone)
            value.u16(limited(stop.position));
        value.u8(static_cast<std::int64_t>(own.size()));
        for (const TabStop& stop : own)
            value.u16(limited(stop.position));
        for (const TabStop& stop : own)
            value.u8(tabNumber(stop));
        m_list.addSized(sprm::kPChgTabsPapx, value);
    }

    PropertyList& m_list;
    const ParagraphProperties& m_value;
    const ParagraphProperties& m_base;
};

} // namespace

void addParagraphProperties(PropertyList& list, const ParagraphProperties& properties,
                            const ParagraphProperties& base) {
    ParagraphAdder(list, properties, base).add();
}

} // namespace orvane::write::doc
