#include "layout/tables/PairedLines.h"

#include "layout/tables/ItemLabels.h"

#include <algorithm>

namespace orvane::layout {
namespace {

/// What one drawn row holds.
struct Band {
    std::size_t lines = 0;  ///< of text
    std::size_t full = 0;   ///< cells that have a text in each of them
    std::size_t listed = 0; ///< of these the ones whose lines were not broken at the cell's side
    bool hasItems = false;  ///< a cell lists items with their labels
    bool isWhole = true;    ///< no cell reaches into another drawn row
};

class PairReader {
public:
    PairReader(const TableGrid& grid, const std::vector<std::vector<TextPiece>>& pieces, const std::vector<Line>& lines,
               const TableParameters::Tables& parameters)
        : m_grid(grid)
        , m_pieces(pieces)
        , m_lines(lines)
        , m_parameters(parameters) {}

    Band read(int row) const {
        std::vector<std::size_t> cells;
        std::vector<TextPiece> all;
        Band band;
        for (std::size_t i = 0; i < m_grid.cells.size(); ++i) {
            const GridCell& cell = m_grid.cells[i];
            if (row < cell.row || row >= cell.row + cell.rowSpan)
                continue;
            band.isWhole &= cell.rowSpan == 1;
            cells.push_back(i);
            all.insert(all.end(), m_pieces[i].begin(), m_pieces[i].end());
        }
        band.lines = groupIntoRows(std::move(all), m_parameters).size();
        for (const std::size_t i : cells) {
            const std::vector<PieceRow> texts = groupIntoRows(m_pieces[i], m_parameters);
            band.hasItems |= texts.size() > 1 && holdsItems(texts);
            if (texts.size() != band.lines)
                continue;
            ++band.full;
            band.listed += isListed(m_grid.boxOf(m_grid.cells[i]), texts);
        }
        return band;
    }

    /// Whether all columns are as wide as their texts and leave the same room beside: their lines are never broken.
    bool areColumnsFitted() const {
        std::vector<double> widths(static_cast<std::size_t>(m_grid.columns()));
        double fontSize = 0;
        for (std::size_t i = 0; i < m_grid.cells.size(); ++i) {
            if (m_grid.cells[i].columnSpan > 1)
                continue;
            double& width = widths[static_cast<std::size_t>(m_grid.cells[i].column)];
            for (const PieceRow& text : groupIntoRows(m_pieces[i], m_parameters)) {
                width = std::max(width, text.box.width());
                fontSize = std::max(fontSize, text.fontSize);
            }
        }
        std::vector<double> rooms;
        for (std::size_t column = 0; column < widths.size(); ++column)
            rooms.push_back(m_grid.columnEdges[column + 1] - m_grid.columnEdges[column] - widths[column]);
        const auto [least, most] = std::minmax_element(rooms.begin(), rooms.end());
        return *most - *least <= m_parameters.rowSnap * fontSize && *most <= 2 * fontSize;
    }

private:
    bool holdsItems(const std::vector<PieceRow>& texts) const {
        const auto items = std::count_if(texts.begin(), texts.end(), [&](const PieceRow& text) {
            const TextPiece& piece = text.pieces.front();
            const std::string first =
                textOf(pieceOf(m_lines[piece.line], piece.line, piece.firstWord, piece.firstWord + 1), m_lines);
            return piece.wordCount() > 1 && (isBullet(first) || countsItem(first));
        });
        return 2 * static_cast<std::size_t>(items) >= texts.size();
    }

    /// Whether the lines are one word each, or most were so short that the next one's first word had room behind.
    bool isListed(const Rect& cell, const std::vector<PieceRow>& texts) const {
        double width = cell.width() - 2 * m_parameters.textMargin;
        for (const PieceRow& text : texts)
            width = std::max(width, text.box.width());
        std::size_t words = 0;
        std::size_t ended = 0;
        for (std::size_t i = 0; i < texts.size(); ++i) {
            for (const TextPiece& piece : texts[i].pieces)
                words += piece.wordCount();
            const TextPiece& next = texts[i].pieces.front();
            const double firstWord = m_lines[next.line].words[next.firstWord].box.width();
            ended += i > 0 && texts[i - 1].box.width() + m_parameters.blankWidth * next.fontSize + firstWord <= width;
        }
        return words == texts.size() || 2 * ended > texts.size() - 1;
    }

    const TableGrid& m_grid;
    const std::vector<std::vector<TextPiece>>& m_pieces;
    const std::vector<Line>& m_lines;
    const TableParameters::Tables& m_parameters;
};

} // namespace

bool areLinesPaired(const TableGrid& grid, const std::vector<std::vector<TextPiece>>& pieces,
                    const std::vector<Line>& lines, const TableParameters::Tables& parameters) {
    const PairReader reader(grid, pieces, lines, parameters);
    const bool areFitted = reader.areColumnsFitted();
    std::size_t most = 0;
    bool isHeaded = false;
    for (int row = 0; row < grid.rows(); ++row) {
        const Band band = reader.read(row);
        isHeaded |= band.lines == 1 && most == 0;
        if (band.lines <= 1)
            continue;
        if (!band.isWhole || band.hasItems || band.full < 2 || band.listed < (areFitted ? 1U : 2U))
            return false;
        most = std::max(most, band.lines);
    }
    return most >= parameters.fewestPairedLinesAnywhere ||
           (most >= parameters.fewestPairedLines && isHeaded && areFitted);
}

} // namespace orvane::layout
