#include "layout/formulas/FormulaClusters.h"

#include "base/Utf8.h"
#include "layout/formulas/FormulaAtom.h"
#include "layout/formulas/FormulaSigns.h"
#include "layout/support/DisjointSets.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace orvane::layout {
namespace {

double sharedBreadth(const Rect& a, const Rect& b) {
    return overlap(a.left, a.right, b.left, b.right);
}

double gapBeside(const Rect& a, const Rect& b) {
    return std::max(a.left, b.left) - std::min(a.right, b.right);
}

/// From the one to the other below it; negative where they share height.
double gapBelow(const Rect& above, const Rect& below) {
    return below.top - above.bottom;
}

class ClusterBuilder {
public:
    ClusterBuilder(std::span<const FormulaPiece> pieces, std::span<const Rule> rules, const pdf::PageContent& page,
                   const FormulaParameters::Formulas& limits)
        : m_pieces(pieces)
        , m_rules(rules)
        , m_page(page)
        , m_limits(limits)
        , m_sets(pieces.size() + rules.size()) {}

    std::vector<FormulaCluster> build() {
        for (std::size_t i = 0; i < m_pieces.size(); ++i)
            if (isMember(m_pieces[i]))
                m_members.push_back(i);
        std::stable_sort(m_members.begin(), m_members.end(),
                         [&](std::size_t a, std::size_t b) { return m_pieces[a].ink.top < m_pieces[b].ink.top; });
        tieRules();
        tiePieces();
        std::vector<FormulaCluster> found = clusters();
        while (tieRows(found))
            found = clusters();
        for (FormulaCluster& cluster : found)
            adoptRules(cluster);
        std::erase_if(found, [&](const FormulaCluster& cluster) {
            return std::none_of(cluster.pieces.begin(), cluster.pieces.end(),
                                [&](std::size_t i) { return m_pieces[i].kind == FormulaPieceKind::Math; });
        });
        return found;
    }

private:
    static bool isMember(const FormulaPiece& piece) {
        return !piece.ink.isEmpty() && (piece.kind == FormulaPieceKind::Math || piece.kind == FormulaPieceKind::Loose ||
                                        piece.kind == FormulaPieceKind::Words);
    }
    /// Words stand within a formula, but above no rule and below no sum.
    static bool isOfSigns(const FormulaPiece& piece) { return piece.kind != FormulaPieceKind::Words; }

    /// Borders of tables and axes of charts meet others or cross them; rules of formulas stand alone.
    bool meetsUpright(const Rule& rule) const {
        return std::any_of(m_rules.begin(), m_rules.end(), [&](const Rule& other) {
            return other.direction == RuleDirection::Vertical && other.position > rule.from - 1 &&
                   other.position < rule.to + 1 && other.from <= rule.position + 1 && other.to >= rule.position - 1;
        });
    }

    void tieRules() {
        for (std::size_t r = 0; r < m_rules.size(); ++r) {
            const Rule& rule = m_rules[r];
            if (rule.direction != RuleDirection::Horizontal)
                continue;
            std::vector<std::size_t> above, below;
            for (const std::size_t member : m_members)
                addToSide(rule, member, above, below);
            if (below.empty() || (above.empty() && !isBarOver(rule, below)) || meetsUpright(rule))
                continue;
            for (const auto* side : {&above, &below})
                for (const std::size_t member : *side)
                    m_sets.unite(m_pieces.size() + r, member);
        }
    }

    void addToSide(const Rule& rule, std::size_t member, std::vector<std::size_t>& above,
                   std::vector<std::size_t>& below) const {
        const FormulaPiece& piece = m_pieces[member];
        const double shared = overlap(piece.ink.left, piece.ink.right, rule.from, rule.to);
        if (!isOfSigns(piece) || 2 * shared < std::min(piece.ink.width(), rule.to - rule.from))
            return;
        const double reach = m_limits.ruleReach * piece.size;
        const double over = rule.position - piece.ink.bottom, under = piece.ink.top - rule.position;
        if (over > -reach && over < reach && piece.ink.centerY() < rule.position)
            above.push_back(member);
        else if (under > -reach && under < reach)
            below.push_back(member);
    }

