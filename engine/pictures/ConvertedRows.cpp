#include "pictures/ConvertedRows.h"

#include <algorithm>
#include <vector>

namespace orvane::pictures {
namespace {

struct Pixel {
    Color color;
    std::uint8_t alpha = 255;
};

Color onWhite(Pixel pixel) {
    const auto mix = [&](int channel) {
        return static_cast<std::uint8_t>((channel * pixel.alpha + 255 * (255 - pixel.alpha) + 127) / 255);
    };
    return {mix(pixel.color.red), mix(pixel.color.green), mix(pixel.color.blue)};
}

/// Source: ITU-R BT.601, the weights of luma.
int lightnessOf(Color color) {
    return (299 * color.red + 587 * color.green + 114 * color.blue + 500) / 1000;
}

Color grayOf(std::uint8_t level) {
    return {level, level, level};
}

Pixel pixelAt(const PixelFormat& format, const std::uint8_t* row, std::size_t x) {
    const std::uint8_t* at = row + x * bytesPerPixel(format.kind);
    switch (format.kind) {
    case PixelKind::Stencil:
        return {format.stencilColor, static_cast<std::uint8_t>(*at != 0 ? 255 : 0)};
    case PixelKind::Bilevel:
        return {*at != 0 ? kWhite : kBlack};
    case PixelKind::Palette:
        return {format.palette[*at]};
    case PixelKind::Gray:
    case PixelKind::Gray16:
        return {grayOf(*at)};
    case PixelKind::GrayAlpha:
        return {grayOf(*at), at[1]};
    case PixelKind::Rgb:
        return {{at[0], at[1], at[2]}};
    case PixelKind::Rgb16:
        return {{at[0], at[2], at[4]}};
    case PixelKind::RgbAlpha:
        break;
    }
    return {{at[0], at[1], at[2]}, at[3]};
}

/// Writes a pixel as this kind, which is none that spreads pixels into dots.
void putPixel(PixelKind kind, Pixel pixel, std::uint8_t* at) {
    switch (kind) {
    case PixelKind::GrayAlpha:
        at[0] = pixel.color.green;
        at[1] = pixel.alpha;
        break;
    case PixelKind::RgbAlpha:
        at[0] = pixel.color.red;
        at[1] = pixel.color.green;
        at[2] = pixel.color.blue;
        at[3] = pixel.alpha;
        break;
    case PixelKind::Rgb: {
        const Color color = onWhite(pixel);
        at[0] = color.red;
        at[1] = color.green;
        at[2] = color.blue;
        break;
    }
    default:
        *at = static_cast<std::uint8_t>(lightnessOf(onWhite(pixel)));
        break;
    }
}

PixelFormat converted(const PixelFormat& from, PixelKind kind) {
    return {from.width, from.height, kind, {}, {}, from.colorProfile};
}

/// A stencil in a colour that is there to be seen.
PixelFormat visible(PixelFormat format, PixelKind wanted) {
    const bool isLost = format.stencilColor == kWhite && (wanted == PixelKind::Gray || wanted == PixelKind::Rgb);
    if (isLost || wanted == PixelKind::Bilevel)
        format.stencilColor = kBlack;
    return format;
}

class ConvertedRows : public PictureRows {
public:
    ConvertedRows(std::unique_ptr<PictureRows> rows, PixelKind kind)
        : PictureRows(converted(rows->format(), kind))
        , m_from(visible(rows->format(), kind))
        , m_rows(std::move(rows))
        , m_row(rowBytes(m_from)) {}

