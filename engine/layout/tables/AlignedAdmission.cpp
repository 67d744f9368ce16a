#include "layout/tables/AlignedAdmission.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <set>

namespace orvane::layout {
namespace {

/// The pieces that stand in one column only.
struct ColumnPieces {
    std::vector<const TextPiece*> pieces;
    double left = 1e9;
    double right = -1e9;

    void add(const TextPiece& piece) {
        pieces.push_back(&piece);
        left = std::min(left, piece.box.left);
        right = std::max(right, piece.box.right);
    }
};

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
        for (const PieceRow& row : aligned.rows) {
            for (const TextPiece& piece : row.pieces) {
                const ColumnRange range = columnsOf(piece, aligned.gaps);
                ++m_pieceCount;
                m_crossingCount += range.first != range.last;
                if (range.first == range.last)
                    m_columns[static_cast<std::size_t>(range.first)].add(piece);
            }
        }
    }

    TableVerdict judge() const {
        if (isTooSmall())
            return TableVerdict::TooSmall;
        if (isContents())
            return TableVerdict::Contents;
        if (isList() || isListInColumns())
            return TableVerdict::List;
        if (isKeyValues())
            return TableVerdict::KeyValues;
        if (isProse())
            return TableVerdict::Prose;
        if (isCode())
            return TableVerdict::Code;
        if (m_crossingCount > m_parameters.crossingPieceShare * m_pieceCount)
            return TableVerdict::StraddlingWords;
        if (isSparse())
            return TableVerdict::Empty;
        if (isRagged())
            return TableVerdict::Ragged;
        if (m_evidence == AlignedEvidence::Alignment && m_columns.size() == 2 && !hasStrongColumn() && !showsRows())
            return TableVerdict::TooSmall;
        return TableVerdict::Table;
    }

private:
    const std::vector<Line>& lines() const { return m_page.lines; }

    bool isTooSmall() const {
        const std::size_t least = m_evidence == AlignedEvidence::Rules ? 2 : 3;
        return m_columns.size() < 2 || m_aligned.groups.size() < least;
    }

    template<typename Predicate>
    double shareOfRows(const Predicate& predicate) const {
        const auto count = std::count_if(m_aligned.rows.begin(), m_aligned.rows.end(), predicate);
        return static_cast<double>(count) / static_cast<double>(m_aligned.rows.size());
    }

    template<typename Predicate>
    static double shareOfPieces(const ColumnPieces& column, const Predicate& predicate) {
        if (column.pieces.empty())
            return 0;
        const auto count = std::count_if(column.pieces.begin(), column.pieces.end(), predicate);
        return static_cast<double>(count) / static_cast<double>(column.pieces.size());
    }

    bool isContents() const {
        const double led = shareOfRows([&](const PieceRow& row) {
            return std::any_of(row.pieces.begin(), row.pieces.end(), [&](const TextPiece& piece) {
                const Word& word = lines()[piece.line].words[piece.firstWord];
                return word.leaderBefore != document::TabLeader::None ||
                       textOf(piece, lines()).find("....") != std::string::npos;
            });
        });
        return (led > m_parameters.leaderRowShare && !leadsToAmounts()) || endsInPageNumbers();
    }

    /// Whether the leaders lead to amounts: several columns of numbers, or one of large or broken numbers, which go up
    /// and down. The numbers of pages are small, and most often rise.
    bool leadsToAmounts() const {
        int falling = 0;
        int broken = 0;
        for (std::size_t i = 1; i < m_columns.size(); ++i) {
            const ColumnPieces& column = m_columns[i];
            if (!isFalling(column))
                continue;
            ++falling;
            broken += shareOfPieces(column, [&](const TextPiece* piece) {
                          return textOf(*piece, lines()).find_first_of(",.") != std::string::npos;
                      }) > m_parameters.brokenNumberShare;
        }
        return falling >= 2 || broken > 0;
    }

