#include "pdf/QuadReader.h"

#include <algorithm>
#include <iterator>

#include <Annot.h>

namespace orvane::pdf {

std::vector<Rect> quadBoxes(const ::AnnotQuadrilaterals* quads, const Matrix& toPage) {
    std::vector<Rect> boxes;
    // The library's accessors are not const although they change nothing.
    auto* source = const_cast<::AnnotQuadrilaterals*>(quads);
    for (int i = 0; source && i < source->getQuadrilateralsLength(); ++i) {
        // The corners come in different orders from different writers. Source: ISO 32000-1, 12.5.6.5.
        const double x[] = {source->getX1(i), source->getX2(i), source->getX3(i), source->getX4(i)};
        const double y[] = {source->getY1(i), source->getY2(i), source->getY3(i), source->getY4(i)};
        const auto [left, right] = std::minmax_element(std::begin(x), std::end(x));
        const auto [bottom, top] = std::minmax_element(std::begin(y), std::end(y));
        const Rect box = toPage.applyToBox({*left, *bottom, *right, *top});
        if (!box.isEmpty())
            boxes.push_back(box);
    }
    return boxes;
}

} // namespace orvane::pdf
