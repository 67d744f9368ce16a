#include "layout/tables/CellComponents.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

constexpr double kMostCells = 500; ///< in each direction
constexpr int kCovered = -2;

std::size_t cellCount(double length, double cell) {
    return static_cast<std::size_t>(std::clamp(std::ceil(length / cell), 1.0, kMostCells));
}

} // namespace

CellComponents::CellComponents(double width, double height, double cellSize)
    : m_cell(std::max({cellSize, width / kMostCells, height / kMostCells}))
    , m_columns(cellCount(width, m_cell))
    , m_rows(cellCount(height, m_cell))
    , m_change((m_columns + 1) * (m_rows + 1), 0)
    , m_component(m_columns * m_rows, kNone) {}

std::size_t CellComponents::columnOf(double x) const {
    return static_cast<std::size_t>(std::clamp(std::floor(x / m_cell), 0.0, static_cast<double>(m_columns - 1)));
}

std::size_t CellComponents::rowOf(double y) const {
    return static_cast<std::size_t>(std::clamp(std::floor(y / m_cell), 0.0, static_cast<double>(m_rows - 1)));
}

void CellComponents::add(const Rect& box) {
    const std::size_t stride = m_columns + 1;
    const std::size_t left = columnOf(box.left), right = columnOf(box.right) + 1;
    const std::size_t top = rowOf(box.top), bottom = rowOf(box.bottom) + 1;
    ++m_change[top * stride + left];
    --m_change[top * stride + right];
    --m_change[bottom * stride + left];
    ++m_change[bottom * stride + right];
}

void CellComponents::connect() {
    std::vector<int> above(m_columns, 0);
    for (std::size_t row = 0; row < m_rows; ++row) {
        int along = 0;
        for (std::size_t column = 0; column < m_columns; ++column) {
            along += m_change[row * (m_columns + 1) + column];
            above[column] += along;
            if (above[column] > 0)
                m_component[row * m_columns + column] = kCovered;
        }
    }
    for (std::size_t cell = 0; cell < m_component.size(); ++cell)
        if (m_component[cell] == kCovered)
            fill(cell, static_cast<int>(m_count++));
}

void CellComponents::fill(std::size_t seed, int component) {
    std::vector<std::size_t> open{seed};
    m_component[seed] = component;
    while (!open.empty()) {
        const std::size_t cell = open.back();
        open.pop_back();
        const std::size_t row = cell / m_columns, column = cell % m_columns;
        for (std::size_t r = row > 0 ? row - 1 : 0; r <= std::min(row + 1, m_rows - 1); ++r)
            for (std::size_t c = column > 0 ? column - 1 : 0; c <= std::min(column + 1, m_columns - 1); ++c) {
                int& neighbour = m_component[r * m_columns + c];
                if (neighbour != kCovered)
                    continue;
                neighbour = component;
                open.push_back(r * m_columns + c);
            }
    }
}

} // namespace orvane::layout
