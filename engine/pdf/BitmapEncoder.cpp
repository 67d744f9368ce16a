#include "pdf/BitmapEncoder.h"

#include "base/PngEncoder.h"

#include <cstdint>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

#include <splash/SplashBitmap.h>

namespace orvane::pdf {
namespace {

constexpr std::size_t kMaxEntries = 256;

/// Rows of pixels, three bytes each.
class Rows {
public:
    Rows(const SplashBitmap& bitmap, const BitmapPart& part)
        : m_bitmap(bitmap)
        , m_part(part) {}

    int width() const { return m_part.width; }
    int height() const { return m_part.height; }
    std::span<const std::uint8_t> row(int y) const {
        const std::ptrdiff_t start = static_cast<std::ptrdiff_t>(m_part.top + y) * m_bitmap.getRowSize();
        return {m_bitmap.getDataPtr() + start + 3 * m_part.left, static_cast<std::size_t>(3 * m_part.width)};
    }

private:
    const SplashBitmap& m_bitmap;
    BitmapPart m_part;
};

/// Numbers colours in the order in which they come.
class Palette {
public:
    std::size_t indexOf(const std::uint8_t* rgb) {
        const std::uint32_t key = rgb[0] | std::uint32_t{rgb[1]} << 8 | std::uint32_t{rgb[2]} << 16;
        if (key == m_last)
            return m_lastIndex;
        const auto [entry, isNew] = m_indices.try_emplace(key, m_entries.size());
        if (isNew)
            m_entries.push_back({{rgb[0], rgb[1], rgb[2]}});
        m_last = key;
        m_lastIndex = entry->second;
        return m_lastIndex;
    }
    const std::vector<PngPaletteEntry>& entries() const { return m_entries; }

private:
    std::unordered_map<std::uint32_t, std::size_t> m_indices; ///< by colour
    std::vector<PngPaletteEntry> m_entries;
    std::uint32_t m_last = 0xFFFFFFFF; ///< no colour; pixels of one colour come one after the other
    std::size_t m_lastIndex = 0;
};

/// Nothing when the colours are too many.
std::optional<PictureData> encodeIndices(const Rows& rows) {
    Palette palette;
    std::vector<std::uint8_t> indices;
    indices.reserve(static_cast<std::size_t>(rows.width()) * static_cast<std::size_t>(rows.height()));
    for (int y = 0; y < rows.height(); ++y) {
        const std::span<const std::uint8_t> row = rows.row(y);
        for (std::size_t i = 0; i < row.size(); i += 3)
            indices.push_back(static_cast<std::uint8_t>(palette.indexOf(&row[i])));
        if (palette.entries().size() > kMaxEntries)
            return std::nullopt;
    }
    PngEncoder png(rows.width(), rows.height(), PngPixels::Palette8, palette.entries());
    for (std::size_t start = 0; start < indices.size(); start += static_cast<std::size_t>(rows.width()))
        png.writeRow(&indices[start]);
    return png.finish();
}

PictureData encodeColors(const Rows& rows) {
    PngEncoder png(rows.width(), rows.height(), PngPixels::Rgb8);
    for (int y = 0; y < rows.height(); ++y)
        png.writeRow(rows.row(y).data());
    return png.finish();
}

} // namespace

PictureData encodeBitmap(const SplashBitmap& bitmap, const BitmapPart& part) {
    const Rows rows(bitmap, part);
    std::optional<PictureData> withPalette = encodeIndices(rows);
    return withPalette ? *std::move(withPalette) : encodeColors(rows);
}

} // namespace orvane::pdf
