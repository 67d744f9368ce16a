#include "layout/text/StripOrder.h"

#include "layout/text/Characters.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace orvane::layout {
namespace {

constexpr double kBeforeAll = -std::numeric_limits<double>::infinity();

/// Clusters of one strip without a blank or the room for one between them.
struct PaintedWord {
    std::size_t strip = 0;
    double start = 0;
    double end = 0;
    double size = 0;
    double lastPlace = 0;          ///< in the order of the row: of its last letter, or of what was moved behind it
    std::optional<double> movedTo; ///< where all of it stands, as it begins on another word
};

/// The word that each ink cluster of the strips stands in, in the order of the strips; blanks have none.
std::vector<std::vector<std::optional<std::size_t>>> cutWords(const std::vector<TextStrip>& strips, double wordGap,
                                                              std::vector<PaintedWord>& words) {
    std::vector<std::vector<std::optional<std::size_t>>> wordOf(strips.size());
    for (std::size_t s = 0; s < strips.size(); ++s) {
        const Cluster* last = nullptr;
        for (const Cluster& cluster : strips[s].clusters) {
            if (isBlank(cluster.text)) {
                wordOf[s].push_back(std::nullopt);
                last = nullptr;
                continue;
            }
            if (!last || cluster.start - last->end > wordGap * cluster.spaceWidth)
                words.push_back({s, cluster.start, cluster.end, cluster.size, cluster.start, std::nullopt});
            PaintedWord& word = words.back();
            word.start = std::min(word.start, cluster.start);
            word.end = std::max(word.end, cluster.end);
            word.lastPlace = std::max(word.lastPlace, cluster.start);
            wordOf[s].push_back(words.size() - 1);
            last = &cluster;
        }
    }
    return wordOf;
}

/// Moves words that begin on words of other strips behind these. Letters painted by themselves stay: they may be
/// accents, or painted into a gap that was left for them.
void moveBehindCovered(std::vector<PaintedWord>& words, const std::vector<TextStrip>& strips, double kerning) {
    std::vector<std::size_t> byStart;
    for (std::size_t i = 0; i < words.size(); ++i)
        if (strips[words[i].strip].inkCount > 1 && !strips[words[i].strip].isScript)
            byStart.push_back(i);
    std::stable_sort(byStart.begin(), byStart.end(),
                     [&](std::size_t a, std::size_t b) { return words[a].start < words[b].start; });
    PaintedWord* reaching = nullptr; // the word that ends last of those before
    for (const std::size_t i : byStart) {
        PaintedWord& word = words[i];
        if (reaching && reaching->strip != word.strip &&
            reaching->end - word.start > kerning * std::min(word.size, reaching->size)) {
            word.lastPlace = std::nextafter(reaching->lastPlace, std::numeric_limits<double>::max());
            word.movedTo = word.lastPlace;
            // What else begins on that word comes after this one.
            reaching->lastPlace = word.lastPlace;
        }
        if (!reaching || word.end > reaching->end)
            reaching = &word;
    }
}

/// Where a blank stands: behind most of what begins before it ends, as the word after a blank may. But it goes before
/// what was painted after it in one go, however soon that begins, and the last of a strip stays with the word that it
/// touches.
double placeOfBlank(const TextStrip& strip, std::size_t blank, const TextParameters::Strips& limits) {
    const Cluster& cluster = strip.clusters[blank];
    const double place = cluster.start + limits.blankPlace * cluster.width();
    if (blank + 1 < strip.clusters.size())
        return std::min(place, std::max(cluster.start, strip.clusters[blank + 1].start));
    const bool touches = blank > 0 && cluster.start - strip.clusters[blank - 1].end <= limits.blankTouch * cluster.size;
    return touches ? cluster.start : place;
}

/// A cluster with what it is sorted by.
struct PlacedCluster {
    double key = 0;
    Cluster cluster;
};

} // namespace

std::vector<Cluster> inReadingOrder(std::vector<TextStrip> strips, const TextParameters& parameters) {
    std::vector<PaintedWord> words;
    const auto wordOf = cutWords(strips, parameters.words.gapAmongBlanks, words);
    moveBehindCovered(words, strips, parameters.rows.overprintSize);

    std::vector<PlacedCluster> placed;
    double scriptEnd = kBeforeAll, scriptKey = kBeforeAll;
    for (std::size_t s = 0; s < strips.size(); ++s) {
        TextStrip& strip = strips[s];
        // A subscript below a superscript is read after it, not letter by letter in turn.
        double key = strip.isScript && strip.start < scriptEnd ? scriptKey : kBeforeAll;
        for (std::size_t c = 0; c < strip.clusters.size(); ++c) {
            Cluster& cluster = strip.clusters[c];
            const std::optional<std::size_t> word = wordOf[s][c];
            if (word) {
                cluster.beginsOnWord = words[*word].movedTo && (c == 0 || wordOf[s][c - 1] != word);
                key = std::max(key, words[*word].movedTo.value_or(cluster.start));
            }
            placed.push_back({word ? key : placeOfBlank(strip, c, parameters.strips), std::move(cluster)});
        }
        if (strip.isScript) {
            scriptEnd = strip.end - parameters.strips.scriptTouch * strip.size;
            scriptKey = key;
        }
    }
    std::stable_sort(placed.begin(), placed.end(),
                     [](const PlacedCluster& a, const PlacedCluster& b) { return a.key < b.key; });
    std::vector<Cluster> clusters;
    clusters.reserve(placed.size());
    for (PlacedCluster& item : placed)
        clusters.push_back(std::move(item.cluster));
    return clusters;
}

} // namespace orvane::layout
