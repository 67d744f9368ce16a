#pragma once

#include "base/Color.h"
#include "base/Units.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orvane::document {

enum class VerticalPosition : std::uint8_t { Baseline, Superscript, Subscript };
enum class UnderlineKind : std::uint8_t { None, Single, Double, Thick, Dotted, Dashed, Wavy };

/// How characters look, complete: a writer puts down what differs from the paragraph's style.
struct RunProperties {
    std::string fontFamily;          ///< for Latin and other simple scripts
    std::string eastAsianFontFamily; ///< empty: as fontFamily
    std::string complexFontFamily;   ///< Arabic, Hebrew, Thai, ...; empty: as fontFamily
    HalfPoints size{22};
    Color color;
    std::optional<Color> highlight; ///< behind the characters
    UnderlineKind underline = UnderlineKind::None;
    VerticalPosition verticalPosition = VerticalPosition::Baseline;
    Twips characterSpacing; ///< added after each character
    int widthPercent = 100; ///< glyphs stretched to this width
    Twips raise;            ///< baseline shift, positive upwards
    bool isBold = false;
    bool isItalic = false;
    bool isStruck = false;
    bool isSmallCaps = false;
    bool isAllCaps = false;
    bool isOutlined = false;
    bool isHidden = false;
    bool isRightToLeft = false;
    bool isEastAsian = false; ///< signs that fonts of several scripts have (quotes, dashes, dots) are East Asian
    std::string language;     ///< BCP 47; empty for the document's

    bool operator==(const RunProperties&) const = default;
};

enum class Alignment : std::uint8_t { Start, Center, End, Justified, Distributed };
enum class LineSpacingRule : std::uint8_t { Multiple, AtLeast, Exact };
enum class TabAlignment : std::uint8_t { Start, Center, End, Decimal };
enum class TabLeader : std::uint8_t { None, Dots, Hyphens, Underscore, MiddleDots };
enum class BorderKind : std::uint8_t { None, Single, Double, Dotted, Dashed, Thick, Wave };

struct LineSpacing {
    LineSpacingRule rule = LineSpacingRule::Multiple;
    double multiple = 1.0; ///< LineSpacingRule::Multiple
    Twips height;          ///< the other two

    bool operator==(const LineSpacing&) const = default;
};

struct TabStop {
    Twips position; ///< from the text's start edge
    TabAlignment alignment = TabAlignment::Start;
    TabLeader leader = TabLeader::None;

    bool operator==(const TabStop&) const = default;
};

struct Border {
    BorderKind kind = BorderKind::None;
    EighthPoints width{4};
    Color color;
    int spacePoints = 0; ///< between border and text

    bool operator==(const Border&) const = default;
};

struct Borders {
    Border top, bottom, left, right;

    bool operator==(const Borders&) const = default;
};

/// How a paragraph stands, complete: a writer puts down what differs from the paragraph's style.
struct ParagraphProperties {
    Alignment alignment = Alignment::Start;
    Twips indentStart;
    Twips indentEnd;
    Twips firstLine; ///< negative: hanging
    Twips spaceBefore;
    Twips spaceAfter;
    LineSpacing lineSpacing;
    std::vector<TabStop> tabs; ///< ascending
    Borders borders;
    Border betweenBorder; ///< between equal paragraphs that follow each other
    std::optional<Color> shading;
    int outlineLevel = 0; ///< 1 to 9; 0 for body text
    bool keepWithNext = false;
    bool keepLinesTogether = false;
    bool pageBreakBefore = false;
    bool isContextualSpacing = false; ///< no space between paragraphs of one style
    bool hasWidowControl = true;
    bool isRightToLeft = false;

    bool operator==(const ParagraphProperties&) const = default;
};

} // namespace orvane::document
