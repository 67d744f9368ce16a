#pragma once

#include "base/Geometry.h"
#include "document/Document.h"
#include "layout/text/PageText.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

/// Text on its way from glyphs to lines. Positions within a row are measured along and across its direction of writing,
/// so that the stages need not know how the text is turned on the page.
namespace orvane::layout {

/// A direction of writing on the page. `along` grows in reading order of left-to-right text, `across` towards the next
/// line.
struct TextFrame {
    double angle = 0; ///< degrees clockwise, what Line::angle will be
    double skew = 0;  ///< degrees beyond `angle`: a page that was scanned askew
    bool isVertical =
        false; ///< East Asian vertical writing: characters follow each other downwards, lines go leftwards

    struct Position {
        double along = 0;
        double across = 0;
    };

    Position fromPage(Point p) const {
        const auto [cosine, sine] = direction();
        return {p.x * cosine + p.y * sine, p.y * cosine - p.x * sine};
    }
    Point toPage(Position p) const {
        const auto [cosine, sine] = direction();
        return {p.along * cosine - p.across * sine, p.along * sine + p.across * cosine};
    }
    /// The upright box around a stretch of text.
    Rect boxToPage(double start, double end, double top, double bottom) const {
        const auto [cosine, sine] = direction();
        return Matrix{cosine, sine, -sine, cosine, 0, 0}.applyToBox({start, top, end, bottom});
    }
    /// The same stretch of an upright page rectangle in this frame: left and right are along, top and bottom across.
    Rect boxFromPage(const Rect& box) const {
        const auto [cosine, sine] = direction();
        return Matrix{cosine, -sine, sine, cosine, 0, 0}.applyToBox(box);
    }

private:
    struct Direction {
        double cosine;
        double sine;
    };
    Direction direction() const {
        const double total = angle + skew + (isVertical ? 90 : 0);
        if (total == 0)
            return {1, 0};
        const double radians = total * 3.14159265358979323846 / 180;
        return {std::cos(radians), std::sin(radians)};
    }
};

/// What lies between a cluster and the one before it.
struct ClusterGap {
    double width = 0;         ///< points along the row; negative where they overlap
    double letterSpacing = 0; ///< points; what the letters around it are apart
    bool hasBlank = false;    ///< a blank was painted in between
    int blanks = 1;           ///< that were painted
    char32_t blank = U' ';    ///< which was painted
    bool isTyped = false;     ///< the blanks fill it: nothing else made it as wide as it is
    bool endsWord = false;
    Gap kind = Gap::None;
    document::TabLeader leader = document::TabLeader::None;

    /// Its width without what letter spacing adds on both sides of a blank.
    double ownWidth() const { return width - 2 * std::max(letterSpacing, 0.0); }
};

/// One or more glyphs that cannot be parted: a letter with its marks, a ligature.
struct Cluster {
    std::u32string text;     ///< logical order
    std::uint32_t frame = 0; ///< index into TextDraft::frames
    std::uint32_t glyph = 0; ///< index into pdf::PageContent::glyphs, of the first one
    double start = 0;        ///< along the row
    double end = 0;
    double baseline = 0;   ///< across
    double size = 0;       ///< points
    double spaceWidth = 0; ///< points; what a blank of its font and size takes
    double ascent = 0;     ///< points
    double descent = 0;
    int mark = -1;
    bool beginsOnWord = false; ///< first of a word that begins on the end of the word before it
    ClusterGap gapBefore;
    int blanksAfter = 0; ///< painted behind it, where nothing with ink follows
    Look look;

    double center() const { return (start + end) / 2; }
    double width() const { return end - start; }
};

/// Clusters on one baseline, from the start of the direction of writing to its end.
struct TextRow {
    std::uint32_t frame = 0;
    double baseline = 0;
    double fontSize = 0; ///< of most of its characters
    int dropCapLines = 0;
    std::vector<Cluster> clusters;
};

/// The text of a page, part done.
struct TextDraft {
    std::vector<TextFrame> frames;
    std::vector<TextRow> rows;
};

} // namespace orvane::layout