    /// A short rule with letters below it only: a bar over them, or that of a radical.
    bool isBarOver(const Rule& rule, const std::vector<std::size_t>& below) const {
        return std::any_of(below.begin(), below.end(), [&](std::size_t member) {
            const FormulaPiece& piece = m_pieces[member];
            return rule.to - rule.from < m_limits.longestBar * piece.size || hasRadicalAt(piece, rule);
        });
    }

    bool hasRadicalAt(const FormulaPiece& piece, const Rule& rule) const {
        return std::any_of(piece.glyphs.begin(), piece.glyphs.end(), [&](std::size_t index) {
            const pdf::Glyph& glyph = m_page.glyphs[index];
            const Rect ink = inkOf(glyph);
            return glyph.unicode == std::u32string{kRadicalSign} &&
                   std::abs(ink.right - rule.from) < glyph.fontSize / 3 &&
                   std::abs(ink.top - rule.position) < glyph.fontSize / 3;
        });
    }

    void tiePieces() {
        for (std::size_t a = 0; a < m_members.size(); ++a) {
            const FormulaPiece& piece = m_pieces[m_members[a]];
            std::optional<std::size_t> host;
            double nearest = m_limits.limitReach;
            for (std::size_t b = 0; b < m_members.size(); ++b) {
                const FormulaPiece& other = m_pieces[m_members[b]];
                if (a == b || other.ink.top > piece.ink.bottom + 2 * other.size)
                    continue;
                if (const double gap = limitGap(piece, other); gap < nearest) {
                    nearest = gap;
                    host = b;
                }
                if (b > a && (areOfOneFence(piece, other) || isBraceOf(piece, other) || isBraceOf(other, piece)))
                    m_sets.unite(m_members[a], m_members[b]);
            }
            if (host)
                m_sets.unite(m_members[a], m_members[*host]);
        }
    }

    /// How far the piece is from the next operator in `host` that it may be a limit of, above or below it; a limit of
    /// several operators is that of the nearest. Units: font sizes of the host.
    double limitGap(const FormulaPiece& piece, const FormulaPiece& host) const {
        double nearest = std::numeric_limits<double>::infinity();
        if (!isOfSigns(piece) || piece.size > m_limits.limitSize * host.size)
            return nearest;
        for (const Word& word : host.line.words) {
            const std::u32string text = utf32FromUtf8(textOf(word));
            const bool isOperator = hasLimitsBelow(text) || std::any_of(text.begin(), text.end(), isLargeOperator);
            if (!isOperator || sharedBreadth(word.box, piece.ink) <= 0)
                continue;
            const Rect ink = operatorInk(word, host);
            const double gap = std::max(piece.ink.top - ink.bottom, ink.top - piece.ink.bottom);
            nearest = std::min(nearest, std::max(0.0, gap) / host.size);
        }
        return nearest;
    }

    /// What is painted of the operator, or of its name.
    Rect operatorInk(const Word& word, const FormulaPiece& host) const {
        Rect all, sign;
        for (const std::size_t index : host.glyphs) {
            const pdf::Glyph& glyph = m_page.glyphs[index];
            if (glyph.box.centerX() < word.box.left || glyph.box.centerX() > word.box.right)
                continue;
            all = all.united(inkOf(glyph));
            if (!glyph.unicode.empty() && isLargeOperator(glyph.unicode.front()))
                sign = sign.united(inkOf(glyph));
        }
        return sign.isEmpty() ? all : sign;
    }

    /// A brace that lies below or above signs, or the words that it explains them with.
    bool isBraceOf(const FormulaPiece& brace, const FormulaPiece& other) const {
        const double gap = std::max(brace.ink.top - other.ink.bottom, other.ink.top - brace.ink.bottom);
        return sharedBreadth(brace.ink, other.ink) > 0 && gap < m_limits.limitReach * brace.size &&
               std::all_of(brace.glyphs.begin(), brace.glyphs.end(), [&](std::size_t index) {
                   const std::u32string& sign = m_page.glyphs[index].unicode;
                   return !sign.empty() && isLyingBrace(sign.front());
               });
    }

