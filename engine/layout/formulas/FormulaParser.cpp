#include "layout/formulas/FormulaParser.h"

#include "layout/formulas/FormulaRow.h"
#include "layout/formulas/FormulaSigns.h"
#include "layout/text/Characters.h"

#include "base/Utf8.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace orvane::layout {
namespace {

using document::FormulaKind;
using document::FormulaPart;

/// Items and rules that have not been brought into a row yet.
struct FormulaGroup {
    std::vector<FormulaItem> items;
    std::vector<FormulaBar> bars;

    double size() const {
        double largest = 0;
        for (const FormulaItem& item : items)
            largest = std::max(largest, item.size);
        return largest;
    }
    /// Moves what `isTaken` says into a group of its own; it is asked for boxes.
    template<typename Test>
    FormulaGroup take(Test isTaken) {
        FormulaGroup taken;
        const auto itemEnd = std::stable_partition(items.begin(), items.end(),
                                                   [&](const FormulaItem& item) { return !isTaken(item.ink); });
        taken.items.assign(std::make_move_iterator(itemEnd), std::make_move_iterator(items.end()));
        items.erase(itemEnd, items.end());
        const auto barEnd = std::stable_partition(bars.begin(), bars.end(), [&](const FormulaBar& bar) {
            return !isTaken(Rect{bar.left, bar.y, bar.right, bar.y});
        });
        taken.bars.assign(barEnd, bars.end());
        bars.erase(barEnd, bars.end());
        return taken;
    }
    bool isEmpty() const { return items.empty() && bars.empty(); }
};

bool isSign(const FormulaItem& item, bool (*test)(char32_t)) {
    return item.sign.size() == 1 && test(item.sign[0]);
}

FormulaItem itemOf(FormulaPart part, const Rect& ink, double baseline, double size, FormulaLine line) {
    FormulaItem item;
    item.ink = ink;
    item.baseline = baseline;
    item.size = size;
    item.line = line;
    item.part = std::move(part);
    return item;
}

class FormulaParser {
public:
    explicit FormulaParser(const FormulaParameters::FormulaGrammar& grammar)
        : m_grammar(grammar) {}

    std::optional<FormulaRow> row(FormulaGroup group) {
        if (group.items.empty() || m_depth >= m_grammar.deepest)
            return std::nullopt;
        ++m_depth;
        std::optional<FormulaRow> result;
        if (takeBars(group) && takeLimits(group) && takeOverlays(group) && takeFences(group))
            result = FormulaRowMaker(std::move(group.items), m_grammar).make([this](std::vector<FormulaItem> script) {
                return row({std::move(script), {}});
            });
        --m_depth;
        return result;
    }

private:
    // ---- Rules

    /// The widest rule first: what lies in its breadth is all its own.
    bool takeBars(FormulaGroup& group) {
        while (!group.bars.empty()) {
            const auto widest =
                std::max_element(group.bars.begin(), group.bars.end(), [](const FormulaBar& a, const FormulaBar& b) {
                    return a.right - a.left < b.right - b.left;
                });
            const FormulaBar bar = *widest;
            group.bars.erase(widest);
            if (!takeRadical(group, bar) && !takeFraction(group, bar) && !takeOverline(group, bar))
                return false;
        }
        return true;
    }

    bool isInBreadth(const Rect& box, const FormulaBar& bar, double size) const {
        const double slack = m_grammar.barSlack * size;
        return box.centerX() > bar.left - slack && box.centerX() < bar.right + slack;
    }

