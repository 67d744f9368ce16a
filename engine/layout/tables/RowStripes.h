#pragma once

#include "layout/support/BoxIndex.h"
#include "layout/tables/AlignedGrid.h"
#include "layout/text/PageText.h"

namespace orvane::layout {

/// The grounds of a page that lie below each other with the same ends: behind each of them stands a row of a table, be
/// it every other one.
class RowStripes {
public:
    /// `page` must outlive the stripes.
    RowStripes(const PageText& page, const TableParameters::Tables& parameters);

    /// Whether the last row stands on a stripe like those behind at least two of the rows before it.
    bool goOnTo(std::span<const PieceRow> rows) const;

    /// Lays the edges of the rows that stand on stripes onto these, and those of the table onto their ends unless they
    /// run off the page.
    void snap(TableGrid& grid, const AlignedRows& aligned) const;

private:
    struct Stripe {
        Rect box;
        std::size_t set = 0; ///< those with the same ends
    };

    const Stripe* stripeBehind(const Rect& text) const;
    std::optional<std::size_t> setBehind(std::span<const PieceRow> rows) const;

    const PageText& m_page;
    const TableParameters::Tables& m_parameters;
    std::vector<Stripe> m_stripes;
    BoxIndex m_index; ///< names are places in m_stripes
};

} // namespace orvane::layout
