#include "layout/paragraphs/ParagraphBorders.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <span>

namespace orvane::layout {
namespace {

using document::Alignment;
using document::Border;
using document::BorderKind;

// Source: ISO/IEC 29500-1, 17.3.4 (attribute sz of a border).
constexpr EighthPoints kThinnest{2};
constexpr EighthPoints kThickest{96};

/// Share of a paragraph's width that its shading takes. A narrower ground is not the width of the text around it.
constexpr double kWholeGround = 0.9;

/// Points by which a ground reaches beyond text; less is the room of its lines.
constexpr double kLeastPadding = 2;

/// Points by which the edges of a ground that is painted twice may differ.
constexpr double kSameGround = 0.5;

/// Share of a ground's width that a line in the middle of it leaves free at least.
constexpr double kRoomAround = 0.2;

/// Share of the page's height that a frame around its text takes.
constexpr double kFrameHeight = 0.6;

/// A paragraph, and from where to where a word processor draws its borders.
struct Placed {
    ParagraphDraft* paragraph = nullptr;
    ColumnSpan edges;
    ColumnSpan column;
    bool isInColumns = false; ///< beside other columns
};

bool keepsToStart(const ParagraphDraft& paragraph) {
    return paragraph.alignment != Alignment::Center && paragraph.alignment != Alignment::End;
}

bool isRightToLeft(const Placed& placed) {
    return placed.paragraph->lines.front().isRightToLeft;
}

/// The paragraph's own edges. Lines that are centred or set against the end keep to their column's.
ColumnSpan edgesOf(const ParagraphDraft& paragraph, ColumnSpan column) {
    if (!keepsToStart(paragraph))
        return column;
    const double start = paragraph.indentStart + std::min(0.0, paragraph.firstLine);
    return paragraph.lines.front().isRightToLeft ? ColumnSpan{column.left + paragraph.indentEnd, column.right - start}
                                                 : ColumnSpan{column.left + start, column.right - paragraph.indentEnd};
}

bool isDrawn(const Border& border) {
    return border.kind != BorderKind::None;
}

class BorderFinder {
public:
    BorderFinder(PageLayout& layout, const ParagraphParameters::Borders& parameters)
        : m_layout(layout)
        , m_parameters(parameters) {
        for (PageBlock& block : layout.blocks) {
            if (const auto* table = std::get_if<TableDraft>(&block.value))
                m_tables.push_back(table->box);
            auto* paragraph = std::get_if<ParagraphDraft>(&block.value);
            if (!paragraph || paragraph->lines.front().angle != 0 || paragraph->lines.front().isVertical)
                continue;
            const Band& band = layout.bands[static_cast<std::size_t>(block.band)];
            const ColumnSpan column = band.columns[static_cast<std::size_t>(block.column)];
            m_paragraphs.push_back({paragraph, edgesOf(*paragraph, column), column, band.columns.size() > 1});
        }
    }

    void run() {
        for (Ground& ground : m_layout.freeGrounds)
            shade(ground);
        for (Rule& rule : m_layout.freeRules)
            if (rule.direction == RuleDirection::Horizontal)
                lineHorizontally(rule);
            else
                lineVertically(rule);
        closeBoxes();
    }

private:
    /// The smallest ground that holds the paragraph whole is the one that is seen around it. One that is much higher
    /// than its text, of several colours, or around something narrower than a paragraph, such as a label, is more than
    /// the shading of paragraphs.
    void shade(Ground& ground) {
        if (ground.box.width() * ground.box.height() > m_parameters.pageShare * m_layout.width * m_layout.height)
            return;
        std::vector<Placed*> held;
        double textHeight = 0;
        for (Placed& placed : m_paragraphs)
            if (ground.box.inflated(m_parameters.overhang).contains(placed.paragraph->box)) {
                held.push_back(&placed);
                textHeight += placed.paragraph->box.height();
            }
        ground.isUsed = !held.empty() && !ground.gradient &&
                        textHeight >= m_parameters.filledShare * ground.box.height() && mayFill(ground.box, held);
        for (Placed* placed : held)
            placed->paragraph->shading = ground.isUsed ? std::optional(ground.color) : std::nullopt;
        if (!ground.isUsed || held.size() != 1 || !standsAlone(ground))
            return;
        centreIn(ground, *held.front());
        fitTo(ground, *held.front());
    }

    /// Whether no ground of its colour goes on from this one: those of paragraphs that follow each other look like one.
    /// What lies within it, the same ground painted a second time for instance, is not seen.
    bool standsAlone(const Ground& ground) const {
        const Rect reach = ground.box.inflated(m_parameters.overhang);
        return std::none_of(m_layout.freeGrounds.begin(), m_layout.freeGrounds.end(), [&](const Ground& other) {
            return other.color == ground.color && other.box.intersects(reach) &&
                   !ground.box.inflated(kSameGround).contains(other.box);
        });
    }

