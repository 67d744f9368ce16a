#pragma once

#include <string_view>

/// What the signs of formulas mean.
namespace orvane::layout {

/// Sums, products, integrals and the like, which have limits and work on what follows.
bool isLargeOperator(char32_t c);
/// The large operators that have their limits beside them.
bool isIntegral(char32_t c);
/// Equals, less, is element of, arrows: they part a formula, and what a sum works on ends there.
bool isRelation(char32_t c);
/// Plus, minus, times, and, with ...
bool isBinaryOperator(char32_t c);
/// Signs of which a text of words is never made.
bool isFormulaSign(char32_t c);
bool isGreekLetter(char32_t c);

bool isOpeningFence(char32_t c);
bool isClosingFence(char32_t c);
/// Upright strokes open and close.
bool isStrokeFence(char32_t c);
/// A piece of a bracket that was put together from several.
bool isFencePiece(char32_t c);
/// A brace above or below signs, or a part of it.
bool isLyingBrace(char32_t c);
constexpr char32_t kRadicalSign = U'\u221A';

/// The combining character that an accent is in formulas; 0 for other signs.
char32_t formulaAccent(char32_t c);

/// "sin", "log", "max": names that are set upright and are no words of the text.
bool isFunctionName(std::u32string_view word);
/// Those of them that have limits below them: "lim", "max".
bool hasLimitsBelow(std::u32string_view word);

/// Fonts of signs by name that are used for formulas and for bullets alike.
bool isSignFont(std::string_view name);

/// A letter of one of TeX's alphabets of its own as the character that it is: "R" of MSBM10 is ℝ. Others stay.
char32_t alphabetLetter(std::string_view fontName, char32_t c);

} // namespace orvane::layout