    bool takeRadical(FormulaGroup& group, const FormulaBar& bar) {
        const auto sign = std::find_if(group.items.begin(), group.items.end(), [&](const FormulaItem& item) {
            const double joint = m_grammar.radicalJoint * item.size;
            return item.sign == std::u32string{kRadicalSign} && std::abs(item.ink.right - bar.left) <= joint &&
                   std::abs(item.ink.top - bar.y) <= joint;
        });
        if (sign == group.items.end())
            return false;
        const FormulaItem radical = std::move(*sign);
        group.items.erase(sign);
        FormulaGroup inner = group.take([&](const Rect& box) {
            return isInBreadth(box, bar, radical.size) && box.centerY() > bar.y && box.centerY() < radical.ink.bottom;
        });
        FormulaGroup degree = group.take([&](const Rect& box) {
            return box.right <= radical.ink.right && box.left > radical.ink.left - radical.size / 2 &&
                   box.centerX() > radical.ink.left - radical.size / 4 && box.centerY() < radical.ink.centerY();
        });
        const std::optional<FormulaRow> content = row(std::move(inner));
        std::optional<FormulaRow> root = degree.isEmpty() ? FormulaRow{} : row(std::move(degree));
        if (!content || !root)
            return false;
        const Rect ink = radical.ink.united({bar.left, bar.y, bar.right, radical.ink.bottom});
        group.items.push_back(itemOf(formulaPart(FormulaKind::Radical, {content->content, root->content}), ink,
                                     content->baseline, content->size, content->line));
        return true;
    }

    bool takeFraction(FormulaGroup& group, const FormulaBar& bar) {
        const double size = group.size();
        const auto isAbove = [&](const Rect& box) { return isInBreadth(box, bar, size) && box.centerY() < bar.y; };
        const auto isBelow = [&](const Rect& box) { return isInBreadth(box, bar, size) && box.centerY() > bar.y; };
        const auto hasOne = [&](const auto& test) {
            return std::any_of(group.items.begin(), group.items.end(),
                               [&](const FormulaItem& item) { return test(item.ink); });
        };
        if (!hasOne(isAbove) || !hasOne(isBelow))
            return false;
        const std::optional<FormulaRow> numerator = row(group.take(isAbove));
        const std::optional<FormulaRow> denominator = row(group.take(isBelow));
        if (!numerator || !denominator)
            return false;
        const double own = std::max(numerator->size, denominator->size);
        Rect ink = numerator->ink.united(denominator->ink);
        ink.left = std::min(ink.left, bar.left);
        ink.right = std::max(ink.right, bar.right);
        group.items.push_back(itemOf(formulaPart(FormulaKind::Fraction, {numerator->content, denominator->content}),
                                     ink, bar.y + m_grammar.axisHeight * own, own, FormulaLine::Axis));
        return true;
    }

    bool takeOverline(FormulaGroup& group, const FormulaBar& bar) {
        const double size = group.size();
        const std::optional<FormulaRow> inner = row(group.take([&](const Rect& box) {
            return isInBreadth(box, bar, 0) && box.centerY() > bar.y && box.top - bar.y < m_grammar.barReach * size;
        }));
        if (!inner)
            return false;
        Rect ink = inner->ink;
        ink.top = std::min(ink.top, bar.y);
        group.items.push_back(
            itemOf(formulaPart(FormulaKind::Bar, {inner->content}), ink, inner->baseline, inner->size, inner->line));
        return true;
    }

    // ---- Limits

    enum class Side { Below, Above };

    bool takeLimits(FormulaGroup& group) {
        std::vector<FormulaItem> made;
        const auto hasLimits = [](const FormulaItem& item) {
            return isSign(item, isLargeOperator) || hasLimitsBelow(item.sign);
        };
        for (auto next = std::find_if(group.items.begin(), group.items.end(), hasLimits); next != group.items.end();
             next = std::find_if(group.items.begin(), group.items.end(), hasLimits)) {
            FormulaItem item = std::move(*next);
            group.items.erase(next);
            FormulaGroup below = takeLimit(group, item, Side::Below);
            FormulaGroup above = takeLimit(group, item, Side::Above);
            const std::optional<FormulaRow> from = below.isEmpty() ? FormulaRow{} : row(std::move(below));
            const std::optional<FormulaRow> to = above.isEmpty() ? FormulaRow{} : row(std::move(above));
            if (!from || !to)
                return false;
            made.push_back(withLimits(std::move(item), from->content, to->content));
        }
        std::move(made.begin(), made.end(), std::back_inserter(group.items));
        return true;
    }

