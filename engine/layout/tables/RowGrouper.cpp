#include "layout/tables/RowGrouper.h"

#include "base/Utf8.h"
#include "layout/tables/FieldTexts.h"
#include "layout/tables/FilledRows.h"
#include "layout/tables/RowContent.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <set>

namespace orvane::layout {
namespace {

/// A word that ends with a hyphen; a dash alone stands for no value.
bool isBroken(std::string_view word) {
    return word.size() > 2 && word.ends_with('-');
}

bool startsLowerCase(const TextPiece& piece, const std::vector<Line>& lines) {
    const std::string& text = lines[piece.line].words[piece.firstWord].spans.front().text;
    return !text.empty() && text.front() >= 'a' && text.front() <= 'z';
}

/// A text of a sign or two, such as are ticked or counted row by row.
bool isSign(const TextPiece& piece, const std::vector<Line>& lines) {
    return utf32FromUtf8(textOf(piece, lines)).size() <= 2;
}

class GroupBuilder {
public:
    GroupBuilder(std::span<const PieceRow> rows, const std::vector<ColumnGap>& gaps, const std::vector<Line>& lines,
                 const std::vector<BorderLine>& rules, RowsPart part, const TableParameters::Tables& parameters)
        : m_rows(rows)
        , m_lines(lines)
        , m_rules(rules)
        , m_parameters(parameters)
        , m_filled(rows, parameters) {
        for (const PieceRow& row : rows)
            m_contents.push_back(contentOf(row, gaps, lines, parameters));
        m_areFields = areFields(rows, gaps, lines, parameters);
        measureColumns();
        measurePitch();
        countHead(part);
        findLabels();
    }

    std::vector<RowGroup> join() const {
        std::vector<RowGroup> groups;
        std::set<int> filled;
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            if (i == 0 || !goesOnFromAbove(i, filled)) {
                groups.push_back({i, i});
                filled.clear();
            }
            groups.back().end = i + 1;
            for (const auto& [column, piece] : m_contents[i].byColumn)
                filled.insert(column);
        }
        return groups;
    }

private:
    bool goesOnFromAbove(std::size_t i, const std::set<int>& filled) const {
        switch (m_filled.compare(m_contents[i - 1], m_contents[i])) {
        case FilledVerdict::Same:
            return true;
        case FilledVerdict::Other:
            return false;
        case FilledVerdict::Unknown:
            break;
        }
        if (lacksItsLabel(i))
            return true;
        const bool isNumbered = m_contents[i - 1].isNumbering || m_contents[i].isNumbering;
        return !isNumbered && !isRuledAbove(i) && (i < m_headRows ? goesOnInHead(i) : goesOn(i, filled));
    }

    /// Whether a rule parts a text of row `i` from the one above it.
    bool isRuledAbove(std::size_t i) const {
        return std::any_of(m_rules.begin(), m_rules.end(), [&](const BorderLine& rule) {
            if (rule.direction != RuleDirection::Horizontal || rule.position < m_rows[i - 1].box.centerY() ||
                rule.position > m_rows[i].box.centerY())
                return false;
            const auto isAlong = [&](const TextPiece& piece) {
                return overlap(piece.box.left, piece.box.right, rule.from, rule.to) >=
                       m_parameters.borderCover * piece.box.width();
            };
            return std::any_of(m_rows[i - 1].pieces.begin(), m_rows[i - 1].pieces.end(), isAlong) &&
                   std::any_of(m_rows[i].pieces.begin(), m_rows[i].pieces.end(), isAlong);
        });
    }

    void measureColumns() {
        for (const RowContent& content : m_contents) {
            for (const auto& [column, piece] : content.byColumn) {
                Rect& box = m_columnBoxes[column];
                box = box.united(piece->box);
            }
        }
    }

    void measurePitch() {
        for (std::size_t i = 1; i < m_rows.size(); ++i) {
            const double pitch = m_rows[i].baseline - m_rows[i - 1].lastBaseline;
            if (m_leastPitch == 0 || pitch < m_leastPitch)
                m_leastPitch = pitch;
        }
    }

