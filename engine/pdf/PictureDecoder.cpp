#include "pdf/PictureDecoder.h"

#include "base/PngEncoder.h"
#include "pdf/CodedSize.h"
#include "pdf/JpegPassThrough.h"
#include "pdf/PageSpace.h"
#include "pdf/SampleRows.h"

#include <algorithm>
#include <vector>

#include <fmt/format.h>

#include <GfxState.h>
#include <Stream.h>

namespace orvane::pdf {
namespace {

/// A picture larger than this is not decoded: an A0 sheet scanned at 400 dpi has 250 million pixels.
constexpr std::int64_t kMaxPixels = 300'000'000;
constexpr int kMaxSide = 1 << 20;

bool isSizeSane(std::int64_t width, std::int64_t height) {
    return width > 0 && height > 0 && width <= kMaxSide && height <= kMaxSide && width * height <= kMaxPixels;
}

/// The colours of all values of a picture with one component of up to 8 bits.
std::vector<Color> colorTable(GfxImageColorMap& colors) {
    std::vector<Color> table(std::size_t{1} << std::min(colors.getBits(), 8));
    for (std::size_t value = 0; value < table.size(); ++value) {
        const auto sample = static_cast<unsigned char>(value);
        GfxRGB rgb;
        colors.getRGB(&sample, &rgb);
        table[value] = toColor(rgb);
    }
    return table;
}

bool isGray(const std::vector<Color>& colors) {
    return std::all_of(colors.begin(), colors.end(), [](Color c) { return c.red == c.green && c.green == c.blue; });
}

/// Packs samples of 0 and 1 into bits, the first in the highest.
void packBits(const std::uint8_t* samples, int width, bool isInverted, std::vector<std::uint8_t>& row) {
    std::fill(row.begin(), row.end(), std::uint8_t{0});
    for (int x = 0; x < width; ++x)
        if ((samples[x] != 0) != isInverted)
            row[static_cast<std::size_t>(x) / 8] |= static_cast<std::uint8_t>(0x80 >> (x % 8));
}

PictureData decodeStencil(const PictureSource& source, SampleRows& samples) {
    PngEncoder png(source.width, source.height, PngPixels::Palette1,
                   {{source.stencilColor, 0}, {source.stencilColor, 255}});
    std::vector<std::uint8_t> row(pngRowBytes(PngPixels::Palette1, source.width));
    for (int y = 0; y < source.height; ++y) {
        if (const std::uint8_t* line = samples.at(y, source.height))
            packBits(line, source.width, !source.isInverted, row);
        else
            std::fill(row.begin(), row.end(), std::uint8_t{0});
        png.writeRow(row.data());
    }
    return png.finish();
}

PictureData decodeTwoColors(const PictureSource& source, const std::vector<Color>& table, SampleRows& samples) {
    const bool isWhiteOnBlack = table[0] == kBlack && table[1] == kWhite;
    const bool isBlackOnWhite = table[0] == kWhite && table[1] == kBlack;
    const PngPixels pixels = isWhiteOnBlack || isBlackOnWhite ? PngPixels::Gray1 : PngPixels::Palette1;
    std::vector<PngPaletteEntry> palette;
    if (pixels == PngPixels::Palette1)
        palette = {{table[0], 255}, {table[1], 255}};
    PngEncoder png(source.width, source.height, pixels, palette);
    std::vector<std::uint8_t> row(pngRowBytes(pixels, source.width));
    for (int y = 0; y < source.height; ++y) {
        if (const std::uint8_t* line = samples.at(y, source.height))
            packBits(line, source.width, isBlackOnWhite, row);
        else
            std::fill(row.begin(), row.end(), isWhiteOnBlack || isBlackOnWhite ? std::uint8_t{0xFF} : std::uint8_t{0});
        png.writeRow(row.data());
    }
    return png.finish();
}

PictureData decodeIndexed(const PictureSource& source, const std::vector<Color>& table, SampleRows& samples) {
    const bool gray = isGray(table);
    std::vector<PngPaletteEntry> palette;
    if (!gray)
        for (const Color& color : table)
            palette.push_back({color, 255});
    PngEncoder png(source.width, source.height, gray ? PngPixels::Gray8 : PngPixels::Palette8, palette);
    std::vector<std::uint8_t> row(static_cast<std::size_t>(source.width), gray ? 0xFF : 0);
    for (int y = 0; y < source.height; ++y) {
        const std::uint8_t* line = samples.at(y, source.height);
        for (std::size_t x = 0; x < row.size() && line; ++x)
            row[x] = gray ? table[line[x] % table.size()].red : static_cast<std::uint8_t>(line[x] % table.size());
        if (!line)
            std::fill(row.begin(), row.end(), static_cast<std::uint8_t>(gray ? 0xFF : 0));
        png.writeRow(row.data());
    }
    return png.finish();
}

PictureData decodeRgb(const PictureSource& source, SampleRows& samples) {
    PngEncoder png(source.width, source.height, PngPixels::Rgb8);
    std::vector<std::uint8_t> row(pngRowBytes(PngPixels::Rgb8, source.width));
    for (int y = 0; y < source.height; ++y) {
        if (const std::uint8_t* line = samples.at(y, source.height))
            source.colors->getRGBLine(const_cast<unsigned char*>(line), row.data(), source.width);
        else
            std::fill(row.begin(), row.end(), std::uint8_t{0xFF});
        png.writeRow(row.data());
    }
    return png.finish();
}

/// Opacity of the pixels of one row by the samples' colour key. Source: ISO 32000-1, 8.9.6.4.
void applyColorKey(const PictureSource& source, const std::uint8_t* line, std::vector<std::uint8_t>& alpha) {
    const int components = source.colors->getNumPixelComps();
    for (std::size_t x = 0; x < alpha.size(); ++x) {
        bool isKeyed = true;
        for (int c = 0; c < components && isKeyed; ++c) {
            const int sample = line[x * static_cast<std::size_t>(components) + static_cast<std::size_t>(c)];
            isKeyed = sample >= source.colorKey[2 * c] && sample <= source.colorKey[2 * c + 1];
        }
        if (isKeyed)
            alpha[x] = 0;
    }
}

/// Opacity of the pixels of one row by the mask's samples.
void applyMask(const PictureMask& mask, const std::vector<Color>& levels, const std::uint8_t* line,
               std::vector<std::uint8_t>& alpha) {
    const auto width = static_cast<std::int64_t>(alpha.size());
    for (std::int64_t x = 0; x < width; ++x) {
        const auto from = static_cast<std::size_t>((x * 2 + 1) * mask.width / (width * 2));
        const std::uint8_t sample = line[from];
        // Of a stencil mask the ones are masked out unless it is inverted.
        alpha[static_cast<std::size_t>(x)] = mask.colors                        ? levels[sample % levels.size()].red
                                             : (sample != 0) == mask.isInverted ? 255
                                                                                : 0;
    }
}

/// Takes a ground colour out that was mixed in beforehand. Source: ISO 32000-1, 11.6.5.3 (Matte).
void takeMatteOut(Color matte, const std::uint8_t alpha, std::uint8_t* rgb) {
    if (alpha == 0)
        return;
    const std::uint8_t ground[3] = {matte.red, matte.green, matte.blue};
    for (int c = 0; c < 3; ++c)
        rgb[c] = static_cast<std::uint8_t>(std::clamp(ground[c] + (rgb[c] - ground[c]) * 255 / alpha, 0, 255));
}

/// A picture with transparent parts. It takes the size of whichever is finer, the picture or its mask, lest the mask's
/// edges coarsen.
class MaskedPictureDecoder {
public:
    explicit MaskedPictureDecoder(const PictureSource& source)
        : m_source(source)
        , m_width(source.width)
        , m_height(source.height) {
        if (source.mask && isSizeSane(source.mask->width, source.mask->height)) {
            const int width = std::max(m_width, source.mask->width);
            const int height = std::max(m_height, source.mask->height);
            if (isSizeSane(width, height)) {
                m_width = width;
                m_height = height;
            }
            if (source.mask->colors) {
                m_levels = colorTable(*source.mask->colors);
                if (const GfxColor* matte = source.mask->colors->getMatteColor()) {
                    GfxRGB rgb;
                    source.colors->getColorSpace()->getRGB(matte, &rgb);
                    m_matte = toColor(rgb);
                }
            }
        }
    }