    /// What touches the operator's breadth first, then what goes on from there.
    FormulaGroup takeLimit(FormulaGroup& group, const FormulaItem& item, Side side) const {
        const double reach = m_grammar.limitGap * item.size, slack = reach / 4;
        const double step = m_grammar.limitStep * item.size / 2;
        FormulaGroup limit = group.take([&](const Rect& box) {
            const double gap = side == Side::Below ? box.top - item.ink.bottom : item.ink.top - box.bottom;
            return gap >= -slack && gap <= reach && box.left < item.ink.right && box.right > item.ink.left;
        });
        for (bool hasGrown = !limit.isEmpty(); hasGrown;) {
            Rect band;
            for (const FormulaItem& part : limit.items)
                band = band.united(part.ink);
            band = band.inflated(step);
            FormulaGroup more = group.take([&](const Rect& box) {
                const double outside = side == Side::Below ? box.top - item.ink.bottom : item.ink.top - box.bottom;
                return outside >= -slack && band.intersects(box);
            });
            hasGrown = !more.isEmpty();
            std::move(more.items.begin(), more.items.end(), std::back_inserter(limit.items));
            limit.bars.insert(limit.bars.end(), more.bars.begin(), more.bars.end());
        }
        return limit;
    }

    FormulaItem withLimits(FormulaItem item, FormulaPart below, FormulaPart above) const {
        if (!isSign(item, isLargeOperator)) {
            if (below.parts.empty() && above.parts.empty())
                return item;
            item.part = formulaPart(FormulaKind::Limits, {std::move(item.part), std::move(below), std::move(above)});
            item.sign.clear(); // it has its limits, and looks for no others
            return item;
        }
        FormulaPart part = formulaPart(FormulaKind::Operator, {std::move(below), std::move(above), {}});
        part.text = item.part.text;
        item.part = std::move(part);
        item.sign.clear();
        item.line = FormulaLine::Axis;
        item.baseline = item.ink.centerY() + m_grammar.axisHeight * item.size;
        return item;
    }

    // ---- Accents and strokes through signs

    bool takeOverlays(FormulaGroup& group) {
        const auto isOverlay = [](const FormulaItem& item) {
            return item.sign.size() == 1 && (formulaAccent(item.sign[0]) != 0 || item.sign[0] == U'\u0338');
        };
        for (auto next = std::find_if(group.items.begin(), group.items.end(), isOverlay); next != group.items.end();
             next = std::find_if(group.items.begin(), group.items.end(), isOverlay)) {
            const FormulaItem overlay = std::move(*next);
            group.items.erase(next);
            FormulaItem* base = baseOf(overlay, group.items);
            if (!base || base->part.kind == FormulaKind::Operator)
                return false;
            if (overlay.sign[0] == U'\u0338')
                strike(*base);
            else
                accent(*base, overlay);
        }
        return true;
    }

    /// The item that most of the overlay stands over.
    FormulaItem* baseOf(const FormulaItem& overlay, std::vector<FormulaItem>& items) const {
        FormulaItem* best = nullptr;
        double most = 0;
        for (FormulaItem& item : items) {
            const double shared = overlap(item.ink.left, item.ink.right, overlay.ink.left, overlay.ink.right);
            const double height = item.ink.top - overlay.ink.bottom;
            if (shared > most && std::abs(height) < overlay.size && item.ink.bottom > overlay.ink.centerY()) {
                most = shared;
                best = &item;
            }
        }
        return 2 * most >= overlay.ink.width() ? best : nullptr;
    }

    static void strike(FormulaItem& base) {
        const char32_t last = base.sign.empty() ? 0 : base.sign.back();
        if (last == 0)
            return;
        base.sign.pop_back();
        base.sign += compose(std::u32string{last}, U'\u0338');
        base.part.text = utf8FromUtf32(base.sign);
    }

    static void accent(FormulaItem& base, const FormulaItem& overlay) {
        base.part = formulaPart(FormulaKind::Accent, {std::move(base.part)});
        base.part.text = utf8FromUtf32(std::u32string{formulaAccent(overlay.sign[0])});
        base.sign.clear();
        base.ink = base.ink.united(overlay.ink);
    }

