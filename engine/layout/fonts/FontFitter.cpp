#include "layout/fonts/FontFitter.h"

#include "base/Utf8.h"
#include "layout/fonts/FamilyWidths.h"
#include "layout/structure/DraftWalk.h"
#include "pdf/FontName.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <numeric>
#include <optional>
#include <span>
#include <string>
#include <utility>

namespace orvane::layout {
namespace {

constexpr std::array<std::string_view, 2> kSerifFamilies = {"Times New Roman", "Cambria"};
constexpr std::array<std::string_view, 3> kSansFamilies = {"Arial", "Calibri", "Arial Narrow"};
constexpr std::array<std::string_view, 1> kFixedFamilies = {"Courier New"};

/// Text of one face: how wide it stands on the page.
struct Sample {
    std::u32string text;
    double width = 0; ///< em
};

/// The text that a document sets in one face of a font.
struct FaceText {
    std::vector<Sample> samples;
    std::size_t characters = 0; ///< of the samples
};

/// A font of the PDF in all its faces.
struct FontUse {
    MappedFont mapped;
    std::map<FontFace, FaceText> faces;
    std::map<FontFace, int> percents;       ///< once fitted: the stretch of each face
    std::map<FontClass, std::size_t> kinds; ///< characters in faces that are taken for such fonts

    /// A face of a few digits may be taken for another kind than its family is.
    void settleKind() {
        const auto most = std::max_element(kinds.begin(), kinds.end(),
                                           [](const auto& a, const auto& b) { return a.second < b.second; });
        if (most != kinds.end())
            mapped.kind = most->first;
    }

    std::vector<std::string_view> candidates() const {
        if (mapped.isFamilyKnown)
            return hasKnownWidths(mapped.family) ? std::vector<std::string_view>{mapped.family}
                                                 : std::vector<std::string_view>{};
        switch (mapped.kind) {
        case FontClass::Serif:
            return {kSerifFamilies.begin(), kSerifFamilies.end()};
        case FontClass::Sans:
            return {kSansFamilies.begin(), kSansFamilies.end()};
        case FontClass::Fixed:
            return {kFixedFamilies.begin(), kFixedFamilies.end()};
        case FontClass::Symbol:
            break;
        }
        return {};
    }
};

/// How text fits a family.
struct Fit {
    double stretch = 1; ///< of the family's natural width
    double error = 0;   ///< of the width, what is left after that
    double coverage = 0;
    std::size_t characters = 0; ///< measured
};

struct Measured {
    double width = 0;
    double natural = 0;
    std::size_t characters = 0;

    double stretch() const { return width / natural; }
};

/// The stretch that half of the characters stay below: headings set wide do not move it.
double medianStretch(std::vector<Measured>& measured, std::size_t characters) {
    std::sort(measured.begin(), measured.end(),
              [](const Measured& a, const Measured& b) { return a.stretch() < b.stretch(); });
    std::size_t seen = 0;
    for (const Measured& one : measured)
        if ((seen += one.characters) * 2 >= characters)
            return one.stretch();
    return 1;
}

template<typename Faces> // any range of pairs of FontFace and FaceText
Fit fitTo(std::string_view family, const Faces& faces) {
    std::vector<Measured> measured;
    std::size_t characters = 0;
    Fit fit;
    for (const auto& [face, text] : faces) {
        characters += text.characters;
        for (const Sample& sample : text.samples)
            if (const auto natural = naturalWidth(sample.text, family, face)) {
                measured.push_back({sample.width, *natural, sample.text.size()});
                fit.characters += sample.text.size();
            }
    }
    if (measured.empty())
        return fit;
    fit.stretch = medianStretch(measured, fit.characters);
    fit.coverage = static_cast<double>(fit.characters) / static_cast<double>(characters);
    double width = 0, error = 0;
    for (const Measured& one : measured) {
        width += one.width;
        error += std::abs(one.width - fit.stretch * one.natural);
    }
    fit.error = error / width;
    return fit;
}

/// The whole document's text by font and face, and the families for it.
class FontFitter {
public:
    FontFitter(std::vector<std::vector<MappedFont>>& fonts, const DocumentDraft& draft, Tracking tracking,
               const FontParameters::FontFit& parameters)
        : m_fonts(fonts)
        , m_draft(draft)
        , m_tracking(tracking)
        , m_parameters(parameters) {
        for (std::size_t page = 0; page < m_fonts.size(); ++page) {
            m_useOf.emplace_back();
            for (std::size_t font = 0; font < m_fonts[page].size(); ++font) {
                FontUse& use = m_uses[keyOf(page, font)];
                use.mapped = m_fonts[page][font];
                m_useOf.back().push_back(&use);
            }
        }
    }

