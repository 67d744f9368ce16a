#include "pdf/SourceRows.h"

#include "pdf/PictureLimits.h"
#include "pdf/PictureOpacity.h"
#include "pdf/SampleColors.h"
#include "pdf/SampleRows.h"

#include <algorithm>
#include <optional>
#include <vector>

#include <GfxState.h>

namespace orvane::pdf {
namespace {

PixelFormat stencilFormat(const PictureSource& source) {
    return {source.width, source.height, PixelKind::Stencil, source.stencilColor, {}, {}};
}

PixelFormat plainFormat(const PictureSource& source, const SampleColors& colors, PixelKind kind) {
    return {
        source.width,       source.height, kind, {}, kind == PixelKind::Palette ? colors.table() : std::vector<Color>(),
        source.colorProfile};
}

/// A picture without transparent parts.
class PlainRows : public PictureRows {
public:
    PlainRows(const PictureSource& source, const SampleColors& colors, PixelKind kind,
              std::unique_ptr<SampleRows> samples)
        : PictureRows(plainFormat(source, colors, kind))
        , m_colors(colors)
        , m_samples(std::move(samples)) {}

    void read(std::uint8_t* row) override {
        const std::uint8_t* samples = m_samples->at(m_next++, format().height);
        if (!samples)
            clearRow(format(), row);
        else if (format().kind == PixelKind::Gray16 || format().kind == PixelKind::Rgb16)
            std::copy_n(m_samples->packed(), rowBytes(format()), row);
        else
            m_colors.read(samples, row, format().width);
    }
    bool isCutShort() const override { return m_samples->isCutShort(); }

private:
    SampleColors m_colors;
    std::unique_ptr<SampleRows> m_samples;
    int m_next = 0;
};

class StencilRows : public PictureRows {
public:
    StencilRows(const PictureSource& source, std::unique_ptr<SampleRows> samples)
        : PictureRows(stencilFormat(source))
        , m_paintedSample(source.isInverted ? 1 : 0)
        , m_samples(std::move(samples)) {}

    void read(std::uint8_t* row) override {
        if (const std::uint8_t* samples = m_samples->at(m_next++, format().height))
            std::transform(samples, samples + format().width, row, [this](std::uint8_t sample) {
                return static_cast<std::uint8_t>(sample == m_paintedSample ? 1 : 0);
            });
        else
            clearRow(format(), row);
    }
    bool isCutShort() const override { return m_samples->isCutShort(); }

private:
    std::uint8_t m_paintedSample;
    std::unique_ptr<SampleRows> m_samples;
    int m_next = 0;
};

/// The size of whichever is finer, the picture or its mask, lest the mask's edges coarsen.
PixelFormat maskedFormat(const PictureSource& source, const PictureMask* mask, PixelKind kind) {
    PixelFormat format{source.width, source.height, kind, {}, {}, source.colorProfile};
    if (!mask)
        return format;
    const int width = std::max(source.width, mask->width);
    const int height = std::max(source.height, mask->height);
    if (isSizeSane(width, height)) {
        format.width = width;
        format.height = height;
    }
    return format;
}

/// A picture with transparent parts.
class MaskedRows : public PictureRows {
public:
    MaskedRows(const PictureSource& source, const PictureMask* mask, const SampleColors& colors,
               std::unique_ptr<SampleRows> samples)
        : PictureRows(maskedFormat(source, mask, kindOf(source, colors)))
        , m_source(source)
        , m_colors(colors)
        , m_samples(std::move(samples))
        , m_matte(matteOf(source))
        , m_pixels(static_cast<std::size_t>(source.width) * 3)
        , m_keyed(static_cast<std::size_t>(source.width))
        , m_alpha(static_cast<std::size_t>(format().width)) {
        if (source.opacityChannel != OpacityChannel::None)
            m_split.resize(m_keyed.size() * static_cast<std::size_t>(source.colors->getNumPixelComps()));
        if (mask)
            m_mask.emplace(*mask);
    }

    void read(std::uint8_t* row) override {
        const std::uint8_t* samples = m_samples->at(m_next, format().height);
        std::fill(m_keyed.begin(), m_keyed.end(), static_cast<std::uint8_t>(samples ? 255 : 0));
        std::fill(m_alpha.begin(), m_alpha.end(), std::uint8_t{255});
        if (samples && !m_split.empty()) {
            splitOpacity(samples, m_source.colors->getNumPixelComps(), m_split.data(), m_keyed);
            samples = m_split.data();
        }
        if (samples) {
            m_colors.readFull(samples, m_pixels.data(), m_source.width);
            if (m_source.colorKey)
                applyColorKey(m_source, samples, m_keyed);
        }
        if (m_mask)
            m_mask->read(m_next, format().height, m_alpha);
        ++m_next;
        join(row);
    }
    bool isCutShort() const override { return m_samples->isCutShort(); }

private:
    static PixelKind kindOf(const PictureSource& source, const SampleColors& colors) {
        return colors.isGray() && !matteOf(source) ? PixelKind::GrayAlpha : PixelKind::RgbAlpha;
    }

