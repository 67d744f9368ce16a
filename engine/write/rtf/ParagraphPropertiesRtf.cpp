#include "write/rtf/ParagraphPropertiesRtf.h"

#include "write/LineParts.h"
#include "write/rtf/BorderRtf.h"

#include <algorithm>

namespace orvane::write::rtf {
namespace {

using namespace document;

/// Lengths beyond a page's largest size are refused by readers.
constexpr int kMostTwips = 31680;
constexpr int kBodyTextLevel = 9;

int limited(Twips value) {
    return std::clamp(value.value, -kMostTwips, kMostTwips);
}

/// The words for left and right mean the sides of the page, in right-to-left paragraphs too.
const char* wordFor(Alignment alignment, bool isRightToLeft) {
    switch (alignment) {
    case Alignment::Start:
        return isRightToLeft ? "qr" : "ql";
    case Alignment::Center:
        return "qc";
    case Alignment::End:
        return isRightToLeft ? "ql" : "qr";
    case Alignment::Justified:
        return "qj";
    case Alignment::Distributed:
        return "qd";
    }
    return "ql";
}

const char* wordFor(TabAlignment alignment) {
    switch (alignment) {
    case TabAlignment::Start:
        return "";
    case TabAlignment::Center:
        return "tqc";
    case TabAlignment::End:
        return "tqr";
    case TabAlignment::Decimal:
        return "tqdec";
    }
    return "";
}

const char* wordFor(TabLeader leader) {
    switch (leader) {
    case TabLeader::None:
        return "";
    case TabLeader::Dots:
        return "tldot";
    case TabLeader::Hyphens:
        return "tlhyph";
    case TabLeader::Underscore:
        return "tlul";
    case TabLeader::MiddleDots:
        return "tlmdot";
    }
    return "";
}

/// Writes the words of one paragraph; each member writes those of one concern.
class ParagraphPropertiesWriter {
public:
    ParagraphPropertiesWriter(RtfState& state, RtfStream& rtf, const ParagraphProperties& value,
                              const ParagraphProperties& inherited)
        : m_state(state)
        , m_rtf(rtf)
        , m_value(value)
        , m_inherited(inherited) {}

    void write() {
        m_rtf.word(m_value.isRightToLeft ? "rtlpar" : "ltrpar");
        m_rtf.word(wordFor(m_value.alignment, m_value.isRightToLeft));
        writeIndents();
        writeSpacing();
        m_rtf.word(m_value.hasWidowControl ? "widctlpar" : "nowidctlpar");
        writeSwitch("keepn", &ParagraphProperties::keepWithNext);
        writeSwitch("keep", &ParagraphProperties::keepLinesTogether);
        writeSwitch("pagebb", &ParagraphProperties::pageBreakBefore);
        writeSwitch("contextualspace", &ParagraphProperties::isContextualSpacing);
        writeBorders();
        if (m_value.shading)
            m_rtf.word("cbpat", m_state.colors.numberOf(*m_value.shading));
        writeTabs();
        if (m_value.outlineLevel > 0)
            m_rtf.word("outlinelevel", std::min(m_value.outlineLevel, kBodyTextLevel) - 1);
        else if (m_inherited.outlineLevel > 0)
            m_rtf.word("outlinelevel", kBodyTextLevel);
    }

private:
    /// Whether a property must be written whose value after \pard is `usual`.
    template<typename Member>
    bool isDue(Member ParagraphProperties::*member, const Member& usual) const {
        return m_value.*member != usual || m_inherited.*member != usual;
    }

    void writeLength(const char* word, Twips ParagraphProperties::*member, int least) {
        if (isDue(member, Twips()))
            m_rtf.word(word, std::max(least, limited(m_value.*member)));
    }

    void writeIndents() {
        if (isDue(&ParagraphProperties::firstLine, Twips()))
            m_rtf.word("fi", limited(m_value.firstLine));
        // Older readers know the sides of the page only.
        writeLength(m_value.isRightToLeft ? "ri" : "li", &ParagraphProperties::indentStart, -kMostTwips);
        writeLength("lin", &ParagraphProperties::indentStart, -kMostTwips);
        writeLength(m_value.isRightToLeft ? "li" : "ri", &ParagraphProperties::indentEnd, -kMostTwips);
        writeLength("rin", &ParagraphProperties::indentEnd, -kMostTwips);
    }

    void writeSpacing() {
        writeLength("sb", &ParagraphProperties::spaceBefore, 0);
        writeLength("sa", &ParagraphProperties::spaceAfter, 0);
        // LibreOffice takes the multiple of a style for a height where the default style has another one: what a
        // paragraph says itself it takes as it is meant.
        const LineSpacing& usual = m_state.styles.defaultStyle().paragraph.lineSpacing;
        if (!isDue(&ParagraphProperties::lineSpacing, LineSpacing{}) && usual == LineSpacing{})
            return;
        const LineSpacing& spacing = m_value.lineSpacing;
        const int height = std::clamp(spacing.height.value, 1, kMostTwips);
        switch (spacing.rule) {
        case LineSpacingRule::Multiple:
            m_rtf.word("sl", lineParts(spacing.multiple));
            m_rtf.word("slmult", 1);
            return;
        case LineSpacingRule::AtLeast:
            m_rtf.word("sl", height);
            m_rtf.word("slmult", 0);
            return;
        case LineSpacingRule::Exact:
            m_rtf.word("sl", -height);
            m_rtf.word("slmult", 0);
            return;
        }
    }

    /// There is no word that takes a switch back: after \pard all are off, and readers take one with a number for on.
    void writeSwitch(const char* word, bool ParagraphProperties::*member) {
        if (m_value.*member)
            m_rtf.word(word);
    }

    void writeBorders() {
        const auto side = [this](const char* word, const Border& now, const Border& before) {
            if (now.kind != BorderKind::None || before.kind != BorderKind::None)
                writeBorder(m_state, m_rtf, word, now);
        };
        side("brdrt", m_value.borders.top, m_inherited.borders.top);
        side("brdrl", m_value.borders.left, m_inherited.borders.left);
        side("brdrb", m_value.borders.bottom, m_inherited.borders.bottom);
        side("brdrr", m_value.borders.right, m_inherited.borders.right);
        side("brdrbtw", m_value.betweenBorder, m_inherited.betweenBorder);
    }

    void writeTabs() {
        for (const TabStop& stop : m_value.tabs) {
            if (stop.alignment != TabAlignment::Start)
                m_rtf.word(wordFor(stop.alignment));
            if (stop.leader != TabLeader::None)
                m_rtf.word(wordFor(stop.leader));
            m_rtf.word("tx", limited(stop.position));
        }
    }

    RtfState& m_state;
    RtfStream& m_rtf;
    const ParagraphProperties& m_value;
    const ParagraphProperties& m_inherited;
};

} // namespace

void writeParagraphProperties(RtfState& state, RtfStream& rtf, const ParagraphProperties& properties,
                              const ParagraphProperties& inherited) {
    ParagraphPropertiesWriter(state, rtf, properties, inherited).write();
}

} // namespace orvane::write::rtf