    /// Whether both have a piece of one bracket, which stand one below the other.
    bool areOfOneFence(const FormulaPiece& upper, const FormulaPiece& lower) const {
        const auto fencesOf = [&](const FormulaPiece& piece) {
            std::vector<Rect> fences;
            for (const std::size_t index : piece.glyphs)
                if (!m_page.glyphs[index].unicode.empty() && isFencePiece(m_page.glyphs[index].unicode.front()))
                    fences.push_back(inkOf(m_page.glyphs[index]));
            return fences;
        };
        const std::vector<Rect> below = fencesOf(lower);
        for (const Rect& piece : fencesOf(upper))
            for (const Rect& next : below)
                if (sharedBreadth(piece, next) > 0 && gapBelow(piece, next) < m_limits.fenceGap * upper.size)
                    return true;
        return false;
    }

    /// Rules amid the signs that no piece told of.
    void adoptRules(FormulaCluster& cluster) const {
        const Rect area = cluster.ink.inflated(1);
        for (std::size_t r = 0; r < m_rules.size(); ++r) {
            const Rule& rule = m_rules[r];
            const Rect box{rule.from, rule.position, rule.to, rule.position};
            if (rule.direction == RuleDirection::Horizontal && area.contains(box) && !meetsUpright(rule) &&
                std::find(cluster.rules.begin(), cluster.rules.end(), r) == cluster.rules.end())
                cluster.rules.push_back(r);
        }
    }

    /// Joins what stands side by side, or in each other. Whether there was anything to join.
    bool tieRows(const std::vector<FormulaCluster>& found) {
        bool hasTied = false;
        for (std::size_t a = 0; a < found.size(); ++a)
            for (std::size_t b = a + 1; b < found.size(); ++b)
                if (standInOneRow(found[a], found[b])) {
                    m_sets.unite(found[a].pieces.front(), found[b].pieces.front());
                    hasTied = true;
                }
        return hasTied;
    }

    bool standInOneRow(const FormulaCluster& a, const FormulaCluster& b) const {
        const double shared = overlap(a.ink.top, a.ink.bottom, b.ink.top, b.ink.bottom);
        return shared > m_limits.shared * std::min(a.ink.height(), b.ink.height()) &&
               gapBeside(a.ink, b.ink) <= m_limits.gap * std::max(a.size, b.size);
    }

    std::vector<FormulaCluster> clusters() {
        std::vector<FormulaCluster> found;
        for (const std::vector<std::size_t>& members : m_sets.groups()) {
            FormulaCluster cluster;
            for (const std::size_t member : members) {
                if (member >= m_pieces.size()) {
                    const Rule& rule = m_rules[member - m_pieces.size()];
                    cluster.rules.push_back(member - m_pieces.size());
                    cluster.ink = cluster.ink.united({rule.from, rule.position - 0.1, rule.to, rule.position + 0.1});
                    continue;
                }
                cluster.pieces.push_back(member);
                cluster.ink = cluster.ink.united(m_pieces[member].ink);
                cluster.size = std::max(cluster.size, m_pieces[member].size);
            }
            if (!cluster.pieces.empty() && isMember(m_pieces[cluster.pieces.front()]))
                found.push_back(std::move(cluster));
        }
        return found;
    }

    std::span<const FormulaPiece> m_pieces;
    std::span<const Rule> m_rules;
    const pdf::PageContent& m_page;
    const FormulaParameters::Formulas& m_limits;
    DisjointSets m_sets;                ///< of pieces, then of rules
    std::vector<std::size_t> m_members; ///< pieces that may be of formulas, from top to bottom
};

} // namespace

std::vector<FormulaCluster> formulaClusters(std::span<const FormulaPiece> pieces, std::span<const Rule> rules,
                                            const pdf::PageContent& page, const FormulaParameters::Formulas& limits) {
    return ClusterBuilder(pieces, rules, page, limits).build();
}

} // namespace orvane::layout