    /// The column whose texts end with colons, if there is one: each of them labels a row.
    void findLabels() {
        std::map<int, int> texts, labels;
        for (const RowContent& content : m_contents) {
            for (const auto& [column, piece] : content.byColumn) {
                ++texts[column];
                labels[column] += textOf(*piece, m_lines).ends_with(':');
            }
        }
        const auto column = std::find_if(labels.begin(), labels.end(), [&](const auto& ofColumn) {
            return ofColumn.second >= m_parameters.fewestPartedRows &&
                   ofColumn.second > m_parameters.keyShare * texts.at(ofColumn.first);
        });
        if (column != labels.end())
            m_labelColumn = column->first;
    }

    /// Whether the row holds nothing but values, texts whose label stands farther up, or the rest of fields.
    bool lacksItsLabel(std::size_t i) const {
        const RowContent& content = m_contents[i];
        if (content.hasSpan || content.isOfNumbers)
            return false;
        if (m_areFields)
            return std::none_of(m_rows[i].pieces.begin(), m_rows[i].pieces.end(),
                                [&](const TextPiece& piece) { return isField(piece, m_lines); });
        return m_labelColumn && i > 0 && m_contents[i - 1].byColumn.rbegin()->first > *m_labelColumn &&
               content.byColumn.begin()->first > *m_labelColumn;
    }

    /// The rows that may be the head: those before the first with numbers, if there is one.
    void countHead(RowsPart part) {
        const auto numbers = std::find_if(m_contents.begin(), m_contents.end(),
                                          [](const RowContent& content) { return content.isOfNumbers; });
        const auto count = static_cast<std::size_t>(numbers - m_contents.begin());
        if (part == RowsPart::Head)
            m_headRows = countRowsAboveBody();
        else if (numbers != m_contents.end() && count <= static_cast<std::size_t>(m_parameters.maximumHeaderRows))
            m_headRows = count;
    }

    /// The rows before the first that has a label and numbers: a rule may close the body with its head. The first row
    /// is of the head, be it of years.
    std::size_t countRowsAboveBody() const {
        const auto body = std::find_if(m_contents.begin() + 1, m_contents.end(), [](const RowContent& content) {
            return content.isOfNumbers && content.isLabelled;
        });
        return static_cast<std::size_t>(body - m_contents.begin());
    }

    /// Whether row `i` holds nothing but a label that is set apart, as another row below the head does: both are
    /// titles.
    bool isTitle(std::size_t i) const {
        const auto isAlone = [](const RowContent& content) {
            return content.byColumn.size() == 1 && content.byColumn.count(0) > 0 &&
                   (content.isBold || content.isItalic);
        };
        return isAlone(m_contents[i]) && std::any_of(m_contents.begin() + static_cast<std::ptrdiff_t>(m_headRows),
                                                     m_contents.end(), [&](const RowContent& content) {
                                                         return isAlone(content) && !content.looksUnlike(m_contents[i]);
                                                     });
    }

    /// Whether row `i` of the head holds further lines of the texts above, which end or begin at one height.
    bool goesOnInHead(std::size_t i) const {
        const RowContent& above = m_contents[i - 1];
        const RowContent& content = m_contents[i];
        const double pitch = m_rows[i].baseline - m_rows[i - 1].lastBaseline;
        if (pitch > m_parameters.wrapPitch * m_rows[i].fontSize || content.hasSpan || above.hasSpan ||
            content.looksUnlike(above) || isTitle(i))
            return false;
        const auto stands = [](const RowContent& inner, const RowContent& outer) {
            return std::all_of(inner.byColumn.begin(), inner.byColumn.end(),
                               [&](const auto& text) { return outer.byColumn.count(text.first) > 0; });
        };
        return stands(content, above) || stands(above, content);
    }

    /// Whether row `i` stands so close below the one before as lines of one text do.
    bool isTight(std::size_t i) const {
        const double pitch = m_rows[i].baseline - m_rows[i - 1].lastBaseline;
        return pitch <= m_parameters.wrapPitch * m_rows[i].fontSize && pitch <= m_parameters.samePitch * m_leastPitch;
    }

    /// Whether a label stands farther out than the one above: it heads the next labels, which are indented.
    bool isOutdented(const TextPiece& above, const TextPiece& piece) const {
        const double tolerance = m_parameters.columnEdge * piece.fontSize;
        return !m_lines[piece.line].isRightToLeft && piece.box.left < above.box.left - tolerance &&
               std::abs(piece.box.centerX() - above.box.centerX()) > tolerance;
    }

