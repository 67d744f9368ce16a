#include "layout/formulas/InlineFormulas.h"

#include "document/FormulaText.h"
#include "layout/formulas/FormulaMaker.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>
#include <utility>

namespace orvane::layout {

InlineFormulas::InlineFormulas(const pdf::PageContent& page, PageText& text, std::span<const FormulaPiece> pieces,
                               std::vector<bool>& isTaken, const FormulaParameters& parameters)
    : m_page(page)
    , m_text(text)
    , m_pieces(pieces)
    , m_isTaken(isTaken)
    , m_parameters(parameters) {}

void InlineFormulas::place(const std::vector<FormulaCluster>& clusters) {
    std::map<std::size_t, std::vector<Group>> groupsOfHost;
    for (const FormulaCluster& cluster : clusters) {
        const std::optional<std::size_t> host = hostOf(cluster);
        if (!host)
            continue;
        if (std::optional<Group> group = groupIn(cluster, *host))
            join(groupsOfHost[*host], std::move(*group));
    }
    for (const auto& [host, groups] : groupsOfHost)
        fill(host, groups);
}

/// The line of text that most of the cluster's height stands beside; nothing where a formula has taken of it.
std::optional<std::size_t> InlineFormulas::hostOf(const FormulaCluster& cluster) const {
    std::optional<std::size_t> best;
    double most = 0;
    for (std::size_t i = 0; i < m_pieces.size(); ++i) {
        const FormulaPiece& piece = m_pieces[i];
        const Line& line = m_text.lines[piece.source];
        const double shared = overlap(piece.ink.top, piece.ink.bottom, cluster.ink.top, cluster.ink.bottom);
        const double reach = m_parameters.formulas.proseGap * cluster.size;
        if (piece.kind != FormulaPieceKind::Prose || cluster.ink.left < line.box.left - reach ||
            cluster.ink.right > line.box.right + reach || shared <= most)
            continue;
        most = shared;
        best = piece.source;
    }
    if (!best)
        return best;
    for (std::size_t i = 0; i < m_pieces.size(); ++i)
        if (m_pieces[i].source == *best && m_isTaken[i])
            return std::nullopt;
    return best;
}

bool InlineFormulas::reachesInto(const Word& word, const Rect& ink, double size) const {
    const double slack = m_parameters.formulaGrammar.wordGap * size;
    return overlap(word.box.left, word.box.right, ink.left, ink.right) > slack;
}

/// Nothing where words of the text stand in its way.
std::optional<InlineFormulas::Group> InlineFormulas::groupIn(const FormulaCluster& cluster, std::size_t host) const {
    const Line& line = m_text.lines[host];
    Group group;
    group.rules = cluster.rules;
    for (const std::size_t rule : cluster.rules) {
        const Rule& bar = m_text.rules[rule];
        group.ink =
            group.ink.united({bar.from, bar.position - bar.width / 2, bar.to, bar.position + bar.width / 2 + 0.1});
    }
    for (const std::size_t piece : cluster.pieces) {
        if (m_pieces[piece].source == host)
            continue;
        group.pieces.push_back(piece);
        group.ink = group.ink.united(m_pieces[piece].ink);
    }
    if (group.pieces.empty() || line.isRightToLeft)
        return std::nullopt;
    const std::vector<Word>& words = line.words;
    const auto isOfFormula = [&](std::size_t word) {
        return !isTextWord(words[word], m_text.fonts) && !isLabelWord(words[word]);
    };
    group.first = static_cast<std::size_t>(
        std::find_if(words.begin(), words.end(),
                     [&](const Word& word) {
                         return word.box.right > group.ink.left + m_parameters.formulaGrammar.wordGap * cluster.size;
                     }) -
        words.begin());
    group.last = group.first;
    while (group.last < words.size() && reachesInto(words[group.last], group.ink, cluster.size)) {
        if (!isOfFormula(group.last))
            return std::nullopt;
        ++group.last;
    }
    const double reach = m_parameters.formulas.proseGap * cluster.size;
    Rect ink = group.ink;
    while (group.last < words.size() && isOfFormula(group.last) && words[group.last].box.left - ink.right < reach)
        ink.right = std::max(ink.right, words[group.last++].box.right);
    while (group.first > 0 && isOfFormula(group.first - 1) && ink.left - words[group.first - 1].box.right < reach)
        ink.left = std::min(ink.left, words[--group.first].box.left);
    return group;
}

/// Groups that share words, or stand one behind the other without any in between, are one.
void InlineFormulas::join(std::vector<Group>& groups, Group group) {
    for (auto other = groups.begin(); other != groups.end();) {
        const bool isApart = other->last < group.first || group.last < other->first;
        if (isApart) {
            ++other;
            continue;
        }
        group.pieces.insert(group.pieces.end(), other->pieces.begin(), other->pieces.end());
        group.rules.insert(group.rules.end(), other->rules.begin(), other->rules.end());
        group.ink = group.ink.united(other->ink);
        group.first = std::min(group.first, other->first);
        group.last = std::max(group.last, other->last);
        other = groups.erase(other);
    }
    groups.push_back(std::move(group));
}

std::vector<std::size_t> InlineFormulas::glyphsOf(std::size_t host, const Line& line, const Group& group) const {
    std::vector<std::size_t> glyphs;
    for (const std::size_t piece : group.pieces)
        glyphs.insert(glyphs.end(), m_pieces[piece].glyphs.begin(), m_pieces[piece].glyphs.end());
    for (const FormulaPiece& piece : m_pieces) {
        if (piece.source != host)
            continue;
        std::copy_if(piece.glyphs.begin(), piece.glyphs.end(), std::back_inserter(glyphs), [&](std::size_t glyph) {
            const double middle = m_page.glyphs[glyph].box.centerX();
            return std::any_of(
                line.words.begin() + static_cast<std::ptrdiff_t>(group.first),
                line.words.begin() + static_cast<std::ptrdiff_t>(group.last),
                [middle](const Word& word) { return middle >= word.box.left && middle <= word.box.right; });
        });
    }
    return glyphs;
}

Formula InlineFormulas::formulaOf(std::size_t host, const Line& line, const Group& group) const {
    Formula formula;
    formula.place = document::FormulaPlace::InLine;
    formula.box = group.ink;
    formula.box.top = std::min(formula.box.top, line.baseline - line.fontSize);
    formula.box.bottom = std::max(formula.box.bottom, line.baseline);
    Line words = line;
    words.words.assign(line.words.begin() + static_cast<std::ptrdiff_t>(group.first),
                       line.words.begin() + static_cast<std::ptrdiff_t>(group.last));
    for (const Word& word : words.words) {
        formula.box.left = std::min(formula.box.left, word.box.left);
        formula.box.right = std::max(formula.box.right, word.box.right);
    }
    std::optional<ParsedFormula> parsed = readFormula({glyphsOf(host, line, group), rulesOf(formula.box, group)},
                                                      m_page, m_text.rules, m_parameters.formulaGrammar);
    if (parsed) {
        formula.text = document::linearText(parsed->content);
        formula.structure = std::move(parsed->content);
        formula.needsPainting = true;
        return formula;
    }
    std::vector<Line> parts;
    for (const std::size_t piece : group.pieces)
        parts.push_back(m_pieces[piece].line);
    for (Word& word : words.words) {
        Line part;
        part.box = word.box;
        part.words.push_back(std::move(word));
        parts.push_back(std::move(part));
    }
    std::vector<const Line*> all;
    for (const Line& part : parts)
        all.push_back(&part);
    formula.text = textFromLeft(std::move(all));
    return formula;
}

/// Those of the signs off the line, and what else is drawn amid the formula: the rule of a root over words of the line.
std::vector<std::size_t> InlineFormulas::rulesOf(const Rect& box, const Group& group) const {
    std::vector<std::size_t> rules = group.rules;
    for (std::size_t r = 0; r < m_text.rules.size(); ++r) {
        const Rule& rule = m_text.rules[r];
        if (rule.direction == RuleDirection::Horizontal && !rule.isUsed &&
            box.inflated(1).contains(Rect{rule.from, rule.position, rule.to, rule.position}) &&
            std::find(rules.begin(), rules.end(), r) == rules.end())
            rules.push_back(r);
    }
    return rules;
}

/// Makes the line anew with a word for each formula.
void InlineFormulas::fill(std::size_t host, const std::vector<Group>& groups) {
    Line& line = m_text.lines[host];
    const Line original = line;
    std::vector<Group> ordered = groups;
    std::stable_sort(ordered.begin(), ordered.end(), [](const Group& a, const Group& b) { return a.first > b.first; });
    for (const Group& group : ordered) {
        Formula formula = formulaOf(host, original, group);
        for (const std::size_t piece : group.pieces) {
            formula.lines.push_back(m_pieces[piece].line);
            m_isTaken[piece] = true;
        }
        for (const std::size_t rule : group.rules)
            m_text.rules[rule].isUsed = true;
        if (&group == &ordered.back())
            formula.lines.push_back(original);
        const std::size_t model = std::min(group.first, original.words.size() - 1);
        Look look = original.words[model].spans.front().look;
        look.size = original.fontSize;
        Word word = formulaWord(m_text.formulas.size(), formula.box, original.baseline, look);
        const auto from = line.words.begin() + static_cast<std::ptrdiff_t>(group.first);
        const auto to = line.words.begin() + static_cast<std::ptrdiff_t>(group.last);
        if (from != to)
            word.gapBefore = from->gapBefore == Gap::Tab ? Gap::Space : from->gapBefore;
        // What parted the words on both sides was the room for the formula.
        if (to != line.words.end() && to->gapBefore == Gap::Tab)
            to->gapBefore = Gap::Space;
        const auto place = line.words.erase(from, to);
        line.words.insert(place, std::move(word));
        m_text.formulas.push_back(std::move(formula));
    }
    const std::uint32_t paintOrder = line.firstPaintOrder;
    const double size = line.fontSize;
    const Rect box = original.box;
    measureAnew(line);
    line.fontSize = size;
    line.firstPaintOrder = paintOrder;
    line.box = {std::min(box.left, line.box.left), box.top, std::max(box.right, line.box.right), box.bottom};
}

} // namespace orvane::layout