    /// A single line in the middle of a ground as wide as its column is centred: alone it would not show that.
    void centreIn(const Ground& ground, Placed& placed) const {
        ParagraphDraft& paragraph = *placed.paragraph;
        const double before = paragraph.box.left - ground.box.left, after = ground.box.right - paragraph.box.right;
        const bool isWide = std::abs(ground.box.left - placed.column.left) < kLeastPadding &&
                            std::abs(ground.box.right - placed.column.right) < kLeastPadding;
        if (!isWide || paragraph.lines.size() > 1 || !keepsToStart(paragraph) ||
            before + after < kRoomAround * ground.box.width() || std::abs(before - after) > kLeastPadding)
            return;
        paragraph.alignment = Alignment::Center;
        paragraph.indentStart = paragraph.indentEnd = paragraph.firstLine = 0;
        placed.edges = placed.column;
    }

    /// Lets the paragraph's shading, which goes from indent to indent, reach as far as the ground does.
    void fitTo(const Ground& ground, Placed& placed) const {
        ParagraphDraft& paragraph = *placed.paragraph;
        widen(paragraph.borders.top, paragraph.box.top - ground.box.top, ground.color);
        widen(paragraph.borders.bottom, ground.box.bottom - paragraph.box.bottom, ground.color);
        const double atLeft = placed.edges.left - ground.box.left, atRight = ground.box.right - placed.edges.right;
        if (std::abs(atLeft) < kLeastPadding && std::abs(atRight) < kLeastPadding)
            return;
        const bool mayStay = keepsToStart(paragraph) || (paragraph.alignment == Alignment::Center &&
                                                         std::abs(atLeft - atRight) < 2 * kLeastPadding);
        if (paragraph.lines.size() == 1 && mayStay) {
            // Not so close to its line that another font would break that.
            placed.edges = {std::min(ground.box.left, paragraph.box.left - tolerance(placed)),
                            std::max(ground.box.right, paragraph.box.right + tolerance(placed))};
            paragraph.shadedSpan = placed.edges;
            return;
        }
        widen(paragraph.borders.left, atLeft, ground.color);
        widen(paragraph.borders.right, atRight, ground.color);
    }

    /// A border of the ground's colour: word processors paint the shading up to it.
    void widen(Border& border, double reach, Color color) const {
        if (reach < kLeastPadding || reach > m_parameters.greatestSpace || isDrawn(border))
            return;
        border.kind = BorderKind::Single;
        border.width = kThinnest;
        border.color = color;
        border.spacePoints = static_cast<int>(std::lround(reach));
    }

    /// Whether the ground goes, nearly, to the end of one of the paragraphs it holds.
    bool reachesEnd(const Rect& ground, const std::vector<Placed*>& held) const {
        const double slack = (1 - kWholeGround) * ground.width();
        return std::any_of(held.begin(), held.end(), [&](const Placed* placed) {
            return isRightToLeft(*placed) ? ground.left <= placed->edges.left + slack
                                          : ground.right >= placed->edges.right - slack;
        });
    }

    /// Whether shading, which goes from indent to indent, can look like the ground: that goes to the paragraphs' end,
    /// or starts with them and leaves a single line room where it ends itself.
    bool mayFill(const Rect& ground, const std::vector<Placed*>& held) const {
        if (reachesEnd(ground, held))
            return true;
        double before = std::numeric_limits<double>::infinity(), after = before;
        for (const Placed* placed : held) {
            if (!keepsToStart(*placed->paragraph))
                return false;
            const Rect& box = placed->paragraph->box;
            const double atLeft = box.left - ground.left, atRight = ground.right - box.right;
            before = std::min(before, isRightToLeft(*placed) ? atRight : atLeft);
            after = std::min(after, isRightToLeft(*placed) ? atLeft : atRight);
        }
        const Placed& first = *held.front();
        const bool isSingleLine = held.size() == 1 && first.paragraph->lines.size() == 1;
        return before <= tolerance(first) && (!isSingleLine || after >= tolerance(first));
    }

