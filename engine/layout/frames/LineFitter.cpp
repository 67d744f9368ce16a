#include "layout/frames/LineFitter.h"

#include "layout/frames/LineMeter.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>
#include <utility>

namespace orvane::layout {
namespace {

using document::Alignment;
using Parameters = FrameParameters::TextBoxes;

/// What happens to a line that turns out longer than it is on the page.
enum class LineEnd {
    Free, ///< it ends a little later
    Held, ///< it is cut in two, for it stands between two edges
};

/// By how much the words are to be stretched to be as wide as on the page; 1 for not at all.
double stretchOfWords(const PartMeasure& part, const Parameters& parameters) {
    const double natural = part.naturalWords();
    if (natural <= 0 || part.width() <= 0)
        return 1;
    const double stretch = part.width() / natural;
    const bool isFit = stretch >= parameters.narrowest && stretch <= parameters.widest;
    return isFit && std::abs(stretch - 1) >= parameters.leastStretch ? stretch : 1;
}

/// The stretch with which a part fits whose blanks stay as they are.
double stretchForLine(const PartMeasure& part, double lineWidth, LineEnd end, const Parameters& parameters) {
    double stretch = stretchOfWords(part, parameters);
    const double natural = part.naturalWidth();
    // Blanks that are narrower than a word processor's make a line too long; wider ones are left to it.
    const double longest = lineWidth * (end == LineEnd::Held ? 1 - parameters.fitSlack : 1 + parameters.freeSlack);
    if (stretch * natural > longest)
        stretch = std::min((end == LineEnd::Held ? longest : lineWidth) / natural, 1 - parameters.leastStretch);
    return stretch < parameters.narrowest || stretch > parameters.widest ? 1 : stretch;
}

/// The scale nearest to the stretch for which the format holds the product with the font's own: whole percents.
double writtenScale(double stretch, int fontPercent, LineEnd end) {
    // Half a percent more would cut a line that stands between two edges in two; a little error of arithmetic must not.
    constexpr double kArithmetic = 1e-6;
    const double percent = stretch * fontPercent;
    return (end == LineEnd::Held ? std::floor(percent + kArithmetic) : std::round(percent)) / fontPercent;
}

/// The words between two tabulators, or a tabulator and an end of the line.
std::vector<std::span<Word>> partsOf(std::vector<Word>& words) {
    std::vector<std::span<Word>> parts;
    for (std::size_t first = 0, last = 1; last <= words.size(); ++last)
        if (last == words.size() || words[last].gapBefore == Gap::Tab) {
            parts.emplace_back(words.data() + first, last - first);
            first = last;
        }
    return parts;
}

double lengthOf(std::span<const Word> part, const Line& line) {
    Rect box;
    for (const Word& word : part)
        box = box.united(word.box);
    return lengthAlong(box, line);
}

/// From where the line starts to the other edge of its paragraph.
double roomFor(const Line& line, const ParagraphDraft& text) {
    return line.isRightToLeft ? line.box.right - text.box.left : text.box.right - line.box.left;
}

/// True when each word stands behind the one before it, so that blanks can bring it there.
bool isInOrder(const PartMeasure& part) {
    return std::is_sorted(part.words.begin(), part.words.end(),
                          [](const WordMeasure& a, const WordMeasure& b) { return a.start < b.start; });
}

int blanksIn(const PartMeasure& part) {
    int blanks = 0;
    for (const WordMeasure& word : part.words)
        blanks += word.blanks;
    return blanks;
}

/// How far the words would be from their places, in a line of which every blank gets an equal share of what is left.
double farthestError(const PartMeasure& part, LineEnd end) {
    const int blanks = blanksIn(part);
    const WordMeasure& last = part.words.back();
    const double missing = last.start + last.width - part.naturalWidth();
    const double share = end == LineEnd::Held && blanks > 0 ? missing / blanks : 0;
    double pen = 0, farthest = 0;
    for (const WordMeasure& word : part.words) {
        pen += word.blanks * (word.naturalBlank + share);
        farthest = std::max(farthest, std::abs(pen - word.start));
        pen += word.naturalWidth;
    }
    return farthest;
}

/// Stretches the blanks so that each word starts where it stood.
void placeWords(std::span<Word> words, const PartMeasure& part, const Parameters& parameters) {
    double pen = 0;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const WordMeasure& word = part.words[i];
        if (word.blanks > 0 && word.naturalBlank > 0) {
            const double wanted = (word.start - pen) / (word.blanks * word.naturalBlank);
            words[i].blankStretch = std::clamp(wanted, parameters.leastBlank, parameters.greatestBlank);
            pen += word.blanks * word.naturalBlank * words[i].blankStretch;
        }
        pen += word.naturalWidth;
    }
}

/// Brings the words of the parts of one frame's lines to their places.
class PartFitter {
public:
    PartFitter(const DraftPiece& piece, const FontCatalog& fonts, const Parameters& parameters)
        : m_piece(piece)
        , m_fonts(fonts)
        , m_parameters(parameters) {}

