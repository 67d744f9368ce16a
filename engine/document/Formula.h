#pragma once

#include "document/Format.h"
#include "document/Picture.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orvane::document {

/// What a part of a formula is, and which parts of its own it has, in their order.
enum class FormulaKind : std::uint8_t {
    Text,     ///< `text`; no parts
    Row,      ///< any number, side by side; none for an empty place
    Script,   ///< base, subscript, superscript
    Limits,   ///< base, what stands below it, what stands above it
    Fraction, ///< numerator, denominator
    Radical,  ///< what it is taken of, degree
    Operator, ///< `text` is the sign: from, to, what it works on
    Fence,    ///< `text` and `closing` are the signs, either may be empty: what is within
    Accent,   ///< `text` is the combining character: what is below it
    Bar,      ///< what is below the rule
};

enum class FormulaShape : std::uint8_t { Upright, Italic, Bold, BoldItalic };

/// Where an operator has its limits.
enum class LimitPlace : std::uint8_t { AboveAndBelow, Beside };

/// A part of a formula.
struct FormulaPart {
    FormulaKind kind = FormulaKind::Row;
    std::string text;
    std::string closing;                           ///< Fence
    FormulaShape shape = FormulaShape::Upright;    ///< Text
    LimitPlace limits = LimitPlace::AboveAndBelow; ///< Operator
    std::vector<FormulaPart> parts;

    bool operator==(const FormulaPart&) const = default;
};

/// Whether a formula stands on a line of its own.
enum class FormulaPlace : std::uint8_t { Displayed, InLine };

/// A formula in its parts.
struct Formula {
    FormulaPart content;
    FormulaPlace place = FormulaPlace::InLine;
    RunProperties properties;       ///< its size and color; its shapes are those of the parts
    std::optional<Picture> picture; ///< how it looks, for readers that know no formulas
};

} // namespace orvane::document