    void run() {
        readBlocks(m_draft.blocks);
        for (const DraftNote& note : m_draft.notes)
            readBlocks(note.blocks);
        for (const DraftSection& section : m_draft.sections)
            for (const DraftRunningText* text : {&section.header, &section.footer})
                for (const auto* blocks : {&text->standard, &text->firstPage, &text->evenPages})
                    if (*blocks)
                        readBlocks(**blocks);
        for (auto& [key, use] : m_uses)
            fit(use);
        for (std::size_t page = 0; page < m_fonts.size(); ++page)
            for (std::size_t font = 0; font < m_fonts[page].size(); ++font)
                apply(page, font);
    }

private:
    const pdf::Font& source(std::size_t page, std::size_t font) const { return m_draft.pages[page].fonts[font]; }
    static FontFace faceOf(const pdf::Font& font) { return {font.isBold, font.isItalic}; }
    std::string keyOf(std::size_t page, std::size_t font) const {
        const pdf::Font& facts = source(page, font);
        // Made-up names are given to several fonts of a file.
        const std::string number = pdf::isMadeUpFontName(facts.name) ? std::to_string(facts.objectNumber) : "";
        return fontKey(facts.name) + '#' + number + '#' + m_fonts[page][font].family;
    }

    void readBlocks(const std::vector<DraftBlock>& blocks) {
        forEachParagraph(blocks, [&](const DraftParagraph& paragraph) {
            for (const DraftPiece& piece : paragraph.pieces)
                for (const Line& line : piece.text.lines)
                    readLine(line, piece.page);
        });
        for (const DraftBlock& block : blocks)
            readBlocks(block.labels);
    }
    void readLine(const Line& line, std::size_t page) {
        if (line.isVertical || std::fmod(line.angle, 90) != 0)
            return;
        const bool isUpright = line.angle == 90 || line.angle == 270;
        for (const Word& word : line.words)
            for (const Span& span : word.spans)
                readSpan(span, page, isUpright ? span.box.height() : span.box.width());
    }
    void readSpan(const Span& span, std::size_t page, double points) {
        const Look& look = span.look;
        if (look.font >= m_fonts[page].size() || look.verticalPosition != document::VerticalPosition::Baseline ||
            look.isSmallCaps || look.size <= 0 || look.field >= 0)
            return;
        const FontFace face = faceOf(source(page, look.font));
        if (look.isBold != face.isBold || look.isItalic != face.isItalic)
            return;
        FaceText& text = m_useOf[page][look.font]->faces[face];
        if (text.samples.size() >= m_parameters.mostSamples)
            return;
        Sample sample{utf32FromUtf8(span.text), points / (look.size * look.horizontalScale)};
        if (m_tracking == Tracking::Kept && !sample.text.empty())
            sample.width -= look.characterSpacing * static_cast<double>(sample.text.size() - 1) / look.size;
        text.characters += sample.text.size();
        m_useOf[page][look.font]->kinds[m_fonts[page][look.font].kind] += sample.text.size();
        if (sample.width > 0)
            text.samples.push_back(std::move(sample));
    }

    void fit(FontUse& use) const {
        use.settleKind();
        std::optional<Fit> best;
        std::string_view family;
        for (const std::string_view candidate : use.candidates()) {
            const Fit fit = fitTo(candidate, use.faces);
            if (fit.coverage >= m_parameters.leastCoverage && (!best || costOf(fit) < costOf(*best))) {
                best = fit;
                family = candidate;
            }
        }
        if (!best)
            return;
        if (!use.mapped.isFamilyKnown)
            use.mapped = standIn(family);
        for (const auto& entry : use.faces) {
            const Fit own = fitTo(family, std::span(&entry, 1));
            const bool isOwn = own.characters >= m_parameters.leastCharacters &&
                               std::abs(own.stretch - best->stretch) > m_parameters.faceDifference;
            use.percents.emplace(entry.first, percentOf(isOwn ? own : *best));
        }
    }
    double costOf(const Fit& fit) const {
        return fit.error + m_parameters.stretchCost * std::abs(std::log(fit.stretch));
    }
    int percentOf(const Fit& fit) const {
        if (fit.characters < m_parameters.leastCharacters || std::abs(fit.stretch - 1) < m_parameters.leastStretch)
            return 100;
        const double most = m_parameters.greatestStretch;
        return static_cast<int>(std::lround(100 * std::clamp(fit.stretch, 1 - most, 1 + most)));
    }

    void apply(std::size_t page, std::size_t font) {
        const FontUse& use = *m_useOf[page][font];
        m_fonts[page][font] = use.mapped;
        if (const auto percent = use.percents.find(faceOf(source(page, font))); percent != use.percents.end())
            m_fonts[page][font].widthPercent = percent->second;
    }

    std::vector<std::vector<MappedFont>>& m_fonts;
    const DocumentDraft& m_draft;
    Tracking m_tracking;
    const FontParameters::FontFit& m_parameters;
    std::map<std::string, FontUse> m_uses;
    std::vector<std::vector<FontUse*>> m_useOf; ///< for each page's fonts, in m_uses
};

} // namespace

void fitFonts(std::vector<std::vector<MappedFont>>& fonts, const DocumentDraft& draft, Tracking tracking,
              const FontParameters::FontFit& parameters) {
    FontFitter(fonts, draft, tracking, parameters).run();
}

} // namespace orvane::layout
