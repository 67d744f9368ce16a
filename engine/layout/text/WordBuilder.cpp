#include "layout/text/WordBuilder.h"

#include "layout/text/Characters.h"
#include "layout/text/LabelText.h"
#include "layout/text/PaintedBlanks.h"

#include <algorithm>
#include <optional>

namespace orvane::layout {
namespace {

/// The gap at clusters[i], with what stands on both sides.
struct GapView {
    const Cluster& left;
    const Cluster& right;

    double size() const { return std::min(left.size, right.size); }
    double spaceWidth() const { return std::min(left.spaceWidth, right.spaceWidth); }
    const ClusterGap& gap() const { return right.gapBefore; }
    bool isBetweenEastAsian() const {
        return isSetWithoutBlanks(left.text.back()) && isSetWithoutBlanks(right.text.front());
    }
    bool touchesEastAsian() const {
        return isSetWithoutBlanks(left.text.back()) || isSetWithoutBlanks(right.text.front());
    }
    bool isBetweenLetters() const { return isLetter(left.text.back()) && isLetter(right.text.front()); }
    /// Dots of a leader, strokes of a line to write on: how far they are apart says nothing about letters.
    bool isBetweenFillers() const {
        return left.text == right.text && !isLetter(left.text.front()) && !isDigit(left.text.front());
    }
    bool touchesHangul() const { return isHangul(left.text.back()) != isHangul(right.text.front()); }
    bool touchesScript() const { return left.look.verticalPosition != right.look.verticalPosition; }
    bool changesWeight() const { return left.look.isBold != right.look.isBold; }
};

double quantile(std::vector<double>& values, double share) {
    const auto at = values.begin() + static_cast<std::ptrdiff_t>(share * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), at, values.end());
    return *at;
}

/// Decides over the gaps of one stretch of a row, in which letters are spaced alike.
class Stretch {
public:
    Stretch(std::vector<Cluster>& clusters, std::size_t first, std::size_t last, const TextParameters::Words& limits)
        : m_clusters(clusters)
        , m_first(first)
        , m_last(last)
        , m_limits(limits) {
        for (std::size_t i = m_first + 1; i < m_last; ++i)
            m_hasBlanks |= m_clusters[i].gapBefore.hasBlank;
    }

    void decide(double rowLetterGap) {
        const double letterGap = findLetterGap(m_first, m_last).value_or(rowLetterGap);
        std::size_t pieceStart = m_first;
        for (std::size_t i = m_first + 1; i <= m_last; ++i) {
            if (i < m_last && !m_clusters[i].gapBefore.hasBlank)
                continue;
            // What stands between two painted blanks is mostly one word and may be spaced out on its own.
            decidePiece(pieceStart, i, findLetterGap(pieceStart, i).value_or(letterGap));
            if (i < m_last)
                decideGap(i, letterGap);
            pieceStart = i;
        }
    }

    std::optional<double> findLetterGap() const { return findLetterGap(m_first, m_last); }

private:
    void decidePiece(std::size_t first, std::size_t last, double letterGap) {
        for (std::size_t i = first + 1; i < last; ++i)
            decideGap(i, letterGap);
    }

    void decideGap(std::size_t i, double letterGap) {
        const GapView view = viewAt(i);
        m_clusters[i].gapBefore.endsWord = endsWord(view, letterGap) || partsWeights(i, letterGap);
        m_clusters[i].gapBefore.letterSpacing = letterGap * view.size();
    }

