#pragma once

#include "base/Diagnostic.h"
#include "base/PictureStore.h"
#include "pdf/PageContent.h"
#include "pdf/PictureDecoder.h"

#include <map>
#include <tuple>

class GfxState;

namespace orvane::pdf {

/// Decodes pictures into a store and remembers them by object, so that a logo on a thousand pages is decoded once.
class PictureCache {
public:
    struct Entry {
        PictureId id;
        int pixelWidth = 0;
        int pixelHeight = 0;
        std::string trouble; ///< told once a page by who asks
    };

    /// `objectNumber` 0 is a picture that cannot be met again.
    Entry read(const PictureSource& source, int objectNumber, PictureStore& store);

private:
    using Key = std::tuple<const PictureStore*, int, Color>;
    std::map<Key, Entry> m_entries;
};

/// Turns painted pictures into the page's pictures.
class PictureReader {
public:
    PictureReader(PageContent& page, PictureCache& cache, Diagnostics& diagnostics)
        : m_page(page)
        , m_cache(cache)
        , m_diagnostics(diagnostics) {}

    /// Without a store the picture's place is read, and its samples are not.
    void read(const GfxState& state, const PictureSource& source, int objectNumber, PictureStore* store,
              std::int32_t mark, std::uint32_t paintOrder);

private:
    PageContent& m_page;
    PictureCache& m_cache;
    Diagnostics& m_diagnostics;
};

} // namespace orvane::pdf
