#include "layout/tables/AlignedAdmission.h"

#include "layout/tables/BoldHead.h"
#include "layout/tables/CodeListing.h"
#include "layout/tables/ContentsEntries.h"
#include "layout/tables/FieldTexts.h"
#include "layout/tables/IndexEntries.h"
#include "layout/tables/ItemLabels.h"
#include "layout/tables/ListsSideBySide.h"
#include "layout/tables/TableCaption.h"
#include "layout/tables/TextAround.h"

#include <algorithm>
#include <set>

namespace orvane::layout {
namespace {

/// Weighs one candidate.
class AlignedJudge {
public:
    AlignedJudge(const PageText& page, const AlignedRows& aligned, AlignedEvidence evidence,
                 const TableParameters::Tables& parameters)
        : m_page(page)
        , m_aligned(aligned)
        , m_evidence(evidence)
        , m_parameters(parameters)
        , m_columns(aligned.gaps.size() + 1) {
        Rect box;
        for (const PieceRow& row : aligned.rows) {
            box = box.united(row.box);
            for (const TextPiece& piece : row.pieces) {
                const ColumnRange range = columnsOf(piece, aligned.gaps);
                ++m_pieceCount;
                m_crossingCount += range.first != range.last;
                if (range.first == range.last)
                    m_columns[static_cast<std::size_t>(range.first)].add(piece);
            }
        }
        m_isNamed = hasTableCaption(box, page.lines, parameters);
    }

    TableVerdict judge() const {
        if (isTooSmall())
            return TableVerdict::TooSmall;
        if (areContents(m_aligned, m_columns, m_evidence, lines(), m_parameters))
            return TableVerdict::Contents;
        if (isIndex())
            return TableVerdict::Index;
        if (!m_isNamed && (isList() || isListInColumns() || isListOfLevels()))
            return TableVerdict::List;
        if (!m_isNamed && isKeyValues())
            return TableVerdict::KeyValues;
        if (!holdsFields() && isProseInColumns())
            return TableVerdict::Prose;
        if (!hasRules() && (holdsFullLines() || runsThrough(m_page, m_aligned, m_parameters)))
            return TableVerdict::Prose;
        if (areListsSideBySide(m_columns, m_parameters) || (!hasRules() && areOutOfStep(m_aligned.rows, m_parameters)))
            return TableVerdict::SideBySide;
        if (isCode() && !(m_isNamed && m_columns.size() > 2))
            return TableVerdict::Code;
        if (!hasRules() && holdsLargeBrackets())
            return TableVerdict::Formula;
        if (m_crossingCount > m_parameters.crossingPieceShare * m_pieceCount)
            return TableVerdict::StraddlingWords;
        if (isSparse())
            return TableVerdict::Empty;
        if (isRagged())
            return TableVerdict::Ragged;
        if (!hasRules() && m_columns.size() == 2 && !hasStrongColumn() && !showsRows() && !holdsFields() &&
            !m_isNamed && !hasBoldHead(m_aligned.rows, m_columns.size(), lines(), m_parameters))
            return TableVerdict::TooSmall;
        return TableVerdict::Table;
    }

private:
    const std::vector<Line>& lines() const { return m_page.lines; }
    bool hasRules() const { return m_evidence != AlignedEvidence::Alignment; }

    bool isTooSmall() const {
        const std::size_t least = m_aligned.areSpaced ? 1 : hasRules() ? 2 : 3;
        return m_columns.size() < 2 || m_aligned.groups.size() < least;
    }

    template<typename Predicate>
    double shareOfRows(const Predicate& predicate) const {
        const auto count = std::count_if(m_aligned.rows.begin(), m_aligned.rows.end(), predicate);
        return static_cast<double>(count) / static_cast<double>(m_aligned.rows.size());
    }

    /// Whether the column holds little but the labels of items. Marks in brackets that stay the same count nothing.
    bool holdsLabels(const ColumnPieces& column) const {
        std::string last;
        return column.share([&](const TextPiece* piece) {
            const std::string text = textOf(*piece, lines());
            const bool isOther = text != last;
            last = text;
            return countsItem(text) || (isLetterInBrackets(text) && isOther);
        }) > m_parameters.labelShare;
    }

