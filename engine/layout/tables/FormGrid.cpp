#include "layout/tables/FormGrid.h"

#include "layout/tables/GridShapes.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

/// The places of a form's grid and whose they are.
class FormPlaces {
public:
    FormPlaces(std::span<const FieldRow> rows, const PageText& page, const TableParameters::Tables& parameters) {
        takeColumns(rows, parameters);
        takeRows(rows, page, parameters);
        if (isTooLarge(parameters))
            return;
        m_fieldAt.assign(columns() * this->rows(), kNone);
        for (const FieldRow& row : rows)
            for (const Rect& field : row.fields)
                placeField(field);
        for (Place& field : m_fields)
            lookAround(field);
    }

    bool isTooLarge(const TableParameters::Tables& parameters) const {
        return columns() * rows() > static_cast<std::size_t>(parameters.maximumPlaces);
    }

    FormGrid form() const {
        std::vector<std::size_t> owners;
        for (std::size_t row = 0; row < rows(); ++row)
            appendOwners(row, owners);
        FormGrid result{{m_xs, m_ys, cutIntoCells(owners, columns()).cells}, {}};
        const std::vector<int> cover = coverOf(result.grid);
        for (const Place& field : m_fields) {
            const std::size_t first = field.firstRow * columns() + field.firstColumn;
            const bool isFirst = field.firstColumn == 0 || fieldAt(field.firstRow, field.firstColumn - 1) != kNone;
            result.fields.push_back({cover[first], isFirst ? -1 : cover[first - 1]});
        }
        return result;
    }

private:
    /// Where a field stands: rows and columns [first, end).
    struct Place {
        std::size_t firstRow = 0;
        std::size_t endRow = 0;
        std::size_t firstColumn = 0;
        std::size_t endColumn = 0;
        std::size_t labelColumn = 0; ///< the first of its label: behind all the fields before it
        bool isLastOfRows = true;    ///< nothing but text stands behind it, in any of its rows
    };
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    std::size_t columns() const { return m_xs.size() - 1; }
    std::size_t rows() const { return m_ys.size() - 1; }

    void takeColumns(std::span<const FieldRow> rows, const TableParameters::Tables& parameters) {
        std::vector<double> xs;
        double left = rows.front().box.left, right = rows.front().box.right;
        for (const FieldRow& row : rows) {
            for (const Rect& field : row.fields)
                xs.insert(xs.end(), {field.left, field.right});
            left = std::min(left, row.box.left);
            right = std::max(right, row.box.right);
            for (const Rect& text : row.texts) {
                left = std::min(left, text.left - parameters.textMargin);
                right = std::max(right, text.right + parameters.textMargin);
            }
        }
        xs.insert(xs.end(), {left, right});
        m_xs = clusterPositions(std::move(xs), parameters.lineSnap);
    }

    /// Rows begin and end with fields, and so do those between them with the bars behind headings and with texts.
    void takeRows(std::span<const FieldRow> rows, const PageText& page, const TableParameters::Tables& parameters) {
        std::vector<double> ys;
        for (const FieldRow& row : rows)
            for (const Rect& field : row.fields)
                ys.insert(ys.end(), {field.top, field.bottom});
        const auto isBetween = [&](const Rect& box) {
            const double slack = std::min(parameters.lineSnap, box.height() / 2);
            return isBetweenRows(rows, box.top + slack) && isBetweenRows(rows, box.bottom - slack);
        };
        const double width = m_xs.back() - m_xs.front();
        for (const Ground& ground : page.grounds)
            if (ground.box.width() > parameters.formBarShare * width && isBetween(ground.box))
                ys.insert(ys.end(), {ground.box.top, ground.box.bottom});
        m_ys = clusterPositions(std::move(ys), parameters.lineSnap);
        for (const Line& line : page.lines)
            if (isBetween(line.box))
                for (const double y : {line.box.top, line.box.bottom})
                    if (std::abs(m_ys[nearestIndex(m_ys, y)] - y) > parameters.lineSnap)
                        m_ys.insert(std::upper_bound(m_ys.begin(), m_ys.end(), y), y);
    }

    void placeField(const Rect& field) {
        const Place place{.firstRow = nearestIndex(m_ys, field.top),
                          .endRow = nearestIndex(m_ys, field.bottom),
                          .firstColumn = nearestIndex(m_xs, field.left),
                          .endColumn = nearestIndex(m_xs, field.right)};
        for (std::size_t row = place.firstRow; row < place.endRow; ++row)
            for (std::size_t column = place.firstColumn; column < place.endColumn; ++column)
                m_fieldAt[row * columns() + column] = m_fields.size();
        m_fields.push_back(place);
    }

    std::size_t fieldAt(std::size_t row, std::size_t column) const { return m_fieldAt[row * columns() + column]; }

    void lookAround(Place& field) const {
        for (std::size_t row = field.firstRow; row < field.endRow; ++row) {
            for (std::size_t column = field.firstColumn; column > field.labelColumn; --column)
                if (fieldAt(row, column - 1) != kNone)
                    field.labelColumn = column;
            for (std::size_t column = field.endColumn; column < columns(); ++column)
                field.isLastOfRows = field.isLastOfRows && fieldAt(row, column) == kNone;
        }
    }

    /// The owners of one row's places: the fields, their labels, what stands behind the last field, and the rest of
    /// each row.
    void appendOwners(std::size_t row, std::vector<std::size_t>& owners) const {
        const std::size_t fields = m_fields.size();
        for (std::size_t column = 0; column < columns();) {
            const std::size_t own = fieldAt(row, column);
            std::size_t end = column;
            while (end < columns() && fieldAt(row, end) == own)
                ++end;
            const std::size_t rest = 3 * fields + owners.size();
            if (own != kNone) {
                owners.insert(owners.end(), end - column, own);
            } else if (end < columns()) {
                const std::size_t next = fieldAt(row, end);
                const std::size_t label = std::max(column, m_fields[next].labelColumn);
                owners.insert(owners.end(), label - column, rest);
                owners.insert(owners.end(), end - label, fields + next);
            } else {
                const std::size_t last = column > 0 ? fieldAt(row, column - 1) : kNone;
                const bool isBehind = last != kNone && m_fields[last].isLastOfRows;
                owners.insert(owners.end(), end - column, isBehind ? 2 * fields + last : rest);
            }
            column = end;
        }
    }

    std::vector<double> m_xs;
    std::vector<double> m_ys;
    std::vector<Place> m_fields;
    std::vector<std::size_t> m_fieldAt; ///< by row, then column
};

} // namespace

std::optional<FormGrid> gridOfForm(std::span<const FieldRow> rows, const PageText& page,
                                   const TableParameters::Tables& parameters) {
    const FormPlaces places(rows, page, parameters);
    return places.isTooLarge(parameters) ? std::nullopt : std::optional(places.form());
}

bool isBetweenRows(std::span<const FieldRow> rows, double y) {
    const auto below =
        std::upper_bound(rows.begin(), rows.end(), y, [](double at, const FieldRow& row) { return at < row.box.top; });
    return below != rows.begin() && below != rows.end() && (below - 1)->box.bottom < y;
}

} // namespace orvane::layout
