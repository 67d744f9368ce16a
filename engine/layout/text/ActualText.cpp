#include "layout/text/ActualText.h"

#include "base/Utf8.h"
#include "layout/text/Characters.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace orvane::layout {
namespace {

constexpr char32_t kReplacement = 0xFFFD; ///< for bytes that are no character

/// The outermost mark around `mark` that has an actual text: it speaks for all within it. -1 for none.
int speakingMark(const std::vector<pdf::Mark>& marks, int mark) {
    int speaking = -1;
    // A chain longer than there are marks would be a circle.
    for (std::size_t steps = 0; mark >= 0 && steps <= marks.size(); ++steps) {
        const auto index = static_cast<std::size_t>(mark);
        if (index >= marks.size())
            break;
        if (!marks[index].actualText.empty())
            speaking = mark;
        mark = marks[index].parent;
    }
    return speaking;
}

/// A text's letters without what typesetting adds or leaves out: blanks, hyphens.
std::u32string essenceOf(std::u32string_view text) {
    std::u32string result;
    for (const char32_t c : normalizeGlyphText(text))
        if (!isBlank(c) && c != U'-' && c != 0xAD && c != 0x2010)
            result += c;
    return result;
}

/// Both say the same; the order is not asked, as glyphs of right-to-left text come from left to right.
bool saySame(std::u32string a, std::u32string b) {
    if (a.size() != b.size())
        return false;
    std::sort(a.begin(), a.end());
    std::sort(b.begin(), b.end());
    return a == b;
}

bool standOnOneRow(const std::vector<Cluster*>& members, double tolerance) {
    const Cluster& first = *members.front();
    return std::all_of(members.begin(), members.end(), [&](const Cluster* member) {
        return member->frame == first.frame &&
               std::abs(member->baseline - first.baseline) <= tolerance * std::max(first.size, member->size);
    });
}

/// Gives each member its share of the text, in order: the only guess there is when a text runs over several lines.
void distribute(const std::u32string& text, const std::vector<Cluster*>& members) {
    for (std::size_t i = 0; i < members.size(); ++i) {
        const std::size_t from = text.size() * i / members.size();
        const std::size_t to = text.size() * (i + 1) / members.size();
        members[i]->text = text.substr(from, to - from);
    }
}

/// One cluster as wide as all members says the text.
void replace(const std::u32string& text, const std::vector<Cluster*>& members) {
    Cluster& speaker = *members.front();
    for (Cluster* member : members) {
        speaker.start = std::min(speaker.start, member->start);
        speaker.end = std::max(speaker.end, member->end);
        member->text.clear();
    }
    speaker.text = text;
}

} // namespace

void applyActualTexts(std::vector<Cluster>& clusters, const std::vector<pdf::Mark>& marks,
                      const TextParameters& parameters, Diagnostics&) {
    std::map<int, std::vector<Cluster*>> membersOfMark;
    for (Cluster& cluster : clusters)
        if (const int mark = speakingMark(marks, cluster.mark); mark >= 0)
            membersOfMark[mark].push_back(&cluster);

    for (auto& [mark, members] : membersOfMark) {
        const std::u32string text = normalizeGlyphText(utf32FromUtf8(marks[static_cast<std::size_t>(mark)].actualText));
        std::u32string painted;
        for (Cluster* member : members) {
            painted += member->text;
            // A mark that only carries the text has done its work; what is left is the structure around it.
            if (marks[static_cast<std::size_t>(mark)].mcid < 0)
                member->mark = marks[static_cast<std::size_t>(mark)].parent;
        }
        // Some programs write bytes that are no text, and glyphs that everybody can read.
        if (text.find(kReplacement) != std::u32string::npos && painted.find(kReplacement) == std::u32string::npos)
            continue;
        // A single character is always worth it: a hyphen that says it is a soft one.
        if (text.size() != 1 && saySame(essenceOf(painted), essenceOf(text)))
            continue;
        if (standOnOneRow(members, parameters.clusters.markRise))
            replace(text, members);
        else
            distribute(text, members);
    }
}

} // namespace orvane::layout