    /// Whether a column that is not the first holds labels.
    bool hasLabelsWithin() const {
        return std::any_of(m_columns.begin() + 1, m_columns.end(),
                           [&](const ColumnPieces& column) { return holdsLabels(column); });
    }

    /// Whether most rows begin some column with a bullet, or a column beside others numbers its items: a list in
    /// columns.
    bool isListInColumns() const {
        if (hasRules())
            return false;
        return hasLabelsWithin() ||
               shareOfRows([&](const PieceRow& row) {
                   return std::any_of(row.pieces.begin(), row.pieces.end(),
                                      [&](const TextPiece& piece) { return isBullet(firstWordOf(piece)); });
               }) > m_parameters.labelShare;
    }

    /// Whether most rows are a label or bullet and the text of its item. Those of several levels stand in columns.
    bool isListOfLevels() const {
        if (hasRules())
            return false;
        const auto isItem = [&](const PieceRow& row) {
            return row.pieces.size() <= 2 && isItemLabel(firstWordOf(row.pieces.front()));
        };
        return shareOfRows(isItem) > m_parameters.labelShare;
    }

    std::string firstWordOf(const TextPiece& piece) const {
        return textOf(pieceOf(lines()[piece.line], piece.line, piece.firstWord, piece.firstWord + 1), lines());
    }

    /// Whether the columns hold an index. One head over all of them, or rules, make a table of it.
    bool isIndex() const {
        if (hasRules())
            return false;
        std::vector<std::string> heads;
        for (const TextPiece& piece : m_aligned.rows.front().pieces)
            heads.push_back(textOf(piece, lines()));
        std::sort(heads.begin(), heads.end());
        return std::adjacent_find(heads.begin(), heads.end()) == heads.end() &&
               areIndexEntries(m_columns, lines(), m_parameters);
    }

    /// Whether space between the rows, or filled cells, show a table as rules do, whatever stands in two columns.
    bool showsRows() const { return m_aligned.areSpaced || isFilled(); }

    /// Whether fields of several lines stand side by side. Those of one line each may be parted by tabs.
    bool holdsFields() const {
        return m_aligned.groups.size() < m_aligned.rows.size() &&
               areFields(m_aligned.rows, m_aligned.gaps, lines(), m_parameters);
    }

    bool isFilled() const {
        double filled = 0;
        for (const PieceRow& row : m_aligned.rows)
            filled += static_cast<double>(std::count_if(row.pieces.begin(), row.pieces.end(),
                                                        [](const TextPiece& piece) { return piece.filledCell >= 0; }));
        return filled >= m_parameters.filledTextShare * m_pieceCount;
    }

    /// The column that is read first.
    const ColumnPieces& labels() const {
        const auto rightToLeft = std::count_if(m_aligned.rows.begin(), m_aligned.rows.end(), [&](const PieceRow& row) {
            return std::any_of(row.pieces.begin(), row.pieces.end(),
                               [&](const TextPiece& piece) { return lines()[piece.line].isRightToLeft; });
        });
        const bool isRightToLeft = 2 * static_cast<std::size_t>(rightToLeft) > m_aligned.rows.size();
        return isRightToLeft ? m_columns.back() : m_columns.front();
    }

    bool isList() const {
        return m_columns.size() == 2 && labels().share([&](const TextPiece* piece) {
            return isItemLabel(textOf(*piece, lines()));
        }) > m_parameters.labelShare;
    }

    /// Keys that end in colons, or stand before a column of colons, equals signs or arrows; behind their values may
    /// stand a few other texts.
    bool isKeyValues() const {
        if (hasRules() || showsRows())
            return false;
        if (m_columns.size() >= 3 && m_columns[1].share([&](const TextPiece* piece) {
                return isJoiningSign(textOf(*piece, lines()));
            }) > m_parameters.keyShare)
            return true;
        return areOthersFew(m_columns, m_parameters) && labels().share([&](const TextPiece* piece) {
            return textOf(*piece, lines()).ends_with(':');
        }) > m_parameters.keyShare;
    }

