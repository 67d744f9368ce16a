#pragma once

#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// How far a border reaches from the line that it is drawn along to either side. Unit: points.
double reachOf(const document::Border& border);

/// How far the outer borders of a table reach beyond its box, whose sides run along their middles. Unit: points.
struct TableReach {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

TableReach reachOf(const DraftTable& table);

} // namespace orvane::layout
