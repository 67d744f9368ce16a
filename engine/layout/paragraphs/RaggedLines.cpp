#include "layout/paragraphs/RaggedLines.h"

#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace orvane::layout {
namespace {

bool endsWithComma(const Line& line) {
    return textOf(line.words.back()).ends_with(',');
}

/// The line and the next one are of one block, and what is said in it goes on in lower case. Lists have commas at the
/// ends of lines.
bool runsOn(const Line& line, const Line& next, const LineMeasure& measure, const LineMeasure& below,
            const ParagraphParameters::Paragraphs& parameters) {
    const double distance = next.baseline - line.baseline;
    return line.words.size() >= parameters.ragged.wordsOfProse && next.words.size() >= 2 && below.startsLowerCase &&
           !below.marker && !measure.endsSentence && !endsWithComma(line) && !measure.hasLeader &&
           std::abs(measure.startGap - below.startGap) <= parameters.maximumFirstLine * line.fontSize && distance > 0 &&
           distance <= parameters.maximumLeading * line.fontSize && std::abs(line.fontSize - next.fontSize) < 0.1;
}

} // namespace

double findRaggedRoom(std::span<const Line> lines, std::span<const LineMeasure> measures,
                      const ParagraphParameters::Paragraphs& parameters) {
    const ParagraphParameters::Paragraphs::Ragged& limits = parameters.ragged;
    std::size_t all = 0, usual = 0;
    std::vector<double> rooms;
    for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
        const Line& line = lines[i];
        const LineMeasure &measure = measures[i], &below = measures[i + 1];
        if (line.words.empty() || lines[i + 1].words.empty() || !runsOn(line, lines[i + 1], measure, below, parameters))
            continue;
        ++all;
        const double room = measure.endGap - measure.blank - below.firstUnit;
        if (room > limits.mostRoom * measure.width)
            continue;
        ++usual;
        if (room > parameters.fitSlack * line.fontSize)
            rooms.push_back(room / line.fontSize);
    }
    const auto shareOf = [all](double share) { return share * static_cast<double>(all); };
    if (all < limits.fewestLines || static_cast<double>(usual) < shareOf(limits.proseShare) ||
        static_cast<double>(rooms.size()) < shareOf(limits.leastShare))
        return 0;
    // The few that leave most are those before a word that could not be divided.
    const auto most =
        rooms.begin() + static_cast<std::ptrdiff_t>(limits.usualShare * static_cast<double>(rooms.size() - 1));
    std::nth_element(rooms.begin(), most, rooms.end());
    return *most;
}

} // namespace orvane::layout
