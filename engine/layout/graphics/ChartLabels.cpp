#include "layout/graphics/ChartLabels.h"

#include "base/Utf8.h"
#include "layout/text/Line.h"
#include "layout/text/LineText.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

namespace orvane::layout {
namespace {

/// A number as it stands at an axis: with a sign, a unit, a power.
bool isNumber(const Word& word) {
    constexpr std::u32string_view kAround = U"+-\u2212\u2013.,:/%\u00B0$\u20AC\u00A3eEkKM";
    std::size_t digits = 0;
    for (const char32_t c : utf32FromUtf8(textOf(word))) {
        if (u_isdigit(static_cast<UChar32>(c)))
            ++digits;
        else if (kAround.find(c) == std::u32string_view::npos)
            return false;
    }
    return digits > 0;
}

bool isScale(const Line& piece) {
    return std::all_of(piece.words.begin(), piece.words.end(), isNumber);
}

/// The labels of one drawing.
class Chart {
public:
    Chart(const Rect& plot, const std::vector<Line>& pieces, const GraphicsParameters::Charts& limits)
        : m_plot(plot)
        , m_box(plot)
        , m_pieces(pieces)
        , m_limits(limits) {}

    /// The drawing with its labels; nothing when there is no scale.
    std::optional<Rect> box() {
        const bool hasSideScale = takeSideScale();
        if (!takeScaleBelow() && !hasSideScale)
            return std::nullopt;
        takeNamesBelow();
        takeTurned();
        takeTitles();
        return m_box;
    }

private:
    struct Found {
        Rect box;
        double fontSize = 0;
        std::size_t count = 0;

        void add(const Line& piece, std::size_t labels) {
            box = count == 0 ? piece.box : box.united(piece.box);
            fontSize = std::max(fontSize, piece.fontSize);
            count += labels;
        }
    };

    bool take(const Found& found, std::size_t fewest) {
        if (found.count < fewest)
            return false;
        m_box = m_box.united(found.box);
        m_fontSize = std::max(m_fontSize, found.fontSize);
        return true;
    }

    bool isBeside(const Line& piece) const {
        const double em = piece.fontSize;
        return piece.box.centerY() > m_plot.top - em && piece.box.centerY() < m_plot.bottom + em;
    }

    /// Right below a level of the chart.
    bool isBelow(const Line& piece, double bottom) const {
        const double em = piece.fontSize;
        return piece.box.centerY() > bottom - em / 2 && piece.box.top < bottom + m_limits.reach * em &&
               piece.box.left > m_box.left - em && piece.box.right < m_box.right + m_limits.reach * em;
    }

    bool takeSideScale() {
        Found left, right;
        for (const Line& piece : m_pieces) {
            if (piece.angle != 0 || piece.words.size() != 1 || !isBeside(piece) || !isScale(piece))
                continue;
            const double reach = m_limits.reach * piece.fontSize;
            if (std::abs(m_plot.left - piece.box.right) < reach)
                left.add(piece, 1);
            else if (std::abs(piece.box.left - m_plot.right) < reach)
                right.add(piece, 1);
        }
        const bool isAtLeft = take(left, m_limits.fewestNumbers), isAtRight = take(right, m_limits.fewestNumbers);
        return isAtLeft || isAtRight;
    }

    bool takeScaleBelow() {
        Found found;
        for (const Line& piece : m_pieces)
            if (piece.angle == 0 && isBelow(piece, m_plot.bottom) && isScale(piece))
                found.add(piece, piece.words.size());
        return take(found, m_limits.fewestNumbers);
    }

    /// What the bars stand for, in one row.
    void takeNamesBelow() {
        const double bottom = m_box.bottom;
        for (const Line& first : m_pieces) {
            if (!isLabel(first) || !isBelow(first, bottom))
                continue;
            Found row;
            for (const Line& piece : m_pieces)
                if (isLabel(piece) && std::abs(piece.baseline - first.baseline) < first.fontSize / 2 &&
                    isBelow(piece, bottom))
                    row.add(piece, 1);
            if (take(row, m_limits.fewestNames))
                return;
        }
    }

    bool isLabel(const Line& piece) const {
        return piece.angle == 0 && piece.words.size() <= m_limits.wordsOfLabel &&
               piece.fontSize <= m_limits.largestLabel * m_fontSize;
    }

    /// What an axis measures, along it.
    void takeTurned() {
        for (const Line& piece : m_pieces) {
            const double reach = m_limits.reach * piece.fontSize;
            const bool isTurned = piece.angle == 90 || piece.angle == 270;
            const bool isAtSide =
                std::abs(m_box.left - piece.box.right) < reach || std::abs(piece.box.left - m_box.right) < reach;
            if (isTurned && isAtSide && piece.box.top > m_plot.top - reach && piece.box.bottom < m_plot.bottom + reach)
                m_box = m_box.united(piece.box);
        }
    }

    /// One line below, and one above, in the middle and in letters like those of the scales.
    void takeTitles() {
        const Line *below = nullptr, *above = nullptr;
        for (const Line& piece : m_pieces) {
            if (!mayBeTitle(piece))
                continue;
            const double reach = m_limits.reach * piece.fontSize;
            if (piece.box.top > m_box.bottom - piece.fontSize && piece.box.top < m_box.bottom + reach &&
                (!below || piece.box.top < below->box.top))
                below = &piece;
            if (piece.box.bottom < m_box.top + piece.fontSize && piece.box.bottom > m_box.top - reach &&
                (!above || piece.box.bottom > above->box.bottom))
                above = &piece;
        }
        for (const Line* title : {below, above})
            if (title)
                m_box = m_box.united(title->box);
    }

    bool mayBeTitle(const Line& piece) const {
        const double offMiddle = std::abs(piece.box.centerX() - m_plot.centerX());
        return isLabel(piece) && offMiddle < m_limits.offMiddle * m_plot.width() && piece.box.width() < m_plot.width();
    }

    const Rect m_plot;
    Rect m_box;
    double m_fontSize = 0; ///< of the scales
    const std::vector<Line>& m_pieces;
    const GraphicsParameters::Charts& m_limits;
};

} // namespace

ChartLabels::ChartLabels(const PageText& text, const GraphicsParameters::Charts& limits)
    : m_limits(limits) {
    for (const Line& line : text.lines)
        for (Line& piece : piecesOf(line))
            m_pieces.push_back(std::move(piece));
}

std::optional<Rect> ChartLabels::boxOf(const Rect& plot) const {
    return Chart(plot, m_pieces, m_limits).box();
}

std::vector<std::size_t> takeScales(PageText& text, const GraphicsParameters::Charts& limits) {
    std::vector<std::size_t> grown;
    std::optional<ChartLabels> labels;
    for (std::size_t i = 0; i < text.figures.size(); ++i) {
        Figure& figure = text.figures[i];
        if (figure.paths.empty() || figure.isBackground ||
            std::min(figure.box.width(), figure.box.height()) < limits.smallest)
            continue;
        if (!labels)
            labels.emplace(text, limits);
        if (const auto box = labels->boxOf(figure.box)) {
            figure.box = *box;
            grown.push_back(i);
        }
    }
    return grown;
}

} // namespace orvane::layout
