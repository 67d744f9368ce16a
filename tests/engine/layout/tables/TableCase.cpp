#include "TableCase.h"

#include "engine/layout/TextBuilder.h"
#include "layout/inspect/TableDump.h"
#include "layout/tables/TableFinder.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace orvane::layout::tests {
namespace {

/// Points; parts of a line that stand no farther apart are words with a blank between them.
constexpr double kWidestBlank = 5;

TableCase emptyCase() {
    TableCase made{makePage(1), {}};
    // As wide as makeLine() makes blanks: otherwise its lines look justified.
    made.page.fonts.front().spaceWidth = 0.5;
    return made;
}

/// Reads one file line by line.
class CaseReader {
public:
    TableCase read(std::istream& in, const std::string& name) {
        std::string text;
        for (int number = 1; std::getline(in, text); ++number) {
            if (m_isExpecting) {
                m_case.expected += text + "\n";
                continue;
            }
            if (text.empty() || text.front() == '#')
                continue;
            if (!readInstruction(text))
                throw std::runtime_error(name + ":" + std::to_string(number) + ": not understood: " + text);
        }
        return std::move(m_case);
    }

private:
    bool readInstruction(const std::string& text) {
        std::istringstream in(text);
        std::string word;
        in >> word;
        if (word == "expect")
            return m_isExpecting = true;
        if (word == "look")
            return readLook(in);
        if (word == "font")
            return readFont(in);
        if (word == "row" || word == "line")
            return readRow(in, word == "line");
        if (word == "text")
            return readText(in);
        if (word == "h" || word == "v")
            return readRule(in, word == "h" ? RuleDirection::Horizontal : RuleDirection::Vertical);
        if (word == "grid")
            return readGrid(in);
        if (word == "box")
            return readBox(in);
        if (word == "ground")
            return readGround(in);
        if (word == "picture" || word == "drawing")
            return readFigure(in, word == "drawing");
        return false;
    }

    bool readLook(std::istream& in) {
        m_look = {};
        m_angle = 0;
        m_isRightToLeft = false;
        m_field = -1;
        for (std::string word; in >> word;) {
            if (word == "bold")
                m_look.isBold = true;
            else if (word == "italic")
                m_look.isItalic = true;
            else if (word == "right-to-left")
                m_isRightToLeft = true;
            else if (word == "field")
                m_field = 0;
            else if (word == "turned")
                in >> m_angle;
            else
                m_look.size = std::stod(word);
        }
        return true;
    }

    bool readFont(std::istream& in) {
        pdf::Font font;
        std::string pitch;
        in >> font.name >> pitch;
        font.isFixedPitch = pitch == "fixed";
        m_look.font = static_cast<std::uint32_t>(m_case.page.fonts.size());
        m_case.page.fonts.push_back(font);
        return !font.name.empty();
    }

    void addLine(Line line) {
        line.firstPaintOrder = m_paintOrder++;
        line.isRightToLeft = m_isRightToLeft;
        for (Word& word : line.words) {
            word.isRightToLeft = m_isRightToLeft;
            for (Span& span : word.spans)
                span.look.field = m_field;
        }
        m_case.page.lines.push_back(std::move(line));
    }

    /// Text at an x that is its left end, its right end (>) or its middle (^).
    Line placedLine(const std::string& field, double baseline) const {
        std::istringstream in(field);
        in >> std::ws;
        const char anchor = static_cast<char>(in.peek());
        if (anchor == '>' || anchor == '^')
            in.get();
        double x = 0;
        in >> x;
        std::string text;
        std::getline(in >> std::ws, text);
        text.erase(text.find_last_not_of(' ') + 1);
        const double width = makeLine(text, 0, 0, m_look).box.width();
        return makeLine(text, anchor == '>' ? x - width : anchor == '^' ? x - width / 2 : x, baseline, m_look);
    }

    bool readRow(std::istream& in, bool isOneLine) {
        double baseline = 0;
        std::string field;
        in >> baseline;
        std::getline(in, field, '|');
        Line whole;
        while (std::getline(in, field, '|')) {
            Line line = placedLine(field, baseline);
            if (!isOneLine) {
                addLine(std::move(line));
            } else if (whole.words.empty()) {
                whole = std::move(line);
            } else {
                if (line.box.left - whole.box.right > kWidestBlank)
                    line.words.front().gapBefore = Gap::Tab;
                whole.box = whole.box.united(line.box);
                whole.words.insert(whole.words.end(), line.words.begin(), line.words.end());
            }
        }
        if (isOneLine)
            addLine(std::move(whole));
        return true;
    }

