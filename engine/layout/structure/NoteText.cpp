#include "layout/structure/NoteText.h"

#include "layout/structure/NoteMark.h"
#include "layout/text/LineText.h"
#include "layout/text/SpanPart.h"

#include <map>
#include <utility>

namespace orvane::layout {
namespace {

void moveBy(Line& line, double across, double down) {
    const auto move = [across, down](Rect& box) {
        box.left += across;
        box.right += across;
        box.top += down;
        box.bottom += down;
    };
    line.baseline += down;
    move(line.box);
    for (Word& word : line.words) {
        move(word.box);
        for (Span& span : word.spans) {
            span.baseline += down;
            move(span.box);
        }
    }
}

/// Gives items of one list their places in another, each once.
template<typename Index>
class Mover {
public:
    template<typename Item>
    Index move(Index from, const std::vector<Item>& source, std::vector<Item>& target) {
        const auto [entry, isNew] = m_places.emplace(from, static_cast<Index>(target.size()));
        if (isNew)
            target.push_back(source[static_cast<std::size_t>(from)]);
        return entry->second;
    }

private:
    std::map<Index, Index> m_places;
};

} // namespace

PageText pageForNote(const PageText& source) {
    PageText page;
    page.number = source.number;
    page.width = source.width;
    page.height = source.height;
    return page;
}

void addNoteLines(PageText& note, const PageText& source, std::vector<Line> lines, double leading, double across) {
    if (lines.empty())
        return;
    Mover<std::uint32_t> fonts;
    Mover<int> links, formulas;
    const double shift = note.lines.empty() ? 0 : note.lines.back().baseline + leading - lines.front().baseline;
    for (Line& line : lines) {
        moveBy(line, across, shift);
        for (Word& word : line.words) {
            for (Span& span : word.spans) {
                if (span.look.font < source.fonts.size())
                    span.look.font = fonts.move(span.look.font, source.fonts, note.fonts);
                if (span.look.link >= 0)
                    span.look.link = links.move(span.look.link, source.links, note.links);
                if (span.look.formula >= 0)
                    span.look.formula = formulas.move(span.look.formula, source.formulas, note.formulas);
                span.mark = -1;
                span.look.field = -1;
            }
        }
        note.lines.push_back(std::move(line));
    }
}

void partMark(Line& line) {
    Word& first = line.words.front();
    if (const std::size_t length = gluedMarkLength(first); length > 0)
        partSpan(first, 0, 0, length);
    else if (first.spans.size() < 2 || !isRaisedMark(first.spans.front()))
        return;
    Word rest = first;
    rest.spans.erase(rest.spans.begin());
    rest.box = {};
    for (const Span& span : rest.spans)
        rest.box = rest.box.united(span.box);
    rest.gapBefore = Gap::None;
    first.spans.resize(1);
    first.box = first.spans.front().box;
    line.words.insert(line.words.begin() + 1, std::move(rest));
}

Line takeMark(Line& line) {
    partMark(line);
    Line mark = line;
    mark.words.resize(1);
    measureAnew(mark);
    line.words.erase(line.words.begin());
    if (!line.words.empty())
        measureAnew(line);
    return mark;
}

bool isMarkOf(const Line& mark, const Line& first) {
    return mark.words.size() == 1 && mark.baseline <= first.baseline &&
           2 * overlap(mark.box.top, mark.box.bottom, first.box.top, first.box.bottom) > mark.box.height();
}

void prependMark(Line& line, const Line& mark) {
    line.words.insert(line.words.begin(), mark.words.front());
    measureAnew(line);
}

} // namespace orvane::layout
