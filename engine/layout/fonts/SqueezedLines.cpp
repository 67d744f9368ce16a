#include "layout/fonts/SqueezedLines.h"

#include "base/Utf8.h"
#include "layout/fonts/FamilyWidths.h"
#include "layout/structure/DraftWalk.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <string>

namespace orvane::layout {
namespace {

class LineReader {
public:
    LineReader(const std::vector<std::vector<MappedFont>>& fonts, const DocumentDraft& draft,
               const FontParameters::Squeeze& limits)
        : m_fonts(fonts)
        , m_limits(limits) {
        forEachParagraph(draft.blocks, [this](const DraftParagraph& paragraph) { readParagraph(paragraph); });
    }

    /// How much of their natural width lines of each family may take; families whose lines fit are not there.
    std::map<std::string, double> shares() {
        std::map<std::string, double> shares;
        for (auto& [family, widths] : m_widths) {
            const auto count = static_cast<double>(widths.size());
            const auto squeezed = std::count_if(widths.begin(), widths.end(),
                                                [this](double width) { return width > 1 + m_limits.leastSqueeze; });
            if (widths.size() < m_limits.fewestLines || static_cast<double>(squeezed) < m_limits.squeezedShare * count)
                continue;
            const auto at = widths.begin() +
                            static_cast<std::ptrdiff_t>(m_limits.fittingShare * static_cast<double>(widths.size() - 1));
            std::nth_element(widths.begin(), at, widths.end());
            shares.emplace(family, 1 / *at);
        }
        return shares;
    }

private:
    void readParagraph(const DraftParagraph& paragraph) {
        for (const DraftPiece& piece : paragraph.pieces) {
            if (piece.text.alignment != document::Alignment::Justified)
                continue;
            const bool isLast = &piece == &paragraph.pieces.back();
            const std::vector<Line>& lines = piece.text.lines;
            for (std::size_t i = 0; i + (isLast ? 1 : 0) < lines.size(); ++i)
                readLine(lines[i], piece.page);
        }
    }

    void readLine(const Line& line, std::size_t page) {
        if (line.angle != 0 || line.isVertical || line.isRightToLeft || line.words.size() < m_limits.fewestWords)
            return;
        const auto natural = naturalWidthOf(line, page);
        const double width = natural ? *natural / line.box.width() : 0;
        if (std::abs(width - 1) <= m_limits.mostMisfit)
            m_widths[fontOf(line.words.front().spans.front(), page)->family].push_back(width);
    }

    /// Of the line as the document's fonts have it, each blank as wide as the font's; nullopt where that is not known.
    std::optional<double> naturalWidthOf(const Line& line, std::size_t page) const {
        double width = 0;
        for (std::size_t i = 0; i < line.words.size(); ++i) {
            const Word& word = line.words[i];
            for (const Span& span : word.spans) {
                const auto own = naturalWidthOf(utf32FromUtf8(span.text), span, page);
                if (!own)
                    return std::nullopt;
                width += *own;
            }
            if (i == 0)
                continue;
            const std::u32string blanks(static_cast<std::size_t>(word.blanksBefore), U' ');
            const auto gap = naturalWidthOf(blanks, line.words[i - 1].spans.back(), page);
            if (word.gapBefore == Gap::Tab || !gap)
                return std::nullopt;
            width += word.gapBefore == Gap::Space ? *gap : 0;
        }
        return width;
    }

    std::optional<double> naturalWidthOf(const std::u32string& text, const Span& span, std::size_t page) const {
        const MappedFont* font = fontOf(span, page);
        const Look& look = span.look;
        if (!font || look.formula >= 0 || look.isSmallCaps)
            return std::nullopt;
        if (look.verticalPosition != document::VerticalPosition::Baseline)
            return span.box.width();
        const auto width = naturalWidth(text, font->family, {look.isBold, look.isItalic});
        return width ? std::optional(*width * look.size * font->widthPercent / 100) : std::nullopt;
    }

    const MappedFont* fontOf(const Span& span, std::size_t page) const {
        const std::vector<MappedFont>& fonts = m_fonts[page];
        return span.look.font < fonts.size() ? &fonts[span.look.font] : nullptr;
    }

    const std::vector<std::vector<MappedFont>>& m_fonts;
    const FontParameters::Squeeze& m_limits;
    std::map<std::string, std::vector<double>> m_widths; ///< by family: natural widths of lines, of those on the page
};

} // namespace

void narrowSqueezedFonts(std::vector<std::vector<MappedFont>>& fonts, const DocumentDraft& draft,
                         const FontParameters::Squeeze& parameters) {
    const std::map<std::string, double> shares = LineReader(fonts, draft, parameters).shares();
    for (std::vector<MappedFont>& page : fonts)
        for (MappedFont& font : page)
            if (const auto share = shares.find(font.family); share != shares.end() && !font.isCarried())
                font.widthPercent = static_cast<int>(std::floor(font.widthPercent * share->second));
}

} // namespace orvane::layout
