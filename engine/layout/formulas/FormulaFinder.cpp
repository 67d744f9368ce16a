#include "layout/formulas/FormulaFinder.h"

#include "document/FormulaText.h"
#include "layout/formulas/FormulaClusters.h"
#include "layout/formulas/FormulaMaker.h"
#include "layout/formulas/FormulaPieces.h"
#include "layout/formulas/InlineFormulas.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

namespace orvane::layout {
namespace {

class FormulaFinder {
public:
    FormulaFinder(const pdf::PageContent& page, const GlyphSelection& selection, PageText& text,
                  const FormulaParameters& parameters)
        : m_page(page)
        , m_text(text)
        , m_parameters(parameters)
        , m_limits(parameters.formulas)
        , m_pieces(formulaPieces(page, selection, text, parameters.formulas))
        , m_isTaken(m_pieces.size()) {}

    void find() {
        std::vector<FormulaCluster> inText;
        for (FormulaCluster& cluster : clusters()) {
            if (standsInText(cluster))
                inText.push_back(std::move(cluster));
            else
                admit(cluster);
        }
        InlineFormulas(m_page, m_text, m_pieces, m_isTaken, m_parameters).place(inText);
        if (m_text.formulas.empty())
            return;
        leaveRest();
        std::move(m_made.begin(), m_made.end(), std::back_inserter(m_text.lines));
        std::stable_sort(m_text.lines.begin(), m_text.lines.end(),
                         [](const Line& a, const Line& b) { return a.baseline < b.baseline; });
    }

private:
    bool isIn(const FormulaCluster& cluster, std::size_t piece) const {
        return std::binary_search(cluster.pieces.begin(), cluster.pieces.end(), piece);
    }

    /// A piece that starts with a word or a label starts a sentence, unless a formula is before it on its row.
    std::vector<FormulaCluster> clusters() {
        std::vector<FormulaCluster> found = formulaClusters(m_pieces, m_text.rules, m_page, m_limits);
        bool hasSentence = false;
        for (const FormulaCluster& cluster : found) {
            FormulaPiece& first = m_pieces[*std::min_element(
                cluster.pieces.begin(), cluster.pieces.end(),
                [&](std::size_t a, std::size_t b) { return m_pieces[a].ink.left < m_pieces[b].ink.left; })];
            const std::vector<Word>& words = first.line.words;
            if (!isTextWord(words.front(), m_text.fonts) && !(words.size() > 1 && isLabelWord(words.front())))
                continue;
            first.kind = FormulaPieceKind::Prose;
            hasSentence = true;
        }
        return hasSentence ? formulaClusters(m_pieces, m_text.rules, m_page, m_limits) : found;
    }

    /// Text beside it on its row, or around it.
    bool standsInText(const FormulaCluster& cluster) const {
        for (std::size_t i = 0; i < m_pieces.size(); ++i) {
            const FormulaPiece& piece = m_pieces[i];
            if (piece.kind != FormulaPieceKind::Prose || isIn(cluster, i))
                continue;
            const double shared = overlap(piece.ink.top, piece.ink.bottom, cluster.ink.top, cluster.ink.bottom);
            const double gap =
                std::max(piece.ink.left, cluster.ink.left) - std::min(piece.ink.right, cluster.ink.right);
            if (shared > m_limits.proseShared * piece.ink.height() && gap < m_limits.proseGap * cluster.size)
                return true;
        }
        return false;
    }

    /// Rules, limits and large signs, which lines of text never have.
    bool isBuilt(const FormulaCluster& cluster) const {
        const FormulaPiece& first = m_pieces[cluster.pieces.front()];
        return !cluster.rules.empty() || std::any_of(cluster.pieces.begin(), cluster.pieces.end(), [&](std::size_t i) {
            const double step = std::abs(m_pieces[i].line.baseline - first.line.baseline);
            return m_pieces[i].hasTallSign || step > m_limits.level * cluster.size;
        });
    }

    /// The numbers and names along a chart's axes.
    bool isLabel(const FormulaCluster& cluster) const {
        const Rect around = cluster.ink.inflated(m_limits.figureGap * cluster.size);
        return std::any_of(m_text.figures.begin(), m_text.figures.end(),
                           [&](const Figure& figure) { return !figure.isBackground && figure.box.intersects(around); });
    }

    bool saysSomething(const FormulaCluster& cluster) const {
        const bool hasFraction = !cluster.rules.empty() && cluster.pieces.size() > 1;
        return hasFraction || std::any_of(cluster.pieces.begin(), cluster.pieces.end(), [&](std::size_t i) {
                   return m_pieces[i].hasRelation || m_pieces[i].hasOperator || m_pieces[i].hasTallSign;
               });
    }

