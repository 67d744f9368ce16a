#include "layout/structure/HeadingStyles.h"

#include "base/Utf8.h"
#include "layout/paragraphs/ListMarker.h"
#include "layout/structure/DraftText.h"
#include "layout/structure/HeadingNumber.h"
#include "layout/support/Tally.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace orvane::layout {
namespace {

constexpr int kDeepestLevel = 9;

/// What headings of one level have in common. Ordered from the highest level down.
struct HeadingLook {
    long halfPoints = 0;
    bool isBold = false;
    bool isCapital = false;
    bool isItalic = false;
    Color color;

    auto operator<=>(const HeadingLook&) const = default;
};

struct Candidate {
    std::size_t block = 0;
    HeadingLook look;
    std::optional<HeadingNumber> number;
};

/// The look that nearly all characters share.
std::optional<HeadingLook> lookOf(const DraftParagraph& paragraph, double share) {
    Tally<HeadingLook> looks;
    double all = 0;
    for (const DraftPiece& piece : paragraph.pieces)
        for (const Line& line : piece.text.lines)
            for (const Word& word : line.words)
                for (const Span& span : word.spans) {
                    const auto weight = static_cast<double>(span.text.size());
                    looks.add(
                        {std::lround(span.look.size * 2), span.look.isBold, false, span.look.isItalic, span.look.color},
                        weight);
                    all += weight;
                }
    const HeadingLook* most = looks.heaviest();
    return most && looks.weightOf(*most) >= share * all ? std::optional(*most) : std::nullopt;
}

struct TextTraits {
    std::size_t letters = 0;
    std::size_t characters = 0;
    bool isCapital = false; ///< all letters that have a case
    bool endsLikeSentence = false;
    bool hasAddress = false; ///< somebody's mailbox, or a place in the web
};

TextTraits traitsOf(const std::u32string& text) {
    TextTraits traits;
    std::size_t upper = 0, lower = 0;
    for (const char32_t c : text) {
        const auto character = static_cast<UChar32>(c);
        traits.letters += u_isalpha(character) ? 1 : 0;
        upper += u_isupper(character) ? 1 : 0;
        lower += u_islower(character) ? 1 : 0;
    }
    traits.characters = text.size();
    traits.isCapital = upper > 3 && lower == 0;
    constexpr std::u32string_view kEnds = U".,;。、，；…";
    traits.hasAddress = text.find(U'@') != std::u32string::npos || text.find(U"://") != std::u32string::npos;
    traits.endsLikeSentence = !text.empty() && kEnds.find(text.back()) != std::u32string_view::npos;
    return traits;
}

/// Blocks of a draft, from the first to one behind the last.
struct BlockRange {
    std::size_t first = 0;
    std::size_t last = 0;

    bool contains(std::size_t block) const { return block >= first && block < last; }
};

bool isCentredOnFirstPage(const DraftBlock& block) {
    const DraftParagraph* paragraph = block.paragraph();
    return paragraph && paragraph->pieces.front().page == 0 &&
           paragraph->pieces.front().text.alignment == document::Alignment::Center;
}

/// Who wrote it and where: what stands centred below a centred title, but for the last line, which may be the heading
/// of what follows.
BlockRange bylinesOf(const std::vector<DraftBlock>& blocks, const StructureParameters::Headings& parameters) {
    const auto isOfFlow = [](const DraftBlock& block) {
        const DraftParagraph* paragraph = block.paragraph();
        return paragraph && paragraph->firstLine().angle == 0;
    };
    const auto title = std::find_if(blocks.begin(), blocks.end(), isOfFlow);
    const auto end = std::find_if_not(title, blocks.end(), isCentredOnFirstPage);
    const auto count = static_cast<std::size_t>(end - title);
    if (count < 3 || count > parameters.longestTitleBlock)
        return {};
    const auto first = static_cast<std::size_t>(title - blocks.begin()) + 1;
    return {first, first + count - 2};
}

class HeadingStyleFinder {
public:
    HeadingStyleFinder(DocumentDraft& draft, const DocumentContext& context, const LayoutParameters& parameters)
        : m_draft(draft)
        , m_context(context)
        , m_parameters(parameters)
        , m_limits(parameters.headings)
        , m_body(bodyLook()) {}

    void run() {
        collect();
        dropCrowdedLooks();
        setLevels();
    }

private:
    HeadingLook bodyLook() const {
        Tally<HeadingLook> looks;
        for (const DraftBlock& block : m_draft.blocks)
            if (const DraftParagraph* paragraph = block.paragraph())
                if (const auto look = lookOf(*paragraph, m_limits.lookShare))
                    looks.add(*look, static_cast<double>(letterCount(*paragraph)));
        const HeadingLook* most = looks.heaviest();
        return most ? *most : HeadingLook{std::lround(m_context.bodyFontSize * 2), false, false, false, {}};
    }

