#include "pdf/FontPacker.h"

#include "pdf/FontRights.h"
#include "pdf/GlyphIndices.h"
#include "pdf/LetterForm.h"
#include "pdf/TrueTypeCharacterMap.h"
#include "pdf/TrueTypeFile.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

#include <GfxFont.h>
#include <XRef.h>

#include FT_SFNT_NAMES_H
#include FT_TRUETYPE_IDS_H

namespace orvane::pdf {
namespace {

constexpr int kLeastUnits = 512;      ///< per em; coarser programs are drawn on a finer grid
constexpr int kUsualUnits = 2048;     ///< per em
constexpr double kLeastItalic = 0.02; ///< a lean of one degree; an italic that leans less is none
constexpr char32_t kBlank = U' ';
constexpr char32_t kHardBlank = U'\u00A0';

/// A font of the file with its program opened.
struct OpenFont {
    std::unique_ptr<GfxFont> font;
    std::vector<unsigned char> bytes;
    std::uint16_t bits = 0;
    std::unique_ptr<FontProgram> program;
    std::unique_ptr<GlyphIndices> indices;
};

std::unique_ptr<GfxFont> fontOf(int objectNumber, XRef& xref) {
    if (objectNumber <= 0 || objectNumber >= xref.getNumObjects())
        return nullptr;
    const XRefEntry* entry = xref.getEntry(objectNumber);
    const Ref reference{objectNumber, entry->type == xrefEntryUncompressed ? entry->gen : 0};
    const ::Object dictionary = xref.fetch(reference);
    return dictionary.isDict() ? GfxFont::makeFont(&xref, "F", reference, dictionary.getDict()) : nullptr;
}

/// Unset for programs that may not travel.
std::optional<OpenFont> openFont(int objectNumber, XRef& xref) {
    OpenFont open;
    open.font = fontOf(objectNumber, xref);
    if (!open.font || !open.font->isOk())
        return std::nullopt;
    std::optional<std::vector<unsigned char>> bytes = open.font->readEmbFontFile(&xref);
    const std::optional<std::uint16_t> bits = bytes ? embeddingBits(*bytes) : std::nullopt;
    if (!bits || !mayBeEdited(*bits))
        return std::nullopt;
    open.bits = *bits;
    open.bytes = std::move(*bytes);
    open.program = std::make_unique<FontProgram>(open.bytes);
    if (!open.program->face())
        return std::nullopt;
    open.indices = std::make_unique<GlyphIndices>(*open.font, *open.program, open.bytes);
    return open;
}

bool isUpright(const FontProgram& program) {
    const std::optional<LetterForm> form = letterFormOf(program);
    return form && std::abs(form->slant) < kLeastItalic;
}

/// The notice of the font's maker, which stays with it.
std::string copyrightOf(FT_Face face) {
    for (FT_UInt i = 0; i < FT_Get_Sfnt_Name_Count(face); ++i) {
        FT_SfntName name;
        if (FT_Get_Sfnt_Name(face, i, &name) != 0 || name.name_id != TT_NAME_ID_COPYRIGHT ||
            name.platform_id != TT_PLATFORM_MICROSOFT)
            continue;
        std::string text;
        for (FT_UInt at = 1; at < name.string_len; at += 2) // UTF-16, high byte first
            text += static_cast<char>(name.string[at - 1] == 0 ? name.string[at] : '?');
        return text;
    }
    return {};
}

class FontMaker {
public:
    FontMaker(const FontRequest& request, int unitsPerEm)
        : m_request(request) {
        m_file.family = request.family;
        m_file.isBold = request.isBold;
        m_file.isItalic = request.isItalic;
        m_file.isFixedPitch = request.isFixedPitch;
        m_file.unitsPerEm = unitsPerEm;
        m_file.ascent = units(request.ascent);
        m_file.descent = units(request.descent);
        m_file.glyphs.emplace_back().advance = units(request.blankWidth);
    }

    void add(const FontSource& source, const OpenFont& open) {
        m_file.embeddingBits = std::max(m_file.embeddingBits, open.bits);
        if (m_file.copyright.empty())
            m_file.copyright = copyrightOf(open.program->face());
        for (const FontCharacter& character : source.characters) {
            const std::uint32_t index = open.indices->glyphOf(character.code);
            if (index == 0 || m_glyphOf.contains(character.character))
                continue;
            std::optional<TrueTypeGlyph> glyph = trueTypeGlyph(*open.program, index, m_file.unitsPerEm);
            if (!glyph)
                continue;
            glyph->advance = units(character.advance);
            m_glyphOf.emplace(character.character, std::move(*glyph));
        }
    }

    std::optional<std::string> take() {
        if (m_glyphOf.empty() || m_glyphOf.size() >= kMostMappedCharacters)
            return std::nullopt;
        TrueTypeGlyph& blank = m_glyphOf.try_emplace(kBlank).first->second;
        if (blank.advance == 0)
            blank.advance = units(m_request.blankWidth);
        for (auto& [character, glyph] : m_glyphOf) {
            m_file.glyphOf.emplace(character, static_cast<std::uint16_t>(m_file.glyphs.size()));
            m_file.glyphs.push_back(std::move(glyph));
        }
        m_file.glyphOf.try_emplace(kHardBlank, m_file.glyphOf.at(kBlank));
        return bytesOf(m_file);
    }

private:
    int units(double em) const { return static_cast<int>(std::lround(em * m_file.unitsPerEm)); }

    const FontRequest& m_request;
    TrueTypeFile m_file;
    std::map<char32_t, TrueTypeGlyph> m_glyphOf;
};

} // namespace

std::optional<std::string> packFont(const FontRequest& request, XRef& xref) {
    std::optional<FontMaker> maker;
    for (const FontSource& source : request.sources) {
        const std::optional<OpenFont> open = openFont(source.objectNumber, xref);
        if (!open || (request.isItalic && isUpright(*open->program)))
            return std::nullopt;
        const int units = open->program->face()->units_per_EM;
        if (!maker)
            maker.emplace(request, units >= kLeastUnits ? units : kUsualUnits);
        maker->add(source, *open);
    }
    return maker ? maker->take() : std::nullopt;
}

} // namespace orvane::pdf
