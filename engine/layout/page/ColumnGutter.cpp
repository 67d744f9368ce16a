#include "layout/page/ColumnGutter.h"

#include "layout/support/Stretches.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace orvane::layout {
namespace {

/// A piece of text without a gap that could be a gutter, or a wall.
struct Piece {
    Rect box;
    double fontSize = 0;
    bool isWall = false;
    bool isLabel = false; ///< ends with a colon
};

/// An empty rectangle that reaches down as far as has been read.
struct Strip {
    double left;
    double right;
    double top;
};

double medianFontSize(std::span<const Line> lines) {
    std::vector<double> sizes;
    for (const Line& line : lines)
        sizes.push_back(line.fontSize);
    std::nth_element(sizes.begin(), sizes.begin() + static_cast<std::ptrdiff_t>(sizes.size() / 2), sizes.end());
    return sizes[sizes.size() / 2];
}

bool endsWithColon(const Word& word) {
    const std::string& text = word.spans.back().text;
    return text.ends_with(':') || text.ends_with("\xEF\xBC\x9A"); // the full-width one
}

/// Cuts lines at gaps wide enough for a gutter. A leader fills its gap.
std::vector<Piece> cutIntoPieces(std::span<const Line> lines, std::span<const Rect> walls, double narrowest) {
    std::vector<Piece> pieces;
    for (const Rect& wall : walls)
        pieces.push_back({wall, 0, true});
    for (const Line& line : lines) {
        std::vector<const Word*> words;
        for (const Word& word : line.words)
            words.push_back(&word);
        std::sort(words.begin(), words.end(), [](const Word* a, const Word* b) { return a->box.left < b->box.left; });
        const std::size_t firstOfLine = pieces.size();
        for (const Word* word : words) {
            const bool isLedTo = word->leaderBefore != document::TabLeader::None;
            if (pieces.size() == firstOfLine || (!isLedTo && word->box.left - pieces.back().box.right >= narrowest))
                pieces.push_back({word->box, line.fontSize, false});
            else
                pieces.back().box = pieces.back().box.united(word->box);
            pieces.back().isLabel = !word->spans.empty() && endsWithColon(*word);
        }
    }
    std::sort(pieces.begin(), pieces.end(), [](const Piece& a, const Piece& b) { return a.box.top < b.box.top; });
    return pieces;
}

/// Sweeps down over the pieces and collects the empty strips between them, each as high as it gets.
class StripSweep {
public:
    StripSweep(double narrowest, std::size_t limit)
        : m_narrowest(narrowest)
        , m_limit(limit) {}

    std::vector<ColumnGutter> run(std::span<const Piece> pieces, const Rect& area) {
        m_open.push_back({area.left, area.right, area.top});
        for (const Piece& piece : pieces)
            pass(piece, area);
        for (const Strip& strip : m_open)
            close(strip, area.bottom);
        return std::move(m_closed);
    }

private:
    void pass(const Piece& piece, const Rect& area) {
        std::vector<Strip> next;
        for (const Strip& strip : m_open) {
            if (piece.box.right <= strip.left || piece.box.left >= strip.right) {
                next.push_back(strip);
                continue;
            }
            close(strip, piece.box.top);
            addUnlessCovered(next, {strip.left, piece.box.left, strip.top});
            addUnlessCovered(next, {piece.box.right, strip.right, strip.top});
        }
        addUnlessCovered(next, {area.left, area.right, piece.box.bottom});
        // Strips far beyond what a page of columns needs come from drawings made of letters; the oldest matter most.
        if (next.size() > m_limit)
            next.resize(m_limit);
        m_open = std::move(next);
    }

    void addUnlessCovered(std::vector<Strip>& strips, const Strip& strip) const {
        if (strip.right - strip.left < m_narrowest)
            return;
        for (const Strip& other : strips)
            if (other.left <= strip.left && other.right >= strip.right && other.top <= strip.top)
                return;
        strips.push_back(strip);
    }