    void read(std::uint8_t* row) override {
        m_rows->read(m_row.data());
        const std::size_t step = bytesPerPixel(format().kind);
        for (std::size_t x = 0; x < static_cast<std::size_t>(format().width); ++x)
            putPixel(format().kind, pixelAt(m_from, m_row.data(), x), row + x * step);
    }
    bool isCutShort() const override { return m_rows->isCutShort(); }

private:
    PixelFormat m_from;
    std::unique_ptr<PictureRows> m_rows;
    std::vector<std::uint8_t> m_row;
};

/// Black and white dots whose density is the picture's lightness. Source: Floyd and Steinberg, 1976.
class DitheredRows : public PictureRows {
public:
    explicit DitheredRows(std::unique_ptr<PictureRows> rows)
        : PictureRows(converted(rows->format(), PixelKind::Bilevel))
        , m_from(visible(rows->format(), PixelKind::Bilevel))
        , m_rows(std::move(rows))
        , m_row(rowBytes(m_from))
        , m_error(static_cast<std::size_t>(m_from.width) + 2)
        , m_nextError(m_error.size()) {}

    void read(std::uint8_t* row) override {
        m_rows->read(m_row.data());
        std::fill(m_nextError.begin(), m_nextError.end(), 0);
        for (std::size_t x = 0; x < static_cast<std::size_t>(m_from.width); ++x) {
            // The errors' places are shifted by one, so that the first and the last pixel have neighbours.
            const int level = lightnessOf(onWhite(pixelAt(m_from, m_row.data(), x))) + m_error[x + 1] / 16;
            row[x] = level >= 128 ? 1 : 0;
            const int left = level - (row[x] != 0 ? 255 : 0);
            m_error[x + 2] += left * 7;
            m_nextError[x] += left * 3;
            m_nextError[x + 1] += left * 5;
            m_nextError[x + 2] += left;
        }
        std::swap(m_error, m_nextError);
    }
    bool isCutShort() const override { return m_rows->isCutShort(); }

private:
    PixelFormat m_from;
    std::unique_ptr<PictureRows> m_rows;
    std::vector<std::uint8_t> m_row;
    std::vector<int> m_error; ///< sixteenths of a level
    std::vector<int> m_nextError;
};

class OpacityRows : public PictureRows {
public:
    explicit OpacityRows(std::unique_ptr<PictureRows> rows)
        : PictureRows({rows->format().width, rows->format().height, PixelKind::Gray, {}, {}, {}})
        , m_rows(std::move(rows))
        , m_row(rowBytes(m_rows->format())) {}

    void read(std::uint8_t* row) override {
        m_rows->read(m_row.data());
        for (std::size_t x = 0; x < static_cast<std::size_t>(format().width); ++x)
            row[x] = pixelAt(m_rows->format(), m_row.data(), x).alpha;
    }
    bool isCutShort() const override { return m_rows->isCutShort(); }

private:
    std::unique_ptr<PictureRows> m_rows;
    std::vector<std::uint8_t> m_row;
};

} // namespace

bool isGray(const PixelFormat& format) {
    switch (format.kind) {
    case PixelKind::Stencil:
        return format.stencilColor.red == format.stencilColor.green &&
               format.stencilColor.green == format.stencilColor.blue;
    case PixelKind::Bilevel:
    case PixelKind::Gray:
    case PixelKind::Gray16:
    case PixelKind::GrayAlpha:
        return true;
    default:
        return false;
    }
}

bool hasAlpha(const PixelFormat& format) {
    return format.kind == PixelKind::Stencil || format.kind == PixelKind::GrayAlpha ||
           format.kind == PixelKind::RgbAlpha;
}

std::unique_ptr<PictureRows> convertRows(std::unique_ptr<PictureRows> rows, PixelKind kind) {
    if (rows->format().kind == kind)
        return rows;
    if (kind == PixelKind::Bilevel) // of a stencil, which is black on white here, nothing is left over to be spread
        return std::make_unique<DitheredRows>(std::move(rows));
    return std::make_unique<ConvertedRows>(std::move(rows), kind);
}

std::unique_ptr<PictureRows> opacityRows(std::unique_ptr<PictureRows> rows) {
    return std::make_unique<OpacityRows>(std::move(rows));
}

} // namespace orvane::pictures
