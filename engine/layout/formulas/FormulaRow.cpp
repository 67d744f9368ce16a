#include "layout/formulas/FormulaRow.h"

#include "layout/formulas/FormulaSigns.h"
#include "layout/text/Characters.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace orvane::layout {
namespace {

using document::FormulaKind;
using document::FormulaPart;

constexpr const char* kQuad = "\u2003";

bool isEmpty(const FormulaPart& part) {
    return part.kind == FormulaKind::Row && part.parts.empty();
}

/// A word of a language, which blanks part from what is beside it.
bool isWord(const FormulaItem& item) {
    return item.sign.size() > 1 && isLetter(item.sign.front()) && !isFunctionName(item.sign);
}

bool isSign(const FormulaItem& item, bool (*test)(char32_t)) {
    return item.sign.size() == 1 && test(item.sign[0]);
}

} // namespace

FormulaRowMaker::FormulaRowMaker(std::vector<FormulaItem> items, const FormulaParameters::FormulaGrammar& grammar)
    : m_items(std::move(items))
    , m_grammar(grammar) {
    std::stable_sort(m_items.begin(), m_items.end(),
                     [](const FormulaItem& a, const FormulaItem& b) { return a.ink.left < b.ink.left; });
}

/// The line on which most of the largest letters stand; without letters that of the first item.
bool FormulaRowMaker::findLine() {
    if (m_items.empty())
        return false;
    // Sums may come from larger fonts than the letters around them.
    for (const FormulaItem& item : m_items)
        if (item.part.kind != FormulaKind::Operator)
            m_size = std::max(m_size, item.size);
    if (m_size == 0)
        m_size = m_items.front().size;
    int most = 0;
    for (const FormulaItem& item : m_items) {
        if (item.line != FormulaLine::Baseline || item.size < m_grammar.mainSize * m_size)
            continue;
        const auto onIt = static_cast<int>(std::count_if(m_items.begin(), m_items.end(), [&](const FormulaItem& other) {
            return other.line == FormulaLine::Baseline && other.size >= m_grammar.mainSize * m_size &&
                   std::abs(other.baseline - item.baseline) <= m_grammar.sameBaseline * m_size;
        }));
        if (onIt > most) {
            most = onIt;
            m_baseline = item.baseline;
        }
    }
    if (most > 0)
        return true;
    m_baseline = m_items.front().baseline;
    m_line = FormulaLine::Axis;
    return true;
}

FormulaRowMaker::Height FormulaRowMaker::heightOf(const FormulaItem& item) const {
    const double drop = (item.baseline - m_baseline) / m_size;
    if (item.sign == std::u32string{kRadicalSign})
        return Height::Unclear; // its rule is missing
    const bool isMain = item.size >= m_grammar.mainSize * m_size;
    // Fractions within text have small parts.
    if (item.line == FormulaLine::Axis && std::abs(drop) <= m_grammar.sameAxis / (isMain ? 1 : 2))
        return Height::OnLine;
    if (item.line == FormulaLine::Baseline && isMain && std::abs(drop) <= m_grammar.sameBaseline)
        return Height::OnLine;
    if (isMain && item.line == FormulaLine::Baseline)
        return Height::Unclear; // scripts are smaller; it may be part of a fraction without a rule
    if (drop <= -m_grammar.leastRise)
        return Height::Above;
    return drop > m_grammar.leastRise / 2 ? Height::Below : Height::Unclear;
}

bool FormulaRowMaker::partScripts() {
    for (FormulaItem& item : m_items) {
        const Height height = heightOf(item);
        if (height == Height::OnLine) {
            if (!m_places.empty() && !mayFollow(item))
                return false;
            const double right = item.ink.right;
            m_places.push_back({std::move(item), {}, {}, right});
        } else if (!addScript(std::move(item), height)) {
            return false;
        }
    }
    return true;
}

bool FormulaRowMaker::addScript(FormulaItem item, Height height) {
    if (height == Height::Unclear || m_places.empty())
        return false;
    Place& base = m_places.back();
    // Slanted letters lean over their subscripts.
    const bool isBeside = item.ink.left > base.item.ink.right - m_grammar.deepestOverlap * m_size &&
                          item.ink.left > base.item.ink.left && item.ink.left - base.right <= m_size;
    if (!isBeside)
        return false;
    base.right = std::max(base.right, item.ink.right);
    (height == Height::Above ? base.above : base.below).items.push_back(std::move(item));
    return true;
}

bool FormulaRowMaker::mayFollow(const FormulaItem& item) const {
    const double gap = item.ink.left - m_places.back().item.ink.right;
    return gap >= -m_grammar.deepestOverlap * m_size && gap <= m_grammar.widestGap * m_size;
}

double FormulaRowMaker::gapBefore(std::size_t place) const {
    return place == 0 ? 0 : m_places[place].item.ink.left - m_places[place - 1].right;
}