    /// What the letters of one word are apart, in em; nothing when there are too few of them to tell.
    std::optional<double> findLetterGap(std::size_t first, std::size_t last) const {
        std::vector<double> gaps;
        bool isAllLetters = true;
        double spaceWidth = 0;
        for (std::size_t i = first + 1; i < last; ++i) {
            const GapView view = viewAt(i);
            if (view.gap().hasBlank || view.touchesEastAsian() || view.touchesScript() || view.isBetweenFillers())
                continue;
            gaps.push_back(view.gap().width / view.size());
            isAllLetters &= view.isBetweenLetters();
            spaceWidth = std::max(spaceWidth, view.spaceWidth() / view.size());
        }
        if (gaps.size() < m_limits.fewestLetterGaps)
            return std::nullopt;
        const double middle = quantile(gaps, 0.5);
        if (middle <= m_limits.tightestSpacing * spaceWidth)
            return std::max(middle, -m_limits.greatestCondensing);
        // Gaps as wide as blanks: either a letter-spaced word, or single characters that are words of their own.
        const bool isEven =
            quantile(gaps, m_limits.evenShare) - quantile(gaps, 1 - m_limits.evenShare) <= m_limits.evenness * middle;
        const bool isSpacedOut = isEven && middle <= m_limits.widestSpacing &&
                                 (m_hasBlanks || (isAllLetters && gaps.size() >= m_limits.fewestSpacedLetters));
        return isSpacedOut ? middle : m_limits.tightestSpacing * spaceWidth;
    }

    GapView viewAt(std::size_t i) const { return {m_clusters[i - 1], m_clusters[i]}; }

    bool endsWord(const GapView& view, double letterGap) const {
        if (view.right.beginsOnWord)
            return true;
        const double beyond = view.gap().width - letterGap * view.size();
        if (view.touchesScript() && !view.gap().hasBlank)
            return beyond >= m_limits.scriptGap * view.spaceWidth();
        // A blank that has all the room it takes is one, however far apart letters elsewhere in the row are.
        if (view.gap().hasBlank)
            return beyond >= m_limits.blankShare * view.spaceWidth() ||
                   view.gap().width >= m_limits.narrowestBlank * view.spaceWidth();
        if (view.gap().width < -m_limits.overprint * view.size())
            return true;
        // Word processors set Latin letters a little apart from East Asian ones.
        if (view.touchesEastAsian() || (m_hasBlanks && view.touchesHangul()))
            return beyond >= m_limits.eastAsianGap * view.size();
        return beyond >= (m_hasBlanks ? m_limits.gapAmongBlanks : m_limits.gapWithoutBlanks) * view.spaceWidth();
    }

    /// True between two words of different weights that stand closer than a blank but farther apart than letters:
    /// forms set their bold words by themselves. Single letters may be those of a formula.
    bool partsWeights(std::size_t i, double letterGap) const {
        const GapView view = viewAt(i);
        if (!view.changesWeight() || view.gap().width - letterGap * view.size() < m_limits.weightGap * view.size())
            return false;
        return i >= m_first + 2 && i + 1 < m_last && isWithinWord(i - 1) && isWithinWord(i + 1);
    }

    /// True for a letter that goes on the word of the letter before it, in scripts that are written with blanks.
    bool isWithinWord(std::size_t i) const {
        const GapView view = viewAt(i);
        const auto isOfWord = [](const Cluster& cluster) {
            return isLeftToRightLetter(cluster.text.front()) && !isSetWithoutBlanks(cluster.text.front()) &&
                   !isHangul(cluster.text.front());
        };
        return !view.gap().hasBlank && !view.changesWeight() && !view.touchesScript() && isOfWord(view.left) &&
               isOfWord(view.right);
    }

