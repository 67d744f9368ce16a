#include "write/rtf/RunRtf.h"

#include "write/Languages.h"
#include "write/MarkerColors.h"

#include <algorithm>

namespace orvane::write::rtf {
namespace {

using namespace document;

// What readers accept.
constexpr int kLargestSize = 3276;
constexpr int kNarrowest = 1;
constexpr int kWidest = 600;
constexpr int kMostSpacing = 31680;
constexpr int kMostRaise = 3168;

const char* wordFor(UnderlineKind kind) {
    switch (kind) {
    case UnderlineKind::None:
        return "ulnone";
    case UnderlineKind::Single:
        return "ul";
    case UnderlineKind::Double:
        return "uldb";
    case UnderlineKind::Thick:
        return "ulth";
    case UnderlineKind::Dotted:
        return "uld";
    case UnderlineKind::Dashed:
        return "uldash";
    case UnderlineKind::Wavy:
        return "ulwave";
    }
    return "ul";
}

const char* wordFor(VerticalPosition position) {
    switch (position) {
    case VerticalPosition::Baseline:
        return "nosupersub";
    case VerticalPosition::Superscript:
        return "super";
    case VerticalPosition::Subscript:
        return "sub";
    }
    return "nosupersub";
}

const std::string& orLatin(const std::string& family, const RunProperties& of) {
    return family.empty() ? of.fontFamily : family;
}

/// Writes the words of one run; each member writes those of one concern.
class RunWriter {
public:
    RunWriter(RtfState& state, RtfStream& rtf, const RunProperties& value, const RunProperties& base,
              const RunProperties& inherited)
        : m_state(state)
        , m_rtf(rtf)
        , m_value(value)
        , m_base(base)
        , m_inherited(inherited) {}

    /// The last of the two groups of properties is the one that holds for the text.
    void write(ScriptUse scripts) {
        if (m_value.isRightToLeft) {
            writeComplex("rtlch");
            return;
        }
        if (scripts == ScriptUse::Complex) {
            m_rtf.word("rtlch");
            m_rtf.word("fcs", 1);
            writeComplexLook();
            m_rtf.word("ltrch");
            m_rtf.word("fcs", 0);
        } else if (m_base.isRightToLeft) {
            m_rtf.word("ltrch");
            m_rtf.word("fcs", 0);
        }
        writeSimpleLook();
        writeCommon();
    }

private:
    /// Whether a property must be written: it is not what holds without a word, or what some readers inherit is not.
    template<typename Member>
    bool differs(Member RunProperties::*member) const {
        return m_value.*member != m_base.*member || m_inherited.*member != m_base.*member;
    }

    void writeComplex(const char* direction) {
        m_rtf.word("ltrch");
        m_rtf.word("fcs", 0);
        writeSimpleLook();
        m_rtf.word(direction);
        m_rtf.word("fcs", 1);
        writeComplexLook();
        writeCommon();
    }

    void writeSimpleLook() {
        writeFonts();
        if (differs(&RunProperties::size))
            m_rtf.word("fs", size());
        writeSwitch("b", &RunProperties::isBold);
        writeSwitch("i", &RunProperties::isItalic);
    }

    void writeComplexLook() {
        const std::string& wanted = orLatin(m_value.complexFontFamily, m_value);
        if (!wanted.empty())
            m_rtf.word("af", m_state.fonts.numberOf(wanted));
        m_rtf.word("afs", size());
        if (m_value.isBold || m_base.isBold || m_inherited.isBold)
            writeOnOff("ab", m_value.isBold);
        if (m_value.isItalic || m_base.isItalic || m_inherited.isItalic)
            writeOnOff("ai", m_value.isItalic);
    }

    void writeFonts() {
        const std::string& eastAsian = orLatin(m_value.eastAsianFontFamily, m_value);
        const bool isEastAsianNew = eastAsian != orLatin(m_base.eastAsianFontFamily, m_base);
        const bool isLatinNew = differs(&RunProperties::fontFamily);
        if (m_value.fontFamily.empty() || (!isEastAsianNew && !isLatinNew))
            return;
        const int latin = m_state.fonts.numberOf(m_value.fontFamily);
        const bool wasOther = orLatin(m_base.eastAsianFontFamily, m_base) != m_base.fontFamily;
        if (eastAsian != m_value.fontFamily || wasOther) {
            m_rtf.word("loch");
            m_rtf.word("af", latin);
            m_rtf.word("hich");
            m_rtf.word("af", latin);
            m_rtf.word("dbch");
            m_rtf.word("af", m_state.fonts.numberOf(eastAsian));
            m_rtf.word("loch");
        }
        m_rtf.word("f", latin);
    }