    /// Whether a good part of the rows are one text that fills them: lines of a paragraph between such as were spread.
    bool holdsFullLines() const {
        double left = m_aligned.rows.front().box.left;
        double right = m_aligned.rows.front().box.right;
        for (const PieceRow& row : m_aligned.rows) {
            left = std::min(left, row.box.left);
            right = std::max(right, row.box.right);
        }
        return shareOfRows([&](const PieceRow& row) {
                   return row.pieces.size() == 1 && row.box.width() > m_parameters.proseFill * (right - left);
               }) > m_parameters.crossedRowShare;
    }

    /// Running text in at least two columns, or in narrow columns of which none looks like something else.
    bool isProseInColumns() const {
        const auto count = std::count_if(m_columns.begin(), m_columns.end(), [&](const ColumnPieces& column) {
            return isProse(column, m_parameters) &&
                   (m_columns.size() == 2 || !holdsEntries(column, lines(), m_parameters));
        });
        if (count >= 2 || (count == 1 && m_columns.size() == 2 && !hasRules()))
            return true;
        return std::all_of(m_columns.begin(), m_columns.end(), [&](const ColumnPieces& column) {
            return column.wordsPerPiece() > m_parameters.narrowProseWords && isFull(column, m_parameters);
        });
    }

    bool isCode() const {
        return areLinesCounted(m_aligned, lines(), m_parameters) ||
               (m_evidence != AlignedEvidence::Rules && areTyped(m_page, m_aligned, m_columns, m_parameters));
    }

    /// Whether parts of brackets higher than a line stand below each other: a formula.
    bool holdsLargeBrackets() const {
        return std::any_of(m_columns.begin(), m_columns.end(), [&](const ColumnPieces& column) {
            return std::count_if(column.pieces.begin(), column.pieces.end(), [&](const TextPiece* piece) {
                       return holdsPartOfBracket(textOf(*piece, lines()));
                   }) >= 2;
        });
    }

    bool isSparse() const {
        int filled = 0;
        for (const RowGroup& group : m_aligned.groups) {
            std::set<int> columns;
            for (std::size_t i = group.first; i < group.end; ++i)
                for (const TextPiece& piece : m_aligned.rows[i].pieces)
                    columns.insert(columnsOf(piece, m_aligned.gaps).first);
            filled += columns.size() >= 2;
        }
        return filled < m_parameters.filledRowShare * static_cast<double>(m_aligned.groups.size());
    }

    bool isRagged() const {
        const double least = hasRules() ? m_parameters.keptEdgeShareRuled : m_parameters.keptEdgeShare;
        const auto ragged = std::count_if(m_columns.begin(), m_columns.end(), [&](const ColumnPieces& column) {
            return column.pieces.empty() || keptShare(column, lines(), m_parameters) < least;
        });
        return static_cast<double>(ragged) > m_parameters.raggedShare * static_cast<double>(m_columns.size());
    }

    /// Whether one of two columns holds numbers: texts side by side may be anything.
    bool hasStrongColumn() const {
        return std::any_of(m_columns.begin() + 1, m_columns.end(),
                           [&](const ColumnPieces& column) { return isOfNumbers(column, lines(), m_parameters); });
    }

    const PageText& m_page;
    const AlignedRows& m_aligned;
    AlignedEvidence m_evidence;
    const TableParameters::Tables& m_parameters;
    std::vector<ColumnPieces> m_columns;
    double m_pieceCount = 0;
    double m_crossingCount = 0;
    bool m_isNamed = false; ///< a caption calls it a table, whatever else texts side by side may be
};

} // namespace

TableVerdict judgeAlignedTable(const PageText& page, const AlignedRows& aligned, AlignedEvidence evidence,
                               const TableParameters::Tables& parameters) {
    return AlignedJudge(page, aligned, evidence, parameters).judge();
}

} // namespace orvane::layout