    /// What text with scripts cannot show.
    bool reachesOverLines(const FormulaCluster& cluster) const {
        return !cluster.rules.empty() || std::any_of(cluster.pieces.begin(), cluster.pieces.end(), [&](std::size_t i) {
            return m_pieces[i].hasTallSign || m_pieces[i].hasOperator;
        });
    }

    void admit(const FormulaCluster& cluster) {
        if (isLabel(cluster) || !saysSomething(cluster))
            return;
        const bool built = isBuilt(cluster);
        if (!built && !isSetOff(cluster))
            return;
        std::optional<ParsedFormula> parsed = parse(cluster);
        if (!parsed && !reachesOverLines(cluster))
            return;
        place(cluster, std::move(parsed));
    }

    /// A line of its own that starts behind the edge of the text above and below.
    bool isSetOff(const FormulaCluster& cluster) const {
        const FormulaPiece& piece = m_pieces[cluster.pieces.front()];
        if (cluster.pieces.size() != 1 || !piece.hasRelation || piece.mathSigns < m_limits.fewestSigns)
            return false;
        int neighbours = 0;
        for (std::size_t i = 0; i < m_pieces.size(); ++i) {
            const FormulaPiece& other = m_pieces[i];
            if (other.source == piece.source && i != cluster.pieces.front() && other.kind != FormulaPieceKind::Number)
                return false;
            const double distance = std::abs(other.line.baseline - piece.line.baseline);
            const double before = piece.ink.left - other.ink.right;
            if (distance < m_limits.level * cluster.size && before >= 0 && before < m_limits.rowReach * cluster.size)
                return false;
            const bool isNear = other.kind == FormulaPieceKind::Prose &&
                                distance < m_limits.neighbourReach * cluster.size &&
                                overlap(other.ink.left, other.ink.right, piece.ink.left, piece.ink.right) > 0;
            if (!isNear)
                continue;
            if (piece.ink.left - other.ink.left < m_limits.indent * cluster.size)
                return false;
            ++neighbours;
        }
        return neighbours > 0;
    }

    std::optional<ParsedFormula> parse(const FormulaCluster& cluster) const {
        FormulaSources sources;
        sources.rules = cluster.rules;
        for (const std::size_t piece : cluster.pieces)
            sources.glyphs.insert(sources.glyphs.end(), m_pieces[piece].glyphs.begin(), m_pieces[piece].glyphs.end());
        return readFormula(sources, m_page, m_text.rules, m_parameters.formulaGrammar);
    }

    void place(const FormulaCluster& cluster, std::optional<ParsedFormula> parsed) {
        Formula formula;
        formula.box = cluster.ink;
        const std::optional<std::size_t> number = numberOf(cluster);
        formula.lines = sourceLines(cluster, number);
        formula.needsPainting = true;
        formula.box = formula.box.inflated(m_limits.paintedMargin);
        formula.text = parsed ? document::linearText(parsed->content) : textOf(cluster);
        if (parsed)
            formula.structure = std::move(parsed->content);
        m_made.push_back(lineFor(cluster, formula.box, parsed ? parsed->baseline : mainPiece(cluster).line.baseline));
        if (number)
            addNumber(m_made.back(), m_pieces[*number].line);
        for (const std::size_t piece : cluster.pieces)
            m_isTaken[piece] = true;
        if (number)
            m_isTaken[*number] = true;
        for (const std::size_t rule : cluster.rules)
            m_text.rules[rule].isUsed = true;
        m_text.formulas.push_back(std::move(formula));
    }

    /// The number on the formula's row, with nothing in between.
    std::optional<std::size_t> numberOf(const FormulaCluster& cluster) const {
        std::optional<std::size_t> nearest;
        for (std::size_t i = 0; i < m_pieces.size(); ++i) {
            const FormulaPiece& piece = m_pieces[i];
            const bool isBehind = piece.ink.left > cluster.ink.right && piece.ink.centerY() > cluster.ink.top &&
                                  piece.ink.centerY() < cluster.ink.bottom;
            if (!isBehind || m_isTaken[i])
                continue;
            if (!nearest || piece.ink.left < m_pieces[*nearest].ink.left)
                nearest = i;
        }
        return nearest && m_pieces[*nearest].kind == FormulaPieceKind::Number ? nearest : std::nullopt;
    }

    /// The page's lines that go into the formula whole, and of others the pieces that do.
    std::vector<Line> sourceLines(const FormulaCluster& cluster, std::optional<std::size_t> number) const {
        std::vector<std::size_t> taken = cluster.pieces;
        if (number)
            taken.push_back(*number);
        std::vector<Line> lines;
        std::set<std::size_t> whole;
        for (const std::size_t piece : taken) {
            const std::size_t source = m_pieces[piece].source;
            const bool isWhole = std::none_of(m_pieces.begin(), m_pieces.end(), [&](const FormulaPiece& other) {
                const auto index = static_cast<std::size_t>(&other - m_pieces.data());
                return other.source == source && std::find(taken.begin(), taken.end(), index) == taken.end();
            });
            if (!isWhole)
                lines.push_back(m_pieces[piece].line);
            else if (whole.insert(source).second)
                lines.push_back(m_text.lines[source]);
        }
        return lines;
    }

