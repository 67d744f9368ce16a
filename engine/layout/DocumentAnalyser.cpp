#include "layout/DocumentAnalyser.h"

#include "base/Utf8.h"
#include "layout/text/LineText.h"

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

bool isMostlyRightToLeft(const std::vector<PageText>& pages) {
    std::size_t rightToLeft = 0, all = 0;
    for (const PageText& page : pages)
        for (const Line& line : page.lines)
            for (const Word& word : line.words) {
                rightToLeft += word.isRightToLeft;
                ++all;
            }
    return 2 * rightToLeft > all;
}

/// The letters of a word in lower case, without what surrounds them; empty when something other than hyphens stands
/// between letters.
std::string plainWord(const Word& word) {
    std::u32string text;
    for (const Span& span : word.spans)
        text += utf32FromUtf8(span.text);
    const auto isLetter = [](char32_t c) { return u_isalpha(static_cast<UChar32>(c)); };
    const auto first = std::find_if(text.begin(), text.end(), isLetter);
    const auto last = std::find_if(text.rbegin(), std::make_reverse_iterator(first), isLetter).base();
    std::u32string plain;
    for (auto c = first; c < last; ++c) {
        if (!isLetter(*c) && *c != U'-' && u_charType(static_cast<UChar32>(*c)) != U_NON_SPACING_MARK)
            return {};
        plain += static_cast<char32_t>(u_tolower(static_cast<UChar32>(*c)));
    }
    return utf8FromUtf32(plain);
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

bool endsInHyphen(const Line& line) {
    const std::u32string text = utf32FromUtf8(textOf(line.words.back()));
    constexpr std::size_t kShortestPart = 3; // two letters and the hyphen
    return text.size() >= kShortestPart && (text.back() == U'-' || text.back() == U'\u2010') &&
           u_isalpha(static_cast<UChar32>(text[text.size() - 2])) != 0;
}

/// The line below in the same column, of those that follow soon; null without one.
const Line* lineBelow(const std::vector<Line>& lines, std::size_t index, double maximumLeading) {
    constexpr std::size_t kReach = 12; // lines of other columns may stand between
    const Line& line = lines[index];
    for (std::size_t i = index + 1; i < std::min(lines.size(), index + 1 + kReach); ++i) {
        const double distance = lines[i].baseline - line.baseline;
        if (!lines[i].words.empty() && distance > 0 && distance <= maximumLeading * line.fontSize &&
            overlap(line.box.left, line.box.right, lines[i].box.left, lines[i].box.right) > 0)
            return &lines[i];
    }
    return nullptr;
}

/// Whether the hyphen between the two was only for the line's end: the word stands whole elsewhere, and the second part
/// is none. Where it is one, people write both: "non-clinical" and "nonclinical".
bool isDivided(const std::string& first, const std::string& second, const std::unordered_set<std::string>& vocabulary) {
    return !first.empty() && vocabulary.contains(first + second) && !vocabulary.contains(second);
}

/// Whether words were divided at the ends of lines: one that stands whole elsewhere shows it, or hyphens at many ends.
bool areWordsDivided(const std::vector<PageText>& pages, const std::unordered_set<std::string>& vocabulary,
                     const LayoutParameters::Analysis& limits) {
    int lines = 0, hyphens = 0;
    for (const PageText& page : pages)
        for (std::size_t i = 0; i < page.lines.size(); ++i) {
            const Line& line = page.lines[i];
            if (line.words.size() < limits.proseWords)
                continue;
            ++lines;
            if (!endsInHyphen(line))
                continue;
            ++hyphens;
            const Line* next = lineBelow(page.lines, i, limits.maximumLeading);
            if (next && isDivided(plainWord(line.words.back()), plainWord(next->words.front()), vocabulary))
                return true;
        }
    return hyphens >= limits.fewestHyphens && hyphens >= limits.hyphenShare * lines;
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
    context.partsScripts = areScriptsParted(pages);
    context.vocabulary = collectVocabulary(pages, limits);
    context.dividesWords = areWordsDivided(pages, context.vocabulary, limits);
    return context;
}

} // namespace orvane::layout