    void join(std::uint8_t* row) const {
        const std::size_t channels = bytesPerPixel(format().kind) - 1;
        const std::size_t from = m_colors.isGray() ? 1 : 3;
        for (std::size_t x = 0; x < m_alpha.size(); ++x) {
            const std::size_t sourceX = (x * 2 + 1) * m_keyed.size() / (m_alpha.size() * 2);
            std::uint8_t* pixel = row + x * (channels + 1);
            for (std::size_t c = 0; c < channels; ++c)
                pixel[c] = m_pixels[sourceX * from + std::min(c, from - 1)];
            pixel[channels] = std::min(m_keyed[sourceX], m_alpha[x]);
            if (m_matte)
                takeMatteOut(*m_matte, pixel[channels], pixel);
        }
    }

    const PictureSource& m_source;
    SampleColors m_colors;
    std::unique_ptr<SampleRows> m_samples;
    std::optional<MaskRows> m_mask;
    std::optional<Color> m_matte;
    std::vector<std::uint8_t> m_pixels; ///< the picture's own row
    std::vector<std::uint8_t> m_keyed;  ///< its opacity
    std::vector<std::uint8_t> m_split;  ///< its samples, where their opacity stands between them
    std::vector<std::uint8_t> m_alpha;
    int m_next = 0;
};

/// A mask as a picture of its own.
class MaskPictureRows : public PictureRows {
public:
    explicit MaskPictureRows(const PictureMask& mask)
        : PictureRows({mask.width,
                       mask.height,
                       mask.colors && mask.colors->getBits() > 1 ? PixelKind::Gray : PixelKind::Bilevel,
                       {},
                       {},
                       {}})
        , m_mask(mask)
        , m_alpha(static_cast<std::size_t>(mask.width)) {}

    bool isEmpty() const { return m_mask.isEmpty(); }

    void read(std::uint8_t* row) override {
        m_mask.read(m_next++, format().height, m_alpha);
        const bool isBilevel = format().kind == PixelKind::Bilevel;
        std::transform(m_alpha.begin(), m_alpha.end(), row,
                       [&](std::uint8_t alpha) { return isBilevel ? static_cast<std::uint8_t>(alpha >> 7) : alpha; });
    }
    bool isCutShort() const override { return m_mask.isCutShort(); }

private:
    MaskRows m_mask;
    std::vector<std::uint8_t> m_alpha;
    int m_next = 0;
};

/// Samples of 16 bits can stay as they are where they are the very levels of grey or of red, green and blue.
bool canStayDeep(const PictureSource& source) {
    if (source.colors->getBits() != 16 || !hasDefaultDecode(*source.colors))
        return false;
    switch (source.colors->getColorSpace()->getMode()) {
    case csDeviceGray:
    case csDeviceRGB:
        return true;
    default:
        return !source.colorProfile.empty();
    }
}

} // namespace

std::unique_ptr<PictureRows> openRows(const PictureSource& source, SampleDepth depth, std::string& trouble) {
    if (!isWithinLimits(source, trouble))
        return nullptr;
    const int components = source.colors ? source.colors->getNumPixelComps() : 1;
    const int bits = source.colors ? source.colors->getBits() : 1;
    const bool hasOpacity = source.opacityChannel != OpacityChannel::None;
    auto samples = std::make_unique<SampleRows>(*source.stream, source.width, source.height,
                                                components + (hasOpacity ? 1 : 0), bits);
    if (samples->isEmpty()) {
        trouble = "a picture's data cannot be read";
        return nullptr;
    }
    if (!source.colors)
        return std::make_unique<StencilRows>(source, std::move(samples));
    const SampleColors colors(source);
    const PictureMask* mask = source.mask && isWithinLimits(*source.mask) ? &*source.mask : nullptr;
    if (mask || source.colorKey || hasOpacity)
        return std::make_unique<MaskedRows>(source, mask, colors, std::move(samples));
    PixelKind kind = colors.kind();
    if (depth == SampleDepth::Full && canStayDeep(source))
        kind = components == 1 ? PixelKind::Gray16 : PixelKind::Rgb16;
    return std::make_unique<PlainRows>(source, colors, kind, std::move(samples));
}

std::unique_ptr<PictureRows> openMaskRows(const PictureMask& mask) {
    if (!isWithinLimits(mask))
        return nullptr;
    auto rows = std::make_unique<MaskPictureRows>(mask);
    return rows->isEmpty() ? nullptr : std::move(rows);
}

} // namespace orvane::pdf
