#include "layout/DocumentAnalyser.h"

#include "base/Utf8.h"
#include "layout/text/LanguageGuess.h"
#include "layout/text/LineText.h"
#include "layout/text/LogicalOrder.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <cmath>
#include <map>

namespace orvane::layout {
namespace {

/// Counts values in classes of one width and names the heaviest class.
class Histogram {
public:
    explicit Histogram(double step)
        : m_step(step) {}
    void add(double value, double weight) {
        auto& [total, sum] = m_classes[std::lround(value / m_step)];
        total += weight;
        sum += weight * value;
    }
    /// The mean of the heaviest class; `otherwise` when nothing was counted.
    double mode(double otherwise) const {
        const auto heaviest = std::max_element(m_classes.begin(), m_classes.end(), [](const auto& a, const auto& b) {
            return a.second.first < b.second.first;
        });
        return heaviest == m_classes.end() ? otherwise : heaviest->second.second / heaviest->second.first;
    }

private:
    double m_step;
    std::map<long, std::pair<double, double>> m_classes; ///< weight, and weighted sum of values
};

std::size_t characterCount(const Line& line) {
    std::size_t count = 0;
    for (const Word& word : line.words)
        for (const Span& span : word.spans)
            count += span.text.size();
    return count;
}

double findBodyFontSize(const std::vector<PageText>& pages, const LayoutParameters::Analysis& parameters,
                        double otherwise) {
    Histogram sizes(parameters.sizeStep);
    for (const PageText& page : pages)
        for (const Line& line : page.lines)
            sizes.add(line.fontSize, static_cast<double>(characterCount(line)));
    return sizes.mode(otherwise);
}

/// The usual distance between lines of the body size that stand one below the other.
double findBodyLeading(const std::vector<PageText>& pages, double bodyFontSize,
                       const LayoutParameters::Analysis& parameters, double otherwise) {
    Histogram distances(parameters.leadingStep);
    for (const PageText& page : pages) {
        for (std::size_t i = 0; i + 1 < page.lines.size(); ++i) {
            const Line& upper = page.lines[i];
            if (std::abs(upper.fontSize - bodyFontSize) > parameters.sizeStep || upper.angle != 0)
                continue;
            // In columns the next line of the list may stand beside this one, so the next below it is looked for.
            for (std::size_t j = i + 1; j < page.lines.size(); ++j) {
                const Line& lower = page.lines[j];
                const double distance = lower.baseline - upper.baseline;
                if (distance > parameters.maximumLeading * bodyFontSize)
                    break;
                if (distance < parameters.minimumLeading * bodyFontSize ||
                    std::abs(lower.fontSize - bodyFontSize) > parameters.sizeStep ||
                    overlap(upper.box.left, upper.box.right, lower.box.left, lower.box.right) <= 0)
                    continue;
                distances.add(distance, overlap(upper.box.left, upper.box.right, lower.box.left, lower.box.right));
                break;
            }
        }
    }
    return distances.mode(otherwise);
}

/// The value that `share` of the sorted values lie below.
double quantile(std::vector<double>& values, double share) {
    const auto index = static_cast<std::size_t>(share * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(index), values.end());
    return values[index];
}

/// Left and right edge from all lines, top and bottom from the first and last line of each page.
Rect findTextArea(const std::vector<PageText>& pages, const LayoutParameters::Analysis& parameters) {
    std::vector<double> lefts, rights, tops, bottoms;
    for (const PageText& page : pages) {
        Rect area;
        for (const Line& line : page.lines) {
            lefts.push_back(line.box.left);
            rights.push_back(line.box.right);
            area = area.united(line.box);
        }
        if (!area.isEmpty()) {
            tops.push_back(area.top);
            bottoms.push_back(area.bottom);
        }
    }
    if (tops.empty())
        return pages.empty() ? Rect{} : Rect{0, 0, pages.front().width, pages.front().height};
    const double low = parameters.edgeShare;
    return {quantile(lefts, low), quantile(tops, low), quantile(rights, 1 - low), quantile(bottoms, 1 - low)};
}

/// Numbers say nothing: a table of them may have few words.
bool isMostlyRightToLeft(const std::vector<PageText>& pages) {
    DirectionCount words;
    for (const PageText& page : pages)
        for (const Line& line : page.lines)
            for (const Word& word : line.words) {
                DirectionCount letters;
                letters.add(utf32FromUtf8(textOf(word)));
                words.rightToLeft += letters.rightToLeft > 0;
                words.leftToRight += letters.leftToRight > letters.rightToLeft;
            }
    return words.rightToLeft > words.leftToRight;
}

std::unordered_set<std::string> collectVocabulary(const std::vector<PageText>& pages,
                                                  const LayoutParameters::Analysis& parameters) {
    std::unordered_set<std::string> vocabulary;
    for (const PageText& page : pages) {
        for (const Line& line : page.lines) {
            // The first word of a line may be the end of one that was hyphenated, the last one its beginning.
            for (std::size_t i = 1; i + 1 < line.words.size(); ++i) {
                std::string word = plainWord(line.words[i]);
                if (word.size() >= static_cast<std::size_t>(parameters.minimumWordLength))
                    vocabulary.insert(std::move(word));
            }
        }
    }
    return vocabulary;
}

/// Whether the blanks behind the sentences that end within lines are mostly two.
bool areBlanksDoubled(const std::vector<PageText>& pages, const LayoutParameters::Analysis& limits) {
    int sentences = 0, doubled = 0;
    for (const PageText& page : pages)
        for (const Line& line : page.lines)
            for (std::size_t i = 1; i < line.words.size(); ++i) {
                const std::u32string next = utf32FromUtf8(textOf(line.words[i]));
                // What stands behind a label is no new sentence.
                if (i < 2 || line.words[i].gapBefore != Gap::Space || next.empty() ||
                    !u_isupper(static_cast<UChar32>(next.front())) ||
                    !endsSentence(utf32FromUtf8(textOf(line.words[i - 1]))))
                    continue;
                ++sentences;
                doubled += line.words[i].blanksBefore == 2;
            }
    return doubled >= limits.fewestDoubleBlanks && doubled >= limits.doubleBlankShare * sentences;
}

/// Whether the document's lines have blanks between East Asian characters and the letters and digits beside them.
bool areScriptsParted(const std::vector<PageText>& pages) {
    std::size_t parted = 0, joined = 0;
    for (const PageText& page : pages)
        for (const Line& line : page.lines) {
            std::u32string before;
            for (const Word& word : line.words) {
                const std::u32string text = utf32FromUtf8(textOf(word));
                if (word.gapBefore == Gap::Space && !before.empty() && !text.empty())
                    parted += meetOtherScript(before.back(), text.front());
                for (std::size_t i = 1; i < text.size(); ++i)
                    joined += meetOtherScript(text[i - 1], text[i]);
                before = text;
            }
        }
    return parted > joined;
}

} // namespace

DocumentContext analyseDocument(const std::vector<PageText>& pages, const LayoutParameters& parameters) {
    const LayoutParameters::Analysis& limits = parameters.analysis;
    DocumentContext context;
    context.pageCount = static_cast<int>(pages.size());
    context.bodyFontSize = findBodyFontSize(pages, limits, context.bodyFontSize);
    context.bodyLeading =
        findBodyLeading(pages, context.bodyFontSize, limits, limits.defaultLeading * context.bodyFontSize);
    context.textArea = findTextArea(pages, limits);
    context.isRightToLeft = isMostlyRightToLeft(pages);
    context.doublesBlanks = areBlanksDoubled(pages, limits);
    context.partsScripts = areScriptsParted(pages);
    context.vocabulary = collectVocabulary(pages, limits);
    context.compounds = CompoundWords(context.vocabulary);
    context.division = findDivision(pages, context.vocabulary, parameters.division);
    context.language = guessLanguage(pages, parameters.languages);
    return context;
}

} // namespace orvane::layout