    bool readText(std::istream& in) {
        double x = 0, baseline = 0;
        std::string text;
        in >> x >> baseline;
        std::getline(in >> std::ws, text);
        Line line = makeLine(text, x, baseline, m_look);
        if (m_angle != 0) {
            // Turned about its start; 270 reads upwards.
            const double length = line.box.width();
            line.angle = m_angle;
            line.box = m_angle == 270 ? Rect{x - 0.8 * m_look.size, baseline - length, x + 0.2 * m_look.size, baseline}
                                      : Rect{x - 0.2 * m_look.size, baseline, x + 0.8 * m_look.size, baseline + length};
            line.baseline = x;
            line.words.resize(1);
            line.words.front().box = line.box;
            line.words.front().spans.front().text = text;
        }
        addLine(std::move(line));
        return !text.empty();
    }

    void addRule(RuleDirection direction, double position, double from, double to, double width = 0.5,
                 document::BorderKind kind = document::BorderKind::Single) {
        Rule rule;
        rule.direction = direction;
        rule.position = position;
        rule.from = from;
        rule.to = to;
        rule.width = width;
        rule.kind = kind;
        rule.paintOrder = m_paintOrder++;
        m_case.page.rules.push_back(rule);
    }

    bool readRule(std::istream& in, RuleDirection direction) {
        double position = 0, from = 0, to = 0, width = 0.5;
        document::BorderKind kind = document::BorderKind::Single;
        if (!(in >> position >> from >> to))
            return false;
        for (std::string word; in >> word;) {
            if (word == "width")
                in >> width;
            else if (word == "double")
                kind = document::BorderKind::Double;
            else if (word == "dashed")
                kind = document::BorderKind::Dashed;
            else
                return false;
        }
        addRule(direction, position, from, to, width, kind);
        return true;
    }

    bool readGrid(std::istream& in) {
        std::vector<double> xs, ys;
        std::vector<double>* edges = &xs;
        for (std::string word; in >> word;) {
            if (word == "/")
                edges = &ys;
            else
                edges->push_back(std::stod(word));
        }
        if (xs.size() < 2 || ys.size() < 2)
            return false;
        for (const double x : xs)
            addRule(RuleDirection::Vertical, x, ys.front(), ys.back());
        for (const double y : ys)
            addRule(RuleDirection::Horizontal, y, xs.front(), xs.back());
        return true;
    }

    static bool readRect(std::istream& in, Rect& box) {
        return static_cast<bool>(in >> box.left >> box.top >> box.right >> box.bottom);
    }

    bool readBox(std::istream& in) {
        Rect box;
        if (!readRect(in, box))
            return false;
        for (const double y : {box.top, box.bottom})
            addRule(RuleDirection::Horizontal, y, box.left, box.right);
        for (const double x : {box.left, box.right})
            addRule(RuleDirection::Vertical, x, box.top, box.bottom);
        return true;
    }

    bool readGround(std::istream& in) {
        Ground ground;
        std::string color;
        if (!readRect(in, ground.box) || !(in >> color))
            return false;
        const unsigned long rgb = std::stoul(color, nullptr, 16);
        const auto channel = [&](int shift) { return static_cast<std::uint8_t>(rgb >> shift & 255); };
        ground.color = {channel(16), channel(8), channel(0)};
        ground.paintOrder = m_paintOrder++;
        m_case.page.grounds.push_back(ground);
        return true;
    }

    bool readFigure(std::istream& in, bool isDrawing) {
        Figure figure;
        if (!readRect(in, figure.box))
            return false;
        figure.needsPainting = isDrawing;
        if (isDrawing)
            figure.paths = {0};
        else
            figure.picture = PictureId{1};
        figure.paintOrder = m_paintOrder++;
        m_case.page.figures.push_back(figure);
        return true;
    }

    TableCase m_case = emptyCase();
    LineLook m_look;
    double m_angle = 0;
    bool m_isRightToLeft = false;
    int m_field = -1;
    std::uint32_t m_paintOrder = 1;
    bool m_isExpecting = false;
};

} // namespace

TableCase readTableCase(const std::filesystem::path& file) {
    std::ifstream in(file);
    if (!in)
        throw std::runtime_error("cannot open " + file.string());
    return CaseReader().read(in, file.filename().string());
}

std::string dumpTables(PageText page) {
    Diagnostics diagnostics;
    std::string out;
    for (const TableDraft& table : findTables(page, {}, LayoutParameters{}, diagnostics))
        out += dumpTable(table);
    for (const Line& line : page.lines) {
        std::string text;
        for (const Word& word : line.words) {
            text += text.empty() ? "" : word.gapBefore == Gap::Tab ? "\t" : " ";
            for (const Span& span : word.spans)
                text += span.text;
        }
        out += "outside \"" + text + "\"\n";
    }
    return out;
}

} // namespace orvane::layout::tests
