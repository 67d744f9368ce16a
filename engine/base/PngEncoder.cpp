#include "base/PngEncoder.h"

#include <algorithm>
#include <cmath>
#include <csetjmp>
#include <new>

#include <png.h>

namespace orvane {
namespace {

struct PixelFormat {
    int bitDepth;
    int colorType;
    int channels;
};

PixelFormat formatOf(PngPixels pixels) {
    switch (pixels) {
    case PngPixels::Gray1:
        return {1, PNG_COLOR_TYPE_GRAY, 1};
    case PngPixels::Gray8:
        return {8, PNG_COLOR_TYPE_GRAY, 1};
    case PngPixels::Palette1:
        return {1, PNG_COLOR_TYPE_PALETTE, 1};
    case PngPixels::Palette8:
        return {8, PNG_COLOR_TYPE_PALETTE, 1};
    case PngPixels::Rgb8:
        return {8, PNG_COLOR_TYPE_RGB, 3};
    case PngPixels::Gray16:
        return {16, PNG_COLOR_TYPE_GRAY, 1};
    case PngPixels::Rgb16:
        return {16, PNG_COLOR_TYPE_RGB, 3};
    case PngPixels::GrayAlpha8:
        return {8, PNG_COLOR_TYPE_GRAY_ALPHA, 2};
    case PngPixels::RgbAlpha8:
        break;
    }
    return {8, PNG_COLOR_TYPE_RGB_ALPHA, 4};
}

// Level 6 takes three times as long as 3 for pictures a few percent smaller; documents with many scans feel it.
constexpr int kCompressionLevel = 3;

constexpr double kInchesPerMetre = 1 / 0.0254;

png_uint_32 dotsPerMetre(double dotsPerInch) {
    return static_cast<png_uint_32>(std::lround(dotsPerInch * kInchesPerMetre));
}

/// libpng asks about profiles that it finds odd, and would leave the file without them; that is no fault of ours.
void ignoreWarning(png_structp, png_const_charp) {}

} // namespace

struct PngEncoder::State {
    png_structp png = nullptr;
    png_infop info = nullptr;
    PictureData picture;
    std::vector<png_color> palette;
    std::vector<png_byte> paletteAlpha; ///< empty when all entries are opaque

    ~State() { png_destroy_write_struct(&png, &info); }

    static void append(png_structp png, png_bytep data, png_size_t length) {
        auto* state = static_cast<State*>(png_get_io_ptr(png));
        try {
            const auto* bytes = reinterpret_cast<const std::byte*>(data);
            state->picture.bytes.insert(state->picture.bytes.end(), bytes, bytes + length);
            return;
        } catch (const std::bad_alloc&) {
            // Told to libpng below: an exception may not cross its frames.
        }
        png_error(png, "out of memory");
    }

    // In the functions below nothing with a destructor may live between setjmp and the calls that can jump.
    bool begin(int width, int height, PngPixels pixels, const PngExtras& extras) {
        if (setjmp(png_jmpbuf(png)))
            return false;
        const PixelFormat format = formatOf(pixels);
        png_set_write_fn(png, this, &State::append, nullptr);
        png_set_compression_level(png, kCompressionLevel);
        png_set_benign_errors(png, 1);
        png_set_user_limits(png, 0x7fffffff, 0x7fffffff);
        png_set_IHDR(png, info, static_cast<png_uint_32>(width), static_cast<png_uint_32>(height), format.bitDepth,
                     format.colorType, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
        if (!palette.empty())
            png_set_PLTE(png, info, palette.data(), static_cast<int>(palette.size()));
        if (!paletteAlpha.empty())
            png_set_tRNS(png, info, paletteAlpha.data(), static_cast<int>(paletteAlpha.size()), nullptr);
        if (extras.dotsPerInchX > 0 && extras.dotsPerInchY > 0)
            png_set_pHYs(png, info, dotsPerMetre(extras.dotsPerInchX), dotsPerMetre(extras.dotsPerInchY),
                         PNG_RESOLUTION_METER);
        if (!extras.colorProfile.empty())
            png_set_iCCP(png, info, "ICC profile", PNG_COMPRESSION_TYPE_BASE,
                         reinterpret_cast<png_const_bytep>(extras.colorProfile.data()),
                         static_cast<png_uint_32>(extras.colorProfile.size()));
        png_write_info(png, info);
        return true;
    }
    bool row(const std::uint8_t* bytes) {
        if (setjmp(png_jmpbuf(png)))
            return false;
        png_write_row(png, bytes);
        return true;
    }
    bool end() {
        if (setjmp(png_jmpbuf(png)))
            return false;
        png_write_end(png, info);
        return true;
    }
};

std::size_t pngRowBytes(PngPixels pixels, int width) {
    const PixelFormat format = formatOf(pixels);
    const std::size_t bits = static_cast<std::size_t>(width) * static_cast<std::size_t>(format.channels) *
                             static_cast<std::size_t>(format.bitDepth);
    return (bits + 7) / 8;
}

PngEncoder::PngEncoder(int width, int height, PngPixels pixels, const std::vector<PngPaletteEntry>& palette,
                       const PngExtras& extras)
    : m_state(std::make_unique<State>()) {
    m_state->picture.format = PictureFormat::Png;
    m_state->picture.pixelWidth = width;
    m_state->picture.pixelHeight = height;
    for (const PngPaletteEntry& entry : palette)
        m_state->palette.push_back({entry.color.red, entry.color.green, entry.color.blue});
    if (std::any_of(palette.begin(), palette.end(), [](const PngPaletteEntry& entry) { return entry.alpha != 255; }))
        for (const PngPaletteEntry& entry : palette)
            m_state->paletteAlpha.push_back(entry.alpha);
    m_state->png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, ignoreWarning);
    if (!m_state->png)
        throw std::bad_alloc();
    m_state->info = png_create_info_struct(m_state->png);
    if (!m_state->info || !m_state->begin(width, height, pixels, extras))
        throw std::bad_alloc();
}

PngEncoder::~PngEncoder() = default;

void PngEncoder::writeRow(const std::uint8_t* row) {
    if (!m_state->row(row))
        throw std::bad_alloc();
}

PictureData PngEncoder::finish() {
    if (!m_state->end())
        throw std::bad_alloc();
    return std::move(m_state->picture);
}

} // namespace orvane
