#include "layout/graphics/ScannedPages.h"

#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

bool isRecognised(const Line& line) {
    return !line.words.empty() && line.words.front().spans.front().look.isInvisible;
}

std::size_t recognisedWords(const PageText& page) {
    std::size_t words = 0;
    for (const Line& line : page.lines)
        if (isRecognised(line))
            words += line.words.size();
    return words;
}

bool isPicture(const Figure& figure) {
    return figure.paths.empty() && !figure.drawing;
}

bool showsText(const Figure& figure, const PageText& page, double textShare) {
    double area = 0;
    for (const Line& line : page.lines)
        if (isRecognised(line))
            area += line.box.intersected(figure.box).area();
    return area >= textShare * figure.box.area();
}

/// The words of the lines whose middle lies in `box`, one blank between two.
std::string wordsIn(const Rect& box, const PageText& page) {
    std::string words;
    for (const Line& line : page.lines) {
        if (!isRecognised(line) || !box.contains(Point{line.box.centerX(), line.box.centerY()}))
            continue;
        if (!words.empty())
            words += ' ';
        words += textOf(line);
    }
    return words;
}

/// Sizes of characters, to ask for the middle one.
class Sizes {
public:
    void add(const Line& line) {
        for (const Word& word : line.words)
            for (const Span& span : word.spans)
                m_sizes.insert(m_sizes.end(), span.text.size(), span.look.size);
    }
    /// Requires: something was added.
    double middle() {
        const auto at = m_sizes.begin() + static_cast<std::ptrdiff_t>(m_sizes.size() / 2);
        std::nth_element(m_sizes.begin(), at, m_sizes.end());
        return *at;
    }
    bool isEmpty() const { return m_sizes.empty(); }

private:
    std::vector<double> m_sizes;
};

bool isNear(double size, double other, double share) {
    return std::abs(size - other) <= share * other;
}

/// Recognition measures each word by itself: what is meant to be of one size differs a little.
void evenSizes(Line& line, double pageSize, double sameSize) {
    Sizes sizes;
    sizes.add(line);
    if (sizes.isEmpty())
        return;
    const double middle = sizes.middle();
    line.fontSize = isNear(middle, pageSize, sameSize) ? pageSize : middle;
    for (Word& word : line.words)
        for (Span& span : word.spans)
            if (isNear(span.look.size, middle, sameSize))
                span.look.size = line.fontSize;
}

/// Words stand where they were found; a blank is as wide as the paper left it.
void evenBlanks(Line& line, double widestBlank) {
    for (std::size_t i = 1; i < line.words.size(); ++i) {
        Word& word = line.words[i];
        const Rect &before = line.words[i - 1].box, &box = word.box;
        const double gap = std::max(box.left - before.right, before.left - box.right);
        if (word.leaderBefore != document::TabLeader::None || gap > widestBlank * line.fontSize)
            continue;
        word.gapBefore = word.gapBefore == Gap::Tab ? Gap::Space : word.gapBefore;
        word.blanksBefore = 1;
    }
}

void evenRecognisedText(PageText& page, const GraphicsParameters::Scans& limits) {
    Sizes sizes;
    for (const Line& line : page.lines)
        if (isRecognised(line))
            sizes.add(line);
    if (sizes.isEmpty())
        return;
    const double pageSize = sizes.middle();
    for (Line& line : page.lines) {
        if (!isRecognised(line))
            continue;
        evenSizes(line, pageSize, limits.sameSize);
        evenBlanks(line, limits.widestBlank);
    }
}

void dropPicturesOfText(PageText& page, double textShare, Diagnostics& diagnostics) {
    const auto isOfText = [&](const Figure& figure) {
        return isPicture(figure) && (figure.isBackground || showsText(figure, page, textShare));
    };
    const auto dropped = std::erase_if(page.figures, isOfText);
    if (dropped > 0)
        diagnostics.add(DiagnosticKind::PictureSimplified, page.number,
                        "the page is a scan; the text that was recognised on it stands for its picture");
}

void moveWordsToPictures(PageText& page) {
    for (Figure& figure : page.figures)
        if (isPicture(figure) && figure.alternateText.empty())
            figure.alternateText = wordsIn(figure.box, page);
    std::erase_if(page.lines, isRecognised);
}

} // namespace

bool isReadScan(const PageText& page, const GraphicsParameters& parameters) {
    return page.isScanned && recognisedWords(page) >= parameters.scans.fewestWords;
}

void partTextFromScan(PageText& page, const GraphicsParameters& parameters, Diagnostics& diagnostics) {
    const GraphicsParameters::Scans& limits = parameters.scans;
    const bool hasPicture = std::any_of(page.figures.begin(), page.figures.end(), isPicture);
    if (!page.isScanned || !hasPicture)
        return;
    if (!isReadScan(page, parameters)) {
        moveWordsToPictures(page);
        return;
    }
    dropPicturesOfText(page, limits.textShare, diagnostics);
    evenRecognisedText(page, limits);
}

} // namespace orvane::layout
