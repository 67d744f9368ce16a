#include "layout/tables/TextAround.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace orvane::layout {
namespace {

/// Which edges of the rows a line of running text must reach.
enum class Reach {
    BothEdges,
    OneEdge, ///< it may be the first line of a paragraph, or the last
};

/// Goes from line to line of the text above or below some rows.
class TextBeyond {
public:
    TextBeyond(const PageText& page, const AlignedRows& aligned, const TableParameters::Tables& parameters)
        : m_page(page)
        , m_pieces(cutIntoPieces(page, parameters))
        , m_parameters(parameters)
        , m_fontSize(aligned.rows.front().fontSize) {
        for (const PieceRow& row : aligned.rows)
            m_box = m_box.united(row.box);
        m_pitch = (aligned.rows.back().lastBaseline - aligned.rows.front().baseline) /
                  static_cast<double>(std::max<std::size_t>(aligned.rows.size() - 1, 1));
    }

    /// How many lines of running text follow each other from `baseline` on upwards.
    std::size_t countAbove(double baseline) const {
        std::size_t count = 0;
        for (auto next = nextLine(baseline, -1, Reach::BothEdges); next; next = nextLine(*next, -1, Reach::BothEdges))
            ++count;
        return count;
    }

    bool goesOnBelow(double baseline) const { return nextLine(baseline, 1, Reach::OneEdge).has_value(); }

    /// Whether no text stands below `baseline` within the columns of the rows.
    bool isEmptyBelow(double baseline) const {
        return std::none_of(m_page.lines.begin(), m_page.lines.end(), [&](const Line& line) {
            return line.baseline - baseline > m_parameters.rowSnap * m_fontSize &&
                   overlap(line.box.left, line.box.right, m_box.left, m_box.right) > 0;
        });
    }

private:
    /// The baseline of the running text one pitch above (-1) or below (1) `baseline`, if it stands there between the
    /// edges of the rows. Texts that are most often one word may be cells.
    std::optional<double> nextLine(double baseline, int side, Reach reach) const {
        const double snap = m_parameters.rowSnap * m_fontSize;
        Rect box;
        std::size_t words = 0, texts = 0;
        for (const TextPiece& piece : m_pieces) {
            if (std::abs((piece.baseline - baseline) * side - m_pitch) > snap ||
                overlap(piece.box.left, piece.box.right, m_box.left, m_box.right) <= 0)
                continue;
            words += piece.wordCount();
            ++texts;
            box = box.united(piece.box);
        }
        const double edge = m_parameters.startSnap;
        const double before = box.left - m_box.left;
        const double behind = m_box.right - box.right;
        const double room = reach == Reach::BothEdges ? std::max(before, behind) : std::min(before, behind);
        const bool isThere = words > 0 && words >= 2 * texts && std::min(before, behind) >= -edge && room <= edge;
        return isThere ? std::optional(baseline + side * m_pitch) : std::nullopt;
    }

    const PageText& m_page;
    std::vector<TextPiece> m_pieces;
    const TableParameters::Tables& m_parameters;
    Rect m_box;
    double m_fontSize;
    double m_pitch;
};

} // namespace

bool runsThrough(const PageText& page, const AlignedRows& aligned, const TableParameters::Tables& parameters) {
    const TextBeyond beyond(page, aligned, parameters);
    const double first = aligned.rows.front().baseline;
    const double last = aligned.rows.back().lastBaseline;
    const std::size_t above = beyond.countAbove(first);
    if (above == 0)
        return false;
    return beyond.goesOnBelow(last) || (static_cast<int>(above) >= parameters.proseLines && beyond.isEmptyBelow(last));
}

} // namespace orvane::layout
