#include "layout/graphics/PageColor.h"

#include "layout/support/Tally.h"

#include <algorithm>

namespace orvane::layout {
namespace {

bool coversPage(const Ground& ground, const PageText& page, double edge) {
    return ground.opacity >= 1 && ground.box.left <= edge && ground.box.top <= edge &&
           ground.box.right >= page.width - edge && ground.box.bottom >= page.height - edge;
}

/// The ground that lies below all others of the page and covers it; null without one.
const Ground* lowestCover(const PageText& page, double edge) {
    const auto lowest = std::min_element(page.grounds.begin(), page.grounds.end(),
                                         [](const Ground& a, const Ground& b) { return a.paintOrder < b.paintOrder; });
    return lowest != page.grounds.end() && coversPage(*lowest, page, edge) ? &*lowest : nullptr;
}

} // namespace

std::optional<Color> takePageColor(std::vector<PageText>& pages, const GraphicsParameters::PageColor& parameters) {
    Tally<Color> colors;
    for (const PageText& page : pages)
        if (const Ground* ground = lowestCover(page, parameters.edge))
            colors.add(ground->color, 1);
    const Color* most = colors.heaviest();
    if (!most)
        return std::nullopt;
    const Color color = *most;
    const auto isPaper = [&](const PageText& page) {
        const Ground* ground = lowestCover(page, parameters.edge);
        return ground && ground->color == color;
    };
    const auto agreeing = std::count_if(pages.begin(), pages.end(), isPaper);
    if (static_cast<double>(agreeing) < parameters.pageShare * static_cast<double>(pages.size()))
        return std::nullopt;
    for (PageText& page : pages)
        if (isPaper(page))
            page.grounds.erase(page.grounds.begin() + (lowestCover(page, parameters.edge) - page.grounds.data()));
    return color;
}

} // namespace orvane::layout