    std::vector<Cluster>& m_clusters;
    std::size_t m_first;
    std::size_t m_last;
    const TextParameters::Words& m_limits;
    bool m_hasBlanks = false;
};

/// A bullet of another font that text stands close behind. East Asian letters are of another font than many signs that
/// were typed before them.
bool isCloseBullet(const Cluster& sign, const Cluster& next) {
    return sign.look.font != next.look.font && isListSign(sign.text) && isLetter(next.text.front()) &&
           !isSetWithoutBlanks(next.text.front());
}

/// East Asian text stands closer to its label than its characters to those of other scripts; the label is a word still,
/// unless it ends in a digit, which has that little gap behind it anyway.
void partLabelAt(std::vector<Cluster>& clusters, std::size_t first, const TextParameters::Words& limits) {
    if (first + 1 < clusters.size() && isCloseBullet(clusters[first], clusters[first + 1])) {
        clusters[first + 1].gapBefore.endsWord = true;
        return;
    }
    std::u32string label;
    for (std::size_t i = first; i + 1 < clusters.size() && label.size() < limits.longestLabel; ++i) {
        label += clusters[i].text;
        Cluster& next = clusters[i + 1];
        if (next.gapBefore.endsWord)
            return;
        if (!isSetWithoutBlanks(next.text.front()))
            continue;
        next.gapBefore.endsWord = !isDigit(label.back()) && isLabelText(label, limits.longestLabel) &&
                                  next.gapBefore.width >= limits.labelGap * next.size;
        return;
    }
}

/// The label may begin the stretch; a bullet is one behind the text of a neighbouring cell, too.
void partLabels(std::vector<Cluster>& clusters, std::size_t first, std::size_t last,
                const TextParameters::Words& limits) {
    partLabelAt(clusters, first, limits);
    for (std::size_t i = first + 1; i < last; ++i)
        if (clusters[i].gapBefore.endsWord && isListSign(clusters[i].text))
            partLabelAt(clusters, i, limits);
}

/// Blanks that lie on top of each other, or that more was painted of than there is room for, were not typed.
void countBlanks(std::vector<Cluster>& clusters, double narrowest) {
    for (std::size_t i = 1; i < clusters.size(); ++i) {
        ClusterGap& gap = clusters[i].gapBefore;
        const double blank = narrowest * std::min(clusters[i - 1].spaceWidth, clusters[i].spaceWidth);
        const int room = blank > 0 ? static_cast<int>(std::min<double>(gap.ownWidth() / blank, kMostBlanks)) : 1;
        gap.blanks = std::clamp(gap.blanks, 1, std::max(1, room));
    }
}

/// A drop cap stands away from the rest of its word.
void joinToDropCap(TextRow& row) {
    const auto rest = std::find_if(row.clusters.begin(), row.clusters.end(),
                                   [&row](const Cluster& cluster) { return cluster.look.size <= row.fontSize; });
    if (rest != row.clusters.end() && !rest->gapBefore.hasBlank)
        rest->gapBefore.endsWord = false;
}

void findGapsOf(TextRow& row, const TextParameters::Words& limits) {
    std::vector<Cluster>& clusters = row.clusters;
    const double rowLetterGap = Stretch(clusters, 0, clusters.size(), limits).findLetterGap().value_or(0);
    std::size_t first = 0;
    for (std::size_t i = 1; i <= clusters.size(); ++i) {
        const bool isWide =
            i < clusters.size() &&
            clusters[i].gapBefore.width > limits.stretchGap * std::min(clusters[i].size, clusters[i - 1].size);
        if (i < clusters.size() && !isWide)
            continue;
        Stretch(clusters, first, i, limits).decide(std::min(rowLetterGap, limits.greatestBorrowedGap));
        partLabels(clusters, first, i, limits);
        first = i;
        if (isWide)
            clusters[i].gapBefore.endsWord = true;
    }
    if (row.dropCapLines > 0)
        joinToDropCap(row);
    countBlanks(clusters, limits.narrowestBlank);
    for (Cluster& cluster : clusters)
        cluster.gapBefore.kind = cluster.gapBefore.endsWord ? Gap::Space : Gap::None;
}

} // namespace

std::vector<TextRow> findWordGaps(std::vector<TextRow> rows, const TextParameters& parameters, Diagnostics&) {
    for (TextRow& row : rows) {
        joinStrokes(row.clusters);
        takeOutBlanks(row, parameters.words);
        if (!row.clusters.empty())
            findGapsOf(row, parameters.words);
    }
    std::erase_if(rows, [](const TextRow& row) { return row.clusters.empty(); });
    return rows;
}

} // namespace orvane::layout
