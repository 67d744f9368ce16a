#include "document/FormulaText.h"

#include <gtest/gtest.h>

namespace orvane::document {
namespace {

FormulaPart text(std::string characters) {
    FormulaPart part;
    part.kind = FormulaKind::Text;
    part.text = std::move(characters);
    return part;
}

FormulaPart made(FormulaKind kind, std::vector<FormulaPart> parts, std::string sign = {}, std::string closing = {}) {
    FormulaPart part;
    part.kind = kind;
    part.text = std::move(sign);
    part.closing = std::move(closing);
    part.parts = std::move(parts);
    return part;
}

TEST(FormulaText, PutsBracketsAroundWhatIsMoreThanOneSign) {
    struct Row {
        FormulaPart part;
        const char* expected;
    };
    const FormulaPart none;
    const Row rows[] = {
        {made(FormulaKind::Row, {text("a"), text("+b")}), "a+b"},
        {made(FormulaKind::Script, {text("x"), text("n"), none}), "x_n"},
        {made(FormulaKind::Script, {text("x"), text("n+1"), text("2")}), "x_(n+1)^2"},
        {made(FormulaKind::Fraction, {text("a+b"), text("2")}), "(a+b)/2"},
        {made(FormulaKind::Fraction, {text("\u03B1"), text("12")}), "\u03B1/12"},
        {made(FormulaKind::Radical, {text("x"), none}), "\u221Ax"},
        {made(FormulaKind::Radical, {text("x+1"), text("3")}), "\u221A(3&x+1)"},
        {made(FormulaKind::Operator, {text("i=1"), text("n"), text("x")}, "\u2211"), "\u2211_(i=1)^n x"},
        {made(FormulaKind::Limits, {text("lim"), text("n"), none}), "lim_n"},
        {made(FormulaKind::Fence, {text("a")}, "[", "]"), "[a]"},
        {made(FormulaKind::Accent, {text("y")}, "\u0302"), "y\u0302"},
        {made(FormulaKind::Bar, {text("xy")}), "(xy)\u0305"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(linearText(row.part), row.expected);
}

} // namespace
} // namespace orvane::document