    /// Whether the column's numbers are often less than the ones above.
    bool isFalling(const ColumnPieces& column) const {
        long last = 0;
        int falls = 0;
        int numbers = 0;
        for (const TextPiece* piece : column.pieces) {
            if (!isNumeric(*piece, lines()))
                continue;
            const long number = digitsOf(textOf(*piece, lines()));
            ++numbers;
            falls += number < last;
            last = number;
        }
        return numbers >= m_parameters.fewestPartedRows && falls >= m_parameters.fallingShare * numbers;
    }

    /// The number that the digits make, whatever stands between them.
    static long digitsOf(const std::string& text) {
        long number = 0;
        for (const char c : text)
            if (c >= '0' && c <= '9' && number < std::numeric_limits<long>::max() / 100)
                number = 10 * number + (c - '0');
        return number;
    }

    /// Whether the last of two columns counts up as page numbers do.
    bool endsInPageNumbers() const {
        if (m_columns.size() != 2 || m_evidence == AlignedEvidence::Rules)
            return false;
        long last = 0;
        for (const TextPiece* piece : m_columns.back().pieces) {
            const std::string text = textOf(*piece, lines());
            long number = 0;
            const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
            if (error != std::errc{} || end != text.data() + text.size() || number < last)
                return false;
            last = number;
        }
        return true;
    }

    /// "1.", "a)", "(iv)", a bullet.
    static bool isLabel(const std::string& text) {
        const auto isAscii = [](char c) { return (static_cast<unsigned char>(c) & 0x80) == 0; };
        if (text == "(" || text == "[") // a place to tick
            return true;
        const bool isSymbol = text.size() <= 3 && (!isAscii(text.front()) || text == "-" || text == "*" || text == "o");
        const bool isNumber = text.size() <= 6 && (text.back() == '.' || text.back() == ')');
        return isSymbol || isNumber;
    }

    /// Whether most rows begin some column with a bullet: a list in columns.
    bool isListInColumns() const {
        return m_evidence == AlignedEvidence::Alignment &&
               shareOfRows([&](const PieceRow& row) {
                   return std::any_of(row.pieces.begin(), row.pieces.end(), [&](const TextPiece& piece) {
                       return isBullet(textOf(
                           pieceOf(lines()[piece.line], piece.line, piece.firstWord, piece.firstWord + 1), lines()));
                   });
               }) > m_parameters.labelShare;
    }

