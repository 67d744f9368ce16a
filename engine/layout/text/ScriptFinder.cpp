#include "layout/text/ScriptFinder.h"

#include "layout/text/Characters.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string_view>

namespace orvane::layout {
namespace {

using document::VerticalPosition;

struct Host {
    std::size_t strip = 0;
    VerticalPosition position = VerticalPosition::Baseline;
    double distance = 0;
};

/// Marks of trade and of notes, which no line of its own holds.
bool isMarks(const TextStrip& strip) {
    static constexpr std::u32string_view kMarks = U"\u00AE\u00A9\u2122\u2120*\u2217\u2020\u2021\u00A7\u00B6";
    return std::all_of(strip.clusters.begin(), strip.clusters.end(), [](const Cluster& cluster) {
        return kMarks.find(cluster.text.front()) != std::u32string_view::npos;
    });
}

/// How `script` would stand at `host` by its height alone; nothing when it is no script of it, smaller than
/// `smallestRatio` of it for instance.
std::optional<VerticalPosition> positionAt(const TextStrip& script, const TextStrip& host, double smallestRatio,
                                           const TextParameters::Scripts& limits) {
    const double ratio = script.size / host.size;
    if (ratio < smallestRatio || ratio > limits.largestRatio)
        return std::nullopt;
    const double rise = (host.baseline - script.baseline) / host.size;
    if (rise >= limits.leastRise && rise <= limits.greatestRise)
        return VerticalPosition::Superscript;
    if (-rise >= limits.leastDrop && -rise <= limits.greatestDrop)
        return VerticalPosition::Subscript;
    return std::nullopt;
}

/// Length of the empty stretch between the two along the row; negative where they overlap.
double gapBetween(const TextStrip& a, const TextStrip& b) {
    return std::max(a.start, b.start) - std::min(a.end, b.end);
}

bool standsAt(const TextStrip& script, const TextStrip& host, const TextParameters::Scripts& limits) {
    const double gap = gapBetween(script, host);
    const double reach = script.start >= host.start ? limits.reachAfter : limits.reachBefore;
    return gap <= reach * host.size && gap >= -limits.overlap * host.size;
}

/// Visits the strips whose baselines lie within `reach` of that of `strips[i]`; on pages that paint letter by letter in
/// no order only the nearest of them, so that the work stays in proportion.
template<typename Visit>
void visitNear(const std::vector<TextStrip>& strips, std::size_t i, double reach, std::size_t most, Visit visit) {
    const TextStrip& middle = strips[i];
    const auto isNear = [&](const TextStrip& other) {
        return other.frame == middle.frame && std::abs(other.baseline - middle.baseline) <= reach;
    };
    for (std::size_t j = i + 1; j < strips.size() && j - i <= most && isNear(strips[j]); ++j)
        visit(j);
    for (std::size_t j = i; j-- > 0 && i - j <= most && isNear(strips[j]);)
        visit(j);
}

std::optional<Host> findHost(const std::vector<TextStrip>& strips, std::size_t i,
                             const TextParameters::Scripts& limits) {
    const TextStrip& script = strips[i];
    std::optional<Host> best;
    if (script.isBlank() || script.inkCount > limits.longestScript)
        return best;
    const double smallestRatio = isMarks(script) ? limits.smallestMarkRatio : limits.smallestRatio;
    const double reach = std::max(limits.greatestRise, limits.greatestDrop) * script.size / smallestRatio;
    visitNear(strips, i, reach, limits.mostNeighbours, [&](std::size_t j) {
        const TextStrip& host = strips[j];
        const auto position = host.isBlank() ? std::nullopt : positionAt(script, host, smallestRatio, limits);
        if (!position || !standsAt(script, host, limits))
            return;
        const double distance = std::abs(gapBetween(script, host));
        if (!best || distance < best->distance)
            best = {j, *position, distance};
    });
    return best;
}

/// Whether a few letters of the host's size stand higher or lower than it.
bool isShiftedFrom(const TextStrip& strip, const TextStrip& host, const TextParameters::Scripts& limits) {
    const double ratio = strip.size / host.size;
    return !host.isBlank() && host.baseline != strip.baseline &&
           std::abs(host.baseline - strip.baseline) <= limits.greatestShift * host.size &&
           ratio > limits.largestRatio && ratio * limits.largestRatio < 1;
}

/// The baseline of the letters on both sides of a strip that is shifted against them; nothing for other strips.
std::optional<double> baselineAround(const std::vector<TextStrip>& strips, std::size_t i,
                                     const TextParameters& parameters) {
    const TextParameters::Scripts& limits = parameters.scripts;
    const TextStrip& strip = strips[i];
    // Dots one above the other stand for the rows of a matrix.
    const bool areDots = std::all_of(strip.clusters.begin(), strip.clusters.end(),
                                     [](const Cluster& cluster) { return cluster.text.front() == U'.'; });
    if (strip.isBlank() || areDots || strip.inkCount > limits.shiftedLetters)
        return std::nullopt;
    const TextStrip *before = nullptr, *after = nullptr;
    const auto touches = [&](double gap) {
        return gap <= limits.shiftedGap * strip.size && gap >= -limits.overlap * strip.size;
    };
    visitNear(strips, i, limits.greatestShift * strip.size / limits.largestRatio, limits.mostNeighbours,
              [&](std::size_t j) {
                  if (!isShiftedFrom(strip, strips[j], limits))
                      return;
                  if (touches(strip.start - strips[j].end))
                      before = &strips[j];
                  if (touches(strips[j].start - strip.end))
                      after = &strips[j];
              });
    const bool isWithinWord =
        before && after && std::abs(before->baseline - after->baseline) <= parameters.rows.stripRise * before->size;
    return isWithinWord ? std::optional(before->baseline) : std::nullopt;
}

/// A single large letter whose baseline is that of a later line and whose top is that of the first one.
bool isDropCap(const TextStrip& cap, const TextStrip& firstLine, const TextParameters::Scripts& limits) {
    const double depth = cap.baseline - firstLine.baseline;
    const double gap = firstLine.start - cap.end;
    const double capTop = cap.baseline - limits.capitalHeight * cap.size;
    const double lineTop = firstLine.baseline - limits.capitalHeight * firstLine.size;
    return firstLine.inkCount > cap.inkCount && cap.size >= limits.dropCapRatio * firstLine.size &&
           depth >= limits.dropCapDepth * firstLine.size && gap >= -limits.overlap * firstLine.size &&
           gap <= limits.dropCapGap * firstLine.size &&
           std::abs(capTop - lineTop) <= limits.dropCapTop * firstLine.size;
}

/// A letter, perhaps with a quotation mark before it.
bool mayBeDropCap(const TextStrip& strip, const TextParameters::Scripts& limits) {
    return strip.inkCount <= limits.dropCapLetters &&
           std::any_of(strip.clusters.begin(), strip.clusters.end(),
                       [](const Cluster& cluster) { return isLetter(cluster.text.front()); });
}

/// How many lines stand beside the cap, from `strips[first]` on, which are sorted by baseline; where there are fewer
/// than it has room for, that.
int linesBeside(const TextStrip& cap, const std::vector<TextStrip>& strips, std::size_t first,
                const TextParameters::Scripts& limits) {
    const TextStrip& line = strips[first];
    const double reach = cap.baseline + limits.dropCapTop * line.size;
    double last = line.baseline;
    int count = 1;
    for (std::size_t i = first + 1; i < strips.size() && strips[i].frame == cap.frame; ++i) {
        const TextStrip& next = strips[i];
        if (next.baseline > reach)
            break;
        if (next.start < cap.end - limits.overlap * line.size || next.start > cap.end + limits.dropCapGap * line.size ||
            next.baseline - last < limits.dropCapTop * line.size)
            continue;
        ++count;
        last = next.baseline;
    }
    const double leading = count > 1 ? (last - line.baseline) / (count - 1) : limits.dropCapLeading * line.size;
    return std::max(2, 1 + static_cast<int>(std::lround((cap.baseline - line.baseline) / leading)));
}

/// Moves drop caps to the first line they stand at; their letters stay where they are.
void joinDropCaps(std::vector<TextStrip>& strips, const TextParameters::Scripts& limits) {
    std::vector<std::pair<std::size_t, std::size_t>> found;
    for (std::size_t i = 0; i < strips.size(); ++i) {
        const TextStrip& cap = strips[i];
        if (!mayBeDropCap(cap, limits))
            continue;
        for (std::size_t j = i; j-- > 0;) {
            if (strips[j].frame != cap.frame || cap.baseline - strips[j].baseline > cap.size)
                break;
            if (isDropCap(cap, strips[j], limits)) {
                found.emplace_back(i, j);
                break;
            }
        }
    }
    for (const auto& [capIndex, lineIndex] : found) {
        TextStrip& cap = strips[capIndex];
        const TextStrip& line = strips[lineIndex];
        cap.dropCapLines = linesBeside(cap, strips, lineIndex, limits);
        cap.baseline = line.baseline;
    }
}

} // namespace

void joinShifted(std::vector<TextStrip>& strips, const TextParameters& parameters) {
    std::vector<std::optional<double>> baselines(strips.size());
    for (std::size_t i = 0; i < strips.size(); ++i)
        baselines[i] = baselineAround(strips, i, parameters);
    for (std::size_t i = 0; i < strips.size(); ++i) {
        if (!baselines[i])
            continue;
        const double rise = (*baselines[i] - strips[i].baseline) / strips[i].size;
        strips[i].baseline = *baselines[i];
        for (Cluster& cluster : strips[i].clusters) {
            cluster.baseline = *baselines[i];
            if (std::abs(rise) > parameters.scripts.leastScriptShift)
                cluster.look.verticalPosition = rise > 0 ? VerticalPosition::Superscript : VerticalPosition::Subscript;
        }
    }
}

void joinScripts(std::vector<TextStrip>& strips, const TextParameters& parameters) {
    const TextParameters::Scripts& limits = parameters.scripts;
    // Hosts are looked for before anything moves, so that the order of the strips holds meanwhile.
    std::vector<std::optional<Host>> hosts(strips.size());
    for (std::size_t i = 0; i < strips.size(); ++i)
        hosts[i] = findHost(strips, i, limits);
    joinDropCaps(strips, limits);
    struct Move {
        std::size_t strip;
        double baseline;
        double size;
    };
    std::vector<Move> moves;
    for (std::size_t i = 0; i < strips.size(); ++i) {
        // A script at a script (a footnote mark in a subscript) goes where that one goes.
        const std::optional<Host>& host = hosts[i];
        if (!host || strips[host->strip].dropCapLines > 0)
            continue;
        std::size_t root = host->strip;
        while (hosts[root]) // ends, as every host is larger than its script
            root = hosts[root]->strip;
        TextStrip& script = strips[i];
        const double hostSize = strips[root].clusters.front().look.size;
        for (Cluster& cluster : script.clusters) {
            cluster.look.verticalPosition = host->position;
            const bool isTiny = cluster.look.size < limits.smallestRatio * hostSize;
            cluster.look.size = isTiny ? cluster.look.size / limits.usualRatio : hostSize;
        }
        moves.push_back({i, strips[root].baseline, strips[root].size});
    }
    for (const Move& move : moves) {
        strips[move.strip].isScript = true;
        strips[move.strip].baseline = move.baseline;
        strips[move.strip].size = move.size;
    }
}

} // namespace orvane::layout
