#include "layout/text/FieldSigns.h"

#include "base/Utf8.h"
#include "layout/text/FieldValue.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace orvane::layout {
namespace {

using pdf::FieldKind;
using pdf::FormField;
using pdf::Glyph;
using pdf::Visibility;

constexpr char32_t kCheckedBox = 0x2612;
constexpr char32_t kUncheckedBox = 0x2610;

bool isBox(const FormField& field) {
    return field.kind == FieldKind::CheckBox || field.kind == FieldKind::RadioButton;
}

bool isBlank(const Glyph& glyph) {
    return std::all_of(glyph.unicode.begin(), glyph.unicode.end(),
                       [](char32_t c) { return c == U' ' || c == U'\u00A0'; });
}

/// A line of text to write on.
struct WritingLine {
    double baseline = 0;
    double size = 0;
    std::uint32_t font = 0;
    Color color;
};

class FieldWriter {
public:
    FieldWriter(const pdf::PageContent& page, const TextParameters::Fields& limits)
        : m_page(page)
        , m_limits(limits)
        , m_sourceGlyphs(page.glyphs.size()) {}

    pdf::PageContent write() {
        for (const FormField& field : m_page.fields)
            if (isFilledIn(field))
                write(field);
        return std::move(m_page);
    }

private:
    void write(const FormField& field) {
        hideCutText(field);
        hideTextBelow(field);
        if (isBox(field)) {
            const WritingLine line = lineFor(field);
            hideBox(field.box);
            set(std::u32string{field.isOn ? kCheckedBox : kUncheckedBox}, field.box, line);
        } else if (!hasText(field.box)) {
            std::u32string value = utf32FromUtf8(field.value);
            std::replace_if(
                value.begin(), value.end(), [](char32_t c) { return c < U' '; }, U' ');
            set(value.empty() ? std::u32string{kEmptyField} : value, field.box, lineFor(field));
        }
    }

    bool isIn(const Glyph& glyph, const Rect& box) const {
        return glyph.visibility == Visibility::Visible && box.contains(Point{glyph.box.centerX(), glyph.box.centerY()});
    }

    bool hasText(const Rect& box) const {
        return std::any_of(m_page.glyphs.begin(), m_page.glyphs.end(),
                           [&](const Glyph& glyph) { return isIn(glyph, box) && !isBlank(glyph); });
    }

    bool isSeenAt(std::size_t index, const Rect& box) const {
        const Glyph& glyph = m_page.glyphs[index];
        return glyph.visibility == Visibility::Visible && !glyph.box.intersected(box).isEmpty();
    }

    /// Characters of the value that the field's edge cuts through their middle are out of sight as those beyond it.
    void hideCutText(const FormField& field) {
        const auto isInField = [&](const Glyph& glyph) { return isIn(glyph, field.box); };
        const auto first = std::find_if(m_page.glyphs.begin(), m_page.glyphs.end(), isInField);
        if (field.value.empty() || first == m_page.glyphs.end())
            return;
        const auto last = std::find_if(m_page.glyphs.rbegin(), m_page.glyphs.rend(), isInField);
        auto begin = static_cast<std::size_t>(first - m_page.glyphs.begin());
        auto end = static_cast<std::size_t>(m_page.glyphs.rend() - last);
        while (begin > 0 && isSeenAt(begin - 1, field.box))
            --begin;
        while (end < m_page.glyphs.size() && isSeenAt(end, field.box))
            ++end;
        std::u32string seen;
        std::vector<std::size_t> cut;
        for (std::size_t i = begin; i < end; ++i) {
            if (!isSeenAt(i, field.box))
                continue;
            seen += m_page.glyphs[i].unicode;
            if (!isIn(m_page.glyphs[i], field.box))
                cut.push_back(i);
        }
        if (!cut.empty() && findShown(field.value, utf8FromUtf32(seen)))
            for (const std::size_t i : cut)
                m_page.glyphs[i].visibility = Visibility::ClippedAway;
    }

    /// Whether the path is a rectangle that nothing shows through.
    static bool isOpaque(const pdf::Path& path) {
        constexpr std::size_t kMostSegments = 6; // of a rectangle, closed twice
        return path.visibility == Visibility::Visible && path.fill && !path.fill->isPattern && !path.isSimplified &&
               path.fill->opacity >= 1 && path.segments.size() <= kMostSegments;
    }

