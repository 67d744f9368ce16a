#pragma once

#include "layout/text/PageText.h"

#include <span>
#include <vector>

namespace orvane::layout {

/// A piece of text without a gap that could be a gutter, or a wall: a table or picture that stops a gutter.
struct GutterPiece {
    Rect box;
    double baseline = 0;
    double fontSize = 0;
    bool isWall = false;
    bool isLabel = false;   ///< ends with a colon
    bool isComment = false; ///< begins with the sign of a comment in a program
};

/// Cuts lines at gaps of at least `narrowest` points. A leader fills its gap. From top to bottom, the walls among them.
std::vector<GutterPiece> cutAtGutterGaps(std::span<const Line> lines, std::span<const Rect> walls, double narrowest);

} // namespace orvane::layout