    /// Blanks stay as they are: they take what is left.
    void fitToRoom(std::span<Word> words, const PartMeasure& part, double room, LineEnd end) const {
        const double stretch = stretchForLine(part, room, end, m_parameters);
        for (Word& word : words)
            setScale(word, stretch, end);
    }

    void fitWords(std::span<Word> words, PartMeasure part, double room) const {
        if (!part.knowsBlanks || blanksIn(part) == 0 || !isInOrder(part)) {
            fitToRoom(words, part, room, LineEnd::Free);
            return;
        }
        scaleWords(words, part);
        if (farthestError(part, LineEnd::Free) > m_parameters.sameWordPlace)
            placeWords(words, part, m_parameters);
    }

private:
    /// Sets the scale nearest to that stretch. Returns it.
    double setScale(Word& word, double stretch, LineEnd end) const {
        double scale = 1;
        for (Span& span : word.spans) {
            scale = writtenScale(stretch, m_fonts.font(m_piece.page, span.look.font).widthPercent, end);
            span.look.horizontalScale = scale;
        }
        return scale;
    }

    /// Stretches the words, all alike where that makes them as wide as they were, else each by itself.
    void scaleWords(std::span<Word> words, PartMeasure& part) const {
        const double stretch = stretchOfWords(part, m_parameters);
        double scale = 1;
        for (std::size_t i = 0; i < words.size(); ++i) {
            WordMeasure& word = part.words[i];
            word.naturalBlank *= scale; // blanks look like the word before them
            scale = setScale(words[i], stretchOfWord(word, stretch), LineEnd::Free);
            word.naturalWidth *= scale;
        }
    }

    double stretchOfWord(const WordMeasure& word, double ofLine) const {
        if (std::abs(word.naturalWidth * ofLine - word.width) <= m_parameters.sameWordPlace || word.naturalWidth <= 0)
            return ofLine;
        const double own = word.width / word.naturalWidth;
        return own < m_parameters.narrowest || own > m_parameters.widest ? ofLine : own;
    }

    const DraftPiece& m_piece;
    const FontCatalog& m_fonts;
    const Parameters& m_parameters;
};

/// A last line ends where its words end, unless it fills its paragraph.
LineEnd endOf(const Line& line, const ParagraphDraft& text, const Parameters& parameters) {
    if (text.alignment != Alignment::Justified)
        return LineEnd::Free;
    const double room = roomFor(line, text);
    const bool isLast = &line == &text.lines.back();
    return isLast && line.box.width() < room * (1 - 2 * parameters.fitSlack) ? LineEnd::Free : LineEnd::Held;
}

/// Fits the lines of one frame.
class FrameFitter {
public:
    FrameFitter(DraftPiece& piece, const FontCatalog& fonts, Tracking tracking, const Parameters& parameters)
        : m_piece(piece)
        , m_fonts(fonts)
        , m_parameters(parameters)
        , m_meter(piece.page, fonts, tracking, parameters) {}