    double tolerance(const Placed& placed) const {
        return m_parameters.edgeTolerance * placed.paragraph->lines.front().fontSize;
    }
    bool hasEdges(const Placed& placed, const Rule& rule) const {
        return std::abs(placed.edges.left - rule.from) <= tolerance(placed) &&
               std::abs(placed.edges.right - rule.to) <= tolerance(placed);
    }
    Border borderOf(const Rule& rule, double distance) const {
        Border border;
        border.kind = rule.kind == BorderKind::None ? BorderKind::Single : rule.kind;
        // A double border is written with the width of one of its lines, which the gap between them has too.
        const double width = border.kind == document::BorderKind::Double ? rule.width / 3 : rule.width;
        border.width = std::clamp(eighthPointsFromPoints(width), kThinnest, kThickest);
        border.color = rule.color;
        border.spacePoints = static_cast<int>(std::lround(std::clamp(distance, 0.0, m_parameters.greatestSpace)));
        return border;
    }

    /// A rule belongs to the nearer of the paragraphs above and below it that are as wide as it.
    void lineHorizontally(Rule& rule) {
        const double upper = rule.position - rule.width / 2, lower = rule.position + rule.width / 2;
        const Placed* nearest = nullptr;
        double distance = m_parameters.greatestSpace;
        for (const Placed& placed : m_paragraphs) {
            const Rect& box = placed.paragraph->box;
            const double gap = box.centerY() < rule.position ? upper - box.bottom : box.top - lower;
            if (gap >= -m_parameters.overhang && gap < distance && hasEdges(placed, rule)) {
                distance = gap;
                nearest = &placed;
            }
        }
        if (!nearest)
            return;
        ParagraphDraft& paragraph = *nearest->paragraph;
        (paragraph.box.centerY() < rule.position ? paragraph.borders.bottom : paragraph.borders.top) =
            borderOf(rule, distance);
        rule.isUsed = true;
    }

    /// Whether the rule is of a frame around most of the page, tables among it, which the borders of paragraphs would
    /// leave in pieces.
    bool isOfPageFrame(const Rule& rule) const {
        return rule.to - rule.from >= kFrameHeight * m_layout.height &&
               std::any_of(m_tables.begin(), m_tables.end(),
                           [&](const Rect& table) { return rule.from < table.top && rule.to > table.bottom; });
    }

    /// A rule beside paragraphs, along all of each.
    void lineVertically(Rule& rule) {
        if (isOfPageFrame(rule))
            return;
        for (const Placed& placed : m_paragraphs) {
            const Rect& box = placed.paragraph->box;
            // Between columns it parts them and belongs to neither.
            if (placed.isInColumns || rule.from > box.top + m_parameters.overhang ||
                rule.to < box.bottom - m_parameters.overhang)
                continue;
            const double left = placed.edges.left - rule.position, right = rule.position - placed.edges.right;
            const bool isAtLeft = left >= -m_parameters.overhang && left <= m_parameters.greatestSpace;
            const bool isAtRight = right >= -m_parameters.overhang && right <= m_parameters.greatestSpace;
            if (isAtLeft)
                placed.paragraph->borders.left = borderOf(rule, left);
            else if (isAtRight)
                placed.paragraph->borders.right = borderOf(rule, right);
            rule.isUsed |= isAtLeft || isAtRight;
        }
    }

    /// Paragraphs within one box have all of its sides: word processors draw what follows each other with equal borders
    /// as one.
    void closeBoxes() {
        for (std::size_t first = 0; first < m_paragraphs.size();) {
            std::size_t end = first + 1;
            if (isBetweenSides(first))
                while (end < m_paragraphs.size() && isBetweenSides(end) && !isDrawn(bordersAt(end - 1).bottom) &&
                       !isDrawn(bordersAt(end).top))
                    ++end;
            document::Borders sides = bordersAt(first);
            sides.bottom = bordersAt(end - 1).bottom;
            for (std::size_t i = first; end - first > 1 && i < end; ++i)
                m_paragraphs[i].paragraph->borders = sides;
            const bool followsBox = first > 0 && isBetweenSides(first) && isBetweenSides(first - 1);
            for (std::size_t i = first; followsBox && i < end; ++i)
                m_paragraphs[i].paragraph->isBoxApart = !m_paragraphs[first - 1].paragraph->isBoxApart;
            first = end;
        }
    }
    const document::Borders& bordersAt(std::size_t index) const { return m_paragraphs[index].paragraph->borders; }
    bool isBetweenSides(std::size_t index) const {
        return isDrawn(bordersAt(index).left) && isDrawn(bordersAt(index).right);
    }

    PageLayout& m_layout;
    const ParagraphParameters::Borders& m_parameters;
    std::vector<Placed> m_paragraphs;
    std::vector<Rect> m_tables;
};

} // namespace

void findParagraphBorders(PageLayout& layout, const ParagraphParameters::Borders& parameters) {
    BorderFinder(layout, parameters).run();
}

} // namespace orvane::layout