    /// What the page says below the ground of the field, as the dots of a leader that goes on through it.
    void hideTextBelow(const FormField& field) {
        std::uint32_t ground = 0;
        for (const pdf::Path& path : m_page.paths) {
            const Rect covered = path.box.intersected(path.clip).intersected(field.box);
            if (isOpaque(path) && covered.area() >= m_limits.groundShare * field.box.area())
                ground = std::max(ground, path.paintOrder);
        }
        for (std::size_t i = 0; i < m_sourceGlyphs; ++i)
            if (m_page.glyphs[i].paintOrder < ground && isIn(m_page.glyphs[i], field.box))
                m_page.glyphs[i].visibility = Visibility::Replaced;
    }

    /// What is drawn of the box and its mark goes: the sign shows both.
    void hideBox(const Rect& box) {
        for (Glyph& glyph : m_page.glyphs)
            if (isIn(glyph, box))
                glyph.visibility = Visibility::Replaced;
        const Rect area = box.inflated(m_limits.boxReach);
        for (pdf::Path& path : m_page.paths)
            if (area.contains(path.box.intersected(path.clip)))
                path.visibility = Visibility::Replaced;
    }

    /// That of the nearest text beside the field; where there is none, one at the foot of the field.
    WritingLine lineFor(const FormField& field) const {
        const Rect& box = field.box;
        WritingLine line;
        line.size = std::min(m_limits.usualSize, m_limits.sizeShare * box.height());
        line.baseline = field.isMultiline ? box.top + line.size
                                          : box.bottom - std::max(0.0, (box.height() - line.size) / 2) -
                                                m_limits.descentShare * line.size;
        double least = std::numeric_limits<double>::max();
        for (std::size_t i = 0; i < m_sourceGlyphs; ++i) {
            const Glyph& glyph = m_page.glyphs[i];
            // What stands on that line stands in the field only if the middle of its letters does.
            const double middle = glyph.origin.y - (0.5 - m_limits.descentShare) * glyph.fontSize;
            if (glyph.visibility != Visibility::Visible || glyph.angle != 0 || isBlank(glyph) || middle < box.top ||
                middle > box.bottom)
                continue;
            const double distance = std::max({box.left - glyph.box.right, glyph.box.left - box.right, 0.0});
            if (distance >= least)
                continue;
            least = distance;
            line = {glyph.origin.y, glyph.fontSize, glyph.font, glyph.color};
        }
        return line;
    }

    void set(const std::u32string& text, const Rect& box, const WritingLine& line) {
        const double natural = m_limits.letterWidth * line.size;
        const double room = box.width() / static_cast<double>(text.size());
        // An empty field is as wide as its box, a value as its letters.
        const double advance = text.size() == 1 ? box.width() : std::min(natural, room);
        if (m_page.fonts.empty())
            m_page.fonts.emplace_back().name = "Helvetica";
        double x = box.left;
        for (const char32_t character : text) {
            Glyph& glyph = m_page.glyphs.emplace_back();
            glyph.unicode = character;
            glyph.origin = {x, line.baseline};
            glyph.advance = advance;
            glyph.box = {x, line.baseline - (1 - m_limits.descentShare) * line.size, x + advance,
                         line.baseline + m_limits.descentShare * line.size};
            glyph.fontSize = line.size;
            glyph.font = line.font;
            glyph.color = line.color;
            glyph.paintOrder = std::numeric_limits<std::uint32_t>::max();
            x += advance;
        }
    }

    pdf::PageContent m_page;
    const TextParameters::Fields& m_limits;
    std::size_t m_sourceGlyphs; ///< those of the page itself
};

} // namespace

bool isFilledIn(const FormField& field) {
    return field.kind != FieldKind::PushButton && field.kind != FieldKind::Signature && !field.box.isEmpty();
}

pdf::PageContent withFieldSigns(const pdf::PageContent& page, const TextParameters::Fields& parameters) {
    return FieldWriter(page, parameters).write();
}

void markFields(std::vector<TextRow>& rows, const std::vector<TextFrame>& frames,
                const std::vector<pdf::FormField>& fields, const TextParameters& parameters) {
    for (TextRow& row : rows) {
        for (Cluster& cluster : row.clusters) {
            const double middle = cluster.baseline - parameters.decoration.middleOfText * cluster.size;
            const Point place = frames[row.frame].toPage({cluster.center(), middle});
            for (std::size_t i = 0; i < fields.size(); ++i)
                if (isFilledIn(fields[i]) && fields[i].box.contains(place))
                    cluster.look.field = static_cast<int>(i);
        }
    }
}

} // namespace orvane::layout
