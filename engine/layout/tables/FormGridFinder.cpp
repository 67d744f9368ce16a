#include "layout/tables/FormGridFinder.h"

#include "layout/tables/BoxedFields.h"
#include "layout/tables/FormGrid.h"
#include "layout/tables/ProseMask.h"
#include "layout/tables/RuledAdmission.h"

#include <algorithm>

namespace orvane::layout {
namespace {

/// Fields that stand beside each other, from top to bottom.
std::vector<FieldRow> rowsOf(const std::vector<Rect>& fields, const TableParameters::Tables& parameters) {
    std::vector<FieldRow> rows;
    for (const Rect& field : fields) {
        if (rows.empty() || field.top > rows.back().box.bottom - parameters.lineSnap)
            rows.push_back({field, {}, {}});
        rows.back().box = rows.back().box.united(field);
        rows.back().fields.push_back(field);
    }
    return rows;
}

/// Adds the words that stand in a row beside its fields.
void addTexts(std::vector<FieldRow>& rows, const std::vector<Line>& lines) {
    for (const Line& line : lines) {
        for (const Word& word : line.words) {
            const Point middle{word.box.centerX(), word.box.centerY()};
            const auto after = std::upper_bound(rows.begin(), rows.end(), middle.y,
                                                [](double y, const FieldRow& row) { return y < row.box.top; });
            if (after == rows.begin() || (after - 1)->box.bottom < middle.y)
                continue;
            FieldRow& row = *(after - 1);
            if (std::none_of(row.fields.begin(), row.fields.end(),
                             [&](const Rect& field) { return field.contains(middle); }))
                row.texts.push_back(word.box);
        }
    }
}

/// The middles of a page's lines, from top to bottom.
std::vector<double> middlesOf(const std::vector<Line>& lines) {
    std::vector<double> middles;
    for (const Line& line : lines)
        middles.push_back(line.box.centerY());
    std::sort(middles.begin(), middles.end());
    return middles;
}

/// Whether two rows are of one form: they are close, and only a heading or the like is between them.
bool goOn(const FieldRow& above, const FieldRow& below, const std::vector<double>& middles,
          const TableParameters::Tables& parameters) {
    if (below.box.top - above.box.bottom > parameters.formRowSpace)
        return false;
    int count = 0;
    double last = above.box.bottom;
    for (auto middle = std::upper_bound(middles.begin(), middles.end(), last);
         middle != middles.end() && *middle < below.box.top; ++middle) {
        // Lines side by side count once.
        count += *middle > last + parameters.lineSnap || count == 0;
        last = *middle;
    }
    return count <= parameters.mostLinesBetweenFields;
}

/// Whether running text leads through between the rows: the boxes stand beside it.
bool areBesideProse(std::span<const FieldRow> rows, const PageText& page, const TableParameters::Tables& parameters) {
    const std::vector<TextPiece> pieces = cutIntoPieces(page, parameters);
    const std::vector<char> isProse = markProse(pieces, page.lines, parameters);
    for (std::size_t i = 0; i < pieces.size(); ++i)
        if (isProse[i] && isBetweenRows(rows, pieces[i].box.centerY()))
            return true;
    return false;
}

/// Whether the text of a cell is the value of a field of the PDF itself.
bool isInteractive(const std::vector<WordPlace>& words, const std::vector<Line>& lines) {
    return std::any_of(words.begin(), words.end(), [&](const WordPlace& place) {
        const std::vector<Span>& spans = lines[place.line].words[place.word].spans;
        return std::any_of(spans.begin(), spans.end(), [](const Span& span) { return span.look.field >= 0; });
    });
}

/// Whether the boxes are the fields of a form, and not boxes with text in them beside other text.
bool isForm(const PageText& page, const FormGrid& form, const TableParameters::Tables& parameters) {
    const CellText text = assignWords(page.lines, form.grid, parameters);
    const auto wordsOf = [&](int cell) -> const auto& {
        return text.wordsOfCell[static_cast<std::size_t>(cell)];
    };
    std::size_t labelled = 0, open = 0;
    bool hasInteractive = false;
    for (const FieldCells& cells : form.fields) {
        const bool isOfPdf = isInteractive(wordsOf(cells.field), page.lines);
        const std::size_t labelWords = cells.label >= 0 ? wordsOf(cells.label).size() : 0;
        if (labelWords > parameters.mostLabelWords)
            return false;
        labelled += labelWords > 0;
        open += isOfPdf || wordsOf(cells.field).empty();
        hasInteractive = hasInteractive || isOfPdf;
    }
    const auto count = static_cast<double>(form.fields.size());
    return (hasInteractive || labelled >= parameters.fewestFields) &&
           static_cast<double>(labelled) >= parameters.labelledFieldShare * count &&
           static_cast<double>(open) >= parameters.openFieldShare * count &&
           judgeRuledTable(page, form.grid, text, {}, parameters) == TableVerdict::Table;
}

} // namespace

std::vector<TableGrid> findFormGrids(const PageText& page, const std::vector<BorderLine>& lines,
                                     const TableParameters::Tables& parameters) {
    std::vector<FieldRow> rows = rowsOf(findBoxedFields(page, lines, parameters), parameters);
    addTexts(rows, page.lines);
    std::erase_if(rows, [](const FieldRow& row) { return row.texts.empty(); });
    const std::vector<double> middles = middlesOf(page.lines);
    std::vector<TableGrid> grids;
    for (auto first = rows.begin(); first != rows.end();) {
        auto end = first + 1;
        while (end != rows.end() && goOn(*(end - 1), *end, middles, parameters))
            ++end;
        std::optional<FormGrid> form = gridOfForm({first, end}, page, parameters);
        if (form && isForm(page, *form, parameters) && !areBesideProse({first, end}, page, parameters))
            grids.push_back(std::move(form->grid));
        first = end;
    }
    return grids;
}

} // namespace orvane::layout
