#include "layout/text/RecognisedWidths.h"

#include "layout/text/Characters.h"

#include <algorithm>
#include <optional>

namespace orvane::layout {
namespace {

/// Ink between two gaps of a row.
struct InkedWord {
    std::size_t first = 0; ///< index into the row's clusters
    std::size_t last = 0;  ///< one behind
    double start = 0;
    double end = 0;
    double blank = 0;           ///< what a blank of its font takes
    std::optional<double> next; ///< where the row's next word begins

    double width() const { return end - start; }
};

std::vector<InkedWord> wordsOf(const TextRow& row, const TextParameters::Recognition& limits) {
    std::vector<InkedWord> words;
    bool isOpen = false;
    for (std::size_t i = 0; i < row.clusters.size(); ++i) {
        const Cluster& cluster = row.clusters[i];
        if (isBlank(cluster.text)) {
            isOpen = false;
            continue;
        }
        if (isOpen && cluster.start - words.back().end <= limits.gap * cluster.size) {
            words.back().last = i + 1;
            words.back().end = std::max(words.back().end, cluster.end);
            continue;
        }
        if (!words.empty())
            words.back().next = cluster.start;
        words.push_back({i, i + 1, cluster.start, cluster.end, cluster.spaceWidth, std::nullopt});
        isOpen = true;
    }
    return words;
}

/// How much wider than set the page's words must have been, by the middle of them; 1 where too few tell.
double stretchOf(const std::vector<TextRow>& rows, const TextParameters::Recognition& limits) {
    std::vector<double> shares;
    for (const TextRow& row : rows)
        for (const InkedWord& word : wordsOf(row, limits))
            if (word.next && word.last - word.first >= limits.shortestWord)
                shares.push_back((*word.next - word.start) / (word.width() + word.blank));
    if (shares.size() < limits.fewestWords)
        return 1;
    const auto middle = shares.begin() + static_cast<std::ptrdiff_t>(shares.size() / 2);
    std::nth_element(shares.begin(), middle, shares.end());
    return *middle;
}

void stretchWord(TextRow& row, const InkedWord& word, double stretch, double leastBlank) {
    if (word.next)
        stretch = std::min(stretch, (*word.next - word.start - leastBlank * word.blank) / word.width());
    if (stretch <= 1)
        return;
    for (std::size_t i = word.first; i < word.last; ++i) {
        Cluster& cluster = row.clusters[i];
        cluster.start = word.start + stretch * (cluster.start - word.start);
        cluster.end = word.start + stretch * (cluster.end - word.start);
    }
    const double end = word.start + stretch * word.width();
    for (std::size_t i = word.last; i < row.clusters.size() && isBlank(row.clusters[i].text); ++i) {
        row.clusters[i].start = std::max(row.clusters[i].start, end);
        row.clusters[i].end = std::max(row.clusters[i].end, end);
    }
}

} // namespace

void fillRecognisedWidths(std::vector<TextRow>& rows, const TextParameters::Recognition& parameters) {
    const double stretch = stretchOf(rows, parameters);
    if (stretch < parameters.leastStretch)
        return;
    for (TextRow& row : rows)
        for (const InkedWord& word : wordsOf(row, parameters))
            if (word.width() > 0)
                stretchWord(row, word, stretch, parameters.leastBlank);
}

} // namespace orvane::layout