    std::string textOf(const FormulaCluster& cluster) const {
        std::vector<const Line*> lines;
        for (const std::size_t piece : cluster.pieces)
            lines.push_back(&m_pieces[piece].line);
        return textFromLeft(std::move(lines));
    }

    const FormulaPiece& mainPiece(const FormulaCluster& cluster) const {
        const std::size_t main =
            *std::max_element(cluster.pieces.begin(), cluster.pieces.end(), [&](std::size_t a, std::size_t b) {
                return m_pieces[a].ink.width() < m_pieces[b].ink.width();
            });
        return m_pieces[main];
    }

    Line lineFor(const FormulaCluster& cluster, const Rect& box, double baseline) const {
        const FormulaPiece& main = mainPiece(cluster);
        Line line;
        line.box = box;
        line.baseline = std::clamp(baseline, box.top, box.bottom);
        line.fontSize = main.line.fontSize;
        line.firstPaintOrder = main.line.firstPaintOrder;
        Look look = main.line.words.front().spans.front().look;
        look.size = main.line.fontSize;
        line.words.push_back(formulaWord(m_text.formulas.size(), box, line.baseline, look));
        return line;
    }

    static void addNumber(Line& line, const Line& number) {
        for (const Word& word : number.words) {
            line.words.push_back(word);
            if (&word == &number.words.front())
                line.words.back().gapBefore = Gap::Tab;
        }
        line.box = line.box.united(number.box);
    }

    /// What of the lines is of no formula.
    void leaveRest() {
        std::vector<Line> rest;
        for (std::size_t i = 0, piece = 0; i < m_text.lines.size(); ++i) {
            const std::size_t first = piece;
            while (piece < m_pieces.size() && m_pieces[piece].source == i)
                ++piece;
            const auto from = m_isTaken.begin() + static_cast<std::ptrdiff_t>(first);
            const auto to = m_isTaken.begin() + static_cast<std::ptrdiff_t>(piece);
            if (std::find(from, to, true) == to) {
                rest.push_back(std::move(m_text.lines[i]));
                continue;
            }
            for (std::size_t p = first; p < piece; ++p)
                if (!m_isTaken[p])
                    rest.push_back(std::move(m_pieces[p].line));
        }
        m_text.lines = std::move(rest);
    }

    const pdf::PageContent& m_page;
    PageText& m_text;
    const FormulaParameters& m_parameters;
    const FormulaParameters::Formulas& m_limits;
    std::vector<FormulaPiece> m_pieces;
    std::vector<bool> m_isTaken; ///< one for each piece
    std::vector<Line> m_made;
};

} // namespace

void findFormulas(const pdf::PageContent& page, const GlyphSelection& selection, PageText& text,
                  const FormulaParameters& parameters) {
    FormulaFinder(page, selection, text, parameters).find();
}

namespace {

/// What is nothing without its picture.
bool isOnlyPainted(const Formula& formula) {
    return !formula.structure && formula.needsPainting;
}

/// The formulas that the line has, in the order of its words.
std::vector<Formula*> formulasOf(const Line& line, PageText& text) {
    std::vector<Formula*> formulas;
    for (const Word& word : line.words)
        for (const Span& span : word.spans)
            if (span.look.formula >= 0)
                formulas.push_back(&text.formulas[static_cast<std::size_t>(span.look.formula)]);
    return formulas;
}

} // namespace

void restoreFormulaLines(PageText& text, RestoredFormulas which) {
    if (text.formulas.empty())
        return;
    std::vector<Line> lines;
    for (Line& line : text.lines) {
        const std::vector<Formula*> formulas = formulasOf(line, text);
        const bool isRestored =
            !formulas.empty() && (which == RestoredFormulas::All || isOnlyPainted(*formulas.front()));
        if (!isRestored) {
            lines.push_back(std::move(line));
            continue;
        }
        for (Formula* formula : formulas)
            std::move(formula->lines.begin(), formula->lines.end(), std::back_inserter(lines));
    }
    std::stable_sort(lines.begin(), lines.end(), [](const Line& a, const Line& b) { return a.baseline < b.baseline; });
    text.lines = std::move(lines);
}

bool isFormulaLine(const Line& line) {
    return !line.words.empty() && !line.words.front().spans.empty() &&
           line.words.front().spans.front().look.formula >= 0 &&
           (line.words.size() == 1 || line.words[1].gapBefore == Gap::Tab);
}

} // namespace orvane::layout