/// An operator has its scripts as limits beside it.
FormulaPart FormulaRowMaker::withScripts(Place place) {
    FormulaPart& part = place.item.part;
    if (isEmpty(place.below.content) && isEmpty(place.above.content))
        return std::move(part);
    if (part.kind == FormulaKind::Operator && isEmpty(part.parts[0]) && isEmpty(part.parts[1])) {
        part.limits = document::LimitPlace::Beside;
        part.parts[0] = std::move(place.below.content);
        part.parts[1] = std::move(place.above.content);
        return std::move(part);
    }
    return formulaPart(FormulaKind::Script,
                       {std::move(part), std::move(place.below.content), std::move(place.above.content)});
}

/// Where what an operator works on ends: at the next sign that parts a formula, outside brackets.
std::size_t FormulaRowMaker::bodyEnd(std::size_t from) const {
    int depth = 0;
    for (std::size_t i = from; i < m_places.size(); ++i) {
        const FormulaItem& item = m_places[i].item;
        if (isSign(item, isOpeningFence))
            ++depth;
        if (isSign(item, isClosingFence) && --depth < 0)
            return i;
        const bool parts = isSign(item, isRelation) || item.sign == U"," || item.sign == U";" || item.sign == U"." ||
                           item.sign == U"+" || item.sign == U"-" || item.sign == U"\u2212";
        if (depth == 0 && i > from && parts)
            return i;
    }
    return m_places.size();
}

void FormulaRowMaker::fillOperator(FormulaPart& target, std::vector<FormulaPart> body) const {
    if (!body.empty()) {
        target.parts[2] = formulaPart(FormulaKind::Row, std::move(body));
        return;
    }
    // Word processors show a box where an operator has nothing to work on.
    const bool isBeside = target.limits == document::LimitPlace::Beside;
    FormulaPart sign;
    sign.kind = FormulaKind::Text;
    sign.text = target.text;
    if (!isEmpty(target.parts[0]) || !isEmpty(target.parts[1]))
        sign = formulaPart(isBeside ? FormulaKind::Script : FormulaKind::Limits,
                           {std::move(sign), std::move(target.parts[0]), std::move(target.parts[1])});
    target = std::move(sign);
}

/// The parts one behind the other, texts of one shape joined, with blanks where the page has room for them.
std::vector<FormulaPart> FormulaRowMaker::joined(std::size_t from, std::size_t to,
                                                 std::vector<FormulaPart>& parts) const {
    std::vector<FormulaPart> result;
    for (std::size_t i = from; i < to; ++i) {
        if (isEmpty(parts[i]))
            continue; // it went into an operator
        const bool isFirst = result.empty();
        const double gap = gapBefore(i) / m_size;
        const bool isAtWord = i > 0 && (isWord(m_places[i].item) || isWord(m_places[i - 1].item));
        const bool isBetweenWords = isAtWord && isWord(m_places[i].item) && isWord(m_places[i - 1].item);
        if (!isFirst && gap > m_grammar.quadGap && !isBetweenWords)
            result.push_back(formulaText(U"\u2003", document::FormulaShape::Upright));
        else if (!isFirst && gap > m_grammar.wordGap && isAtWord && !isBetweenWords)
            result.push_back(formulaText(U" ", document::FormulaShape::Upright));
        FormulaPart* last = result.empty() ? nullptr : &result.back();
        const bool goesOn = last && last->kind == FormulaKind::Text && parts[i].kind == FormulaKind::Text &&
                            last->shape == parts[i].shape && last->text != kQuad;
        if (!goesOn) {
            result.push_back(std::move(parts[i]));
            continue;
        }
        if (isBetweenWords && gap > m_grammar.wordGap)
            last->text += ' ';
        last->text += parts[i].text;
    }
    return result;
}

FormulaRow FormulaRowMaker::finish() {
    FormulaRow row;
    row.baseline = m_baseline;
    row.size = m_size;
    row.line = m_line;
    std::vector<FormulaPart> parts;
    for (Place& place : m_places) {
        row.ink = row.ink.united(place.item.ink);
        row.ink.right = std::max(row.ink.right, place.right);
        parts.push_back(withScripts(place));
    }
    for (std::size_t i = m_places.size(); i-- > 0;) {
        if (parts[i].kind != FormulaKind::Operator)
            continue;
        const std::size_t end = bodyEnd(i + 1);
        std::vector<FormulaPart> body = joined(i + 1, end, parts);
        for (std::size_t taken = i + 1; taken < end; ++taken)
            parts[taken] = FormulaPart{};
        fillOperator(parts[i], std::move(body));
    }
    row.content = formulaPart(FormulaKind::Row, joined(0, parts.size(), parts));
    return row;
}

} // namespace orvane::layout