    /// Whether `piece` reads on from `above`, which was so long that the first word did not fit into the column.
    bool isWrapped(const TextPiece& above, const TextPiece& piece, int column) const {
        if (isSign(above, m_lines) && isSign(piece, m_lines))
            return false;
        if (startsLowerCase(piece, m_lines))
            return true;
        if (column == 0 && isOutdented(above, piece))
            return false;
        return !hasRoomBehind(above, piece, m_columnBoxes.at(column), m_lines, m_parameters);
    }

    /// Whether all texts of `content` stand below one that ends with a hyphen.
    bool isHyphenated(const RowContent& above, const RowContent& content) const {
        return std::all_of(content.byColumn.begin(), content.byColumn.end(), [&](const auto& text) {
            const auto before = above.byColumn.find(text.first);
            return before != above.byColumn.end() && before->second->wordCount() == 1 &&
                   isBroken(textOf(*before->second, m_lines));
        });
    }

    /// Whether the row above holds nothing but the first line of this one's label, whose values stand beside its last.
    bool endsLoneLabel(const RowContent& above, const RowContent& content) const {
        const auto begins = above.byColumn.find(0);
        const auto ends = content.byColumn.find(0);
        return above.byColumn.size() == 1 && begins != above.byColumn.end() && ends != content.byColumn.end() &&
               startsLowerCase(*ends->second, m_lines) &&
               !hasRoomBehind(*begins->second, *ends->second, m_columnBoxes.at(0), m_lines, m_parameters);
    }

    /// Whether the only number stands below a label of several words, as the year of a date does.
    bool endsLabel(const RowContent& above, const RowContent& content) const {
        const auto label = above.byColumn.find(0);
        return label != above.byColumn.end() && label->second->wordCount() > 1 && !isNumeric(*label->second, m_lines) &&
               std::all_of(content.byColumn.begin(), content.byColumn.end(),
                           [&](const auto& text) { return text.first == 0 || !isNumeric(*text.second, m_lines); });
    }

    /// Whether all of several texts begin in lower case below such as do not.
    bool isMidSentence(const RowContent& above, const RowContent& content) const {
        return content.byColumn.size() > 1 &&
               std::all_of(content.byColumn.begin(), content.byColumn.end(), [&](const auto& text) {
                   const auto before = above.byColumn.find(text.first);
                   return startsLowerCase(*text.second, m_lines) && before != above.byColumn.end() &&
                          !startsLowerCase(*before->second, m_lines);
               });
    }

    bool goesOn(std::size_t i, const std::set<int>& filled) const {
        const RowContent& above = m_contents[i - 1];
        const RowContent& content = m_contents[i];
        if (!isTight(i) || content.hasSpan || above.hasSpan || content.looksUnlike(above))
            return false;
        if (endsLoneLabel(above, content))
            return true;
        // Numbers stand in rows of their own, unless a hyphen says that they are the rest of one, or the label goes on.
        if (content.hasNumber && !isHyphenated(above, content) && !endsLabel(above, content))
            return false;
        for (const auto& [column, piece] : content.byColumn) {
            const auto before = above.byColumn.find(column);
            if (before == above.byColumn.end() ? filled.count(column) == 0
                                               : !isWrapped(*before->second, *piece, column))
                return false;
        }
        return content.byColumn.size() < filled.size() || isMidSentence(above, content);
    }

    std::span<const PieceRow> m_rows;
    const std::vector<Line>& m_lines;
    const std::vector<BorderLine>& m_rules;
    const TableParameters::Tables& m_parameters;
    FilledRows m_filled;
    std::vector<RowContent> m_contents;
    std::map<int, Rect> m_columnBoxes; ///< around the texts of a column
    double m_leastPitch = 0;
    std::size_t m_headRows = 0;
    std::optional<int> m_labelColumn; ///< its texts end with colons
    bool m_areFields = false;
};

} // namespace

std::vector<RowGroup> groupRows(std::span<const PieceRow> rows, const std::vector<ColumnGap>& gaps,
                                const std::vector<Line>& lines, const std::vector<BorderLine>& rules, RowsPart part,
                                const TableParameters::Tables& parameters) {
    return GroupBuilder(rows, gaps, lines, rules, part, parameters).join();
}

} // namespace orvane::layout
