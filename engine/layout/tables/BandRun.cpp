#include "layout/tables/BandRun.h"

#include "layout/tables/RuledRows.h"

#include <algorithm>

namespace orvane::layout {

bool isHeadingOnly(const RuleBand& band) {
    return std::all_of(band.rows.begin(), band.rows.end(), [](const PieceRow& row) { return row.pieces.size() < 2; });
}

namespace {

// So many rows are looked at with every band that joins them; more, whenever there are one in so many more, so that
// long runs take little time.
constexpr std::size_t kClosestRows = 64;
constexpr std::size_t kRowsALook = 32;

/// Whether the columns of a run remain as it grows.
class ColumnWatch {
public:
    explicit ColumnWatch(const TableParameters::Tables& parameters)
        : m_parameters(parameters) {}

    bool remain(const std::vector<PieceRow>& rows) {
        if (rows.size() != m_rows)
            m_gaps = findColumnGaps(rows, m_parameters).size();
        m_rows = rows.size();
        // The first rows, headings among them, may not show the columns yet.
        const bool mayWait = m_mostGaps == 0 && static_cast<int>(rows.size()) <= m_parameters.maximumHeaderRows;
        if (!mayWait &&
            (m_gaps == 0 || static_cast<double>(m_gaps) < m_parameters.keptGapShare * static_cast<double>(m_mostGaps)))
            return false;
        m_mostGaps = std::max(m_mostGaps, m_gaps);
        return true;
    }

private:
    const TableParameters::Tables& m_parameters;
    std::size_t m_rows = 0;
    std::size_t m_gaps = 0; ///< of these rows
    std::size_t m_mostGaps = 0;
};

} // namespace

BandRun growRun(const std::vector<RuleBand>& bands, std::size_t first, const TableParameters::Tables& parameters) {
    BandRun run{first, first, {}};
    ColumnWatch columns(parameters);
    std::vector<PieceRow> rows;
    std::size_t rowsOfRun = 0;
    bool looksClosely = false;
    for (std::size_t i = first; i < bands.size(); ++i) {
        rows.insert(rows.end(), bands[i].rows.begin(), bands[i].rows.end());
        const bool isLast = bands[i].isFollowed || i + 1 == bands.size();
        const bool isClose = looksClosely || rows.size() <= kClosestRows;
        if (!isLast && !isClose && rows.size() < rowsOfRun + rowsOfRun / kRowsALook)
            continue;
        if (columns.remain(rows)) {
            run.end = i + 1;
            rowsOfRun = rows.size();
        } else if (i > run.end) {
            // Back to where they did, to find the band with which they end.
            looksClosely = true;
            rows.resize(rowsOfRun);
            i = run.end - 1;
            continue;
        }
        if (run.end <= i || bands[i].isFollowed)
            break;
    }
    // A heading between two tables, a note below: what stands across all columns at the run's ends is no part of it.
    // Below the last rule it may be the rest of a text; see dropNotes().
    while (run.end > run.first && bands[run.end - 1].hasRuleBelow && isHeadingOnly(bands[run.end - 1]))
        --run.end;
    return run;
}

namespace {

/// The rows [first, end) of a run between two of its rules.
struct RuledPart {
    std::size_t first = 0;
    std::size_t end = 0;
};

std::vector<RuledPart> partsOf(const std::vector<RuleBand>& bands, const BandRun& run) {
    std::vector<RuledPart> parts;
    std::size_t row = 0;
    for (std::size_t i = run.first; i < run.end; ++i) {
        if (parts.empty() || bands[i].hasRuleAbove)
            parts.push_back({row, row});
        row += bands[i].rows.size();
        parts.back().end = row;
    }
    std::erase_if(parts, [](const RuledPart& part) { return part.first == part.end; });
    return parts;
}

/// Whether rules part all rows below the head.
bool areRowsRuled(const std::vector<RuledPart>& parts, const AlignedRows& aligned, const std::vector<Line>& lines,
                  const TableParameters::Tables& parameters) {
    std::vector<RowContent> contents;
    for (const PieceRow& row : aligned.rows)
        contents.push_back(contentOf(row, aligned.gaps, lines, parameters));
    std::vector<std::span<const RowContent>> body;
    for (std::size_t i = 1; i < parts.size(); ++i)
        body.push_back(std::span(contents).subspan(parts[i].first, parts[i].end - parts[i].first));
    return areRowsRuled(body, lines, parameters);
}

/// Takes texts alone in their rows off the open end of a run, unless they go on from the row above.
void dropNotes(const std::vector<RuleBand>& bands, BandRun& run) {
    AlignedRows& aligned = run.aligned;
    while (!aligned.groups.empty() && !bands[run.end - 1].hasRuleBelow && !bands[run.end - 1].isFollowed) {
        const std::span rows = std::span(aligned.rows).subspan(aligned.groups.back().first);
        if (std::any_of(rows.begin(), rows.end(), [](const PieceRow& row) { return row.pieces.size() > 1; }))
            return;
        run.end -= rows.size(); // one band a row
        aligned.rows.resize(aligned.groups.back().first);
        aligned.groups.pop_back();
    }
}

} // namespace

void alignRun(const std::vector<RuleBand>& bands, const std::vector<Line>& lines, const std::vector<BorderLine>& rules,
              const LayoutParameters& parameters, BandRun& run) {
    AlignedRows& aligned = run.aligned;
    for (std::size_t i = run.first; i < run.end; ++i)
        aligned.rows.insert(aligned.rows.end(), bands[i].rows.begin(), bands[i].rows.end());
    aligned.gaps = findTableColumns(aligned.rows, lines, parameters);
    const std::vector<RuledPart> parts = partsOf(bands, run);
    const bool areRows = areRowsRuled(parts, aligned, lines, parameters.tables);
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const auto [first, end] = parts[i];
        if (areRows && i > 0) {
            aligned.groups.push_back({first, end});
            continue;
        }
        const bool isHead =
            first == 0 && parts.size() > 1 && static_cast<int>(end) <= parameters.tables.maximumHeaderRows;
        for (RowGroup group : groupRows(std::span(aligned.rows).subspan(first, end - first), aligned.gaps, lines, rules,
                                        isHead ? RowsPart::Head : RowsPart::Any, parameters.tables))
            aligned.groups.push_back({group.first + first, group.end + first});
    }
    dropNotes(bands, run);
}

} // namespace orvane::layout