    // ---- Large brackets

    bool isTallFence(const FormulaItem& item) const {
        const bool isFence =
            isSign(item, isOpeningFence) || isSign(item, isClosingFence) || isSign(item, isStrokeFence);
        return isFence && item.ink.height() > m_grammar.tallFence * item.size;
    }

    /// The outermost pairs; those within are found when their content is read.
    bool takeFences(FormulaGroup& group) {
        std::vector<FormulaItem> fences;
        for (FormulaItem& item : group.items)
            if (isTallFence(item))
                fences.push_back(item);
        std::stable_sort(fences.begin(), fences.end(),
                         [](const FormulaItem& a, const FormulaItem& b) { return a.ink.left < b.ink.left; });
        for (std::size_t first = 0; first < fences.size();) {
            const std::size_t last = closingOf(fences, first);
            if (last < fences.size()) {
                if (!takeFence(group, fences[first], fences[last]))
                    return false;
                first = last + 1;
            } else if (isSign(fences[first], isStrokeFence)) {
                setBetween(group, fences[first++]);
            } else {
                return false;
            }
        }
        return true;
    }

    /// A stroke without another one stands between two sides, as in a set.
    void setBetween(FormulaGroup& group, const FormulaItem& stroke) const {
        for (FormulaItem& item : group.items) {
            if (!(item.ink == stroke.ink))
                continue;
            item.line = FormulaLine::Axis;
            item.baseline = item.ink.centerY() + m_grammar.axisHeight * item.size;
            item.part.text.assign(1, '|');
            item.sign.clear();
        }
    }

    /// The fence that ends what `first` opens; their number for none.
    static std::size_t closingOf(const std::vector<FormulaItem>& fences, std::size_t first) {
        if (isSign(fences[first], isClosingFence))
            return fences.size();
        if (isSign(fences[first], isStrokeFence)) {
            const auto same = std::find_if(fences.begin() + static_cast<std::ptrdiff_t>(first) + 1, fences.end(),
                                           [&](const FormulaItem& fence) { return fence.sign == fences[first].sign; });
            return static_cast<std::size_t>(same - fences.begin());
        }
        int depth = 0;
        for (std::size_t i = first; i < fences.size(); ++i) {
            depth += isSign(fences[i], isOpeningFence) ? 1 : isSign(fences[i], isClosingFence) ? -1 : 0;
            if (depth == 0)
                return i;
        }
        return fences.size();
    }

    bool takeFence(FormulaGroup& group, const FormulaItem& open, const FormulaItem& close) {
        const Rect ink = open.ink.united(close.ink);
        std::erase_if(group.items,
                      [&](const FormulaItem& item) { return item.ink == open.ink || item.ink == close.ink; });
        const std::optional<FormulaRow> content = row(group.take([&](const Rect& box) {
            return box.centerX() > open.ink.left && box.centerX() < close.ink.right && box.centerY() > ink.top &&
                   box.centerY() < ink.bottom;
        }));
        // What is not about the brackets' middle has something above or below it that is missing here.
        if (!content || std::abs(content->ink.centerY() - ink.centerY()) > m_grammar.sameAxis * content->size)
            return false;
        FormulaPart part = formulaPart(FormulaKind::Fence, {content->content});
        part.text = open.part.text;
        part.closing = close.part.text;
        group.items.push_back(itemOf(std::move(part), ink, content->baseline, content->size, FormulaLine::Axis));
        return true;
    }

    const FormulaParameters::FormulaGrammar& m_grammar;
    int m_depth = 0;
};

} // namespace

std::optional<ParsedFormula> parseFormula(const std::vector<FormulaAtom>& atoms, const std::vector<FormulaBar>& bars,
                                          const FormulaParameters::FormulaGrammar& grammar) {
    std::optional<FormulaRow> row = FormulaParser(grammar).row({formulaItems(atoms, grammar), bars});
    if (!row)
        return std::nullopt;
    return ParsedFormula{std::move(row->content), row->baseline, row->size};
}

} // namespace orvane::layout