    void writeCommon() {
        writeSwitch("caps", &RunProperties::isAllCaps);
        writeSwitch("scaps", &RunProperties::isSmallCaps);
        writeSwitch("strike", &RunProperties::isStruck);
        writeSwitch("outl", &RunProperties::isOutlined);
        writeSwitch("v", &RunProperties::isHidden);
        if (differs(&RunProperties::color))
            m_rtf.word("cf", m_state.colors.numberOf(m_value.color));
        writeSpacing();
        writeGround();
        if (differs(&RunProperties::underline))
            m_rtf.word(wordFor(m_value.underline));
        if (differs(&RunProperties::verticalPosition))
            m_rtf.word(wordFor(m_value.verticalPosition));
        writeLanguage();
    }

    void writeSpacing() {
        if (differs(&RunProperties::characterSpacing))
            m_rtf.word("expndtw", std::clamp(m_value.characterSpacing.value, -kMostSpacing, kMostSpacing));
        if (differs(&RunProperties::widthPercent))
            m_rtf.word("charscalex", std::clamp(m_value.widthPercent, kNarrowest, kWidest));
        if (!differs(&RunProperties::raise))
            return;
        const int raise =
            std::clamp(halfPointsFromPoints(pointsFromTwips(m_value.raise)).value, -kMostRaise, kMostRaise);
        m_rtf.word(raise < 0 ? "dn" : "up", std::abs(raise));
    }

    void writeGround() {
        if (!differs(&RunProperties::highlight))
            return;
        const auto isMarker = [](const std::optional<Color>& color) { return color && markerColor(*color) != 0; };
        const auto& now = m_value.highlight;
        const auto& before = m_base.highlight;
        if (isMarker(now))
            m_rtf.word("highlight", m_state.colors.numberOf(*now));
        else if (isMarker(before))
            m_rtf.word("highlight", 0);
        if (now && !isMarker(now))
            m_rtf.word("chcbpat", m_state.colors.numberOf(*now));
        else if (before && !isMarker(before))
            m_rtf.word("chcbpat", 0);
    }

    void writeLanguage() {
        const int number = differs(&RunProperties::language) ? languageNumber(m_value.language) : 0;
        if (number == 0)
            return;
        switch (scriptClassOf(m_value.language)) {
        case ScriptClass::Simple:
            m_rtf.word("lang", number);
            return;
        case ScriptClass::EastAsian:
            m_rtf.word("langfe", number);
            return;
        case ScriptClass::Complex:
            m_rtf.word(m_value.isRightToLeft ? "lang" : "alang", number);
            return;
        }
    }

    void writeSwitch(const char* word, bool RunProperties::*member) {
        if (differs(member))
            writeOnOff(word, m_value.*member);
    }

    void writeOnOff(const char* word, bool isOn) {
        if (isOn)
            m_rtf.word(word);
        else
            m_rtf.word(word, 0);
    }

    int size() const { return std::clamp(m_value.size.value, 1, kLargestSize); }

    RtfState& m_state;
    RtfStream& m_rtf;
    const RunProperties& m_value;
    const RunProperties& m_base;
    const RunProperties& m_inherited;
};

} // namespace

const RunProperties& plainRun() {
    static const RunProperties kPlain = [] {
        RunProperties plain;
        plain.size = HalfPoints(24);
        return plain;
    }();
    return kPlain;
}

void writeRunProperties(RtfState& state, RtfStream& rtf, const RunProperties& properties, const RunProperties& base,
                        ScriptUse scripts) {
    RunWriter(state, rtf, properties, base, base).write(scripts);
}

void writeStyleRunProperties(RtfState& state, RtfStream& rtf, const RunProperties& properties,
                             const RunProperties& inherited) {
    RunWriter(state, rtf, properties, plainRun(), inherited).write(ScriptUse::Complex);
}

} // namespace orvane::write::rtf
