#pragma once

#include "layout/running/EdgeRows.h"

#include <vector>

namespace orvane::layout {

/// Takes the rows at the foot of the first page that stand below where all pages end their text: the first page often
/// has a foot of its own. Where no pages show that, those of a full first page that would be the foot of an only one.
/// `edges` holds the bottoms of all pages, of which `page` is the first.
void takeFirstFoot(std::vector<EdgeRows>& edges, const PageText& page,
                   const RunningParameters::RunningHeads& parameters);

/// Takes the rows at the head of the first page, the letterhead, where they begin above the place at which all other
/// pages begin their text, and these have no heads of their own. What is ruled off with such rows belongs to them.
/// `edges` holds the tops of `pages`.
void takeFirstHead(std::vector<EdgeRows>& edges, const std::vector<PageText>& pages,
                   const RunningParameters::RunningHeads& parameters);

} // namespace orvane::layout
