#include "layout/text/DrawnBoxes.h"

#include "layout/graphics/PathPieces.h"
#include "layout/support/BoxIndex.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <string_view>

namespace orvane::layout {
namespace {

using pdf::Glyph;
using pdf::Path;
using pdf::Visibility;

/// A drawn square, and what was found out about it.
struct Square {
    Rect box;
    bool isBox = false; ///< to be ticked
    bool isOn = false;
};

/// A line of a path, or all of a curved piece as the diagonal of its box.
struct Stroke {
    PathLine line;
    std::optional<Rect> frame; ///< the box of its path, where that is a square
    bool isCurved = false;
};

Rect boxOf(const PathLine& line) {
    return {std::min(line.from.x, line.to.x), std::min(line.from.y, line.to.y), std::max(line.from.x, line.to.x),
            std::max(line.from.y, line.to.y)};
}

bool isBlank(const Glyph& glyph) {
    return std::all_of(glyph.unicode.begin(), glyph.unicode.end(),
                       [](char32_t c) { return c == U' ' || c == U'\u00A0'; });
}

bool isTick(const Glyph& glyph) {
    constexpr std::u32string_view kTicks = U"xX\u00D7\u2612\u2713\u2714\u2715\u2716\u2717\u2718";
    return glyph.unicode.size() == 1 && kTicks.find(glyph.unicode.front()) != std::u32string_view::npos;
}

class DrawnBoxFinder {
public:
    DrawnBoxFinder(const pdf::PageContent& page, const TextParameters::DrawnBoxes& limits)
        : m_page(page)
        , m_limits(limits)
        , m_squareIndex(limits.indexStep)
        , m_glyphIndex(limits.indexStep)
        , m_strokeIndex(limits.indexStep) {}

    std::vector<pdf::FormField> find() {
        collectSquares();
        if (m_squares.empty())
            return {};
        indexGlyphs();
        indexStrokes();
        for (std::size_t i = 0; i < m_squares.size(); ++i)
            m_squares[i].isBox = m_isHollow[i] && isLabelled(m_squares[i]) && standsAlone(i) && readMark(m_squares[i]);
        dropDoubtful();
        std::vector<pdf::FormField> fields;
        for (const Square& square : m_squares)
            if (square.isBox)
                fields.push_back(fieldOf(square));
        return fields;
    }

private:
    static pdf::FormField fieldOf(const Square& square) {
        pdf::FormField field;
        field.kind = pdf::FieldKind::CheckBox;
        field.box = square.box;
        field.isOn = square.isOn;
        return field;
    }

    bool isSquare(const Rect& box) const {
        const double shorter = std::min(box.width(), box.height()), longer = std::max(box.width(), box.height());
        return shorter >= m_limits.smallest && longer <= m_limits.largest && shorter >= m_limits.squareness * longer;
    }

    /// Whether all of the path is one rectangle, or one within the other that it frames.
    bool isFrame(const Path& path) const {
        const std::vector<Subpath> subpaths = takeApart(path, m_limits.straightness);
        return !subpaths.empty() && subpaths.size() <= 2 &&
               std::all_of(subpaths.begin(), subpaths.end(), [&](const Subpath& subpath) {
                   return subpath.rectangle && isSame(*subpath.rectangle, path.box);
               });
    }

    bool isHollow(const Path& path) const {
        const bool isWhite = path.fill && !path.fill->isPattern && path.fill->color == kWhite;
        return path.stroke ? !path.fill || isWhite : path.fill->isEvenOdd && path.segments.size() > kOneRectangle;
    }

    bool isSame(const Rect& a, const Rect& b) const {
        return std::max({std::abs(a.left - b.left), std::abs(a.top - b.top), std::abs(a.right - b.right),
                         std::abs(a.bottom - b.bottom)}) <= m_limits.frame;
    }

    void collectSquares() {
        for (const Path& path : m_page.paths) {
            if (path.visibility != Visibility::Visible || (!path.stroke && !path.fill) || !isSquare(path.box) ||
                !isFrame(path))
                continue;
            std::optional<std::size_t> known;
            m_squareIndex.visit(path.box, [&](std::size_t i) {
                if (isSame(m_squares[i].box, path.box))
                    known = i;
            });
            if (known) {
                // A white ground under an outline, or an outline around one.
                m_isHollow[*known] = isHollow(path);
                continue;
            }
            m_squareIndex.add(path.box, m_squares.size());
            m_squares.push_back({path.box});
            m_isHollow.push_back(isHollow(path));
        }
    }

    void indexGlyphs() {
        for (std::size_t i = 0; i < m_page.glyphs.size(); ++i) {
            const Glyph& glyph = m_page.glyphs[i];
            if (glyph.visibility == Visibility::Visible && glyph.angle == 0 && !isBlank(glyph))
                m_glyphIndex.add(glyph.box, i);
        }
    }

    void indexStrokes() {
        for (const Path& path : m_page.paths) {
            if (path.visibility != Visibility::Visible)
                continue;
            const bool isSquareFrame = isSquare(path.box) && isFrame(path);
            const std::optional<Rect> frame = isSquareFrame ? std::optional(path.box) : std::nullopt;
            for (const Subpath& subpath : takeApart(path, m_limits.straightness)) {
                if (subpath.hasCurves && !subpath.rectangle)
                    addStroke(
                        {{{subpath.box.left, subpath.box.top}, {subpath.box.right, subpath.box.bottom}}, frame, true});
                else
                    for (const PathLine& line : subpath.lines)
                        addStroke({line, frame});
            }
        }
    }
    void addStroke(const Stroke& stroke) {
        m_strokeIndex.add(boxOf(stroke.line), m_strokes.size());
        m_strokes.push_back(stroke);
    }