    PictureData decode(SampleRows& samples, SampleRows* maskSamples) {
        PngEncoder png(m_width, m_height, PngPixels::RgbAlpha8);
        std::vector<std::uint8_t> rgb(static_cast<std::size_t>(m_source.width) * 3);
        std::vector<std::uint8_t> keyed(static_cast<std::size_t>(m_source.width));
        std::vector<std::uint8_t> alpha(static_cast<std::size_t>(m_width));
        std::vector<std::uint8_t> row(pngRowBytes(PngPixels::RgbAlpha8, m_width));
        for (int y = 0; y < m_height; ++y) {
            const std::uint8_t* line = samples.at(y, m_height);
            std::fill(keyed.begin(), keyed.end(), static_cast<std::uint8_t>(line ? 255 : 0));
            std::fill(alpha.begin(), alpha.end(), std::uint8_t{255});
            if (line) {
                m_source.colors->getRGBLine(const_cast<unsigned char*>(line), rgb.data(), m_source.width);
                if (m_source.colorKey)
                    applyColorKey(m_source, line, keyed);
            }
            const std::uint8_t* maskLine = maskSamples ? maskSamples->at(y, m_height) : nullptr;
            if (maskLine)
                applyMask(*m_source.mask, m_levels, maskLine, alpha);
            join(rgb, keyed, alpha, row);
            png.writeRow(row.data());
        }
        return png.finish();
    }

private:
    void join(const std::vector<std::uint8_t>& rgb, const std::vector<std::uint8_t>& keyed,
              const std::vector<std::uint8_t>& alpha, std::vector<std::uint8_t>& row) const {
        for (std::size_t x = 0; x < alpha.size(); ++x) {
            const std::size_t from = (x * 2 + 1) * keyed.size() / (alpha.size() * 2);
            std::uint8_t* pixel = &row[x * 4];
            std::copy_n(&rgb[from * 3], 3, pixel);
            pixel[3] = std::min(keyed[from], alpha[x]);
            if (m_matte)
                takeMatteOut(*m_matte, pixel[3], pixel);
        }
    }

