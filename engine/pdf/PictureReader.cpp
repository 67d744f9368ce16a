#include "pdf/PictureReader.h"

#include "pdf/PageSpace.h"

#include <cmath>

#include <GfxState.h>

namespace orvane::pdf {
namespace {

/// Every sample of it is painted.
bool isSolid(const PictureSource& source) {
    return source.colors && !source.mask && !source.colorKey && source.opacityChannel == OpacityChannel::None;
}

} // namespace

PictureCache::Entry PictureCache::read(const PictureSource& source, int objectNumber, PictureStore& store) {
    const Key key{&store, objectNumber, source.stencilColor};
    if (objectNumber > 0)
        if (const auto known = m_entries.find(key); known != m_entries.end())
            return known->second;

    Entry entry{{}, source.width, source.height, {}};
    if (const auto picture = decodePicture(source, entry.trouble)) {
        entry.id = store.add(*picture);
        entry.pixelWidth = picture->pixelWidth;
        entry.pixelHeight = picture->pixelHeight;
    }
    if (objectNumber > 0)
        m_entries.emplace(key, entry);
    return entry;
}

void PictureReader::read(const GfxState& state, const PictureSource& source, int objectNumber, PictureStore* store,
                         std::int32_t mark, std::uint32_t paintOrder) {
    Picture picture;
    const Matrix m = currentMatrix(state);
    // The image's rows run downwards from the top of the unit square of user space.
    picture.matrix = {m.a, m.b, -m.c, -m.d, m.e + m.c, m.f + m.d};
    picture.box = picture.matrix.applyToBox({0, 0, 1, 1});
    if (!std::isfinite(picture.box.left + picture.box.top + picture.box.right + picture.box.bottom))
        return;
    picture.clip = clipBox(state);
    picture.visibility = visibilityOf(picture.box, picture.clip, m_page);
    picture.isStencil = source.colors == nullptr;
    picture.opacity = state.getFillOpacity();
    picture.isOpaque = isSolid(source) && picture.opacity >= 1 && state.getBlendMode() == gfxBlendNormal;
    picture.objectNumber = objectNumber;
    picture.mark = mark;
    picture.paintOrder = paintOrder;
    picture.pixelWidth = source.width;
    picture.pixelHeight = source.height;
    if (store && picture.visibility == Visibility::Visible) {
        const PictureCache::Entry entry = m_cache.read(source, objectNumber, *store);
        picture.id = entry.id;
        picture.pixelWidth = entry.pixelWidth;
        picture.pixelHeight = entry.pixelHeight;
        if (!entry.trouble.empty())
            m_diagnostics.add(DiagnosticKind::PictureUnreadable, m_page.number, entry.trouble, picture.box);
    }
    m_page.pictures.push_back(std::move(picture));
}

} // namespace orvane::pdf
