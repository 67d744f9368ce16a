#include "layout/page/PageLayouter.h"

#include "layout/page/ColumnSeparators.h"
#include "layout/page/FloatPlace.h"
#include "layout/page/ReadingOrder.h"
#include "layout/page/RegionFinder.h"
#include "layout/page/WideObjects.h"
#include "layout/paragraphs/ParagraphBuilder.h"
#include "layout/structure/FloatOverlays.h"
#include "layout/structure/ParagraphContinuation.h"
#include "layout/tables/TableFinder.h"

#include <algorithm>

namespace orvane::layout {
namespace {

/// Lays out one page; its parts are moved from the PageText into blocks step by step.
class PageLayouter {
public:
    PageLayouter(PageText page, const DocumentContext& context, const LayoutParameters& parameters)
        : m_page(std::move(page))
        , m_context(context)
        , m_parameters(parameters) {}

    PageLayout run(Diagnostics& diagnostics) {
        takePageFacts();
        m_isTurned = isLaidOnItsSide();
        takeTables(diagnostics);
        placeBackgrounds();
        takeTurnedLines();
        takeFigures();
        findColumns();
        fillColumns();
        partWideObjects(m_layout, m_context.bodyFontSize, m_parameters.readingOrder);
        joinColumns();
        for (Figure& figure : m_overlaid)
            hangOnNearestParagraph(m_layout, std::move(figure), m_parameters.freeDrawings);
        leaveFreeRules();
        return std::move(m_layout);
    }

private:
    void takeTables(Diagnostics& diagnostics) {
        m_strips = findColumnStrips(m_page, m_parameters);
        for (TableDraft& table : findTables(m_page, m_context, m_parameters, diagnostics)) {
            const Rect box = table.box;
            m_walls.push_back(box);
            addObject(box, 0, std::move(table));
        }
        m_tableCount = m_walls.size();
        if (std::any_of(m_walls.begin(), m_walls.end(), [&](const Rect& table) { return leadsOver(m_strips, table); }))
            m_strips.clear();
    }

    void takePageFacts() {
        m_layout.number = m_page.number;
        m_layout.width = m_page.width;
        m_layout.height = m_page.height;
        m_layout.fonts = m_page.fonts;
        m_layout.formulas = std::move(m_page.formulas);
        m_layout.links = std::move(m_page.links);
        m_layout.annotations = std::move(m_page.annotations);
        m_layout.fields = std::move(m_page.fields);
        m_layout.marks = std::move(m_page.marks);
    }

    void placeBackgrounds() {
        for (Figure& figure : m_page.figures)
            if (figure.isForeground)
                m_overlaid.push_back(std::move(figure));
            else if (figure.isBackground)
                m_layout.blocks.emplace_back().value = FigureDraft{std::move(figure), false};
        std::erase_if(m_page.figures, [](const Figure& figure) { return figure.isBackground || figure.isForeground; });
    }

    /// Turned lines say nothing about columns. They float, unless it is the page that was laid on its side; then they
    /// come as paragraphs where they stand, and so does vertical writing.
    void takeTurnedLines() {
        std::erase_if(m_page.lines, [](const Line& line) { return line.words.empty(); });
        std::vector<Line> upright;
        for (Line& line : m_page.lines) {
            if (line.angle == 0 && !line.isVertical)
                upright.push_back(std::move(line));
            else if (line.angle == 0 || m_isTurned)
                addObject(line.box, line.firstPaintOrder, turnedParagraph(std::move(line)));
            else
                floatLine(std::move(line));
        }
        m_page.lines = std::move(upright);
    }

    /// Tables count too: those of pages that were not turned hold level lines.
    bool isLaidOnItsSide() const {
        const auto turned = static_cast<std::size_t>(
            std::count_if(m_page.lines.begin(), m_page.lines.end(), [](const Line& line) { return line.angle != 0; }));
        return turned >= m_parameters.turnedText.fewestOfPage && 2 * turned > m_page.lines.size();
    }

    void floatLine(Line line) {
        ParagraphDraft paragraph = turnedParagraph(std::move(line));
        paragraph.isFloating = true;
        m_layout.blocks.emplace_back().value = std::move(paragraph);
    }

    ParagraphDraft turnedParagraph(Line line) const {
        ParagraphDraft paragraph;
        paragraph.box = line.box;
        paragraph.leading = m_context.bodyLeading / m_context.bodyFontSize * line.fontSize;
        paragraph.lines.push_back(std::move(line));
        return paragraph;
    }

    void takeFigures() {
        for (Figure& figure : m_page.figures) {
            const Rect box = figure.box;
            const std::uint32_t paintOrder = figure.paintOrder;
            m_walls.push_back(box);
            addObject(box, paintOrder, FigureDraft{std::move(figure), false});
        }
    }

    template<typename Value>
    void addObject(const Rect& box, std::uint32_t paintOrder, Value value) {
        m_objects.push_back({box, m_objects.size(), paintOrder});
        m_objectBlocks.emplace_back().value = std::move(value);
    }

    void findColumns() {
        m_regions = findRegions(std::move(m_page.lines),
                                {m_walls, std::span(m_walls).first(m_tableCount), m_layout.width, m_strips}, m_context,
                                m_parameters);
        if (m_regions.bands.empty()) {
            const Rect& area = m_context.textArea;
            m_regions.bands.push_back({area.top, area.bottom, {{area.left, area.right}}, false});
        }
        findColumnSeparators(m_regions.bands, m_page.rules, m_parameters.separators);
        m_layout.bands = m_regions.bands;
        m_places = placeObjects(m_objects, m_regions, m_parameters);
    }