    void run() const {
        ParagraphDraft& text = m_piece.text;
        if (text.alignment == Alignment::Justified && !canBeJustified())
            text.alignment = Alignment::Start;
        for (Line& line : text.lines)
            if (isMeasurable(line))
                fit(line);
        text.wrappingLines = findWrappingLines();
    }

private:
    /// The lines that end in a divided word whose rest is sure not to fit behind it, in a frame hardly wider than the
    /// lines. None where it is not sure that the lines fit such a frame.
    std::vector<std::size_t> findWrappingLines() const {
        const ParagraphDraft& text = m_piece.text;
        const auto isLevel = [](const Line& line) {
            return line.angle == 0 && !line.isVertical && !line.isRightToLeft &&
                   std::none_of(line.words.begin(), line.words.end(),
                                [](const Word& word) { return word.gapBefore == Gap::Tab; });
        };
        std::vector<std::size_t> wrapping;
        if ((text.alignment != Alignment::Start && text.alignment != Alignment::Justified) ||
            !std::all_of(text.lines.begin(), text.lines.end(), isLevel) || !areWidthsKnown(text, m_piece.page, m_fonts))
            return wrapping;
        const double edge = text.box.right + 2 * tightRoom(text.box.width(), m_parameters);
        for (std::size_t i = 0; i + 1 < text.lines.size(); ++i) {
            const Line& line = text.lines[i];
            if (textOf(line.words.back()).ends_with('-') &&
                naturalEnd(line) + text.lines[i + 1].words.front().box.width() > edge)
                wrapping.push_back(i);
        }
        return wrapping;
    }

    /// Where the line would end if nothing spread its words over the width of a justified paragraph.
    double naturalEnd(const Line& line) const {
        if (m_piece.text.alignment != Alignment::Justified)
            return line.box.right;
        double end = line.words.front().box.left;
        for (const Word& word : line.words)
            end += word.box.width();
        const auto blanks = static_cast<double>(line.words.size() - 1);
        return std::min(line.box.right, end + blanks * m_parameters.usualBlank * line.fontSize);
    }

    /// False where lines may turn out too wide, which must not be held between two edges, and where even blanks would
    /// not bring the words to their places.
    bool canBeJustified() const {
        ParagraphDraft& text = m_piece.text;
        return areWidthsKnown(text, m_piece.page, m_fonts) &&
               std::all_of(text.lines.begin(), text.lines.end(), [&](Line& line) { return isEven(line); });
    }

    bool isEven(Line& line) const {
        if (endOf(line, m_piece.text, m_parameters) == LineEnd::Free)
            return true;
        std::optional<PartMeasure> part = m_meter.measure(line, line.words);
        if (!part || partsOf(line.words).size() > 1)
            return true;
        const double stretch = stretchForLine(*part, roomFor(line, m_piece.text), LineEnd::Held, m_parameters);
        for (WordMeasure& word : part->words) {
            word.naturalWidth *= stretch;
            word.naturalBlank *= stretch;
        }
        return farthestError(*part, LineEnd::Held) <= m_parameters.evenPlace;
    }

    void fit(Line& line) const {
        const LineEnd end = endOf(line, m_piece.text, m_parameters);
        const std::vector<std::span<Word>> parts = partsOf(line.words);
        // Lines between two edges take what is left at their tabulators.
        if (end == LineEnd::Held && parts.size() > 1)
            return;
        const PartFitter fitter(m_piece, m_fonts, m_parameters);
        for (const std::span<Word> part : parts) {
            std::optional<PartMeasure> measure = m_meter.measure(line, part);
            if (measure && end == LineEnd::Held)
                fitter.fitToRoom(part, *measure, roomFor(line, m_piece.text), end);
            else if (measure)
                fitter.fitWords(part, std::move(*measure), lengthOf(part, line));
        }
    }

    DraftPiece& m_piece;
    const FontCatalog& m_fonts;
    const Parameters& m_parameters;
    LineMeter m_meter;
};

} // namespace

double tightRoom(double width, const Parameters& parameters) {
    return parameters.freeSlack * width + parameters.tightRoom;
}

void fitLines(std::vector<DraftBlock>& frames, const FontCatalog& fonts, Tracking tracking,
              const Parameters& parameters) {
    for (DraftBlock& frame : frames)
        FrameFitter(frame.paragraph()->pieces.front(), fonts, tracking, parameters).run();
}

} // namespace orvane::layout
