#include "worker/PageInventory.h"

#include "layout/text/Characters.h"
#include "layout/text/GlyphFilter.h"

#include <algorithm>
#include <set>
#include <utility>

namespace orvane::worker {
namespace {

/// Where letters stand that are seen in pictures.
std::vector<Rect> picturedAreas(const layout::PageText& text) {
    std::vector<Rect> areas;
    for (const layout::Figure& figure : text.figures)
        areas.push_back(figure.box);
    for (const layout::Formula& formula : text.formulas)
        areas.push_back(formula.box);
    return areas;
}

/// What is painted twice, as a shadow or to make it bold, counts once.
void countGlyphs(const pdf::PageContent& page, const layout::PageText& text, const layout::TextParameters& parameters,
                 PageInventory& inventory) {
    const std::vector<Rect> pictured = picturedAreas(text);
    Diagnostics known; // told when the page was read
    for (const layout::SelectedGlyph& selected : layout::filterGlyphs(page, parameters, known).glyphs) {
        const pdf::Glyph& glyph = page.glyphs[selected.index];
        const std::u32string characters = layout::normalizeGlyphText(glyph.unicode);
        inventory.characters += static_cast<std::size_t>(
            std::count_if(characters.begin(), characters.end(), [](char32_t c) { return !layout::isBlank(c); }));
        const Point middle{glyph.box.centerX(), glyph.box.centerY()};
        const auto holds = [&](const Rect& area) { return area.contains(middle); };
        if (std::none_of(pictured.begin(), pictured.end(), holds))
            inventory.letters += layout::countLetters(characters);
    }
}

/// A single pixel shows nothing: it keeps other things apart, or fills an area.
bool isSpacer(const pdf::Picture& picture) {
    return picture.pixelWidth <= 1 && picture.pixelHeight <= 1;
}

void listLinks(const pdf::PageContent& page, PageInventory& inventory) {
    const Rect area{0, 0, page.width, page.height};
    const auto isOnPage = [&](const Rect& box) { return box.intersects(area); };
    std::set<std::string> addresses;
    std::set<std::pair<int, double>> places;
    for (const pdf::Link& link : page.links) {
        if (std::none_of(link.boxes.begin(), link.boxes.end(), isOnPage))
            continue;
        ++inventory.links;
        if (!link.uri.empty())
            addresses.insert(link.uri);
        else if (link.destination && link.destination->page > 0)
            places.insert({link.destination->page, link.destination->top.value_or(0)});
    }
    inventory.addresses.assign(addresses.begin(), addresses.end());
    inventory.innerLinks = places.size();
}

void listValues(const std::vector<pdf::FormField>& fields, PageInventory& inventory) {
    for (const pdf::FormField& field : fields) {
        const bool isSign = field.kind == pdf::FieldKind::CheckBox || field.kind == pdf::FieldKind::RadioButton;
        const bool isAction = field.kind == pdf::FieldKind::PushButton || field.kind == pdf::FieldKind::Signature;
        if (isSign ? field.isOn : !isAction && !field.value.empty())
            inventory.values.push_back({field.name, isSign ? std::string() : field.value, isSign});
    }
}

} // namespace

PageInventory inventoryOf(const pdf::PageContent& page, const std::vector<pdf::FormField>& fields,
                          const layout::PageText& text, const layout::TextParameters& parameters) {
    PageInventory inventory;
    inventory.page = page.number;
    inventory.lines = text.lines.size();
    inventory.isScanned = text.isScanned;
    countGlyphs(page, text, parameters, inventory);
    for (const pdf::Picture& picture : page.pictures)
        if (picture.visibility == pdf::Visibility::Visible && !isSpacer(picture))
            inventory.pictures.push_back(picture.box);
    listLinks(page, inventory);
    listValues(fields, inventory);
    return inventory;
}

} // namespace orvane::worker