    void fillColumns() {
        auto place = m_places.begin();
        for (std::size_t r = 0; r < m_regions.regions.size(); ++r) {
            const Region& region = m_regions.regions[r];
            const auto end = std::find_if(place, m_places.end(), [r](const ObjectPlace& p) { return p.region != r; });
            std::vector<Rect> obstacles;
            for (auto p = place; p != end; ++p)
                if (!p->standsAlone && !isStoodOn(m_objects[p->object].box))
                    obstacles.push_back(m_objects[p->object].box);
            std::size_t line = 0;
            for (; place != end; ++place) {
                addParagraphs(region, line, place->beforeLine, obstacles);
                line = place->beforeLine;
                addPlaced(*place, region.band, region.column);
            }
            addParagraphs(region, line, region.lines.size(), obstacles);
        }
        for (; place != m_places.end(); ++place)
            addPlaced(*place, 0, 0);
    }

    /// No text makes way for what other text stands on.
    bool isStoodOn(const Rect& object) const {
        return std::any_of(m_regions.regions.begin(), m_regions.regions.end(), [&](const Region& region) {
            return region.box.intersects(object) &&
                   std::any_of(region.lines.begin(), region.lines.end(),
                               [&](const Line& line) { return standsOn(line.box, object, m_parameters.floats); });
        });
    }

    void addPlaced(const ObjectPlace& place, int band, int column) {
        PageBlock& block = m_objectBlocks[place.object];
        block.band = band;
        block.column = column;
        if (auto* figure = std::get_if<FigureDraft>(&block.value))
            figure->isInline = place.standsAlone;
        m_layout.blocks.push_back(std::move(block));
    }

    void addParagraphs(const Region& region, std::size_t from, std::size_t to, std::span<const Rect> obstacles) {
        if (from >= to)
            return;
        ParagraphContext context = paragraphContext();
        context.obstacles = obstacles;
        for (ParagraphDraft& paragraph :
             buildParagraphs(std::span(region.lines).subspan(from, to - from), region.span, context, m_parameters))
            addBlock(std::move(paragraph), region.band, region.column);
    }

    void addBlock(ParagraphDraft paragraph, int band, int column) {
        PageBlock& block = m_layout.blocks.emplace_back();
        block.value = std::move(paragraph);
        block.band = band;
        block.column = column;
    }

    /// A paragraph may go on in the next column, and behind the last column on the next page.
    void joinColumns() {
        ParagraphDraft* last = nullptr;
        const PageBlock* lastBlock = nullptr;
        for (PageBlock& block : m_layout.blocks) {
            auto* paragraph = std::get_if<ParagraphDraft>(&block.value);
            if (!paragraph || paragraph->lines.front().angle != 0)
                continue;
            if (last && (lastBlock->band != block.band || lastBlock->column != block.column) &&
                mayMeet(*lastBlock, *last, block, *paragraph) &&
                runsOn({*last, spanOf(*lastBlock)}, {*paragraph, spanOf(block)}, paragraphContext(), m_parameters)) {
                last->endsParagraph = false;
                paragraph->startsParagraph = false;
            }
            last = paragraph;
            lastBlock = &block;
        }
        if (last && lastBlock == &m_layout.blocks.back())
            last->endsParagraph = !mayRunOn({*last, spanOf(*lastBlock)}, paragraphContext(), m_parameters);
    }

    /// Between columns of another number than these, text goes on only where it is seen to, from line to line.
    bool mayMeet(const PageBlock& block, const ParagraphDraft& paragraph, const PageBlock& next,
                 const ParagraphDraft& nextParagraph) const {
        const auto columnsOf = [&](const PageBlock& b) {
            return m_layout.bands[static_cast<std::size_t>(b.band)].columns.size();
        };
        const double step = nextParagraph.lines.front().baseline - paragraph.lines.back().baseline;
        return columnsOf(block) == columnsOf(next) ||
               step <= m_parameters.regions.textStep * paragraph.lines.back().fontSize;
    }

    void leaveFreeRules() {
        std::copy_if(m_page.rules.begin(), m_page.rules.end(), std::back_inserter(m_layout.freeRules),
                     [](const Rule& rule) { return !rule.isUsed; });
        std::copy_if(m_page.grounds.begin(), m_page.grounds.end(), std::back_inserter(m_layout.freeGrounds),
                     [](const Ground& ground) { return !ground.isUsed; });
    }

    ColumnSpan spanOf(const PageBlock& block) const {
        return m_layout.bands[static_cast<std::size_t>(block.band)].columns[static_cast<std::size_t>(block.column)];
    }

    ParagraphContext paragraphContext() const {
        return {m_context.bodyFontSize, m_context.bodyLeading, m_layout.fonts, {}};
    }

    PageText m_page;
    bool m_isTurned = false; ///< the page was laid on its side
    const DocumentContext& m_context;
    const LayoutParameters& m_parameters;
    PageLayout m_layout;
    std::vector<Figure> m_overlaid; ///< in front of the text
    std::vector<Rect> m_walls;      ///< tables, then figures
    std::size_t m_tableCount = 0;   ///< of the walls
    std::vector<ColumnStrip> m_strips;
    std::vector<PageObject> m_objects;
    std::vector<PageBlock> m_objectBlocks; ///< one for each of m_objects
    PageRegions m_regions;
    std::vector<ObjectPlace> m_places;
};

} // namespace

PageLayout layoutPage(PageText page, const DocumentContext& context, const LayoutParameters& parameters,
                      Diagnostics& diagnostics) {
    return PageLayouter(std::move(page), context, parameters).run(diagnostics);
}

} // namespace orvane::layout
