#include "layout/inspect/InspectSvg.h"

#include "layout/inspect/SvgCanvas.h"
#include "layout/text/LineText.h"

#include <fmt/format.h>

#include <array>
#include <utility>

namespace orvane::layout {
namespace {

constexpr const char* kText = "#1565c0";
constexpr const char* kTab = "#e65100";
constexpr const char* kFigure = "#6a1b9a";
constexpr const char* kTable = "#2e7d32";
constexpr const char* kUsed = "#2e7d32";
constexpr const char* kFree = "#c62828";

constexpr std::array<std::pair<std::string_view, InspectStage>, 7> kStageNames = {{
    {"words", InspectStage::Words},
    {"lines", InspectStage::Lines},
    {"rules", InspectStage::Rules},
    {"figures", InspectStage::Figures},
    {"regions", InspectStage::Regions},
    {"paragraphs", InspectStage::Paragraphs},
    {"tables", InspectStage::Tables},
}};

/// Draws the page's text in grey and one stage on top.
class StageDrawing {
public:
    StageDrawing(const PageText& page, const PageLayout* layout)
        : m_page(page)
        , m_layout(layout)
        , m_canvas(page.width, page.height) {}

    std::string run(InspectStage stage) {
        for (const Line& line : m_page.lines)
            drawText(line);
        switch (stage) {
        case InspectStage::Words:
            drawWords();
            break;
        case InspectStage::Lines:
            drawLines();
            break;
        case InspectStage::Rules:
            drawRules();
            break;
        case InspectStage::Figures:
            drawFigures();
            break;
        case InspectStage::Regions:
            drawRegions();
            break;
        case InspectStage::Paragraphs:
            if (m_layout)
                drawBlocks(m_layout->blocks);
            break;
        case InspectStage::Tables:
            if (m_layout)
                drawTables(m_layout->blocks);
            break;
        }
        return m_canvas.finish();
    }

private:
    void drawText(const Line& line) {
        for (const Word& word : line.words)
            m_canvas.text(word.box, line.baseline, line.fontSize, line.angle, textOf(word));
    }

    void drawWords() {
        for (const Line& line : m_page.lines)
            for (const Word& word : line.words)
                m_canvas.box(word.box, word.gapBefore == Gap::Tab ? kTab : kText);
    }

    void drawLines() {
        int number = 0;
        for (const Line& line : m_page.lines) {
            m_canvas.box(line.box, kText);
            if (line.angle == 0 && !line.isVertical)
                m_canvas.line({line.box.left, line.baseline}, {line.box.right, line.baseline}, kFree, 0.3);
            m_canvas.label({line.box.left, line.box.top}, fmt::format("{} {:g}", ++number, line.fontSize), kText);
        }
    }

    void drawRules() {
        for (const Ground& ground : m_page.grounds)
            m_canvas.box(ground.box, ground.isUsed ? kUsed : kFree, 0.05, 0.2);
        for (const Rule& rule : m_page.rules) {
            const bool isLevel = rule.direction == RuleDirection::Horizontal;
            m_canvas.line(isLevel ? Point{rule.from, rule.position} : Point{rule.position, rule.from},
                          isLevel ? Point{rule.to, rule.position} : Point{rule.position, rule.to},
                          rule.isUsed ? kUsed : kFree, std::max(0.5, rule.width));
        }
        for (const Figure& figure : m_page.figures)
            m_canvas.box(figure.box, kFigure, figure.isBackground ? 0.02 : 0.1);
    }

    void drawFigures() {
        for (const Figure& figure : m_page.figures) {
            m_canvas.box(figure.box, kFigure, figure.isBackground ? 0.02 : 0.1);
            for (const Line& label : figure.labels) {
                drawText(label);
                m_canvas.box(label.box, kText);
            }
            const char* kind = figure.isBackground ? "background" : figure.paths.empty() ? "picture" : "drawing";
            m_canvas.label({figure.box.left, figure.box.top}, kind, kFigure);
        }
        for (const Formula& formula : m_page.formulas) {
            m_canvas.box(formula.box, formula.structure ? kUsed : kTab, 0.1);
            m_canvas.label({formula.box.left, formula.box.top}, formula.text, kFree);
        }
    }

    void drawRegions() {
        if (!m_layout)
            return;
        for (std::size_t b = 0; b < m_layout->bands.size(); ++b) {
            const Band& band = m_layout->bands[b];
            for (std::size_t c = 0; c < band.columns.size(); ++c) {
                const Rect column{band.columns[c].left, band.top, band.columns[c].right, band.bottom};
                m_canvas.box(column, c % 2 == 0 ? kText : kTab);
                m_canvas.label({column.left, column.top}, fmt::format("band {} column {}", b + 1, c + 1), kFree);
            }
        }
    }

    void drawBlocks(const std::vector<PageBlock>& blocks) {
        int number = 0;
        for (const PageBlock& block : blocks) {
            ++number;
            if (const auto* paragraph = std::get_if<ParagraphDraft>(&block.value)) {
                drawParagraph(*paragraph, number);
            } else if (const auto* table = std::get_if<TableDraft>(&block.value)) {
                m_canvas.box(table->box, kTable, 0.03);
                m_canvas.label({table->box.left, table->box.top}, fmt::format("{} table", number), kTable);
                for (const CellDraft& cell : table->cells)
                    drawBlocks(cell.blocks);
            } else {
                const auto& figure = std::get<FigureDraft>(block.value);
                m_canvas.box(figure.figure.box, kFigure);
                m_canvas.label({figure.figure.box.left, figure.figure.box.top},
                               fmt::format("{} {}", number, figure.isInline ? "inline" : "floating"), kFigure);
            }
        }
    }

    void drawParagraph(const ParagraphDraft& paragraph, int number) {
        static constexpr const char* kAlignments[] = {"", "c", "e", "j", "d"};
        m_canvas.box(paragraph.box, number % 2 == 0 ? kText : kTab);
        m_canvas.label({paragraph.box.left, paragraph.box.top},
                       fmt::format("{}{}{}{}", paragraph.startsParagraph ? "" : ">", number,
                                   kAlignments[static_cast<std::size_t>(paragraph.alignment)],
                                   paragraph.endsParagraph ? "" : ">"),
                       kFree);
    }

    void drawTables(const std::vector<PageBlock>& blocks) {
        for (const PageBlock& block : blocks) {
            const auto* table = std::get_if<TableDraft>(&block.value);
            if (!table)
                continue;
            m_canvas.box(table->box, kTable, 0, 1.5);
            for (const CellDraft& cell : table->cells) {
                m_canvas.box(cell.box, cell.row < table->headerRows ? kTab : kText);
                m_canvas.label({cell.box.left, cell.box.top}, fmt::format("r{}c{}", cell.row + 1, cell.column + 1),
                               kFree);
                drawTables(cell.blocks);
            }
        }
    }

    const PageText& m_page;
    const PageLayout* m_layout;
    SvgCanvas m_canvas;
};

} // namespace

std::optional<InspectStage> inspectStageFromName(std::string_view name) {
    for (const auto& [known, stage] : kStageNames)
        if (known == name)
            return stage;
    return std::nullopt;
}

std::string drawStage(const PageText& page, const PageLayout* layout, InspectStage stage) {
    return StageDrawing(page, layout).run(stage);
}

} // namespace orvane::layout
