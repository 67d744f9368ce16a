#include "layout/page/ReadingOrder.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace orvane::layout {
namespace {

double distance(double a0, double a1, double b0, double b1) {
    return std::max({0.0, b0 - a1, a0 - b1});
}

/// Around the lines of all columns of a band.
Rect boxOfBand(int band, const PageRegions& page) {
    Rect box;
    for (const Region& region : page.regions)
        if (region.band == band)
            box = box.united(region.box);
    return box;
}

using Misfit = std::tuple<double, double, double>;

/// How badly an object fits into a region: first by height on the page, then across. At the head of a column no line
/// stands as high as it does, but lines of the columns beside.
Misfit misfit(const Rect& box, const Region& region, const Rect& band) {
    return {std::round(distance(box.top, box.bottom, band.top, band.bottom)),
            distance(box.left, box.right, region.span.left, region.span.right),
            -overlap(box.left, box.right, region.span.left, region.span.right)};
}

std::size_t nearestRegion(const Rect& box, const PageRegions& page) {
    std::vector<Misfit> misfits;
    for (const Region& region : page.regions)
        misfits.push_back(misfit(box, region, boxOfBand(region.band, page)));
    return static_cast<std::size_t>(std::min_element(misfits.begin(), misfits.end()) - misfits.begin());
}

ObjectPlace placeOne(const Rect& box, std::size_t object, const PageRegions& page,
                     const PageParameters::ReadingOrder& parameters) {
    ObjectPlace place{object, page.regions.size(), 0, true};
    if (page.regions.empty())
        return place;
    place.region = nearestRegion(box, page);
    const std::vector<Line>& lines = page.regions[place.region].lines;
    for (const Line& line : lines) {
        const double beside = overlap(box.top, box.bottom, line.box.top, line.box.bottom);
        if (beside > parameters.besideShare * std::min(line.box.height(), box.height()))
            place.standsAlone = false;
    }
    // Text that flows around the object follows it; of a line that merely touches it, the middles tell which comes
    // first.
    while (place.beforeLine < lines.size()) {
        const Rect& line = lines[place.beforeLine].box;
        if (place.standsAlone ? line.centerY() > box.centerY() : line.centerY() > box.top)
            break;
        ++place.beforeLine;
    }
    return place;
}

/// Of objects beside each other in a column the tallest makes room for the others.
void letTallestStandAlone(std::vector<ObjectPlace>& places, std::span<const PageObject> objects,
                          const PageParameters::ReadingOrder& parameters) {
    std::vector<ObjectPlace*> byTop;
    for (ObjectPlace& place : places)
        if (place.standsAlone)
            byTop.push_back(&place);
    const auto boxOf = [&](const ObjectPlace* place) -> const Rect& { return objects[place->object].box; };
    std::stable_sort(byTop.begin(), byTop.end(), [&](const ObjectPlace* a, const ObjectPlace* b) {
        return std::tuple(a->region, boxOf(a).top) < std::tuple(b->region, boxOf(b).top);
    });
    for (std::size_t i = 0; i < byTop.size(); ++i) {
        for (std::size_t j = i + 1; j < byTop.size() && byTop[j]->region == byTop[i]->region; ++j) {
            const Rect &a = boxOf(byTop[i]), &b = boxOf(byTop[j]);
            if (b.top >= a.bottom)
                break;
            const bool areBeside =
                overlap(a.left, a.right, b.left, b.right) <= 0 &&
                overlap(a.top, a.bottom, b.top, b.bottom) > parameters.besideShare * std::min(a.height(), b.height());
            if (areBeside && byTop[i]->standsAlone && byTop[j]->standsAlone)
                byTop[a.height() < b.height() ? i : j]->standsAlone = false;
        }
    }
}

} // namespace

std::vector<ObjectPlace> placeObjects(std::span<const PageObject> objects, const PageRegions& page,
                                      const LayoutParameters& parameters) {
    std::vector<ObjectPlace> places;
    places.reserve(objects.size());
    for (std::size_t i = 0; i < objects.size(); ++i)
        places.push_back(placeOne(objects[i].box, i, page, parameters.readingOrder));
    letTallestStandAlone(places, objects, parameters.readingOrder);
    const auto key = [&](const ObjectPlace& place) {
        const PageObject& object = objects[place.object];
        return std::tuple(place.region, place.beforeLine, std::round(object.box.top), object.box.left,
                          object.paintOrder);
    };
    std::stable_sort(places.begin(), places.end(),
                     [&](const ObjectPlace& a, const ObjectPlace& b) { return key(a) < key(b); });
    return places;
}

} // namespace orvane::layout
