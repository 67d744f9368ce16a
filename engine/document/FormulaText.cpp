#include "document/FormulaText.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>

namespace orvane::document {
namespace {

/// How many characters a UTF-8 text has.
std::size_t lengthOf(std::string_view text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

bool isEmpty(const FormulaPart& part) {
    return part.kind == FormulaKind::Row &&
           std::all_of(part.parts.begin(), part.parts.end(), [](const FormulaPart& p) { return isEmpty(p); });
}

/// One sign or a number needs no brackets around it.
bool isOneWord(std::string_view text) {
    return lengthOf(text) == 1 ||
           std::all_of(text.begin(), text.end(), [](char c) { return (c >= '0' && c <= '9') || c == '.'; });
}

std::string inBrackets(const FormulaPart& part) {
    std::string text = linearText(part);
    return isOneWord(text) || part.kind == FormulaKind::Fence ? text : fmt::format("({})", text);
}

/// The text with a combining character, which reaches over one sign only.
std::string onOneSign(const std::string& text, std::string_view mark) {
    return lengthOf(text) == 1 ? fmt::format("{}{}", text, mark) : fmt::format("({}){}", text, mark);
}

std::string withScripts(std::string base, const FormulaPart& below, const FormulaPart& above) {
    if (!isEmpty(below))
        base.append("_").append(inBrackets(below));
    if (!isEmpty(above))
        base.append("^").append(inBrackets(above));
    return base;
}

} // namespace

std::string linearText(const FormulaPart& part) {
    std::string text;
    switch (part.kind) {
    case FormulaKind::Text:
        return part.text;
    case FormulaKind::Row:
        for (const FormulaPart& inner : part.parts)
            text += linearText(inner);
        return text;
    case FormulaKind::Script:
    case FormulaKind::Limits:
        return withScripts(linearText(part.parts[0]), part.parts[1], part.parts[2]);
    case FormulaKind::Fraction:
        return fmt::format("{}/{}", inBrackets(part.parts[0]), inBrackets(part.parts[1]));
    case FormulaKind::Radical:
        if (!isEmpty(part.parts[1]))
            text = fmt::format("{}&", linearText(part.parts[1]));
        text += linearText(part.parts[0]);
        return isOneWord(text) ? fmt::format("\u221A{}", text) : fmt::format("\u221A({})", text);
    case FormulaKind::Operator:
        return fmt::format("{} {}", withScripts(part.text, part.parts[0], part.parts[1]), linearText(part.parts[2]));
    case FormulaKind::Fence:
        return fmt::format("{}{}{}", part.text, linearText(part.parts[0]), part.closing);
    case FormulaKind::Accent:
        text = linearText(part.parts[0]);
        return onOneSign(text, part.text);
    case FormulaKind::Bar:
        text = linearText(part.parts[0]);
        return onOneSign(text, "\u0305");
    }
    return text;
}

} // namespace orvane::document