    void close(const Strip& strip, double bottom) {
        if (bottom > strip.top)
            m_closed.push_back({strip.left, strip.right, strip.top, bottom});
    }

    double m_narrowest;
    std::size_t m_limit;
    std::vector<Strip> m_open;
    std::vector<ColumnGutter> m_closed;
};

/// Of the font size; pieces whose middles are nearer stand on one row.
constexpr double kSameRow = 0.5;

struct Side {
    int rows = 0;
    double top = 0;
    double bottom = 0;
    double extent = 0;   ///< of its text, across
    double inkWidth = 0; ///< sum of its pieces' widths
    double edge = 0;     ///< outermost ink
    double lastBaseline = -1e9;

    void add(const Piece& piece, double outermost) {
        const bool isNewRow = piece.box.centerY() > lastBaseline + kSameRow * piece.fontSize;
        if (rows == 0) {
            top = piece.box.top;
            extent = outermost;
        }
        extent = std::max(extent, outermost);
        if (isNewRow) {
            ++rows;
            lastBaseline = piece.box.centerY();
        }
        inkWidth += piece.box.width();
        bottom = std::max(bottom, piece.box.bottom);
    }
    /// How much of the column its lines cover: prose fills most of it, labels and values do not.
    double fill() const { return rows > 0 && extent > 0 ? inkWidth / (extent * rows) : 0; }
    bool isWide(double fontSize, const PageParameters::Regions& parameters) const {
        return extent >= parameters.minimumColumn * fontSize;
    }
    bool isFilled(const PageParameters::Regions& parameters) const { return fill() >= parameters.minimumFill; }
};

/// How many pieces of the left side for which `isName` holds, by index, have a piece on the right at their height.
template<typename Predicate>
std::size_t countBeside(std::span<const Piece> left, std::span<const Piece> right, const Predicate& isName) {
    std::size_t count = 0;
    auto beside = right.begin();
    for (std::size_t i = 0; i < left.size(); ++i) {
        const double middle = left[i].box.centerY();
        while (beside != right.end() && beside->box.bottom < middle)
            ++beside;
        count += isName(i) && beside != right.end() && beside->box.top <= middle;
    }
    return count;
}

/// Names with their values beside them, "Date:  3 May", are read along the rows: most pieces of the left side end with
/// a colon.
bool areLabels(std::span<const Piece> left, std::span<const Piece> right) {
    return 2 * countBeside(left, right, [&](std::size_t i) { return left[i].isLabel; }) > left.size();
}

/// Whether piece `i` stands apart from those above and below it, as the lines of one text do not.
bool standsApart(std::span<const Piece> side, std::size_t i, const PageParameters::Regions& parameters) {
    const auto areApart = [&](std::size_t above, std::size_t below) {
        const double step = side[below].box.centerY() - side[above].box.centerY();
        const bool isBeside = step < kSameRow * side[above].fontSize;
        return isBeside || step > parameters.nameStep * side[above].fontSize;
    };
    return (i == 0 || areApart(i - 1, i)) && (i + 1 == side.size() || areApart(i, i + 1));
}

/// Rows that stand apart are read along: each text of the side with fewer has one beside it, and no side has two lines
/// of one text.
bool areRowsApart(std::span<const Piece> left, std::span<const Piece> right,
                  const PageParameters::Regions& parameters) {
    const auto areApart = [&](std::span<const Piece> side) {
        for (std::size_t i = 0; i < side.size(); ++i)
            if (!standsApart(side, i, parameters))
                return false;
        return true;
    };
    const bool hasFewer = left.size() < right.size();
    const std::span<const Piece> fewer = hasFewer ? left : right;
    const std::size_t beside = countBeside(fewer, hasFewer ? right : left, [](std::size_t) { return true; });
    return beside == fewer.size() && areApart(left) && areApart(right);
}

/// Names in the margin, each beside the first line of what it belongs to: they stand far apart, in a column that is
/// much narrower than the other.
bool areNamesInMargin(std::span<const Piece> left, std::span<const Piece> right, double leftExtent, double rightExtent,
                      const PageParameters::Regions& parameters) {
    if (leftExtent > parameters.widestMargin * rightExtent || left.size() >= right.size())
        return false;
    const std::size_t names = countBeside(left, right, [&](std::size_t i) { return standsApart(left, i, parameters); });
    return static_cast<double>(names) >= parameters.nameShare * static_cast<double>(left.size());
}

/// The middles of the lines of the column next to the gutter, which ends where no piece stands across.
std::vector<double> linesNextTo(const ColumnGutter& gutter, std::span<const Piece> pieces) {
    struct Reach {
        double near, far, middle;
    };
    std::vector<Reach> reaches;
    for (const Piece& piece : pieces) {
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

/// Lists in columns, an index say: space between the lines of each side stands beside lines of the other.
bool areLists(const ColumnGutter& gutter, std::span<const Piece> left, std::span<const Piece> right, double fontSize,
              const PageParameters::Regions& parameters) {
    const double step = (1 + parameters.columnStep) * fontSize;
    return runPastEachOther(stretchesOf(linesNextTo(gutter, left), step), stretchesOf(linesNextTo(gutter, right), step),
                            parameters.minimumRows);
}

/// Cuts the strip to where both sides have text, and counts it. False when it parts no columns.
bool weighGutter(ColumnGutter& gutter, std::span<const Piece> pieces, double fontSize,
                 const PageParameters::Regions& parameters) {
    Side left;
    Side right;
    std::vector<Piece> leftPieces, rightPieces;
    for (const Piece& piece : pieces) {
        if (piece.isWall || piece.box.centerY() <= gutter.top || piece.box.centerY() >= gutter.bottom)
            continue;
        if (piece.box.right <= gutter.left + 0.01) {
            left.add(piece, gutter.left - piece.box.left);
            leftPieces.push_back(piece);
        } else if (piece.box.left >= gutter.right - 0.01) {
            right.add(piece, piece.box.right - gutter.right);
            rightPieces.push_back(piece);
        }
    }
    gutter.rows = std::min(left.rows, right.rows);
    if (gutter.rows == 0)
        return false;
    gutter.top = std::max(left.top, right.top);
    gutter.bottom = std::min(left.bottom, right.bottom);
    const bool isNarrow = gutter.right - gutter.left < parameters.wideGutter * fontSize;
    const int least = isNarrow ? parameters.minimumRowsNarrow : parameters.minimumRows;
    if (gutter.rows < least || gutter.bottom <= gutter.top || !left.isWide(fontSize, parameters) ||
        !right.isWide(fontSize, parameters) || areLabels(leftPieces, rightPieces) ||
        areRowsApart(leftPieces, rightPieces, parameters) ||
        areNamesInMargin(leftPieces, rightPieces, left.extent, right.extent, parameters))
        return false;
    return (left.isFilled(parameters) && right.isFilled(parameters)) ||
           areLists(gutter, leftPieces, rightPieces, fontSize, parameters);
}

} // namespace

std::optional<ColumnGutter> findColumnGutter(std::span<const Line> lines, std::span<const Rect> walls,
                                             const PageParameters::Regions& parameters) {
    if (static_cast<int>(lines.size()) < 2)
        return std::nullopt;
    const double fontSize = medianFontSize(lines);
    const double narrowest = parameters.narrowGutter * fontSize;
    const std::vector<Piece> pieces = cutIntoPieces(lines, walls, narrowest);
    Rect area;
    for (const Piece& piece : pieces)
        area = area.united(piece.box);
    std::optional<ColumnGutter> best;
    for (ColumnGutter& gutter : StripSweep(narrowest, parameters.maximumStrips).run(pieces, area)) {
        if (gutter.left <= area.left || gutter.right >= area.right)
            continue;
        if (gutter.bottom - gutter.top < parameters.minimumRows * fontSize)
            continue;
        if (weighGutter(gutter, pieces, fontSize, parameters) && (!best || gutter.rows > best->rows))
            best = gutter;
    }
    if (best)
        best->fontSize = fontSize;
    return best;
}

} // namespace orvane::layout