    void collect() {
        const BlockRange bylines = bylinesOf(m_draft.blocks, m_limits);
        for (std::size_t i = 0; i < m_draft.blocks.size(); ++i) {
            const DraftParagraph* paragraph = m_draft.blocks[i].paragraph();
            m_letterCount += paragraph ? letterCount(*paragraph) : 0;
            if (paragraph && paragraph->role == ParagraphRole::Body && !bylines.contains(i))
                if (auto candidate = candidateOf(i, *paragraph))
                    m_candidates.push_back(std::move(*candidate));
        }
    }

    std::optional<Candidate> candidateOf(std::size_t index, const DraftParagraph& paragraph) const {
        const std::size_t lines = paragraph.pieces.front().text.lines.size();
        const Line& first = paragraph.firstLine();
        if (paragraph.pieces.size() > 1 || lines > static_cast<std::size_t>(m_limits.maximumLines) || first.angle != 0)
            return std::nullopt;
        const TextTraits traits = traitsOf(utf32FromUtf8(textOf(paragraph)));
        if (traits.letters < 2 || traits.hasAddress ||
            traits.characters > static_cast<std::size_t>(m_limits.maximumLength))
            return std::nullopt;
        auto look = lookOf(paragraph, m_limits.lookShare);
        if (!look)
            return std::nullopt;
        look->isCapital = traits.isCapital;
        const auto number = readHeadingNumber(first);
        const auto marker = findListMarker(first, m_parameters.markers);
        const bool isItem = marker && (marker->kind == MarkerKind::Bullet || marker->kind == MarkerKind::Dash ||
                                       marker->kind == MarkerKind::Box);
        const bool isLarger =
            static_cast<double>(look->halfPoints) >= m_limits.largerSize * static_cast<double>(m_body.halfPoints);
        const bool isBolder = look->isBold && !m_body.isBold && look->halfPoints >= m_body.halfPoints;
        const bool isDeep = number && number->parts.size() > 1;
        if (isItem || !(isLarger || isBolder || (isDeep && look->isCapital)))
            return std::nullopt;
        // Sentences are no headings, unless they are numbered or much larger than the text.
        if (traits.endsLikeSentence && !number && !isLarger)
            return std::nullopt;
        if (hasTab(first))
            return std::nullopt;
        return Candidate{index, *look, number};
    }

    /// A gap within the line, other than behind a number, makes it a row of a form or of a table.
    static bool hasTab(const Line& line) {
        for (std::size_t i = 2; i < line.words.size(); ++i)
            if (line.words[i].gapBefore == Gap::Tab)
                return true;
        return false;
    }

    /// A look in which much of the text is set is no heading's, nor one whose paragraphs mostly follow each other.
    void dropCrowdedLooks() {
        std::map<HeadingLook, std::tuple<std::size_t, std::size_t, std::size_t>>
            counts; // letters, members, followed by their like
        for (std::size_t i = 0; i < m_candidates.size(); ++i) {
            auto& [letters, members, crowded] = counts[m_candidates[i].look];
            letters += letterCount(*m_draft.blocks[m_candidates[i].block].paragraph());
            ++members;
            const bool isFollowed = i + 1 < m_candidates.size() &&
                                    m_candidates[i + 1].block == m_candidates[i].block + 1 &&
                                    m_candidates[i + 1].look == m_candidates[i].look;
            crowded += isFollowed ? 1 : 0;
        }
        std::erase_if(m_candidates, [&](const Candidate& candidate) {
            const auto& [letters, members, crowded] = counts[candidate.look];
            return static_cast<double>(letters) > m_limits.letterShare * static_cast<double>(m_letterCount) ||
                   static_cast<double>(crowded) > m_limits.crowdedShare * static_cast<double>(members);
        });
    }

    void setLevels() {
        std::vector<HeadingLook> looks;
        for (const Candidate& candidate : m_candidates)
            looks.push_back(candidate.look);
        std::sort(looks.begin(), looks.end(), std::greater<>());
        looks.erase(std::unique(looks.begin(), looks.end()), looks.end());
        for (const Candidate& candidate : m_candidates) {
            DraftParagraph& paragraph = *m_draft.blocks[candidate.block].paragraph();
            const auto rank = std::find(looks.begin(), looks.end(), candidate.look) - looks.begin();
            const bool isDeep = candidate.number && candidate.number->parts.size() > 1;
            paragraph.role = ParagraphRole::Heading;
            paragraph.level = isDeep ? static_cast<int>(candidate.number->parts.size()) : static_cast<int>(rank) + 1;
            paragraph.level = std::min(paragraph.level, kDeepestLevel);
        }
    }

    DocumentDraft& m_draft;
    const DocumentContext& m_context;
    const LayoutParameters& m_parameters;
    const StructureParameters::Headings& m_limits;
    HeadingLook m_body;
    std::size_t m_letterCount = 0;
    std::vector<Candidate> m_candidates;
};

} // namespace

void findHeadingsByStyle(DocumentDraft& draft, const DocumentContext& context, const LayoutParameters& parameters) {
    HeadingStyleFinder(draft, context, parameters).run();
}

} // namespace orvane::layout
