#pragma once

#include "layout/page/ColumnGutter.h"
#include "layout/page/GutterPieces.h"

namespace orvane::layout {

/// What stands on either side of a strip that may be a gutter, from top to bottom.
struct SideTexts {
    std::vector<GutterPiece> left;
    std::vector<GutterPiece> right;
};

/// Names with their values beside them, "Date:  3 May", are read along the rows: most pieces of the left side end with
/// a colon.
bool areLabels(const SideTexts& texts);

/// Comments of a program are read with the statements beside them: most pieces of the right side begin with a sign of
/// such.
bool areComments(const SideTexts& texts);

/// Rows that stand apart are read along: each text of the side with fewer has one beside it, and no side has two lines
/// of one text.
bool areRowsApart(const SideTexts& texts, const PageParameters::Regions& parameters);

/// Names in the margin, each beside the first line of what it belongs to: they stand far apart, in a column that is
/// much narrower than the other. The widths are those of the sides, in points.
bool areNamesInMargin(const SideTexts& texts, double leftWidth, double rightWidth,
                      const PageParameters::Regions& parameters);

/// Lists in columns, an index say: space between the lines of each side stands beside lines of the other.
bool areLists(const ColumnGutter& gutter, const SideTexts& texts, double fontSize,
              const PageParameters::Regions& parameters);

/// Texts that have nothing to do with each other, two addresses say: lines that follow one another on both sides, few
/// of them level with one of the other side.
bool areOutOfStep(const ColumnGutter& gutter, const SideTexts& texts, double fontSize,
                  const PageParameters::Regions& parameters);

/// Takes the rows off the gutter's ends that lead across it, "Invoice 12      8 May": level on both sides and apart
/// from the texts.
void leaveLevelEnds(ColumnGutter& gutter, const SideTexts& texts, const PageParameters::Regions& parameters);

/// Texts that take turns down the page, a sender's address at the left and below it the receiver's at the right: none
/// beside the gutter has one of the other side at its height.
bool takeTurns(const ColumnGutter& gutter, const SideTexts& texts);

} // namespace orvane::layout