    const PictureSource& m_source;
    int m_width;
    int m_height;
    std::vector<Color> m_levels;
    std::optional<Color> m_matte;
};

PictureData decodeMasked(const PictureSource& source, SampleRows& samples) {
    MaskedPictureDecoder decoder(source);
    const auto& mask = source.mask;
    const auto coded = mask ? codedSize(*mask->stream) : std::nullopt;
    if (!mask || !isSizeSane(mask->width, mask->height) || (coded && !isSizeSane(coded->width, coded->height)))
        return decoder.decode(samples, nullptr);
    const int components = mask->colors ? mask->colors->getNumPixelComps() : 1;
    SampleRows maskSamples(*mask->stream, mask->width, mask->height, components,
                           mask->colors ? mask->colors->getBits() : 1);
    return decoder.decode(samples, &maskSamples);
}

PictureData decodeSamples(const PictureSource& source, SampleRows& samples) {
    if (!source.colors)
        return decodeStencil(source, samples);
    if (source.mask || source.colorKey)
        return decodeMasked(source, samples);
    if (source.colors->getNumPixelComps() > 1)
        return decodeRgb(source, samples);
    const std::vector<Color> table = colorTable(*source.colors);
    return table.size() == 2 ? decodeTwoColors(source, table, samples) : decodeIndexed(source, table, samples);
}

bool isDepthSane(int bits) {
    return bits == 1 || bits == 2 || bits == 4 || bits == 8 || bits == 16;
}

} // namespace

std::optional<PictureData> decodePicture(const PictureSource& source, std::string& trouble) {
    if (!isSizeSane(source.width, source.height)) {
        trouble = fmt::format("a picture of {} by {} pixels is not decoded", source.width, source.height);
        return std::nullopt;
    }
    if (source.colors && !source.mask && !source.colorKey)
        if (auto jpeg = jpegAsItStands(*source.stream, *source.colors))
            return jpeg;

    if (const auto coded = codedSize(*source.stream); coded && !isSizeSane(coded->width, coded->height)) {
        trouble = fmt::format("a picture coded as {} by {} pixels is not decoded", coded->width, coded->height);
        return std::nullopt;
    }

    const int components = source.colors ? source.colors->getNumPixelComps() : 1;
    const int bits = source.colors ? source.colors->getBits() : 1;
    if (!isDepthSane(bits) || (source.mask && source.mask->colors && !isDepthSane(source.mask->colors->getBits()))) {
        trouble = "a picture's samples have an unknown size";
        return std::nullopt;
    }
    SampleRows samples(*source.stream, source.width, source.height, components, bits);
    if (samples.isEmpty()) {
        trouble = "a picture's data cannot be read";
        return std::nullopt;
    }
    PictureData picture = decodeSamples(source, samples);
    if (samples.isCutShort())
        trouble = "a picture's data breaks off";
    return picture;
}

} // namespace orvane::pdf