    /// Whether the letter stands on the line of the box, in a size that goes with it.
    bool isBeside(const Glyph& glyph, const Rect& box) const {
        const double side = box.height();
        const double gap = std::max(box.left - glyph.box.right, glyph.box.left - box.right);
        return side >= m_limits.leastOfText * glyph.fontSize && side <= m_limits.mostOfText * glyph.fontSize &&
               glyph.origin.y >= box.top + m_limits.rise * side &&
               glyph.origin.y <= box.bottom + m_limits.drop * side && gap > -m_limits.overlap * side &&
               gap <= m_limits.labelGap * glyph.fontSize;
    }

    /// Whether text stands beside the box on its line.
    bool isLabelled(const Square& square) const {
        const double reach = m_limits.labelGap * m_limits.largest / m_limits.leastOfText;
        const Rect& box = square.box;
        const Rect around{box.left - reach, box.top, box.right + reach, box.bottom};
        bool isFound = false;
        m_glyphIndex.visit(around, [&](std::size_t i) {
            isFound = isFound || (!isWithin(m_page.glyphs[i], box) && isBeside(m_page.glyphs[i], box));
        });
        return isFound;
    }

    static bool isWithin(const Glyph& glyph, const Rect& box) {
        return box.contains(Point{glyph.box.centerX(), glyph.box.centerY()});
    }

    /// Whether no field stands there already and no other square beside it, as in rows for letters and digits.
    bool standsAlone(std::size_t index) const {
        const Rect& box = m_squares[index].box;
        const double reach = m_limits.rowGap * box.width();
        bool isAlone = std::none_of(m_page.fields.begin(), m_page.fields.end(),
                                    [&](const pdf::FormField& field) { return field.box.intersects(box); });
        const double middle = box.centerY();
        m_squareIndex.visit({box.left - reach, middle, box.right + reach, middle},
                            [&](std::size_t i) { isAlone = isAlone && i == index; });
        return isAlone;
    }

    /// Reads what stands in the box. False where that is no mark, or where lines run into its sides.
    bool readMark(Square& square) const {
        const Rect& box = square.box;
        bool isClear = true;
        m_glyphIndex.visit(box, [&](std::size_t i) {
            if (isWithin(m_page.glyphs[i], box))
                (isTick(m_page.glyphs[i]) ? square.isOn : isClear) = isTick(m_page.glyphs[i]);
        });
        const Rect reach = box.inflated(m_limits.touch);
        m_strokeIndex.visit(reach, [&](std::size_t i) {
            const std::optional<Rect>& frame = m_strokes[i].frame;
            if (!frame || !isSame(*frame, box))
                readStroke(m_strokes[i], square, isClear);
        });
        return isClear;
    }

    void readStroke(const Stroke& stroke, Square& square, bool& isClear) const {
        const Rect& box = square.box;
        const Rect extent = boxOf(stroke.line);
        const bool isSlanted = std::min(extent.width(), extent.height()) > m_limits.straightness;
        const bool isInside = box.inflated(m_limits.overhang).contains(extent);
        if (stroke.isCurved || isSlanted) {
            square.isOn = square.isOn || isInside;
            isClear = isClear && (isInside || stroke.isCurved || !endsIn(stroke.line, box));
            return;
        }
        // Boxes may stand one upon the other, or on the rule of their row.
        const double touch = m_limits.touch;
        const Rect area{box.left - touch, box.top + touch, box.right + touch, box.bottom - touch};
        const bool touches = extent.left <= area.right && area.left <= extent.right && extent.top <= area.bottom &&
                             area.top <= extent.bottom;
        isClear = isClear && !touches;
    }

    static bool endsIn(const PathLine& line, const Rect& box) {
        return box.contains(line.from) || box.contains(line.to);
    }

    /// Squares alike mean the same: where most stand without text, as the points of charts and the keys of legends do,
    /// none is there to be ticked.
    void dropDoubtful() {
        struct Count {
            int boxes = 0, all = 0;
        };
        std::map<long, Count> counts;
        const auto sizeOf = [&](const Square& square) { return std::lround(square.box.width() / m_limits.sizeStep); };
        for (const Square& square : m_squares) {
            Count& count = counts[sizeOf(square)];
            count.boxes += square.isBox ? 1 : 0;
            ++count.all;
        }
        for (Square& square : m_squares) {
            const Count& count = counts[sizeOf(square)];
            square.isBox = square.isBox && count.boxes >= m_limits.boxShare * count.all;
        }
    }

    static constexpr std::size_t kOneRectangle = 5; ///< segments

    const pdf::PageContent& m_page;
    const TextParameters::DrawnBoxes& m_limits;
    std::vector<Square> m_squares;
    std::vector<bool> m_isHollow; ///< parallel to m_squares
    std::vector<Stroke> m_strokes;
    BoxIndex m_squareIndex;
    BoxIndex m_glyphIndex;
    BoxIndex m_strokeIndex;
};

} // namespace

std::vector<pdf::FormField> findDrawnBoxes(const pdf::PageContent& page, const TextParameters::DrawnBoxes& parameters) {
    return DrawnBoxFinder(page, parameters).find();
}

} // namespace orvane::layout
