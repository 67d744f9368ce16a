#include "write/doc/RunDoc.h"

#include "write/Languages.h"
#include "write/MarkerColors.h"

#include <algorithm>

namespace orvane::write::doc {
namespace {

using namespace document;

// What readers accept. Source: [MS-DOC] 2.6.1 (sprmCHps, sprmCCharScale, sprmCDxaSpace, sprmCHpsPos).
constexpr int kSmallest = 2;
constexpr int kLargest = 3276;
constexpr int kNarrowest = 1;
constexpr int kWidest = 600;
constexpr int kMostSpacing = 31680;
constexpr int kMostRaise = 3168;

/// Source: [MS-DOC] 2.9.131 (Kul).
int underlineNumber(UnderlineKind kind) {
    switch (kind) {
    case UnderlineKind::None:
        return 0;
    case UnderlineKind::Single:
        return 1;
    case UnderlineKind::Double:
        return 3;
    case UnderlineKind::Dotted:
        return 4;
    case UnderlineKind::Thick:
        return 6;
    case UnderlineKind::Dashed:
        return 7;
    case UnderlineKind::Wavy:
        return 11;
    }
    return 1;
}

int positionNumber(VerticalPosition position) {
    switch (position) {
    case VerticalPosition::Baseline:
        return 0;
    case VerticalPosition::Superscript:
        return 1;
    case VerticalPosition::Subscript:
        return 2;
    }
    return 0;
}

const std::string& orLatin(const std::string& family, const RunProperties& of) {
    return family.empty() ? of.fontFamily : family;
}

/// Adds the properties of one run; each member adds those of one concern.
class RunAdder {
public:
    RunAdder(PropertyList& list, DocFonts& fonts, const RunProperties& value, const RunProperties& base)
        : m_list(list)
        , m_fonts(fonts)
        , m_value(value)
        , m_base(base) {}

    void add() {
        addFonts();
        addSwitch(sprm::kCFBold, sprm::kCFBoldBi, &RunProperties::isBold);
        addSwitch(sprm::kCFItalic, sprm::kCFItalicBi, &RunProperties::isItalic);
        addSwitch(sprm::kCFStrike, &RunProperties::isStruck);
        addSwitch(sprm::kCFOutline, &RunProperties::isOutlined);
        addSwitch(sprm::kCFSmallCaps, &RunProperties::isSmallCaps);
        addSwitch(sprm::kCFCaps, &RunProperties::isAllCaps);
        addSwitch(sprm::kCFVanish, &RunProperties::isHidden);
        addSize();
        addSpacing();
        addColors();
        if (differs(&RunProperties::underline))
            m_list.add(sprm::kCKul, underlineNumber(m_value.underline));
        if (differs(&RunProperties::verticalPosition))
            m_list.add(sprm::kCIss, positionNumber(m_value.verticalPosition));
        addSwitch(sprm::kCFBiDi, &RunProperties::isRightToLeft);
        addLanguage();
    }

private:
    template<typename Member>
    bool differs(Member RunProperties::*member) const {
        return m_value.*member != m_base.*member;
    }

    void addFont(std::initializer_list<std::uint16_t> properties, const std::string& wanted,
                 const std::string& present) {
        if (wanted.empty() || wanted == present)
            return;
        for (const std::uint16_t property : properties)
            m_list.add(property, m_fonts.numberOf(wanted));
    }

    void addFonts() {
        addFont({sprm::kCRgFtc0, sprm::kCRgFtc2}, m_value.fontFamily, m_base.fontFamily);
        addFont({sprm::kCRgFtc1}, orLatin(m_value.eastAsianFontFamily, m_value),
                orLatin(m_base.eastAsianFontFamily, m_base));
        addFont({sprm::kCFtcBi}, orLatin(m_value.complexFontFamily, m_value),
                orLatin(m_base.complexFontFamily, m_base));
    }

    void addSize() {
        if (!differs(&RunProperties::size))
            return;
        const int size = std::clamp(m_value.size.value, kSmallest, kLargest);
        m_list.add(sprm::kCHps, size);
        m_list.add(sprm::kCHpsBi, size);
    }

    void addSpacing() {
        if (differs(&RunProperties::characterSpacing))
            m_list.add(sprm::kCDxaSpace, std::clamp(m_value.characterSpacing.value, -kMostSpacing, kMostSpacing));
        if (differs(&RunProperties::widthPercent))
            m_list.add(sprm::kCCharScale, std::clamp(m_value.widthPercent, kNarrowest, kWidest));
        if (differs(&RunProperties::raise))
            m_list.add(sprm::kCHpsPos,
                       std::clamp(halfPointsFromPoints(pointsFromTwips(m_value.raise)).value, -kMostRaise, kMostRaise));
    }

    void addColors() {
        if (differs(&RunProperties::color))
            m_list.add(sprm::kCCv, colorNumber(m_value.color));
        if (!differs(&RunProperties::highlight))
            return;
        const auto marker = [](const std::optional<Color>& color) { return color ? markerColor(*color) : 0; };
        if (marker(m_value.highlight) != marker(m_base.highlight))
            m_list.add(sprm::kCHighlight, marker(m_value.highlight));
        const bool isGround = m_value.highlight && marker(m_value.highlight) == 0;
        const bool wasGround = m_base.highlight && marker(m_base.highlight) == 0;
        if (!isGround && !wasGround)
            return;
        Bytes ground;
        addGround(ground, isGround ? &*m_value.highlight : nullptr);
        m_list.addSized(sprm::kCShd, ground);
    }

    void addLanguage() {
        const int number = differs(&RunProperties::language) ? languageNumber(m_value.language) : 0;
        if (number == 0)
            return;
        switch (scriptClassOf(m_value.language)) {
        case ScriptClass::Simple:
            m_list.add(sprm::kCRgLid0, number);
            return;
        case ScriptClass::EastAsian:
            m_list.add(sprm::kCRgLid1, number);
            return;
        case ScriptClass::Complex:
            m_list.add(sprm::kCLidBi, number);
            return;
        }
    }

    void addSwitch(std::uint16_t property, bool RunProperties::*member) {
        if (differs(member))
            m_list.add(property, m_value.*member ? 1 : 0);
    }

    void addSwitch(std::uint16_t property, std::uint16_t complexProperty, bool RunProperties::*member) {
        addSwitch(property, member);
        addSwitch(complexProperty, member);
    }

    PropertyList& m_list;
    DocFonts& m_fonts;
    const RunProperties& m_value;
    const RunProperties& m_base;
};

} // namespace

const RunProperties& plainRun() {
    static const RunProperties kPlain = [] {
        RunProperties plain;
        plain.size = HalfPoints(20);
        return plain;
    }();
    return kPlain;
}

void addRunProperties(PropertyList& list, DocFonts& fonts, const RunProperties& properties, const RunProperties& base) {
    RunAdder(list, fonts, properties, base).add();
}

} // namespace orvane::write::doc
