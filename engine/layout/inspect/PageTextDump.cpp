#include "layout/inspect/PageTextDump.h"

#include "layout/text/LineText.h"

#include <fmt/format.h>

#include <iterator>

namespace orvane::layout {
namespace {

using document::BorderKind;
using document::TabLeader;
using document::UnderlineKind;
using document::VerticalPosition;

std::string boxText(const Rect& box) {
    return fmt::format("[{:.1f} {:.1f} {:.1f} {:.1f}]", box.left, box.top, box.right, box.bottom);
}

const char* leaderText(TabLeader leader) {
    switch (leader) {
    case TabLeader::Dots:
        return "...";
    case TabLeader::Hyphens:
        return "---";
    case TabLeader::Underscore:
        return "___";
    case TabLeader::MiddleDots:
        return "\u00B7\u00B7\u00B7";
    case TabLeader::None:
        break;
    }
    return "";
}

const char* kindText(BorderKind kind) {
    static constexpr const char* kNames[] = {"none", "single", "double", "dotted", "dashed", "thick", "wave"};
    return kNames[static_cast<std::size_t>(kind)];
}

/// What sets the look apart from plain black text of the line's size; empty for nothing.
std::string lookText(const Look& look, double lineSize) {
    std::string text;
    const auto add = [&text](const std::string& word) {
        if (!text.empty())
            text += ' ';
        text += word;
    };
    if (look.isBold)
        add("b");
    if (look.isItalic)
        add("i");
    if (look.underline != UnderlineKind::None)
        add(look.underline == UnderlineKind::Single ? "u" : fmt::format("u{}", static_cast<int>(look.underline)));
    if (look.isStruck)
        add("s");
    if (look.verticalPosition != VerticalPosition::Baseline)
        add(look.verticalPosition == VerticalPosition::Superscript ? "sup" : "sub");
    if (look.isSmallCaps)
        add("sc");
    if (look.isOutlined)
        add("outlined");
    if (look.isInvisible)
        add("invisible");
    if (look.isClippedAway)
        add("clipped");
    if (look.size != lineSize)
        add(fmt::format("{:g}pt", look.size));
    if (look.color != kBlack)
        add(fmt::format("#{}", toHex(look.color)));
    if (look.highlight)
        add(fmt::format("on#{}", toHex(*look.highlight)));
    if (look.horizontalScale != 1)
        add(fmt::format("x{:.2f}", look.horizontalScale));
    if (look.characterSpacing != 0)
        add(fmt::format("{:+.2f}", look.characterSpacing));
    if (look.link >= 0)
        add(fmt::format("link{}", look.link));
    return text;
}

std::string gapText(const Word& word) {
    switch (word.gapBefore) {
    case Gap::None:
        return "";
    case Gap::Space:
        return " ";
    case Gap::Tab:
        break;
    }
    if (!isTabulator(word))
        return fmt::format(" \u00B7{} ", word.blanksBefore);
    return fmt::format(" \u2192{} ", leaderText(word.leaderBefore));
}

/// Writes text and notes where its look changes.
class LookWriter {
public:
    void gap(const Word& word) { m_pending += gapText(word); }
    void span(const Span& span, double lineSize) {
        const std::string look = lookText(span.look, lineSize);
        if (look != m_look) {
            close();
            m_text += m_pending;
            m_look = look;
            if (!look.empty())
                fmt::format_to(std::back_inserter(m_text), "{{{}:", look);
        } else {
            m_text += m_pending;
        }
        m_pending.clear();
        m_text += span.text;
    }
    std::string finish() {
        close();
        return m_text;
    }

private:
    void close() {
        if (!m_look.empty())
            m_text += '}';
        m_look.clear();
    }

    std::string m_text;
    std::string m_pending; ///< a gap is not part of the look before it
    std::string m_look;
};

} // namespace

std::string dump(const Line& line) {
    LookWriter writer;
    for (const Word& word : line.words) {
        if (&word != &line.words.front() || word.leaderBefore != TabLeader::None)
            writer.gap(word);
        for (const Span& span : word.spans)
            writer.span(span, line.fontSize);
    }
    return writer.finish();
}

std::string dump(const PageText& page) {
    std::string text = fmt::format("page {} {:.1f} x {:.1f}{}\n", page.number, page.width, page.height,
                                   page.isScanned ? " scanned" : "");
    const auto out = std::back_inserter(text);
    for (const Line& line : page.lines) {
        fmt::format_to(out, "line {} {:.2f} {:g}pt", boxText(line.box), line.baseline, line.fontSize);
        if (line.angle != 0)
            fmt::format_to(out, " angle {:g}", line.angle);
        text += line.isRightToLeft ? " rtl" : "";
        text += line.isVertical ? " vertical" : "";
        if (line.dropCapLines > 0)
            fmt::format_to(out, " dropcap {}", line.dropCapLines);
        fmt::format_to(out, ": {}\n", dump(line));
    }
    for (const Rule& rule : page.rules)
        fmt::format_to(out, "rule {} {:.2f} from {:.1f} to {:.1f} width {:.2f} {} #{}{}\n",
                       rule.direction == RuleDirection::Horizontal ? "-" : "|", rule.position, rule.from, rule.to,
                       rule.width, kindText(rule.kind), toHex(rule.color), rule.isUsed ? " used" : "");
    for (const Ground& ground : page.grounds)
        fmt::format_to(out, "ground {} #{}{}\n", boxText(ground.box), toHex(ground.color),
                       ground.isUsed ? " used" : "");
    for (const Figure& figure : page.figures) {
        fmt::format_to(out, "figure {} picture {}{}{}{}{} {}\n", boxText(figure.box), figure.picture.value,
                       figure.needsPainting ? " to paint" : "", figure.isBackground ? " background" : "",
                       figure.paths.empty() ? "" : fmt::format(" {} paths", figure.paths.size()),
                       figure.drawing ? fmt::format(" in {} shapes", figure.drawing->shapes.size()) : "",
                       figure.alternateText);
        for (const Line& label : figure.labels)
            fmt::format_to(out, "  label {}: {}\n", boxText(label.box), dump(label));
    }
    for (const Formula& formula : page.formulas)
        fmt::format_to(out, "formula {}{}{}: {}\n", boxText(formula.box),
                       formula.place == document::FormulaPlace::InLine ? " in line" : "",
                       formula.needsPainting ? " to paint"
                       : formula.structure   ? ""
                                             : " as text",
                       formula.text);
    return text;
}

} // namespace orvane::layout