    /// Whether space between the rows, or filled cells, show a table as rules do, whatever stands in two columns.
    bool showsRows() const { return m_aligned.areSpaced || isFilled(); }

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
        return m_columns.size() == 2 && shareOfPieces(labels(), [&](const TextPiece* piece) {
                                            return isLabel(textOf(*piece, lines()));
                                        }) > m_parameters.labelShare;
    }

    bool isKeyValues() const {
        if (m_columns.size() != 2 || m_evidence == AlignedEvidence::Rules || showsRows())
            return false;
        return shareOfPieces(labels(), [&](const TextPiece* piece) { return textOf(*piece, lines()).back() == ':'; }) >
               m_parameters.keyShare;
    }

    double wordsPerPiece(const ColumnPieces& column) const {
        double words = 0;
        for (const TextPiece* piece : column.pieces)
            words += static_cast<double>(piece->wordCount());
        return column.pieces.empty() ? 0 : words / static_cast<double>(column.pieces.size());
    }

    /// Whether most of the lines are as long as the column has room for.
    bool isFull(const ColumnPieces& column) const {
        return shareOfPieces(column, [&](const TextPiece* piece) {
                   return piece->box.width() > m_parameters.proseFill * (column.right - column.left);
               }) > m_parameters.proseFullShare;
    }

    /// Whether a column runs on from line to line: many long lines that fill it.
    bool isProseColumn(const ColumnPieces& column) const {
        return static_cast<int>(column.pieces.size()) >= m_parameters.proseLines &&
               wordsPerPiece(column) > m_parameters.proseWords && isFull(column);
    }

    /// Running text in at least two columns, or in narrow columns of which none looks like something else.
    bool isProse() const {
        const auto count = std::count_if(m_columns.begin(), m_columns.end(),
                                         [&](const ColumnPieces& column) { return isProseColumn(column); });
        if (count >= 2 || (count == 1 && m_columns.size() == 2 && m_evidence == AlignedEvidence::Alignment))
            return true;
        return std::all_of(m_columns.begin(), m_columns.end(), [&](const ColumnPieces& column) {
            return wordsPerPiece(column) > m_parameters.narrowProseWords && isFull(column);
        });
    }

    bool isCode() const {
        if (m_evidence == AlignedEvidence::Rules)
            return false;
        return m_columns.size() == 2 &&
               shareOfRows([&](const PieceRow& row) {
                   const TextPiece& piece = row.pieces.front();
                   const Look& look = lines()[piece.line].words[piece.firstWord].spans.front().look;
                   return look.font < m_page.fonts.size() && m_page.fonts[look.font].isFixedPitch;
               }) > m_parameters.codeShare;
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

    /// Where a number's point stands, or where it would: behind the number.
    double pointOf(const TextPiece& piece) const {
        const std::string text = textOf(piece, lines());
        const std::size_t point = text.find_last_of(",.");
        const double before = static_cast<double>(point == std::string::npos ? text.size() : point);
        return piece.box.left + piece.box.width() * before / static_cast<double>(text.size());
    }

    /// The largest share of the column's pieces that keep one edge, or the place of their points. Signs of currency
    /// that stand apart from their amounts do not count.
    double keptShare(const ColumnPieces& column) const {
        std::array<std::vector<double>, 4> edges;
        for (const TextPiece* piece : column.pieces) {
            if (isCurrencySign(textOf(*piece, lines())))
                continue;
            edges[0].push_back(piece->box.left);
            edges[1].push_back(piece->box.centerX());
            edges[2].push_back(piece->box.right);
            if (isNumeric(*piece, lines()))
                edges[3].push_back(pointOf(*piece));
        }
        const double tolerance = m_parameters.columnEdge * column.pieces.front()->fontSize;
        std::size_t most = 0;
        for (std::vector<double>& values : edges)
            most = std::max(most, mostWithin(values, tolerance));
        return static_cast<double>(most) / std::max(1.0, static_cast<double>(edges[0].size()));
    }

    /// How many of the values lie within `tolerance` of each other, at most.
    static std::size_t mostWithin(std::vector<double>& values, double tolerance) {
        std::sort(values.begin(), values.end());
        std::size_t most = 0;
        for (std::size_t first = 0, end = 0; first < values.size(); ++first) {
            while (end < values.size() && values[end] <= values[first] + tolerance)
                ++end;
            most = std::max(most, end - first);
        }
        return most;
    }

    bool isRagged() const {
        const double least =
            m_evidence == AlignedEvidence::Rules ? m_parameters.keptEdgeShareRuled : m_parameters.keptEdgeShare;
        const auto ragged = std::count_if(m_columns.begin(), m_columns.end(), [&](const ColumnPieces& column) {
            return column.pieces.empty() || keptShare(column) < least;
        });
        return static_cast<double>(ragged) > m_parameters.raggedShare * static_cast<double>(m_columns.size());
    }

    /// Whether one of two columns holds numbers: texts side by side may be anything.
    bool hasStrongColumn() const {
        return std::any_of(m_columns.begin() + 1, m_columns.end(), [&](const ColumnPieces& column) {
            return shareOfPieces(column, [&](const TextPiece* piece) { return isNumeric(*piece, lines()); }) >
                   m_parameters.numericShare;
        });
    }

    const PageText& m_page;
    const AlignedRows& m_aligned;
    AlignedEvidence m_evidence;
    const TableParameters::Tables& m_parameters;
    std::vector<ColumnPieces> m_columns;
    double m_pieceCount = 0;
    double m_crossingCount = 0;
};

} // namespace

TableVerdict judgeAlignedTable(const PageText& page, const AlignedRows& aligned, AlignedEvidence evidence,
                               const TableParameters::Tables& parameters) {
    return AlignedJudge(page, aligned, evidence, parameters).judge();
}

} // namespace orvane::layout
