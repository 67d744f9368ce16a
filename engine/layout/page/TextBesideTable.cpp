#include "layout/page/TextBesideTable.h"

#include <algorithm>

namespace orvane::layout {
namespace {

enum class TableSide : std::int8_t { Left, Right, Across };

TableSide sideOf(const Line& line, const Rect& table) {
    if (line.box.right <= table.left)
        return TableSide::Left;
    return line.box.left >= table.right ? TableSide::Right : TableSide::Across;
}

/// The lines beside one table, grown up and down over those that follow on the same side.
class BesideFinder {
public:
    BesideFinder(std::span<const Line> lines, const Rect& table, const PageParameters::Regions& parameters)
        : m_lines(lines)
        , m_table(table)
        , m_parameters(parameters) {}

    std::optional<TextBesideTable> find() {
        if (!takeLevelLines() || m_count < m_parameters.fewestBeside ||
            m_text.width() < m_parameters.minimumColumn * m_lines[m_first].fontSize)
            return std::nullopt;
        grow();
        if (flowsAround())
            return std::nullopt;
        return TextBesideTable{m_table, std::min(m_text.top, m_table.top), std::max(m_text.bottom, m_table.bottom),
                               m_side == TableSide::Left};
    }

private:
    bool isLevel(const Line& line) const {
        return line.box.centerY() > m_table.top && line.box.centerY() < m_table.bottom;
    }

    /// Signs alone are parts of a formula or of the table, and a note would end where its column does.
    bool isOfText(const Line& line) const {
        return line.box.width() >= m_parameters.shortestText * line.fontSize &&
               std::none_of(line.words.begin(), line.words.end(), [](const Word& word) {
                   return std::any_of(word.spans.begin(), word.spans.end(), [](const Span& span) {
                       return span.look.verticalPosition == document::VerticalPosition::Superscript;
                   });
               });
    }

    /// False when there are none, or they stand on both sides.
    bool takeLevelLines() {
        for (std::size_t i = 0; i < m_lines.size(); ++i) {
            if (!isLevel(m_lines[i]))
                continue;
            const TableSide side = sideOf(m_lines[i], m_table);
            if (side == TableSide::Across || !isOfText(m_lines[i]) || (m_count > 0 && side != m_side))
                return false;
            m_side = side;
            if (m_count++ == 0)
                m_first = i;
            m_last = i;
            m_text = m_text.united(m_lines[i].box);
        }
        return m_count > 0;
    }

    bool follows(const Line& above, const Line& below) const {
        return below.baseline - above.baseline <= m_parameters.textStep * std::min(above.fontSize, below.fontSize);
    }

    void grow() {
        while (m_first > 0 && sideOf(m_lines[m_first - 1], m_table) == m_side &&
               follows(m_lines[m_first - 1], m_lines[m_first]))
            m_text = m_text.united(m_lines[--m_first].box);
        while (m_last + 1 < m_lines.size() && sideOf(m_lines[m_last + 1], m_table) == m_side &&
               follows(m_lines[m_last], m_lines[m_last + 1]))
            m_text = m_text.united(m_lines[++m_last].box);
    }

    /// Whether a line over the table's width follows, or is followed, as closely as lines of one text.
    bool flowsAround() const {
        return (m_first > 0 && follows(m_lines[m_first - 1], m_lines[m_first])) ||
               (m_last + 1 < m_lines.size() && follows(m_lines[m_last], m_lines[m_last + 1]));
    }

    std::span<const Line> m_lines;
    const Rect& m_table;
    const PageParameters::Regions& m_parameters;
    TableSide m_side = TableSide::Left;
    std::size_t m_count = 0;
    std::size_t m_first = 0;
    std::size_t m_last = 0;
    Rect m_text;
};

} // namespace

std::optional<TextBesideTable> findTextBesideTable(std::span<const Line> lines, std::span<const Rect> tables,
                                                   const PageParameters::Regions& parameters) {
    for (const Rect& table : tables)
        if (auto found = BesideFinder(lines, table, parameters).find())
            return found;
    return std::nullopt;
}

} // namespace orvane::layout
