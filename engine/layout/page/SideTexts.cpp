#include "layout/page/SideTexts.h"

#include "layout/support/Stretches.h"

#include <algorithm>
#include <cmath>
#include <ranges>
#include <span>

namespace orvane::layout {
namespace {

using Pieces = std::span<const GutterPiece>;

/// How many pieces of a side for which `isName` holds, by index, have a piece on the other side at their height.
template<typename Predicate>
std::size_t countBeside(Pieces side, Pieces other, const Predicate& isName) {
    std::size_t count = 0;
    auto beside = other.begin();
    for (std::size_t i = 0; i < side.size(); ++i) {
        const double middle = side[i].box.centerY();
        while (beside != other.end() && beside->box.bottom < middle)
            ++beside;
        count += isName(i) && beside != other.end() && beside->box.top <= middle;
    }
    return count;
}

/// Whether piece `i` stands apart from those above and below it, as the lines of one text do not.
bool standsApart(Pieces side, std::size_t i, const PageParameters::Regions& parameters) {
    const auto areApart = [&](std::size_t above, std::size_t below) {
        const double step = side[below].box.centerY() - side[above].box.centerY();
        const bool isBeside = step < parameters.sameRow * side[above].fontSize;
        return isBeside || step > parameters.nameStep * side[above].fontSize;
    };
    return (i == 0 || areApart(i - 1, i)) && (i + 1 == side.size() || areApart(i, i + 1));
}

/// The middles of the lines of the column next to the gutter, which ends where no piece stands across.
std::vector<double> linesNextTo(const ColumnGutter& gutter, Pieces pieces) {
    struct Reach {
        double near, far, middle;
    };
    std::vector<Reach> reaches;
    for (const GutterPiece& piece : pieces) {
        const bool isLeft = piece.box.right <= gutter.left + 0.01;
        const double near = isLeft ? gutter.left - piece.box.right : piece.box.left - gutter.right;
        reaches.push_back({near, near + piece.box.width(), piece.box.centerY()});
    }
    std::sort(reaches.begin(), reaches.end(), [](const Reach& a, const Reach& b) { return a.near < b.near; });
    std::vector<double> middles;
    double far = reaches.empty() ? 0 : reaches.front().far;
    for (const Reach& reach : reaches) {
        if (reach.near > far)
            break;
        far = std::max(far, reach.far);
        middles.push_back(reach.middle);
    }
    return middles;
}

/// Whether enough lines of words follow one another; signs alone, such as the pieces of a brace, are none.
bool holdsText(Pieces side, const PageParameters::Regions& parameters) {
    int rows = 0;
    const GutterPiece* last = nullptr;
    for (const GutterPiece& piece : side) {
        if (piece.box.width() < parameters.shortestText * piece.fontSize)
            continue;
        const double step = last ? piece.baseline - last->baseline : 0;
        if (last && step < parameters.sameRow * piece.fontSize)
            continue;
        rows = step <= parameters.textStep * piece.fontSize ? rows + 1 : 1;
        last = &piece;
        if (rows >= parameters.minimumRows)
            return true;
    }
    return false;
}

bool areLevel(const GutterPiece& a, const GutterPiece& b, const PageParameters::Regions& parameters) {
    return std::abs(a.baseline - b.baseline) <= parameters.levelStep * a.fontSize;
}

std::vector<double> baselinesOf(Pieces side) {
    std::vector<double> baselines;
    for (const GutterPiece& piece : side)
        baselines.push_back(piece.baseline);
    std::ranges::sort(baselines);
    return baselines;
}

struct LevelCount {
    int level = 0; ///< of all, those beside a piece of the other side
    int all = 0;
};

LevelCount countLevel(const ColumnGutter& gutter, Pieces side, Pieces other,
                      const PageParameters::Regions& parameters) {
    const std::vector<double> baselines = baselinesOf(other);
    LevelCount count;
    for (const GutterPiece& piece : side) {
        if (piece.box.centerY() < gutter.top || piece.box.centerY() > gutter.bottom)
            continue;
        const double slack = parameters.levelStep * piece.fontSize;
        const auto next = std::ranges::lower_bound(baselines, piece.baseline - slack);
        ++count.all;
        count.level += next != baselines.end() && *next <= piece.baseline + slack;
    }
    return count;
}

enum class End : std::uint8_t { Top, Bottom };

const GutterPiece& pieceAt(End end, Pieces side) {
    return end == End::Top ? side.front() : side.back();
}

/// The pieces but those level with the one at the end.
Pieces withoutRowAt(End end, Pieces side, const PageParameters::Regions& parameters) {
    const GutterPiece& last = pieceAt(end, side);
    while (!side.empty() && areLevel(pieceAt(end, side), last, parameters))
        side = end == End::Top ? side.subspan(1) : side.first(side.size() - 1);
    return side;
}

/// Walks inwards over the rows that are level on both sides, and takes off the gutter what stands apart from the rest.
void leaveLevelRowsAt(End end, ColumnGutter& gutter, Pieces left, Pieces right,
                      const PageParameters::Regions& parameters) {
    while (areLevel(pieceAt(end, left), pieceAt(end, right), parameters)) {
        const GutterPiece& row = pieceAt(end, left);
        left = withoutRowAt(end, left, parameters);
        right = withoutRowAt(end, right, parameters);
        if (left.empty() || right.empty())
            return;
        const GutterPiece &nextLeft = pieceAt(end, left), &nextRight = pieceAt(end, right);
        const double blank =
            std::min(std::abs(row.baseline - nextLeft.baseline), std::abs(row.baseline - nextRight.baseline));
        if (blank <= parameters.textStep * row.fontSize)
            continue;
        if (end == End::Top)
            gutter.top = std::max(nextLeft.box.top, nextRight.box.top);
        else
            gutter.bottom = std::min(nextLeft.box.bottom, nextRight.box.bottom);
    }
}

} // namespace

bool areLabels(const SideTexts& texts) {
    const auto isLabel = [&](std::size_t i) { return texts.left[i].isLabel; };
    return 2 * countBeside(texts.left, texts.right, isLabel) > texts.left.size();
}

bool areComments(const SideTexts& texts) {
    const auto comments =
        std::count_if(texts.right.begin(), texts.right.end(), [](const GutterPiece& piece) { return piece.isComment; });
    return 2 * static_cast<std::size_t>(comments) > texts.right.size();
}

bool areRowsApart(const SideTexts& texts, const PageParameters::Regions& parameters) {
    const auto areApart = [&](Pieces side) {
        for (std::size_t i = 0; i < side.size(); ++i)
            if (!standsApart(side, i, parameters))
                return false;
        return true;
    };
    const bool hasFewer = texts.left.size() < texts.right.size();
    const Pieces fewer = hasFewer ? texts.left : texts.right;
    const Pieces more = hasFewer ? texts.right : texts.left;
    const std::size_t beside = countBeside(fewer, more, [](std::size_t) { return true; });
    return beside == fewer.size() && areApart(texts.left) && areApart(texts.right);
}

bool areNamesInMargin(const SideTexts& texts, double leftWidth, double rightWidth,
                      const PageParameters::Regions& parameters) {
    if (leftWidth > parameters.widestMargin * rightWidth || texts.left.size() >= texts.right.size())
        return false;
    const auto isName = [&](std::size_t i) { return standsApart(texts.left, i, parameters); };
    const std::size_t names = countBeside(texts.left, texts.right, isName);
    return static_cast<double>(names) >= parameters.nameShare * static_cast<double>(texts.left.size());
}

bool areLists(const ColumnGutter& gutter, const SideTexts& texts, double fontSize,
              const PageParameters::Regions& parameters) {
    const double step = (1 + parameters.columnStep) * fontSize;
    return runPastEachOther(stretchesOf(linesNextTo(gutter, texts.left), step),
                            stretchesOf(linesNextTo(gutter, texts.right), step), parameters.minimumRows);
}

bool areOutOfStep(const ColumnGutter& gutter, const SideTexts& texts, double fontSize,
                  const PageParameters::Regions& parameters) {
    if (gutter.right - gutter.left < parameters.clearGutter * fontSize || !holdsText(texts.left, parameters) ||
        !holdsText(texts.right, parameters))
        return false;
    const LevelCount left = countLevel(gutter, texts.left, texts.right, parameters);
    const LevelCount right = countLevel(gutter, texts.right, texts.left, parameters);
    return std::min(left.level, right.level) <= parameters.levelShare * std::min(left.all, right.all);
}

void leaveLevelEnds(ColumnGutter& gutter, const SideTexts& texts, const PageParameters::Regions& parameters) {
    leaveLevelRowsAt(End::Bottom, gutter, texts.left, texts.right, parameters);
    leaveLevelRowsAt(End::Top, gutter, texts.left, texts.right, parameters);
}

bool takeTurns(const ColumnGutter& gutter, const SideTexts& texts) {
    const auto areTurns = [&](Pieces side, Pieces other) {
        return countBeside(side, other, [&](std::size_t i) {
                   return side[i].box.centerY() > gutter.top && side[i].box.centerY() < gutter.bottom;
               }) == 0;
    };
    return areTurns(texts.left, texts.right) && areTurns(texts.right, texts.left);
}

} // namespace orvane::layout
